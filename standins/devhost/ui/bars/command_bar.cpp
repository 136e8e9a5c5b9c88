// The command line window; see the header.
#include "devhost/ui/bars/command_bar.h"

#include <algorithm>

namespace devhost {
namespace {

constexpr UINT kBarId = 0xE820, kOutputId = 1, kEditId = 2;

std::wstring TextOfWindow(HWND window) {
  std::wstring text(::GetWindowTextLengthW(window) + 1, L'\0');
  text.resize(::GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
  return text;
}

// Edit controls need \r\n and show no other control characters.
std::wstring ForEdit(const std::wstring& text) {
  std::wstring out;
  for (wchar_t c : text) {
    if (c == L'\n') {
      out += L"\r\n";
    } else if (c >= L' ' || c == L'\t') {
      out += c;
    }
  }
  return out;
}

}  // namespace

bool CommandEdit::HandleKey(WPARAM key) {
  if (key == VK_ESCAPE) {
    m_bar.Escape();
  } else if (key == VK_UP) {
    m_bar.SetInputText(m_bar.History().Older(m_bar.InputText()));
  } else if (key == VK_DOWN) {
    m_bar.SetInputText(m_bar.History().Newer(m_bar.InputText()));
  } else {
    return false;
  }
  return true;
}

bool CommandEdit::HandleChar(wchar_t c) {
  if (c == L'\r' || (c == L' ' && m_bar.BlankEndsInput())) {
    m_bar.EndLine();
    return true;
  }
  return c == VK_ESCAPE || c == L'\n';
}

LRESULT CommandEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && HandleKey(wParam)) return 0;
  if (message == WM_CHAR && HandleChar(static_cast<wchar_t>(wParam))) return 0;
  return CEdit::WindowProc(message, wParam, lParam);
}

bool CommandBar::CreateIn(CFrameWnd* frame, Listener listener) {
  m_listener = std::move(listener);
  m_font = MenuFont();
  m_dwStyle = CBRS_BOTTOM;
  if (!CWnd::Create(nullptr, L"命令行", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | CBRS_BOTTOM,
                    CRect(0, 0, 0, 0), frame, kBarId))
    return false;
  if (!m_output.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY |
                           ES_AUTOVSCROLL | ES_NOHIDESEL,
                       CRect(0, 0, 0, 0), this, kOutputId) ||
      !m_edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, CRect(0, 0, 0, 0), this,
                     kEditId))
    return false;
  for (HWND window : {m_output.m_hWnd, m_edit.m_hWnd})
    ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.Get()), FALSE);
  ::SendMessageW(m_output.m_hWnd, EM_SETLIMITTEXT, kMaxText * 2, 0);
  LayOut();
  return true;
}

// The part of new output to show. Line ends at its end are deferred until more output follows, so
// that the last line is never empty. They are dropped if the new output begins with one, and in an
// empty window.
std::wstring CommandBar::VisibleText(const std::wstring& text, bool first) {
  const bool drop = first || (!text.empty() && text[0] == L'\n');
  std::wstring all = (drop ? std::wstring() : m_lineEnds) + text;
  if (first) all.erase(0, std::min(all.find_first_not_of(L'\n'), all.size()));
  const size_t last = all.find_last_not_of(L'\n');
  const size_t end = last == std::wstring::npos ? 0 : last + 1;
  m_lineEnds = end < all.size() ? L"\n" : L"";
  return all.substr(0, end);
}

void CommandBar::Print(const std::wstring& text) {
  const HWND output = m_output.m_hWnd;
  if (!output) return;
  int length = ::GetWindowTextLengthW(output);
  if (length > kMaxText) {
    ::SendMessageW(output, EM_SETSEL, 0, length / 2);
    ::SendMessageW(output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    length = ::GetWindowTextLengthW(output);
  }
  const std::wstring shown = ForEdit(VisibleText(text, length == 0));
  ::SendMessageW(output, EM_SETSEL, length, length);
  ::SendMessageW(output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(shown.c_str()));
  ::SendMessageW(output, EM_SCROLLCARET, 0, 0);
}

void CommandBar::SetPrompt(const std::wstring& prompt) {
  // Prompts may begin with a new line, which the one-line input row cannot show.
  const std::wstring shown =
      prompt.substr(std::min(prompt.find_first_not_of(L"\r\n"), prompt.size()));
  if (shown == m_prompt) return;
  m_prompt = shown;
  LayOut();
  ::InvalidateRect(m_hWnd, nullptr, FALSE);
}

std::wstring CommandBar::InputText() const { return TextOfWindow(m_edit.m_hWnd); }

void CommandBar::SetInputText(const std::wstring& text) {
  ::SetWindowTextW(m_edit.m_hWnd, text.c_str());
  ::SendMessageW(m_edit.m_hWnd, EM_SETSEL, text.size(), text.size());
}

void CommandBar::EndLine() {
  const std::wstring line = InputText();
  SetInputText(L"");
  m_history.Add(line);
  m_listener.line(line);
}

void CommandBar::Escape() {
  SetInputText(L"");
  m_listener.escape();
}

void CommandBar::SendChar(wchar_t c) { ::SendMessageW(m_edit.m_hWnd, WM_CHAR, c, 1); }

void CommandBar::SendKey(WPARAM key) { ::SendMessageW(m_edit.m_hWnd, WM_KEYDOWN, key, 1); }

bool CommandBar::BlankEndsInput() const {
  return BlankEndsLine(InputText(), m_listener.acceptsBlanks());
}

int CommandBar::LineHeight() const {
  WindowDc dc(m_hWnd);
  Selected font(dc, m_font.Get());
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc, &metrics);
  return metrics.tmHeight + metrics.tmExternalLeading;
}

int CommandBar::PromptWidth() const {
  WindowDc dc(m_hWnd);
  Selected font(dc, m_font.Get());
  SIZE size{};
  ::GetTextExtentPoint32W(dc, m_prompt.c_str(), static_cast<int>(m_prompt.size()), &size);
  return size.cx;
}

RECT CommandBar::InputRow() const {
  RECT row{};
  ::GetClientRect(m_hWnd, &row);
  row.top = std::max<LONG>(row.bottom - LineHeight() - Scaled(6), 0);
  return row;
}

CSize CommandBar::CalcFixedLayout(BOOL, BOOL) {
  return CSize(32767, LineHeight() * (kHistoryLines + 1) + Scaled(12));
}

void CommandBar::LayOut() {
  if (!m_edit.m_hWnd) return;
  const RECT row = InputRow();
  const int left = Scaled(6);
  ::MoveWindow(m_output.m_hWnd, left, 2, row.right - left, std::max<LONG>(row.top - 3, 0), TRUE);
  const int x =
      std::min<int>(left + PromptWidth() + Scaled(2), std::max<LONG>(row.right - Scaled(80), 0));
  ::MoveWindow(m_edit.m_hWnd, x, row.top + Scaled(3), row.right - x, LineHeight(), TRUE);
}

void CommandBar::Paint() {
  PaintScope dc(m_hWnd);
  ::FillRect(dc, &dc.Client(), m_paper.Get());
  RECT edge = dc.Client();
  ::DrawEdge(dc, &edge, BDR_SUNKENOUTER, BF_TOP);
  RECT row = InputRow();
  RECT line = {row.left, row.top, row.right, row.top + 1};
  ::FillRect(dc, &line, ::GetSysColorBrush(COLOR_3DLIGHT));
  Selected font(dc, m_font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
  row.left += Scaled(6);
  row.top += Scaled(3);
  ::DrawTextW(dc, m_prompt.c_str(), -1, &row, DT_SINGLELINE | DT_TOP | DT_LEFT | DT_NOPREFIX);
}

LRESULT CommandBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      LayOut();
      break;
    case WM_SETFOCUS:
      ::SetFocus(m_edit.m_hWnd);
      return 0;
    case WM_CTLCOLORSTATIC:  // sent by read-only edits
    case WM_CTLCOLOREDIT:
      ::SetBkColor(reinterpret_cast<HDC>(wParam), ::GetSysColor(COLOR_WINDOW));
      return reinterpret_cast<LRESULT>(m_paper.Get());
  }
  return CControlBar::WindowProc(message, wParam, lParam);
}

}  // namespace devhost
