// A drawing file as objects with their groups, read without the host's reader: what is in the file
// is seen even if the host would ignore it.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace savetest {

struct FileObject {
  std::string name;   // type and handle; without a handle, the place
  std::string place;  // type and name or number among those of the type
  std::string section;
  std::string owner;                               // the first group 330 that is in no list
  std::map<int, std::vector<std::string>> groups;  // values by code, in order; texts as UTF-8
};

// Objects of all sections; the variables of the header are objects too. Groups below the end mark
// are left out.
std::vector<FileObject> ObjectsOf(const std::string& bytes);

// The values of the group, as text that is equal for equal values.
std::string ValueText(int code, const std::string& value);

}  // namespace savetest
