// A host and an editor for the message filter that answer from plain fields and keep a diary: one
// entry for each question (it ends in '?') and for each operation, in order.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "editor/control_toggle.h"
#include "editor/filter_host.h"
#include "editor/in_place_edit.h"

namespace editortest {

std::string Utf8(const wchar_t* text);

// Only the addresses are compared; nothing is at them.
inline HWND const kView = reinterpret_cast<HWND>(0x10);       // of the current drawing
inline HWND const kOtherView = reinterpret_cast<HWND>(0x20);  // of another drawing
inline HWND const kFrame = reinterpret_cast<HWND>(0x30);
inline TSubText* const kText = reinterpret_cast<TSubText*>(0x40);

class Diary {
 public:
  void Note(const std::string& entry) {
    if (isOn) entries.push_back(entry);
  }
  bool isOn = true;
  std::vector<std::string> entries;
};

// An object for the control toggle.
struct GroupedObject {
  bool hasState = true;
  long key = 0;
};

class FilterDouble : public qvx::FilterHost {
 public:
  explicit FilterDouble(Diary& diary) : m_diary(diary) {}

  bool hasDocument = true, hasDatabase = true, isHostWindow = true, isReady = true;
  bool isIdle = true, isTyped = false, isLisp = false;
  std::wstring running;         // CMDNAMES
  int active = 0;               // CMDACTIVE
  std::vector<int> nextActive;  // answers to the first questions, ahead of `active`
  std::map<std::wstring, int> variables{{L"TILEMODE", 1}, {L"CVPORT", 2}, {L"GRIDMODE", 0}};
  std::set<int> keysDown;
  std::wstring command;  // of the kernel
  bool hasView = true;
  POINT origin{100, 50};  // of the view on the screen
  SIZE viewSize{400, 300};
  POINT cursor{200, 150};
  int viewport = 2;  // at every point
  bool canConvert = true, canConvertBack = true;
  AcGeVector3d yDirection{0, 2, 0};
  bool resizeTakes = false;
  std::map<std::string, int> found;  // objects found, by the entry of the selection
  bool hasText = false, isFloor = false, isEditable = true;
  std::vector<GroupedObject> objects;
  std::set<std::wstring> files;
  std::wstring helpFile;
  std::string bytes;
  bool canRead = true;
  bool isMenuVisible = false, isInMenu = false, isInGroup = false;
  bool hasContextWindow = true, menuResult = true;

  bool HasCurrentDocument() override { return Answer("document?", hasDocument); }
  bool HasWorkingDatabase() override { return Answer("database?", hasDatabase); }
  bool IsHostWindow(HWND) override { return Answer("window?", isHostWindow); }
  bool IsDrawingReady() override { return Answer("ready?", isReady); }
  bool IsIdle() override { return Answer("idle?", isIdle); }
  bool IsCommandLineEmpty() override { return Answer("typed?", !isTyped); }
  bool IsLispExpression() override { return Answer("lisp?", isLisp); }
  bool RunsCommand(const wchar_t* part) override {
    return Answer("CMDNAMES?", running.find(part) != std::wstring::npos);
  }
  int CommandActive() override;
  int ShortVariable(const wchar_t* name) override;
  bool IsKeyDown(int key) override {
    return Answer(key == VK_CONTROL ? "ctrl?" : "shift?", keysDown.count(key) != 0);
  }
  TWCString CurrentCommand() override;
  TWCString FullCommandName(const wchar_t* name) override;
  bool HasCurrentView() override { return Answer("view?", hasView); }
  bool IsCurrentView(HWND window) override { return Answer("current view?", window == kView); }
  bool IsDrawingView(HWND window) override {
    return Answer("drawing view?", window == kView || window == kOtherView);
  }
  POINT ToView(POINT screen) override { return {screen.x - origin.x, screen.y - origin.y}; }
  POINT ToScreen(POINT view) override { return {view.x + origin.x, view.y + origin.y}; }
  RECT ViewOnScreen() override;
  POINT CursorPosition() override;
  void MoveCursor(POINT screen) override;
  void SetEditCursor() override { Answer("edit cursor", true); }
  void SendKeyToView(int key) override;
  void RestartPreviewTimer() override { Answer("restart timer", true); }
  int ViewportAt(POINT view) override;
  bool ViewportToWorld(int number, POINT view, AcGePoint3d& world) override;
  AcGePoint3d ViewToWorld(POINT view) override;
  bool WorldToViewport(int number, const AcGePoint3d& world, POINT& view) override;
  AcGePoint3d WorldToUser(const AcGePoint3d& world) override;
  AcGeVector3d UserYDirection() override;
  void ZoomAt(const AcGePoint3d& world, double factor) override;
  bool ResizeOnMouseMove(UINT flags, POINT view) override { return Resize("move", flags, view); }
  bool ResizeOnButtonDown(UINT flags, POINT view) override { return Resize("down", flags, view); }
  bool ResizeOnButtonUp(UINT flags, POINT view) override { return Resize("up", flags, view); }
  void ResizeOnEscape() override { m_diary.Note("resize escape"); }
  int SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) override;
  int SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                  TPickEntSet& set) override;
  int SelectImplied(const wchar_t* types, TPickEntSet& set) override;
  void ClearSelection() override { m_diary.Note("clear selection"); }
  TSubText* HitTestOnText(TPickEntSet& set, const AcGePoint3d& world) override;
  bool IsFloorRectangle(const TPickEntSet&) override { return Answer("floor?", isFloor); }
  bool IsEditable(const TPickEntSet&) override { return Answer("editable?", isEditable); }
  std::unique_ptr<qvx::ToggleObjects> ObjectsToToggle(qvx::ToggleSource source) override;
  void SendToHost(const wchar_t* text) override { m_diary.Note("send " + Utf8(text)); }
  void PrintWithPrompt(const wchar_t* text) override { m_diary.Note("print " + Utf8(text)); }
  void ClearKeyboardBuffer() override { m_diary.Note("clear typed"); }
  void ForwardChar(char code, int repeat, int flags) override;
  void ToggleModelNumber() override { m_diary.Note("model number"); }
  bool FindFile(const wchar_t* name, TWCString& path) override;
  bool FindHelpFile(TWCString& path) override;
  bool ReadBytes(const wchar_t* path, std::string& out) override;
  void ShowHelp(qvx::HelpCall call, const wchar_t* file, const wchar_t* keyword) override;
  void CloseGripTip() override { Answer("close tip", true); }
  bool IsScreenMenuVisible() override { return Answer("menu visible?", isMenuVisible); }
  void ShowScreenMenu(bool show) override { m_diary.Note(show ? "show menu" : "hide menu"); }
  void HideTabBar(bool hide) override { m_diary.Note(hide ? "hide tabs" : "show tabs"); }
  bool IsInScreenMenu(POINT) override { return Answer("in menu?", isInMenu); }
  bool IsInWheelGroup(POINT) override { return Answer("in group?", isInGroup); }
  void WheelGroup(int delta, POINT screen) override;
  bool HasContextWindow() override { return Answer("context window?", hasContextWindow); }
  bool ShowContextMenu(POINT screen, bool force) override;

 private:
  // Makes no text while the diary is off.
  bool Answer(const char* entry, bool answer) {
    if (m_diary.isOn) m_diary.Note(entry);
    return answer;
  }
  int Found(const std::string& entry);
  bool Resize(const char* what, UINT flags, POINT view);

  Diary& m_diary;
};

class EditDouble : public InPlaceEdit {
 public:
  explicit EditDouble(Diary& diary) : m_diary(diary) {}

  bool isVisible = false;
  bool isIdentity = true;  // every matrix so far

  bool IsVisible() override {
    if (m_diary.isOn) m_diary.Note("editing?");
    return isVisible;
  }
  void BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) override;
  void EndEdit(bool unhighlight) override {
    m_diary.Note(unhighlight ? "end edit" : "end edit, stays highlighted");
  }
  bool ShowInPlaceMenu(POINT at) override;
  void HideCaret() override { m_diary.Note("hide caret"); }
  void PostMove() override { m_diary.Note("post move"); }

 private:
  Diary& m_diary;
};

}  // namespace editortest
