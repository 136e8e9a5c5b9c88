#include "doctabs/frame_tabs.h"

#include "kernel/tsplitpath.h"

CString FrameTabs::NameOf(CFrameWnd* frame) {
  return TSplitpathOperator(m_windows.TitleOf(frame)).Name();
}

bool FrameTabs::Append(CFrameWnd* frame) {
  if (!frame || Has(frame)) return false;
  const CString name = NameOf(frame);
  m_frames.Append(frame);
  m_strip.AddTab(name);
  return true;
}

void FrameTabs::AddFrame(CFrameWnd* frame, void* key) {
  if (!frame) frame = m_windows.Active();
  if (Append(frame)) SetKey(key, frame);
}

void FrameTabs::RefreshTabName(CFrameWnd* frame) {
  const int index = m_frames.Find(frame);
  if (index >= 0) m_strip.RenameTab(index, NameOf(frame));
}

void FrameTabs::SyncActiveTab() { m_strip.SetActiveTab(m_frames.Find(m_windows.Active())); }

void FrameTabs::RemoveTab(int index) {
  m_frames.Del(index);
  m_strip.RemoveTab(index);
}

void FrameTabs::RemoveActiveTab() { RemoveTab(m_strip.ActiveTab()); }

void FrameTabs::RemoveKeyTab(void* key) {
  void* frame = nullptr;
  if (!m_strip.Count() || !m_mapKeyFrame.Lookup(key, frame)) return;
  const int index = m_frames.Find(static_cast<CFrameWnd*>(frame));
  if (index < 0) return;
  RemoveTab(index);
  m_mapKeyFrame.RemoveKey(key);
}

CFrameWnd* FrameTabs::ActiveTabFrame() const {
  const int index = m_strip.ActiveTab();
  return m_frames.IsValidIndex(index) ? m_frames.At(index) : nullptr;
}
