// The commands of the design module in a drawing, answered by typed texts.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "tests/kernel/kernel_objects_fixture.h"

namespace designtest {

struct CommandCase {
  const wchar_t* command;
  std::vector<const wchar_t*> answers;
  std::map<std::string, int> drawn;         // "TYPE layer" and how many
  std::vector<const wchar_t*> before = {};  // typed first
  std::vector<std::string> printed = {};    // parts of what the command prints
};

inline void PrintTo(const CommandCase& one, std::ostream* out) {
  *out << devhost::Utf8(one.command);
}

class DesignTest : public kerneltest::ObjectsTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  void Type(const std::vector<const wchar_t*>& texts);
  // The command, and its first answers.
  void Answer(const CommandCase& one, std::size_t count);
  void Run(const CommandCase& one) { Answer(one, one.answers.size()); }
  // All groups of all entities, layers included.
  std::vector<std::string> State();
  // How many there are of each type on each layer.
  std::map<std::string, int> Count();
  // What was drawn since an earlier count.
  std::map<std::string, int> Since(const std::map<std::string, int>& earlier);
  // The last entity of a class; a failure without one.
  template <class Entity>
  Entity* Last() {
    Entity* last = nullptr;
    for (AcDbEntity* entity : Entities())
      if (Entity* found = Entity::cast(entity)) last = found;
    EXPECT_NE(last, nullptr);
    return last;
  }
};

}  // namespace designtest
