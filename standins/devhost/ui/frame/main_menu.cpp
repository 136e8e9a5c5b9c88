// Tables of the menu bar; see the header.
#include "devhost/ui/frame/main_menu.h"

#include <iterator>

namespace devhost {
namespace {

struct Row {
  UINT id;  // 0: a separator
  const wchar_t* label;
};

constexpr Row kFile[] = {{kFileNew, L"新建(&N)\tCtrl+N"},
                         {kFileOpen, L"打开(&O)...\tCtrl+O"},
                         {kFileClose, L"关闭(&C)"},
                         {kFileCloseAll, L"全部关闭(&L)"},
                         {0, nullptr},
                         {kFileSave, L"保存(&S)\tCtrl+S"},
                         {kFileSaveAs, L"另存为(&A)..."},
                         {0, nullptr},
                         {kFileQuit, L"退出(&X)\tAlt+F4"}};
constexpr Row kView[] = {{kViewZoomIn, L"放大(&I)"},
                         {kViewZoomOut, L"缩小(&O)"},
                         {kViewExtents, L"全部显示(&E)"},
                         {0, nullptr},
                         {kViewRedraw, L"重画(&R)"}};
constexpr Row kWindow[] = {{kWindowCascade, L"层叠(&C)"},
                           {kWindowTileHorizontal, L"水平平铺(&H)"},
                           {kWindowTileVertical, L"垂直平铺(&V)"},
                           {kWindowArrange, L"排列图标(&A)"},
                           {kWindowMinimize, L"最小化(&M)"}};

template <int count>
HMENU MakePopup(const Row (&rows)[count]) {
  const HMENU popup = ::CreatePopupMenu();
  for (const Row& row : rows)
    ::AppendMenuW(popup, row.id ? MF_STRING : MF_SEPARATOR, row.id, row.label);
  return popup;
}

void Append(HMENU bar, HMENU popup, const wchar_t* label) {
  ::AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), label);
}

}  // namespace

MainMenu MakeMainMenu() {
  const MainMenu menu = {::CreateMenu(), MakePopup(kWindow)};
  Append(menu.bar, MakePopup(kFile), L"文件(&F)");
  Append(menu.bar, MakePopup(kView), L"视图(&V)");
  Append(menu.bar, menu.windowMenu, L"窗口(&W)");
  return menu;
}

HACCEL MakeMainKeys() {
  ACCEL keys[] = {{FCONTROL | FVIRTKEY, 'N', kFileNew},
                  {FCONTROL | FVIRTKEY, 'O', kFileOpen},
                  {FCONTROL | FVIRTKEY, 'S', kFileSave},
                  {FVIRTKEY, VK_F1, kHelpTopics},
                  {FVIRTKEY, VK_F7, kToggleGrid}};
  return ::CreateAcceleratorTableW(keys, static_cast<int>(std::size(keys)));
}

void EnableMainMenu(HMENU menu, bool drawingOpen) {
  for (UINT id = kFileClose; id <= kWindowMinimize; ++id)
    if (id != kFileQuit)
      ::EnableMenuItem(menu, id, MF_BYCOMMAND | (drawingOpen ? MF_ENABLED : MF_GRAYED));
}

}  // namespace devhost
