// Doubles of what a strip uses: its window, the child frames, the host's drawings. Each writes down
// the calls that change something, in order; what they answer is set by the test.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "doctabs/drawing_tabs.h"

using Diary = std::vector<std::wstring>;

inline std::wstring Text(const RECT& r) {
  return L"[" + std::to_wstring(r.left) + L" " + std::to_wstring(r.top) + L" " +
         std::to_wstring(r.right) + L" " + std::to_wstring(r.bottom) + L"]";
}

// Each character is 10 pixels wide.
class DiaryWindow : public TabStripWindow {
 public:
  Diary diary;
  bool exists = true, visible = true, siblingBelow = false, mayActivate = true;
  SIZE client{400, 20};
  int arrowsTop = 0;
  std::function<void()> whileRecalc, whileActivated;

  bool Exists() override { return exists; }
  bool IsVisible() override { return visible; }
  void Show(bool show) override {
    visible = show;
    Note(show ? L"show" : L"hide");
  }
  bool HasSiblingBelow() override { return siblingBelow; }
  void MoveToBottom() override {
    siblingBelow = false;
    Note(L"to bottom");
  }
  void RecalcFrame() override {
    Note(L"recalc");
    if (whileRecalc) whileRecalc();
  }
  SIZE ClientSize() override { return client; }
  void HideArrows() override { Note(L"hide arrows"); }
  void ShowArrows(const RECT& box, int top, int position) override {
    arrowsTop = top;
    Note(L"arrows " + Text(box) + L" 0.." + std::to_wstring(top) + L" at " +
         std::to_wstring(position));
  }
  int ArrowsTop() override { return arrowsTop; }
  void SetArrows(int position) override { Note(L"arrows at " + std::to_wstring(position)); }
  void Invalidate() override { Note(L"invalidate"); }
  void Scroll(const RECT& part, int dx) override {
    Note(L"scroll " + Text(part) + L" by " + std::to_wstring(dx));
  }
  void StartTimer(int id, int milliseconds) override {
    Note(L"timer " + std::to_wstring(id) + L" in " + std::to_wstring(milliseconds));
  }
  void StopTimer(int id) override { Note(L"stop timer " + std::to_wstring(id)); }
  int TextWidth(const CString& text) override { return 10 * text.GetLength(); }
  bool MayActivate() override { return mayActivate; }
  void OnTabActivated() override {
    Note(L"activated");
    if (whileActivated) whileActivated();
  }

  Diary Take() { return std::exchange(diary, {}); }

 private:
  void Note(const std::wstring& text) { diary.push_back(text); }
};

// In place of an object that is not examined.
template <class T>
T* Thing(int number) {
  static char places[1000];
  return reinterpret_cast<T*>(&places[number]);
}
inline CFrameWnd* Frame(int number) { return Thing<CFrameWnd>(number); }
inline AcApDocument* Drawing(int number) { return Thing<AcApDocument>(number); }

class DiaryFrames : public FrameWindows {
 public:
  explicit DiaryFrames(Diary& diary) : m_diary(diary) {}
  CFrameWnd* active = nullptr;
  std::map<CFrameWnd*, CString> titles;  // a frame without an entry has no window
  std::function<void(CFrameWnd*)> whileActivating;

  CFrameWnd* Active() override { return active; }
  CString TitleOf(CFrameWnd* frame) override { return titles.count(frame) ? titles[frame] : L""; }
  void Activate(CFrameWnd* frame) override {
    m_diary.push_back(std::wstring(L"activate frame ") + TitleOf(frame).GetString());
    active = frame;
    if (whileActivating) whileActivating(frame);
  }

 private:
  Diary& m_diary;
};

class DiaryHost : public DrawingHost {
 public:
  explicit DiaryHost(Diary& diary) : m_diary(diary) {}
  AcApDocument *current = nullptr, *mdiActive = nullptr;
  std::vector<AcApDocument*> open;
  std::map<AcApDocument*, CString> names;
  std::map<AcApDocument*, std::optional<int>> others;
  std::function<void(AcApDocument*)> whileActivating, whileClosing;

  void Add(AcApDocument* document, const wchar_t* name, std::optional<int> objects = 0) {
    open.push_back(document);
    names[document] = name;
    others[document] = objects;
  }
  void Drop(AcApDocument* document) { std::erase(open, document); }

  AcApDocument* Current() override { return current; }
  AcApDocument* MdiActive() override { return mdiActive; }
  int Count() override { return static_cast<int>(open.size()); }
  std::vector<AcApDocument*> Documents() override { return open; }
  CString FileName(AcApDocument* document) override { return names.at(document); }
  std::optional<int> CountOtherThanBlocks(AcApDocument* document) override {
    return others.at(document);
  }
  void ClearModified(AcApDocument* document) override { Note(L"unmodified ", document); }
  void Close(AcApDocument* document) override {
    Note(L"close ", document);
    Drop(document);
    if (whileClosing) whileClosing(document);
  }
  void Activate(AcApDocument* document) override {
    Note(L"activate ", document);
    current = document;
    if (whileActivating) whileActivating(document);
  }
  void Post(const wchar_t* text) override {
    if (current) Note((std::wstring(L"post ") + text + L" to ").c_str(), current);
  }
  CString FullCommandName(const wchar_t* name) override { return CString(L"QVX.") + name; }

 private:
  void Note(const wchar_t* what, AcApDocument* document) {
    m_diary.push_back(what + std::wstring(names.at(document).GetString()));
  }
  Diary& m_diary;
};

inline std::vector<std::wstring> NamesOf(const TabStrip& strip) {
  std::vector<std::wstring> names;
  for (int i = 0; i < strip.Count(); ++i) names.push_back(strip.m_names.At(i).GetString());
  return names;
}
inline std::vector<int> ValuesOf(const TArrayTable<int>& table) {
  return {table.Values().begin(), table.Values().end()};
}
