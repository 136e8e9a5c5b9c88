// The tabs of a strip without its window: texts, offsets, order of use, scroll position, and what
// is done in which order when they change. CTabBar owns one and implements TabStripWindow; tests
// run it over a diary. It knows nothing of documents. An invalid index ends an operation without
// effect.
#pragma once

#include "doctabs/tab_layout.h"
#include "doctabs/tab_names.h"
#include "frame/containers/tarraytable.h"

enum class TabShowMode : int {
  kAlways = -1,
  kAutomatic = 0,  // only with at least two tabs
  kHidden = 1,
};

constexpr int kTabLayoutTimer = 1;
constexpr int kTabLayoutDelay = 150;  // milliseconds from adding a tab to its layout

// The window of a strip and its arrows, as the strip uses them. Any call may run messages that use
// the strip again or destroy the window.
class TabStripWindow {
 public:
  virtual ~TabStripWindow() = default;
  virtual bool Exists() = 0;
  virtual bool IsVisible() = 0;
  virtual void Show(bool show) = 0;
  virtual bool HasSiblingBelow() = 0;  // another window follows in the Z order
  virtual void MoveToBottom() = 0;
  virtual void RecalcFrame() = 0;
  virtual SIZE ClientSize() = 0;
  virtual void HideArrows() = 0;
  virtual void ShowArrows(const RECT& box, int top, int position) = 0;  // range 0 to top
  virtual int ArrowsTop() = 0;
  virtual void SetArrows(int position) = 0;
  virtual void Invalidate() = 0;
  virtual void Scroll(const RECT& part, int dx) = 0;
  virtual void StartTimer(int id, int milliseconds) = 0;
  virtual void StopTimer(int id) = 0;
  virtual int TextWidth(const CString& text) = 0;
  virtual bool MayActivate() = 0;  // the host lets the user change the active drawing
  virtual void OnTabActivated() = 0;
};

class TabStrip {
 public:
  explicit TabStrip(TabStripWindow& window);

  void AddTab(const CString& name);
  void RemoveTab(int index);
  void RenameTab(int index, const CString& name);
  void ClearTabs();
  void SetActiveTab(int index);
  void ActivateTab(int index);
  int HitTest(int clientX) const;
  void RecalcTabs(int cx, int cy);  // 0, 0: the present client size

  // Messages of the window.
  void OnButtonDown(int clientX);
  void OnScroll(unsigned code, int position);
  void OnLayoutTimer();

  int Count() const { return m_names.GetLength(); }
  int ActiveTab() const;  // -1: none
  int Find(const CString& name) const { return m_names.Find(name); }
  int Origin() const { return OriginOf(m_offsets.Values(), m_nFirstTab); }
  // The point is on the arrows, which may cover a part of a tab.
  bool IsOnArrows(int clientX) const;

  // In display order; a text at most once.
  int m_nShowMode = static_cast<int>(TabShowMode::kAutomatic);
  TArrayTable<CString> m_names;
  TArrayTable<int> m_offsets;  // one more than names
  TArrayTable<int> m_order;    // most recently used first; the first one is active
  int m_nFirstTab = 0;         // may be beyond the last tab while the strip is hidden
  bool m_bScroll = false;

 private:
  CString FreeName(const CString& name) const { return m_texts.Free(name); }
  bool MoveToFront(int index);
  void HideWindow();
  void LayOut(SIZE client);

  TabNames m_texts;  // those of m_names
  TabStripWindow& m_window;
};
