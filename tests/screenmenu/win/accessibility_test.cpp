// The palette as a screen reader in another process sees it.
#include <gtest/gtest.h>

#include <sstream>

#include "kernel/globals.h"
#include "outside_reader.h"
#include "tree_fixture.h"

#include <objbase.h>

namespace {

using namespace fixture;

class Accessibility : public TreeWindows {
 protected:
  Accessibility() { ::CoInitialize(nullptr); }
  ~Accessibility() override {
    root.reset();
    ::CoUninitialize();
  }

  // A line has name, role, state and action, or name and rectangle.
  std::vector<std::string> Read(const wchar_t* what = L"") {
    return ReadFromOutside(palette.m_hWnd, what);
  }
};

TEST_F(Accessibility, NamesRolesAndFoldedStatesAreReadFromAnotherProcess) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙(&W)", L"TWall\n");
  AddLine(bar, L"--");
  AddLine(bar, L"没有命令");
  TMenuItem* checked = AddLine(bar, L"正交", L"TOrtho\n");
  checked->m_nFlags = TMenuItem::kHasCheckFn;
  checked->m_strCheckFn = L"is-ortho";
  owner.lisp.True(L"is-ortho");
  Build();
  EXPECT_EQ(Read(), (std::vector<std::string>{"墙体\t2b\t100400\t展开", "画墙(W)\t2b\t108000\t按下",
                                              "\t15\t1\t", "没有命令\t2b\t1\t按下",
                                              "正交\t2b\t100010\t按下"}));
}

TEST_F(Accessibility, AnUnfoldedHeaderIsExpandedAndItsLinesAreVisible) {
  AddLine(*AddHeader(bar, L"墙体"), L"画墙", L"TWall\n");
  Build();
  root->ToggleSubMenu(0);
  const std::vector<std::string> lines = Read();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].substr(0, lines[0].rfind('\t')), "墙体\t2b\t100200");
  EXPECT_EQ(lines[1], "画墙\t2b\t100000\t按下");
}

// Rows far from the view keep their window position while scrolling; a screen reader must get
// the position of the layout.
TEST_F(Accessibility, RowsFarFromTheViewReportTheirPlacesAfterScrolling) {
  for (int i = 0; i < 300; ++i) AddLine(bar, std::to_wstring(i).c_str(), L"TLine\n");
  Build();
  root->WheelGroup(0, -12000, CPoint());
  ASSERT_EQ(root->ScrollBar().GetScrollPos(), 4000);
  CRect group;
  root->GetWindowRect(&group);
  const std::vector<std::string> lines = Read(L"places");
  ASSERT_EQ(lines.size(), 300u);
  for (int i : {0, 1, 170, 298, 299}) {
    std::istringstream parts(lines[static_cast<std::size_t>(i)]);
    int name = -1, x = 0, y = 0, width = 0, height = 0;
    parts >> name >> x >> y >> width >> height;
    EXPECT_EQ(name, i);
    EXPECT_EQ(y, group.top + 2 + i * 24 - 4000) << i;
    EXPECT_EQ(height, 24) << i;
  }
}

}  // namespace
