// Runs functions of other threads on the main thread. They arrive as sent messages, which every
// message loop processes: the pump, menus, dialogs, drags.
#pragma once

#include <functional>

#include "ground/plain_types.h"

namespace devhost {

class MainThread {
 public:
  MainThread();  // construct on the main thread
  ~MainThread();
  MainThread(const MainThread&) = delete;
  MainThread& operator=(const MainThread&) = delete;

  // False if calls are rejected or the window is destroyed.
  bool Run(const std::function<void()>& work);
  void RejectCalls() { m_rejecting = true; }  // from now on Run returns false without calling
  DWORD Id() const { return m_id; }

 private:
  static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND m_window;
  DWORD m_id;
  bool m_rejecting = false;  // read and written on the main thread
};

}  // namespace devhost
