// The pop-up menu of the box in the real module: its blocks, rows, icons, keys and tips.
#include "tests/editor/win/in_place_fixture.h"

#include "kernel/model_number.h"
#include "popup/win/bitmap_menu.h"

namespace {

using Words = std::vector<std::wstring>;

class InPlacePopup : public InPlaceModule {
 protected:
  static HMENU ShownMenu() {
    const HWND window = ::FindWindowW(L"#32768", nullptr);
    constexpr UINT kGetMenuOfWindow = 0x01E1;
    return reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenuOfWindow, 0, 0));
  }
  static MENUITEMINFOW Row(HMENU menu, UINT row) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_DATA | MIIM_SUBMENU | MIIM_ID;
    EXPECT_TRUE(::GetMenuItemInfoW(menu, row, TRUE, &info));
    return info;
  }
  static const CBitmapMenuItemData* RecordOf(const MENUITEMINFOW& info) {
    return reinterpret_cast<const CBitmapMenuItemData*>(info.dwItemData);
  }
  // The labels of the menu's own rows, without separators.
  static Words Labels() {
    Words labels;
    const Json popup = Popup();
    for (const Json& row : popup["rows"])
      if (!row.value("separator", false)) labels.push_back(Wide(row["label"]));
    return labels;
  }
  static std::wstring Wide(const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<size_t>(
        ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                              static_cast<int>(wide.size()))));
    return wide;
  }
  // The labels of the menu of a new object's text.
  Words MenuOf(const wchar_t* type, const std::function<void(QvxDbEntity&)>& set) {
    const AcDbObjectId object = Add(type, set);
    Run(L"REGEN\n");
    DoubleClick(object);
    EXPECT_TRUE(IsOpen()) << devhost::Utf8(type);
    Words labels(3);
    if (!IsOpen()) return labels;
    ShowMenu({[&] { labels = Labels(); }});
    Key(VK_ESCAPE);
    return labels;
  }
  // Somewhere without other objects, in view.
  static constexpr AcGePoint3d kFree{14000, 4000, 0};
};

}  // namespace

TEST_F(InPlacePopup, TheTypeOfTheTextChoosesTheBlock) {
  const Words general = {L"确定(&O)", L"取消(&C)", L"特殊字符", L"专业词库..."};
  Open();
  Words labels;
  ShowMenu({[&] { labels = Labels(); }});
  Key(VK_ESCAPE);
  EXPECT_EQ(labels, general) << "INPLACE";
  const auto at = [](QvxDbEntity& entity) {
    entity.start = kFree;
    entity.end = {kFree.x + 2000, kFree.y, 0};
    entity.outline = {entity.start, entity.end};
    entity.width = 500;
    entity.size = 500;
    entity.label = L"12";
  };
  EXPECT_EQ(MenuOf(L"QVX_TEXT", at).at(2), L"上标") << "INPLACE1";
  EXPECT_EQ(MenuOf(L"QVX_AXIS_LABEL", at).at(2), L"倒排轴号") << "INPLACE2";
  {
    const AcAxDocLock lock;
    ToggleModelNumber();  // otherwise numbers of windows are no texts
  }
  EXPECT_EQ(MenuOf(L"QVX_CORNER_WINDOW", at).at(2), L"批量编号") << "INPLACE3";
  EXPECT_EQ(MenuOf(L"QVX_MULTILEADER", at).at(2), L"一级钢") << "INPLACE5";
  EXPECT_EQ(MenuOf(L"QVX_DIMENSION2", at).at(2), L"恢复标注值") << "INPLACE6";
  EXPECT_EQ(MenuOf(L"QVX_TDBINSIGHT",
                   [&](QvxDbEntity& entity) {
                     at(entity);
                     entity.cells = {L"1"};
                   })
                .back(),
            L"对象编辑...")
      << "INPLACE7";
  EXPECT_EQ(MenuOf(L"QVX_SHEET",
                   [&](QvxDbEntity& entity) {
                     at(entity);
                     entity.width = 2000;
                     entity.kind = entity.flags = 1;
                     entity.cells = {L"A"};
                   })
                .at(2),
            L"单元编辑...")
      << "INPLACE4";
}

TEST_F(InPlacePopup, ItsRowsHaveTheIconsOfTheMenuAndTheHeightOfOneSize) {
  Open();
  ShowMenu({[] {
    const HMENU menu = ShownMenu();
    ASSERT_EQ(::GetMenuItemCount(menu), 5);
    RECT first{};
    ASSERT_TRUE(::GetMenuItemRect(nullptr, menu, 0, &first));
    EXPECT_EQ(first.bottom - first.top, std::max(::GetSystemMetrics(SM_CYMENU), 20));
    for (const UINT row : {0u, 1u, 4u}) {
      const MENUITEMINFOW info = Row(menu, row);
      EXPECT_TRUE(info.fType & MFT_OWNERDRAW);
      EXPECT_NE(RecordOf(info)->m_hBitmap.Get(), nullptr) << row;
    }
    // The row of the sub-menu is measured by its handle.
    EXPECT_NE(Row(menu, 3).hSubMenu, nullptr);
    RECT sub{};
    ASSERT_TRUE(::GetMenuItemRect(nullptr, menu, 3, &sub));
    EXPECT_EQ(sub.bottom - sub.top, first.bottom - first.top);
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_MENU;
    item.itemID = static_cast<UINT>(reinterpret_cast<UINT_PTR>(Row(menu, 3).hSubMenu));
    item.itemData = Row(menu, 3).dwItemData;
    ::SendMessageW(Box(), WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(static_cast<int>(item.itemHeight), first.bottom - first.top);
    EXPECT_GT(item.itemWidth, 16u);
  }});
  EXPECT_TRUE(IsOpen());
}

TEST_F(InPlacePopup, ALetterRunsTheRowThatUnderlinesIt) {
  Open();
  Type(L"hall");
  ShowMenu({Letter(L'c')});
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), m_before);
  Open();
  Type(L"hall");
  ShowMenu({Letter(L'O')});
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Content(), L"hall");
}

TEST_F(InPlacePopup, ALetterThatNoRowUnderlinesIsNotTaken) {
  Open();
  Type(L"hall");
  ShowMenu({Letter(L'z'), [] { EXPECT_TRUE(Popup()["open"].get<bool>()); }});
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(BoxText(), L"hall");
}

TEST_F(InPlacePopup, TheTipOfTheSelectedRowIsOnTheStatusLineUntilTheMenuCloses) {
  Open();
  StartAnew();
  std::vector<std::string> during;
  ShowMenu({Press(VK_DOWN), Press(VK_DOWN), [&] { during = StatusTexts(); }});
  const std::string commit = devhost::Utf8(L"结束编辑并保存文字"),
                    cancel = devhost::Utf8(L"放弃编辑");
  EXPECT_EQ(during, (std::vector<std::string>{commit, cancel}));
  ASSERT_EQ(StatusTexts().size(), 3u) << "the host's text is back once";
  EXPECT_NE(StatusTexts()[2], cancel);
  EXPECT_TRUE(IsOpen());
}

// Its menu has no icon library, which tips do not need.
TEST_F(InPlacePopup, ARowWithoutATipClearsTheStatusLineAndAClosedMenuHasNone) {
  HostProcess::Get().Write(L"own.qmn",
                           "MENU_TITLE = \"T\"\r\n***INPLACE\r\nA [a]5001;\r\n[b]5002;\r\n"
                           "***SWITCH\r\n***RESOURCE\r\nA = \"NONE\",\"tip\"\r\n");
  Run(L"(TSetMenu \"own.qmn\")\n");
  Open();
  StartAnew();
  std::vector<std::string> during;
  ShowMenu({Press(VK_DOWN), Press(VK_DOWN), [&] { during = StatusTexts(); }});
  EXPECT_EQ(during, (std::vector<std::string>{"tip", ""}));
  StartAnew();
  ShowMenu({});
  EXPECT_EQ(StatusTexts(), std::vector<std::string>{}) << "nothing was selected";
  ::SendMessageW(Box(), WM_MENUSELECT, MAKEWPARAM(5001, 0), 0);
  EXPECT_EQ(StatusTexts(), std::vector<std::string>{}) << "of another menu";
  HostProcess::Get().Remove(L"own.qmn");
  HostProcess::Get().Remove(L"own.qmc");
  Forget(L"Settings", L"Menu");
}
