// Names of the menu groups loaded with MENULOAD. The host has no menu bar to show their contents.
// Names are compared ignoring case.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class MenuGroups {
 public:
  // Loads a file. Returns the group's name, given by "***MENUGROUP=" or else the file name; empty
  // if the file cannot be read.
  std::wstring Load(const std::wstring& path);
  bool Unload(const std::wstring& group);  // false when it is not loaded
  bool IsLoaded(const std::wstring& group) const;
  void Clear() { m_groups.clear(); }

 private:
  std::vector<std::wstring> m_groups;
};

}  // namespace devhost
