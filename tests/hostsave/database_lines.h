// A database as lines of text: all that a save must preserve, in order. Numbers are exact.
#pragma once

#include <string>
#include <vector>

class AcDbDatabase;

namespace savetest {

struct DatabaseText {
  std::vector<std::string> objects;  // what the host interprets: equal after a save
  // Groups that the host keeps for its files, without subclass marks. A save may add groups, which
  // files of old releases do not have.
  std::vector<std::string> source;
};

DatabaseText TextOf(AcDbDatabase& database);

// One name for the forms that the names of the model and the sheet have in files.
std::string SpaceName(const std::string& name);

// The first difference with the line before it; empty: none.
std::string Difference(const std::vector<std::string>& a, const std::vector<std::string>& b);
// The first line of `part` that is not in `whole` in order; empty: none.
std::string Missing(const std::vector<std::string>& part, const std::vector<std::string>& whole);

}  // namespace savetest
