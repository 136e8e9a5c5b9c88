// The functions of QvxExport that call the host or read a file. TypeOfCode is in type_of_code.cpp,
// IsKeyPressed in win/ and native/.
#include "kernel/qvxexport.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <memory>

#include "acdocman.h"
#include "aced.h"
#include "adslib.h"
#include "kernel/ini_file.h"
#include "kernel/native_file.h"
#include "kernel/tsplitpath.h"

int QvxExport::FindFile(const wchar_t* name, wchar_t* out) {
  if (!name || !*name) return 0;
  wchar_t found[512] = L"";
  if (acedFindFile(name, found) != RTNORM) return 0;
  if (std::wcslen(found) >= kPathUnits) return 0;
  if (out) std::wcscpy(out, found);
  return 1;
}

int QvxExport::GetIniFileToIniBufer(const wchar_t* path, const wchar_t* section, void** buffer) {
  if (!buffer) return 0;
  *buffer = nullptr;
  std::string bytes;
  if (!path || !section || !ReadWholeFile(path, bytes)) return 0;
  auto values = std::make_unique<IniSection>();
  if (!values->Read(bytes, section)) return 0;
  *buffer = values.release();
  return 1;
}

const wchar_t* QvxExport::GetIniBuferValueByKey(void* buffer, const wchar_t* key) {
  return buffer && key ? static_cast<IniSection*>(buffer)->Value(key) : nullptr;
}

void QvxExport::FreeIniBuffer(void* buffer) { delete static_cast<IniSection*>(buffer); }

namespace {

bool IsBlank(wchar_t unit) {
  return unit == L' ' || unit == L'\t' || unit == L'\r' || unit == L'\n';
}

// Advances past one word and returns its bounds without quotes.
const wchar_t* TakeWord(const wchar_t* at, const wchar_t** first, const wchar_t** end) {
  if (*at == L'"') {
    *first = ++at;
    while (*at && *at != L'"' && *at != L'\n') ++at;
    *end = at;
    return *at == L'"' ? at + 1 : at;
  }
  *first = at;
  while (*at && !IsBlank(*at)) ++at;
  *end = at;
  return at;
}

}  // namespace

int QvxExport::GetStringAtIndex(const wchar_t* line, int index, wchar_t* out) {
  out[0] = 0;
  if (!line || index < 1) return 0;
  for (;;) {
    while (IsBlank(*line)) ++line;
    if (!*line) return 0;
    const wchar_t *first, *end;
    line = TakeWord(line, &first, &end);
    if (--index > 0) continue;
    std::ptrdiff_t length = end - first;
    if (length > kPathUnits - 1) length = kPathUnits - 1;
    std::memcpy(out, first, sizeof(wchar_t) * static_cast<std::size_t>(length));
    out[length] = 0;
    return static_cast<int>(length);
  }
}

bool QvxExport::IsArxAppLoaded(const wchar_t* name) {
  const TSplitpathOperator asked(name);
  TWCString wanted = asked.FileName();
  if (wanted.IsEmpty()) return false;
  if (!*asked.Extension()) wanted += L".arx";
  resbuf* loaded = acedArxLoaded();
  bool found = false;
  for (const resbuf* app = loaded; app && !found; app = app->rbnext)
    if (app->restype == RTSTR && app->resval.rstring)
      found = TSplitpathOperator(app->resval.rstring).FileName().EqualsNoCase(wanted);
  if (loaded) acutRelRb(loaded);
  return found;
}

wchar_t* QvxExport::WStrNew(const wchar_t* text) {
  if (!text) return nullptr;
  const std::size_t bytes = sizeof(wchar_t) * (std::wcslen(text) + 1);
  auto* copy = static_cast<wchar_t*>(std::malloc(bytes));
  if (copy) std::memcpy(copy, text, bytes);
  return copy;
}

void QvxExport::PostCommand(const wchar_t* text, int mode) {
  AcApDocManager* documents = acDocManagerPtr();
  AcApDocument* current = documents ? documents->curDocument() : nullptr;
  if (!current || !text) return;
  TWCString sent(mode ? L"\x1B\x1B" : L"");
  sent += text;
  documents->sendStringToExecute(current, sent, true, false, true);
}

TWCString QvxExport::GetFullCmdName(const wchar_t* name) { return TWCString(name); }
