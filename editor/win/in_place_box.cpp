// The operations of the in-place editor's control.
#include "editor/win/in_place_edit_wnd.h"

#include "ground/win/owned_handle.h"
#include "rxmfcapi.h"

namespace {

// Child, visible, border; multi-line, scrolls sideways, Enter makes a line break.
constexpr DWORD kBoxStyle = 0x50801084;
constexpr UINT kBoxId = 6000;

CWnd* WindowOf(qvx::BoxParent parent) {
  if (parent == qvx::BoxParent::kFrame) return acedGetAcadFrame();
  return acedGetAcadDwgView();
}

// Whether the start of the text is out of sight.
bool IsScrolled(CWnd& edit) {
  const LRESULT start = edit.SendMessage(EM_POSFROMCHAR, 0);
  return static_cast<short>(LOWORD(start)) < 0 || static_cast<short>(HIWORD(start)) < 0;
}

}  // namespace

std::vector<SIZE> InPlaceBox::MeasureAll(const std::vector<std::wstring_view>& texts,
                                         qvx::MeasureFont font) {
  std::vector<SIZE> sizes(texts.size());
  CClientDC dc(&m_edit);
  const HGDIOBJ used = font == qvx::MeasureFont::kBox ? static_cast<HGDIOBJ>(m_edit.m_font)
                                                      : ::GetCurrentObject(dc, OBJ_FONT);
  const qvx::SelectedObject selected(dc, used);
  for (size_t i = 0; i < texts.size(); ++i)
    ::GetTextExtentPoint32W(dc, texts[i].data(), static_cast<int>(texts[i].size()), &sizes[i]);
  return sizes;
}

std::vector<int> InPlaceBox::PrefixWidths(const std::wstring& text) {
  std::vector<int> widths(text.size());
  CClientDC dc(&m_edit);
  const qvx::SelectedObject selected(dc, m_edit.m_font);
  SIZE size{};
  ::GetTextExtentExPointW(dc, text.c_str(), static_cast<int>(text.size()), 0, nullptr,
                          widths.data(), &size);
  return widths;
}

bool InPlaceBox::Create(qvx::BoxParent parent) {
  CWnd* window = WindowOf(parent);
  if (!window || !m_edit.Create(kBoxStyle, CRect(0, 0, 0, 0), window, kBoxId)) return false;
  m_edit.SetLimitText(0);  // the most that the system allows
  return true;
}

bool InPlaceBox::Exists() { return m_edit.m_hWnd && ::IsWindow(m_edit.m_hWnd); }

void InPlaceBox::Destroy() { m_edit.DestroyWindow(); }

void InPlaceBox::SetFont(int height) {
  LOGFONT font{};
  ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
  font.lfHeight = height;
  m_edit.m_font.DeleteObject();
  m_edit.m_font.CreateFontIndirect(&font);
  m_edit.SetFont(&m_edit.m_font, TRUE);
}

std::wstring InPlaceBox::Text() {
  CString text;
  m_edit.GetWindowText(text);
  return text.GetString();
}

void InPlaceBox::SetText(const std::wstring& text) { m_edit.SetWindowText(text.c_str()); }

int InPlaceBox::TextLength() { return m_edit.GetWindowTextLength(); }

bool InPlaceBox::IsModified() { return m_edit.GetModify() != FALSE; }

void InPlaceBox::SetModified(bool modified) { m_edit.SetModify(modified); }

// The two-pointer form: the packed one fails above 65,535.
qvx::TextRange InPlaceBox::Selection() {
  qvx::TextRange range;
  m_edit.GetSel(range.start, range.end);
  return range;
}

void InPlaceBox::Select(qvx::TextRange range) { m_edit.SetSel(range.start, range.end, TRUE); }

void InPlaceBox::SelectAll() { m_edit.SetSel(0, -1, TRUE); }

void InPlaceBox::ScrollToCaret() { m_edit.SendMessage(EM_SCROLLCARET); }

int InPlaceBox::LineOf(int position) { return m_edit.LineFromChar(position); }

int InPlaceBox::LineCount() { return m_edit.GetLineCount(); }

RECT InPlaceBox::ParentClient() {
  RECT client{};
  ::GetClientRect(::GetParent(m_edit.m_hWnd), &client);
  return client;
}

RECT InPlaceBox::Box() {
  RECT box = BoxOnScreen();
  ::MapWindowPoints(nullptr, ::GetParent(m_edit.m_hWnd), reinterpret_cast<POINT*>(&box), 2);
  return box;
}

RECT InPlaceBox::BoxOnScreen() {
  RECT box{};
  ::GetWindowRect(m_edit.m_hWnd, &box);
  return box;
}

POINT InPlaceBox::ScreenToParent(POINT screen) {
  ::ScreenToClient(::GetParent(m_edit.m_hWnd), &screen);
  return screen;
}

void InPlaceBox::Move(const RECT& box) {
  m_edit.MoveWindow(&box, TRUE);
  if (!IsScrolled(m_edit)) return;
  // The control keeps what it scrolled while it was smaller. Now more of the text fits.
  m_edit.SendMessage(WM_HSCROLL, SB_LEFT);
  m_edit.SendMessage(WM_VSCROLL, SB_TOP);
  ScrollToCaret();
}

void InPlaceBox::Show(bool show) { m_edit.ShowWindow(show ? SW_SHOW : SW_HIDE); }

void InPlaceBox::TakeFocus() { m_edit.SetFocus(); }

void InPlaceBox::BringToTop() { m_edit.BringWindowToTop(); }

void InPlaceBox::Invalidate() { m_edit.Invalidate(); }

void InPlaceBox::HideCaret() { ::HideCaret(m_edit.m_hWnd); }

void InPlaceBox::ShowCaret() { ::ShowCaret(m_edit.m_hWnd); }
