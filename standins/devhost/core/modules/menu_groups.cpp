#include "devhost/core/modules/menu_groups.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "afx.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

constexpr std::string_view kHead = "***MENUGROUP=";

// The group name in a menu file; empty without such a line.
std::wstring NameIn(std::istream& file) {
  for (std::string line; std::getline(file, line);) {
    if (line.compare(0, kHead.size(), kHead) != 0) continue;
    line.erase(0, kHead.size());
    line.erase(line.find_last_not_of(" \t\r") + 1);
    const CStringW wide(line.c_str());
    return std::wstring(wide.GetString(), static_cast<std::size_t>(wide.GetLength()));
  }
  return {};
}

}  // namespace

std::wstring MenuGroups::Load(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  if (!file) return {};
  std::wstring group = NameIn(file);
  if (group.empty()) group = WithoutExtension(FileNameOf(path));
  if (!IsLoaded(group)) m_groups.push_back(group);
  TheJournal().Record("menugroup",
                      {{"action", "load"}, {"group", Utf8(group)}, {"file", Utf8(path)}});
  return group;
}

bool MenuGroups::Unload(const std::wstring& group) {
  const auto same = [&](const std::wstring& loaded) { return SameName(loaded, group); };
  if (std::erase_if(m_groups, same) == 0) return false;
  TheJournal().Record("menugroup", {{"action", "unload"}, {"group", Utf8(group)}});
  return true;
}

bool MenuGroups::IsLoaded(const std::wstring& group) const {
  return std::any_of(m_groups.begin(), m_groups.end(),
                     [&](const std::wstring& loaded) { return SameName(loaded, group); });
}

}  // namespace devhost
