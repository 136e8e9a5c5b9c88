// Commands of the menu that belong to modules that the package does not contain.
#include "tests/design/design_fixture.h"

#include "devhost/core/base/text_case.h"
#include "standins/samples/design/command_table.h"

namespace {

using PackageCommands = designtest::DesignTest;

TEST_F(PackageCommands, OfOtherModulesSayInOneLineThatTheyAreNotInThePackage) {
  int count = 0;
  for (int i = 0; i < kDesignCommandCount; ++i) {
    const DesignCommand& command = kDesignCommands[i];
    if (command.run != TellNotInPackage) continue;
    SCOPED_TRACE(devhost::Utf8(command.name));
    ui.printed.clear();
    Type({command.name});
    const std::wstring line =
        L"\n命令 " + devhost::UpperCase(command.name) + L" 属于本安装包没有提供的模块。\n";
    EXPECT_NE(ui.printed.find(line), std::wstring::npos);
    EXPECT_EQ(ui.printed.find(L"未知命令"), std::wstring::npos);
    EXPECT_TRUE(Entities().empty());
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace
