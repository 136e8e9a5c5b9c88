// The menu groups that modules and users load into the host's own menu system with MENULOAD. Only
// their names are kept: the host has no menu of its own to show them in. Case is ignored in names.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class MenuGroups {
 public:
  // The group's name, which stands in the file behind "***MENUGROUP="; a file without one gives its
  // own name. Empty when the file can't be read.
  std::wstring Load(const std::wstring& path);
  bool Unload(const std::wstring& group);  // false when it is not loaded
  bool IsLoaded(const std::wstring& group) const;
  void Clear() { m_groups.clear(); }

 private:
  std::vector<std::wstring> m_groups;
};

}  // namespace devhost
