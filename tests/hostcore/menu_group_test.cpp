// Menu groups: MENULOAD, MENUUNLOAD and the published query.
#include "aced.h"
#include "acedcmdnf.h"
#include "afx.h"
#include "host_fixture.h"

namespace {

class MenuGroupTest : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
  }
  std::wstring WriteMenu(const char* name, const std::wstring& text) {
    const std::filesystem::path path = folder / name;
    std::ofstream(path, std::ios::binary) << CStringA(text.c_str()).GetString();
    return path.wstring();
  }
};

TEST_F(MenuGroupTest, TheFileNamesTheGroup) {
  const std::wstring path =
      WriteMenu("a menu.mns", L"// 菜单\r\n***MENUGROUP=奇维快捷菜单 \r\n***POP0\r\n");
  EXPECT_FALSE(acedIsMenuGroupLoaded(L"奇维快捷菜单"));
  EXPECT_EQ(acedCommandS(RTSTR, L".MENULOAD", RTSTR, path.c_str(), RTNONE), RTNORM);
  EXPECT_TRUE(acedIsMenuGroupLoaded(L"奇维快捷菜单"));
  EXPECT_EQ(Journal("menugroup").size(), 1u);
  EXPECT_EQ(acedCommandS(RTSTR, L".MENUUNLOAD", RTSTR, L"奇维快捷菜单", RTNONE), RTNORM);
  EXPECT_FALSE(acedIsMenuGroupLoaded(L"奇维快捷菜单"));
}

TEST_F(MenuGroupTest, AFileWithoutAGroupNameUsesTheFileNameInAnyCase) {
  const std::wstring path = WriteMenu("quivera.cuix", L"PK");
  Send(L"menuload\n" + path + L"\n");
  EXPECT_TRUE(acedIsMenuGroupLoaded(L"QUIVERA"));
}

TEST_F(MenuGroupTest, AMissingFileIsReportedAndChangesNothing) {
  Send(L"menuload\nmissing.mns\n");
  Send(L"menuunload\nnobody\n");
  EXPECT_FALSE(acedIsMenuGroupLoaded(L"missing"));
  EXPECT_FALSE(acedIsMenuGroupLoaded(nullptr));
  EXPECT_TRUE(Journal("menugroup").empty());
  EXPECT_NE(ui.printed.find(L"找不到菜单文件: missing.mns"), std::wstring::npos);
  EXPECT_NE(ui.printed.find(L"没有加载菜单组: nobody"), std::wstring::npos);
}

}  // namespace
