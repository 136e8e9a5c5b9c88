// The command line window at the bottom of the frame: what was printed, the prompt, the edit for
// typing. It knows no command: a finished line and Escape go to whoever listens.
#pragma once

#include <functional>
#include <string>

#include "afxcmn.h"
#include "afxext.h"
#include "devhost/ui/bars/command_history.h"
#include "devhost/ui/painting/gdi.h"

namespace devhost {

class CommandBar;

// The edit for typing: Enter and, where it may, a blank end the line; the arrows walk the history.
class CommandEdit : public CEdit {
 public:
  explicit CommandEdit(CommandBar& bar) : m_bar(bar) {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool TakeKey(WPARAM key);
  bool TakeChar(wchar_t c);
  CommandBar& m_bar;
};

class CommandBar : public CControlBar {
 public:
  struct Listener {
    std::function<void(const std::wstring&)> line;  // without the Enter
    std::function<void()> escape;
    std::function<bool()> textMayHoldBlanks;
  };

  CommandBar() : m_edit(*this) {}
  bool CreateIn(CFrameWnd* frame, Listener listener);

  void Print(const std::wstring& text);  // "\n" begins a new line
  void SetPrompt(const std::wstring& prompt);

  std::wstring Typed() const;
  void SetTyped(const std::wstring& text);
  void EndLine();            // what Enter does
  void Escape();             // clears the edit, then tells the listener
  void PassChar(wchar_t c);  // a key typed in the drawing view
  void PassKey(WPARAM key);  // an arrow, Delete or Home typed there
  bool BlankEnds() const;
  CommandHistory& History() { return m_history; }
  HWND EditWindow() const { return m_edit.m_hWnd; }

  CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  static constexpr int kHistoryLines = 4;
  static constexpr int kMostText = 120000;  // characters kept in the history window
  std::wstring TakeShown(const std::wstring& text, bool first);
  int LineHeight() const;
  int PromptWidth() const;
  RECT InputRow() const;
  void Arrange();
  void Paint();

  Listener m_listener;
  CEdit m_output;
  CommandEdit m_edit;
  CommandHistory m_history;
  std::wstring m_prompt;
  std::wstring m_lineEnds;  // ends of the latest text, shown when more follows: no empty last line
  Font m_font;
  Brush m_paper{::CreateSolidBrush(::GetSysColor(COLOR_WINDOW))};
};

}  // namespace devhost
