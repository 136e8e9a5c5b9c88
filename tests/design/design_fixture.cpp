#include "tests/design/design_fixture.h"

#include "devhost/core/undo/undo_filer.h"
#include "kernel/tentityset.h"
#include "standins/samples/design/command_table.h"

namespace designtest {

void DesignTest::SetUp() {
  ObjectsTest::SetUp();
  auto& stack = static_cast<AcEdCommandStack&>(host.commands);
  for (int i = 0; i < kDesignCommandCount; ++i) {
    const DesignCommand& command = kDesignCommands[i];
    ASSERT_EQ(
        stack.addCommand(L"QVX_DESIGN", command.name, command.name, command.flags, command.run),
        Acad::eOk)
        << devhost::Utf8(command.name);
  }
}

void DesignTest::TearDown() {
  host.commands.removeGroup(L"QVX_DESIGN");
  ObjectsTest::TearDown();
}

void DesignTest::Type(const std::vector<const wchar_t*>& texts) {
  std::wstring all;
  for (const wchar_t* text : texts) all += std::wstring(text) + L"\n";
  if (!all.empty()) Send(all);
}

void DesignTest::Answer(const CommandCase& one, std::size_t count) {
  std::wstring text = std::wstring(one.command) + L"\n";
  for (std::size_t i = 0; i < count; ++i) text += std::wstring(one.answers[i]) + L"\n";
  if (count < one.answers.size()) text += L'\x1b';
  Send(text);
}

std::vector<std::string> DesignTest::State() {
  std::vector<std::string> state;
  for (const AcDbEntity* entity : Entities()) {
    std::vector<devhost::UndoItem> items;
    devhost::UndoOutFiler filer(entity->database(), items);
    entity->dxfOutFields(&filer);
    std::string all =
        devhost::Utf8(TEntitySet::TypeOf(*entity)) + " " + devhost::Utf8(entity->layer());
    for (const devhost::UndoItem& item : items)
      all += " " + std::to_string(item.code) + " " + devhost::Utf8(item.text) + " " +
             std::to_string(item.number);
    state.push_back(all);
  }
  return state;
}

std::map<std::string, int> DesignTest::Count() {
  std::map<std::string, int> counts;
  for (const AcDbEntity* entity : Entities())
    ++counts[devhost::Utf8(TEntitySet::TypeOf(*entity)) + " " + devhost::Utf8(entity->layer())];
  return counts;
}

std::map<std::string, int> DesignTest::Since(const std::map<std::string, int>& earlier) {
  std::map<std::string, int> change = Count();
  for (const auto& [name, count] : earlier) change[name] -= count;
  std::erase_if(change, [](const auto& one) { return one.second == 0; });
  return change;
}

}  // namespace designtest
