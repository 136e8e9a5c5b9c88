#include "popup/win/bitmap_menu.h"

#include <cstddef>

#include "ground/win/menu_font.h"

IMPLEMENT_DYNAMIC(CBitmapMenu, CMenu)

// Screen readers expect the record at the address in the item data.
static_assert(offsetof(CBitmapMenuItemData, m_accessible) == 0);

namespace {

class Records : public MenuCharRows {
 public:
  explicit Records(const TDPtrList<CBitmapMenuItemData>& items) : m_items(items) {}
  int Count() const override { return m_items.Length(); }
  std::wstring Label(int row) const override {
    const TMenuItem* line = m_items.At(row)->m_pMenuItem;
    if (!line) return {};
    return static_cast<const wchar_t*>(line->m_strLabel);
  }
  int Position(int row) const override { return m_items.At(row)->m_nIndex; }

 private:
  const TDPtrList<CBitmapMenuItemData>& m_items;
};

int WidthOf(const TWCString& label) {
  CWnd* main = AfxGetMainWnd();
  const HWND window = main ? main->m_hWnd : nullptr;
  const qvx::WindowDc dc(window, ::GetDC(window));
  const qvx::OwnedFont font = qvx::MakeMenuFont();
  qvx::SelectedObject selected(
      dc.Get(), font ? static_cast<HGDIOBJ>(font.Get()) : ::GetStockObject(DEFAULT_GUI_FONT));
  SIZE size{};
  ::GetTextExtentPoint32W(dc.Get(), label, label.Length(), &size);
  return size.cx;
}

}  // namespace

void CBitmapMenuItemData::Show(TMenuItem* line, int index) {
  m_pMenuItem = line;
  m_nIndex = index;
  m_accessible.cchWText = static_cast<DWORD>(line->m_strLabel.Length());
  m_accessible.pszWText = const_cast<wchar_t*>(static_cast<const wchar_t*>(line->m_strLabel));
}

void CBitmapMenuItemData::Forget() {
  m_pMenuItem = nullptr;
  m_accessible.cchWText = 0;
  m_accessible.pszWText = const_cast<wchar_t*>(L"");
}

CBitmapMenu::~CBitmapMenu() {
  m_items.Clear();
  CMenu::DestroyMenu();
  --s_count;
  --s_alive;
}

// Deliberate: the label is measured whole, with its tab as a character, and the image column is not
// added. A row with a long accelerator text is too wide; one without may be tight.
void CBitmapMenu::MeasureItem(LPMEASUREITEMSTRUCT item) {
  const auto* record = reinterpret_cast<const CBitmapMenuItemData*>(item->itemData);
  const bool hasText = record && record->m_pMenuItem;
  const SIZE size =
      MeasurePopupRow(hasText ? WidthOf(record->m_pMenuItem->m_strLabel) : 0, MenuHeight());
  item->itemWidth = static_cast<UINT>(size.cx);
  item->itemHeight = static_cast<UINT>(size.cy);
}

// Cached: GetSystemMetrics costs as much as measuring a row, and a menu is shown only once.
int CBitmapMenu::MenuHeight() {
  if (!m_nMenuHeight) m_nMenuHeight = ::GetSystemMetrics(SM_CYMENU);
  return m_nMenuHeight;
}

LRESULT CBitmapMenu::MenuCharSearch(UINT character, UINT flags) const {
  return static_cast<LRESULT>(
      PickMenuChar(static_cast<wchar_t>(character), flags, Records(m_items)));
}
