// Every command of the product's menus is defined when its modules are loaded. The menus are
// compiled by the menu tool, with the engine of the module.
#include <cstdio>
#include <set>

#include <nlohmann/json.hpp>

#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "tests/module/win/module_test.h"

namespace {

std::wstring FolderOfPrograms() {
  wchar_t path[512] = L"";
  ::GetModuleFileNameW(nullptr, path, 512);
  const std::wstring file = path;
  return file.substr(0, file.find_last_of(L"\\/") + 1);
}

// The model of a menu as the menu tool prints it.
std::string ModelOf(const wchar_t* menu) {
  const std::wstring folder = FolderOfPrograms();
  std::string out;
  FILE* pipe =
      ::_wpopen((folder + L"qmn.exe dump --json " + folder + L"product\\" + menu).c_str(), L"rb");
  if (!pipe) return out;
  char part[4096];
  while (const std::size_t got = std::fread(part, 1, sizeof part, pipe)) out.append(part, got);
  ::_pclose(pipe);
  return out;
}

void CollectCommands(const nlohmann::json& node, std::set<std::string>& commands) {
  for (const auto& [key, value] : node.items()) {
    if (key == "command" && value.is_string()) commands.insert(value.get<std::string>());
    if (value.is_structured()) CollectCommands(value, commands);
  }
}

// The name that the host looks up; empty for LISP text, numbers of editing commands and no command.
std::string NameIn(std::string text) {
  text.erase(0, text.find_first_not_of("\x1b'_.-"));
  const std::string name = text.substr(0, text.find_first_of("; \n"));
  return name.empty() || name[0] == '(' || (name[0] >= '0' && name[0] <= '9') ? "" : name;
}

std::set<std::string> NamesIn(const wchar_t* menu) {
  const auto model = nlohmann::json::parse(ModelOf(menu), nullptr, false);
  EXPECT_FALSE(model.is_discarded()) << devhost::Utf8(menu);
  std::set<std::string> commands, names;
  if (!model.is_discarded()) CollectCommands(model, commands);
  for (const std::string& command : commands)
    if (const std::string name = NameIn(command); !name.empty()) names.insert(name);
  return names;
}

class ProductCommands : public Module {};

TEST_F(ProductCommands, OfEveryMenuAreDefinedWithTheModulesLoaded) {
  ASSERT_TRUE(LoadModule());
  ASSERT_TRUE(acrxLoadModule(L"qvx_design.arx", true));
  std::set<std::string> all;
  for (const wchar_t* menu : {L"qvx.qmn", L"simple.qmn", L"qvx2d.qmn", L"qvxavi.qmc"}) {
    const std::set<std::string> names = NamesIn(menu);
    EXPECT_FALSE(names.empty()) << devhost::Utf8(menu);
    all.insert(names.begin(), names.end());
  }
  EXPECT_GE(all.size(), 109u);
  std::string unknown;
  for (const std::string& name : all)
    if (!devhost::TheHost().commands.Find(devhost::UpperCase(devhost::Wide(name)), false))
      unknown += name + " ";
  EXPECT_EQ(unknown, "");
  acrxUnloadModule(L"qvx_design.arx");
}

}  // namespace
