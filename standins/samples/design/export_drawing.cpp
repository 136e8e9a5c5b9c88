// The command; see the header. The host's WBLOCK writes the file and prints why it can't.
#include "export_drawing.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "acdocman.h"
#include "aced.h"
#include "acedcmdnf.h"
#include "adslib.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongest = 132;  // acedGetString truncates without notice

// With the extension of drawings if it has none.
fs::path FullPathOf(const wchar_t* typed) {
  fs::path path(typed);
  if (!path.has_extension()) path += L".dxf";
  std::error_code error;
  const fs::path full = fs::absolute(path, error);
  return error ? path : full.lexically_normal();
}

bool SameName(const std::wstring& a, const std::wstring& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

bool IsFileOfOpenDrawing(const fs::path& path) {
  const std::unique_ptr<AcApDocumentIterator> at(acDocManagerPtr()->newAcApDocumentIterator());
  for (; at && !at->done(); at->step())
    if (SameName(at->document()->fileName(), path.wstring())) return true;
  return false;
}

bool MayReplace(const fs::path& path) {
  ACHAR answer[140] = L"";
  acutPrintf(L"\n%ls 已存在。", path.wstring().c_str());
  acedInitGet(0, L"Yes No");
  return acedGetKword(L"\n是否替换? [是(Y)/否(N)] <N>: ", answer) == RTNORM &&
         std::wcscmp(answer, L"Yes") == 0;
}

std::optional<fs::file_time_type> TimeOf(const fs::path& path) {
  std::error_code error;
  const fs::file_time_type time = fs::last_write_time(path, error);
  return error ? std::nullopt : std::optional(time);
}

// The name that the user types; empty when it can't be taken.
fs::path AskTarget() {
  ACHAR typed[140] = L"";
  if (acedGetString(1, L"\n导出文件名: ", typed) != RTNORM || !*typed) return {};
  if (std::wcslen(typed) >= kLongest) {
    acutPrintf(L"\n文件名太长，最多 %d 个字符。\n", static_cast<int>(kLongest) - 1);
    return {};
  }
  const fs::path path = FullPathOf(typed);
  if (IsFileOfOpenDrawing(path)) {
    acutPrintf(L"\n%ls 是打开的图形，请用另一个文件名。\n", path.wstring().c_str());
    return {};
  }
  return TimeOf(path) && !MayReplace(path) ? fs::path() : path;
}

}  // namespace

void ExportDrawing() {
  if (!acDocManagerPtr()->curDocument()) return;
  const fs::path path = AskTarget();
  if (path.empty()) return;
  const auto before = TimeOf(path);
  const int status =
      acedCommandS(RTSTR, L"_WBLOCK", RTSTR, path.wstring().c_str(), RTSTR, L"*", RTNONE);
  const auto after = TimeOf(path);
  if (status == RTNORM && after && after != before)
    acutPrintf(L"\n整图已导出: %ls\n", path.wstring().c_str());
  else
    acutPrintf(L"\n整图导出失败: %ls\n", path.wstring().c_str());
}
