#include "doctabs/tab_strip.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace {

// Positions of the arrows have 16 bits and a sign.
constexpr int kMostScrollPositions = std::numeric_limits<std::int16_t>::max();

void AddFrom(std::span<int> offsets, int first, int difference) {
  for (int& offset : offsets.subspan(static_cast<std::size_t>(first))) offset += difference;
}

}  // namespace

TabStrip::TabStrip(TabStripWindow& window) : m_window(window) { m_offsets.Append(0); }

int TabStrip::ActiveTab() const { return m_order.IsEmpty() ? -1 : m_order.At(0); }

void TabStrip::AddTab(const CString& name) {
  const CString text = FreeName(name);
  const int width = m_window.TextWidth(text) + kTabPadding;
  m_offsets.Append(m_offsets.At(m_offsets.GetLastIndex()) + width);
  m_order.InsertFirst(m_names.Append(text));
  m_texts.Add(text);
  // Without a window the timer would be the thread's.
  if (m_window.Exists()) m_window.StartTimer(kTabLayoutTimer, kTabLayoutDelay);
}

void TabStrip::RemoveTab(int index) {
  if (!m_names.IsValidIndex(index)) return;
  const int width = m_offsets.At(index + 1) - m_offsets.At(index);
  m_offsets.Del(index + 1);
  AddFrom(m_offsets.Values(), index + 1, -width);
  m_texts.Remove(m_names.At(index));
  m_names.Del(index);
  m_order.Del(m_order.Find(index));
  for (int& tab : m_order.Values())
    if (tab > index) --tab;
  RecalcTabs(0, 0);
}

void TabStrip::RenameTab(int index, const CString& name) {
  if (!m_names.IsValidIndex(index) || m_names.At(index) == name) return;
  // Deliberate: the tab's own present text counts as taken, so a drawing that shows as plan*
  // becomes plan** and plan* in turn at each save.
  const CString text = FreeName(name);
  m_texts.Remove(m_names.At(index));
  m_texts.Add(text);
  m_names[index] = text;
  const int width = m_window.TextWidth(text) + kTabPadding;
  AddFrom(m_offsets.Values(), index + 1, width - (m_offsets.At(index + 1) - m_offsets.At(index)));
  RecalcTabs(0, 0);
}

void TabStrip::ClearTabs() {
  m_names.Clear();
  m_texts.Clear();
  m_order.Clear();
  m_offsets.SetLength(1);
  m_nFirstTab = 0;
  if (m_bScroll && m_window.Exists()) m_window.HideArrows();
  m_bScroll = false;
}

bool TabStrip::MoveToFront(int index) {
  if (!m_names.IsValidIndex(index)) return false;
  m_order.Move(m_order.Find(index), 0);
  return true;
}

void TabStrip::SetActiveTab(int index) {
  if (MoveToFront(index) && m_window.Exists()) m_window.Invalidate();
}

void TabStrip::ActivateTab(int index) {
  if (!m_names.IsValidIndex(index) || !m_window.MayActivate()) return;
  MoveToFront(index);
  m_window.OnTabActivated();
  if (m_window.Exists()) m_window.Invalidate();
}

int TabStrip::HitTest(int clientX) const { return HitTab(m_offsets.Values(), clientX + Origin()); }

bool TabStrip::IsOnArrows(int clientX) const {
  if (!m_bScroll || !m_window.Exists()) return false;
  const SIZE client = m_window.ClientSize();
  return clientX >= ArrowsBox(client.cx, client.cy).left;
}

void TabStrip::OnButtonDown(int clientX) {
  const int tab = HitTest(clientX);
  if (tab != ActiveTab()) ActivateTab(tab);
}

void TabStrip::HideWindow() {
  if (!m_window.IsVisible()) return;
  m_window.Show(false);
  m_window.RecalcFrame();
}

void TabStrip::RecalcTabs(int cx, int cy) {
  if (!m_window.Exists()) return;
  if (m_nShowMode == static_cast<int>(TabShowMode::kHidden) ||
      (m_nShowMode == static_cast<int>(TabShowMode::kAutomatic) && Count() < 2))
    return HideWindow();
  const bool moves = m_window.HasSiblingBelow();
  if (moves) m_window.MoveToBottom();
  const bool appears = !m_window.IsVisible();
  if (appears) m_window.Show(true);
  if (appears || moves) {
    m_window.RecalcFrame();
    if (!m_window.Exists()) return;
  }
  LayOut(cx || cy ? SIZE{cx, cy} : m_window.ClientSize());
  m_window.Invalidate();
}

void TabStrip::LayOut(SIZE client) {
  const std::span<const int> offsets = std::as_const(m_offsets).Values();
  m_bScroll = client.cx < offsets.back();
  if (!m_bScroll) {
    m_nFirstTab = 0;
    return m_window.HideArrows();
  }
  const RECT box = ArrowsBox(client.cx, client.cy);
  const int top = std::min(LastScrollPosition(offsets, box.left), kMostScrollPositions);
  if (m_nFirstTab < 0 || m_nFirstTab > top) m_nFirstTab = top;
  m_window.ShowArrows(box, top, m_nFirstTab);
}

void TabStrip::OnScroll(unsigned code, int position) {
  // Other codes, among them the one at the end of scrolling, need not bring a position.
  if (code != SB_THUMBPOSITION && code != SB_THUMBTRACK) return;
  if (!m_bScroll || !m_window.Exists()) return;
  if (position < 0 || position > m_window.ArrowsTop()) return;
  const int before = Origin();
  m_nFirstTab = position;
  const SIZE client = m_window.ClientSize();
  m_window.Scroll(TabsBox({0, 0, client.cx, client.cy}), before - Origin());
  m_window.Invalidate();
}

void TabStrip::OnLayoutTimer() {
  m_window.StopTimer(kTabLayoutTimer);
  RecalcTabs(0, 0);
  if (!m_bScroll || !m_window.Exists()) return;
  m_nFirstTab = m_window.ArrowsTop();
  m_window.SetArrows(m_nFirstTab);
}
