// A host, an edit control and pieces of text for the in-place editor that answer from plain fields
// and keep one diary of operations, in order. Questions without effect are not noted. A hook runs
// once, in the middle of the operation whose entry it names.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "editor/block_references.h"
#include "editor/edit_control.h"
#include "editor/edit_fragment.h"
#include "editor/edit_host.h"

namespace edittest {

std::string Narrow(const std::wstring& text);  // UTF-8; a line break shows as \r\n
std::string RectText(const RECT& r);

class EditDiary {
 public:
  void Note(const std::string& entry);
  std::vector<std::string> Take();  // and starts again
  bool isOn = true;
  std::map<std::string, std::function<void()>> hooks;
  std::function<void(const std::string&)> onNote;  // after every entry
  std::vector<std::string> entries;
};

// Only compared; nothing is at the address.
inline AcDbObjectId Id(std::uintptr_t number) {
  return AcDbObjectId(reinterpret_cast<AcDbObject*>(number << 8));
}
inline std::uintptr_t NumberOf(AcDbObjectId id) {
  return reinterpret_cast<std::uintptr_t>(id.object()) >> 8;
}
inline AcApDocument* Document(std::uintptr_t number) {
  return reinterpret_cast<AcApDocument*>(number << 8);
}

// A drawing object with pieces of text: a row, or a table with `columns`.
struct TextObject {
  std::uintptr_t number = 1;
  std::vector<std::wstring> texts;
  size_t columns = 0;  // 0: all in one row
  bool isMultiLine = false, isInSight = false;
  int menuType = 0;
  AcGePoint3d lower{100, 50, 0}, upper{180, 70, 0};
  bool hasExtent = true;     // of its own text; "Vexra" always has one
  bool repeatsNext = false;  // gives itself as the neighbour
  int live = 0;              // fragments
};

class FragmentDouble : public qvx::EditFragment {
 public:
  FragmentDouble(EditDiary& diary, TextObject& object, size_t index);
  ~FragmentDouble() override;
  std::wstring GetText() const override { return m_text; }
  void SetText(const std::wstring& text) override;
  // An emptied piece of an object in sight is removed.
  void Update(const std::wstring& text) override;
  void GetExtent2d(AcGePoint3d& lower, AcGePoint3d& upper) const override;
  std::unique_ptr<qvx::EditFragment> GetNext(bool vertical, bool backward) const override;
  long GetIndex() const override { return m_index; }
  void SetIndex(long index) override;
  AcDbObjectId GetObjectId() const override { return Id(m_object.number); }
  void Highlight(bool on) const override;
  bool IsMultiLine() const override { return m_object.isMultiLine; }
  int GetMenuType() const override { return m_object.menuType; }

 private:
  std::string Name() const;

  EditDiary& m_diary;
  TextObject& m_object;
  long m_index;
  std::wstring m_text;
};

// In the font of the box a character is 10 by 20 pixels, a return 4; in a fresh context 8 by 16.
class ControlDouble : public qvx::EditControl {
 public:
  explicit ControlDouble(EditDiary& diary) : m_diary(diary) {}

  bool canCreate = true;
  bool exists = false, isShown = false, isModified = false;
  std::wstring text;
  qvx::TextRange selection;
  RECT parent{0, 0, 800, 600}, box{0, 0, 0, 0};
  POINT origin{1000, 500};  // of the parent on the screen
  LONG letterWidth = 10, letterHeight = 20;
  int caretHides = 0;

  std::vector<SIZE> MeasureAll(const std::vector<std::wstring_view>& texts,
                               qvx::MeasureFont font) override;
  std::vector<int> PrefixWidths(const std::wstring& text) override;
  bool Create(qvx::BoxParent parent) override;
  bool Exists() override { return exists; }
  void Destroy() override;
  void SetFont(int height) override;
  std::wstring Text() override { return text; }
  void SetText(const std::wstring& text) override;
  int TextLength() override { return static_cast<int>(text.size()); }
  bool IsModified() override { return isModified; }
  void SetModified(bool modified) override;
  qvx::TextRange Selection() override { return selection; }
  void Select(qvx::TextRange range) override;
  void SelectAll() override;
  void ScrollToCaret() override { m_diary.Note("scroll"); }
  int LineOf(int position) override;
  int LineCount() override { return LineOf(TextLength()) + 1; }
  RECT ParentClient() override { return parent; }
  RECT Box() override { return box; }
  RECT BoxOnScreen() override;
  POINT ScreenToParent(POINT screen) override;
  void Move(const RECT& to) override;
  void Show(bool show) override;
  void TakeFocus() override { m_diary.Note("focus"); }
  void BringToTop() override { m_diary.Note("to top"); }
  void Invalidate() override { m_diary.Note("invalidate"); }
  void HideCaret() override;
  void ShowCaret() override;

 private:
  EditDiary& m_diary;
};

class LockDouble : public qvx::DocumentLock {
 public:
  explicit LockDouble(EditDiary& diary) : m_diary(diary) { m_diary.Note("lock"); }
  ~LockDouble() override { m_diary.Note("unlock"); }

 private:
  EditDiary& m_diary;
};

class EditHostDouble : public qvx::EditHost {
 public:
  explicit EditHostDouble(EditDiary& diary) : m_diary(diary) {}

  AcApDocument* document = Document(1);
  bool hasView = true, canLock = true, isCtrlDown = false;
  int viewport = 2;
  double screenWidth = 1600;
  POINT cursor{0, 0};
  std::vector<std::uintptr_t> inSight;
  std::map<std::wstring, std::map<int, std::wstring>> menus;  // tips by identifier
  bool hasDialog = true, chooses = true;
  std::wstring choice = L"\x2103";

  AcApDocument* CurrentDocument() const override { return document; }
  bool HasView() const override { return hasView; }
  int CurrentViewport() const override { return viewport; }
  double ScreenWidth() const override { return screenWidth; }
  POINT WorldToPixel(int viewport, const AcGePoint3d& world) const override;
  POINT ViewToFrame(POINT view) const override { return {view.x + 30, view.y + 40}; }
  bool IsInSight(AcDbObjectId object) const override;
  std::unique_ptr<qvx::DocumentLock> LockCurrentDocument() override;
  void PostWheelToView(WPARAM wParam, LPARAM lParam) override;
  POINT CursorPosition() const override { return cursor; }
  void MoveCursor(POINT screen) override;
  void SetTextCursor() override { m_diary.Note("text cursor"); }
  bool IsCtrlDown() const override { return isCtrlDown; }
  TMenuBar* FindMenu(const wchar_t* name) const override;
  void TrackMenu(TMenuBar& menu, POINT screen) override;
  std::wstring TipOf(TMenuBar& menu, int id) const override;
  void ShowStatusText(const std::wstring& text) override;
  void RestoreStatusText() override { m_diary.Note("restore status"); }
  bool HasDialog(qvx::TextDialog) const override { return hasDialog; }
  bool RunDialog(qvx::TextDialog dialog, std::wstring& result) override;
  void SelectOnly(AcDbObjectId object) override;
  std::wstring FullCommandName(const wchar_t* name) const override {
    return std::wstring(L"_") + name;
  }
  void Post(const std::wstring& text) override { m_diary.Note("post " + Narrow(text)); }

 private:
  EditDiary& m_diary;
};

class ReferenceSetDouble : public qvx::ReferenceSet {
 public:
  ReferenceSetDouble(EditDiary& diary, std::vector<std::uintptr_t> numbers)
      : m_diary(diary), m_numbers(std::move(numbers)) {}
  ~ReferenceSetDouble() override { m_diary.Note("free set"); }
  int Length() const override { return static_cast<int>(m_numbers.size()); }
  AcDbObjectId At(int index) const override { return Id(m_numbers[static_cast<size_t>(index)]); }

 private:
  EditDiary& m_diary;
  std::vector<std::uintptr_t> m_numbers;
};

class ReferenceHostDouble : public qvx::ReferenceHost {
 public:
  explicit ReferenceHostDouble(EditDiary& diary) : m_diary(diary) {}

  AcApDocument* document = Document(1);
  bool canLock = true;
  std::map<std::uintptr_t, std::vector<std::uintptr_t>> references;  // by record

  AcApDocument* CurrentDocument() const override { return document; }
  void ActivateCurrentDocument() override { m_diary.Note("activate"); }
  std::unique_ptr<qvx::DocumentLock> LockCurrentDocument() override;
  void MarkChanged(AcDbObjectId reference) override;
  std::optional<std::vector<AcDbObjectId>> ReferencesOf(AcDbObjectId record) const override;
  void MarkGraphicsModified(AcDbObjectId reference) override;
  void UpdateAnonymousBlocks(AcDbObjectId record) override;
  void PrintWithPrompt(const std::wstring& text) override { m_diary.Note("print " + Narrow(text)); }

 private:
  EditDiary& m_diary;
};

}  // namespace edittest
