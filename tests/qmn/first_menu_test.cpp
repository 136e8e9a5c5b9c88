// Every example of docs/first-menu.md: complete menus compile without a finding, parts do so within
// the menu that the document builds.
#include <sstream>

#include "tests/qmn/check_testing.h"

namespace {

struct Example {
  std::string kind;  // the words after ```
  std::string text;
};

std::vector<Example> Examples() {
  std::istringstream lines(
      ReadBytes(std::filesystem::path(QVX_SOURCE_DIR) / "docs" / "first-menu.md"));
  std::vector<Example> examples;
  bool isInside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) {
      isInside = !isInside;
      if (isInside) examples.push_back({line.substr(3), ""});
    } else if (isInside) {
      examples.back().text += line + "\n";
    }
  }
  return examples;
}

class FirstMenu : public QmnTest {};

TEST_F(FirstMenu, EveryExampleCompilesWithoutAFinding) {
  int menus = 0;
  for (const Example& example : Examples()) {
    std::string source;
    if (example.kind == "qmn")
      source = example.text;
    else if (example.kind.starts_with("qmn "))
      source = Framed(example.kind.substr(4), example.text);
    else
      continue;
    ++menus;
    const std::string path = Write(u8"menu.qmn", source);
    std::vector<std::string> args{"check", path, "--codepage", "65001", "--fail-on", "warning"};
    // A part leaves names of the frame unused.
    if (example.kind != "qmn") args.insert(args.end(), {"--ignore", "QMN073,QMN074"});
    const QmnRun check = Qmn(args);
    EXPECT_EQ(check.code, 0) << example.text << check.out;
    const QmnRun run = Qmn({"compile", path, "--codepage", "65001"});
    EXPECT_EQ(run.code, 0) << run.err;
  }
  EXPECT_GE(menus, 8);
}

// Commands of the document, without the shell's prompt.
TEST_F(FirstMenu, EveryCommandOfTheToolExists) {
  int commands = 0;
  for (const Example& example : Examples()) {
    std::istringstream lines(example.text);
    for (std::string line; example.kind == "sh" && std::getline(lines, line);) {
      std::istringstream words(line);
      std::string program, command;
      words >> program >> command;
      if (program != "qmn") continue;
      ++commands;
      EXPECT_EQ(Qmn({"help", command}).code, 0) << line;
    }
  }
  EXPECT_GE(commands, 4);
}

// The last complete menu has all that the document promises.
TEST_F(FirstMenu, TheFinishedMenuHasAPaletteTwoBlocksForObjectsAndASwitch) {
  std::string last;
  for (const Example& example : Examples())
    if (example.kind == "qmn") last = example.text;
  const std::string path = Write(u8"menu.qmn", last);
  const auto chosen = [&path](std::vector<std::string> args) {
    args.insert(args.begin(), {"why", path, "--codepage", "65001"});
    const std::string out = Qmn(args).out;
    return out.substr(out.find("chosen: "));
  };
  EXPECT_TRUE(chosen({"--type", "LINE"}).starts_with("chosen: LINE_MENU,"));
  EXPECT_TRUE(chosen({"--type", "MTEXT"}).starts_with("chosen: TEXT_MENU,"));
  EXPECT_TRUE(chosen({}).starts_with("chosen: COMMON,"));
  const std::string tree = Qmn({"dump", "--tree", path, "--codepage", "65001"}).out;
  EXPECT_NE(tree.find("SCREEN"), std::string::npos);
  EXPECT_NE(tree.find("SW_ORTHO"), std::string::npos);
}

}  // namespace
