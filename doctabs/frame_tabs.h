// The child frame of each tab, and the frames of outside keys (drawings). Frames are not
// owned and may be deleted objects: only FrameWindows looks at them. It learns of frames by the
// operations below only. CMDITabBar owns one.
#pragma once

#include "afx.h"
#include "doctabs/tab_strip.h"

class CFrameWnd;

// The main window's child frames.
class FrameWindows {
 public:
  virtual ~FrameWindows() = default;
  virtual CFrameWnd* Active() = 0;
  virtual CString TitleOf(CFrameWnd* frame) = 0;  // empty when its window is gone
  virtual void Activate(CFrameWnd* frame) = 0;    // nothing when its window is gone
};

class FrameTabs {
 public:
  FrameTabs(TabStrip& strip, FrameWindows& windows) : m_strip(strip), m_windows(windows) {}

  // Adds a tab for the frame, null for the active one, unless it has one. Nothing without a frame.
  void AddFrame(CFrameWnd* frame, void* key);
  // Adds the tab of the frame active at start; it has no key.
  void InitFromActiveFrame() { Append(m_windows.Active()); }
  // The frame's tab is found by the key too.
  void SetKey(void* key, CFrameWnd* frame) { m_mapKeyFrame[key] = frame; }
  void RefreshTabName(CFrameWnd* frame);
  void SyncActiveTab();
  // Leaves the frame's key in the map.
  void RemoveActiveTab();
  // A key whose frame has no tab stays in the map.
  void RemoveKeyTab(void* key);
  // Removes the tab, and the frame of the same index if there is one.
  void RemoveTab(int index);

  CFrameWnd* ActiveTabFrame() const;  // of the active tab; null without one
  bool Has(CFrameWnd* frame) const { return m_frames.Find(frame) >= 0; }

  TArrayTable<CFrameWnd*> m_frames;  // index for index with the strip's names
  CMapPtrToPtr m_mapKeyFrame{10};

 private:
  bool Append(CFrameWnd* frame);
  CString NameOf(CFrameWnd* frame);

  TabStrip& m_strip;
  FrameWindows& m_windows;
};
