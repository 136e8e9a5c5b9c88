// Runs work of another thread on the main thread. It arrives as a sent message, which every loop
// that waits for messages answers: the pump, a menu that is up, a dialog, a drag.
#pragma once

#include <functional>

#include "ground/plain_types.h"

namespace devhost {

class MainThread {
 public:
  MainThread();  // made on the main thread, whose windows it speaks for
  ~MainThread();
  MainThread(const MainThread&) = delete;
  MainThread& operator=(const MainThread&) = delete;

  bool Run(const std::function<void()>& work);  // false when the main thread is going down
  void Refuse() { m_refusing = true; }  // from now on Run answers false without doing anything
  DWORD Id() const { return m_id; }

 private:
  static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND m_window;
  DWORD m_id;
  bool m_refusing = false;  // read and written on the main thread
};

}  // namespace devhost
