// The command line window at the bottom of the frame: output, prompt, input. Finished lines and
// Escape are passed to a listener.
#pragma once

#include <functional>
#include <string>

#include "afxcmn.h"
#include "afxext.h"
#include "devhost/ui/bars/command_history.h"
#include "devhost/ui/painting/gdi.h"

namespace devhost {

class CommandBar;

// The input edit: Enter and, where allowed, a blank end the line; the arrow keys recall lines.
class CommandEdit : public CEdit {
 public:
  explicit CommandEdit(CommandBar& bar) : m_bar(bar) {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool HandleKey(WPARAM key);
  bool HandleChar(wchar_t c);
  CommandBar& m_bar;
};

class CommandBar : public CControlBar {
 public:
  struct Listener {
    std::function<void(const std::wstring&)> line;  // without the Enter
    std::function<void()> escape;
    std::function<bool()> acceptsBlanks;
  };

  CommandBar() : m_edit(*this) {}
  bool CreateIn(CFrameWnd* frame, Listener listener);

  void Print(const std::wstring& text);  // "\n" begins a new line
  void SetPrompt(const std::wstring& prompt);

  std::wstring InputText() const;
  void SetInputText(const std::wstring& text);
  void EndLine();            // as Enter does
  void Escape();             // clears the input, then calls the listener
  void SendChar(wchar_t c);  // a key pressed in the drawing view
  void SendKey(WPARAM key);  // an arrow key, Delete or Home pressed there
  bool BlankEndsInput() const;
  CommandHistory& History() { return m_history; }
  HWND EditWindow() const { return m_edit.m_hWnd; }

  CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  static constexpr int kHistoryLines = 4;
  static constexpr int kMaxText = 120000;  // characters kept in the history window
  std::wstring VisibleText(const std::wstring& text, bool first);
  int LineHeight() const;
  int PromptWidth() const;
  RECT InputRow() const;
  void LayOut();
  void Paint();

  Listener m_listener;
  CEdit m_output;
  CommandEdit m_edit;
  CommandHistory m_history;
  std::wstring m_prompt;
  std::wstring m_lineEnds;  // line ends of the latest output, shown when more output follows
  Font m_font;
  Brush m_paper{::CreateSolidBrush(::GetSysColor(COLOR_WINDOW))};
};

}  // namespace devhost
