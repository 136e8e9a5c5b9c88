// Dialogs that open on the main thread go into the journal, whoever opens them, and the pump hears
// when one of them, or a menu, has begun to wait. Message boxes of the class library are recorded
// by the application object, with their answer, and are not dialogs here.
#pragma once

#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class DialogWatch {
 public:
  DialogWatch();
  ~DialogWatch();
  DialogWatch(const DialogWatch&) = delete;
  DialogWatch& operator=(const DialogWatch&) = delete;

  // While one lives, the next dialog that appears is a message box and not recorded.
  class MessageBoxScope {
   public:
    MessageBoxScope();
    ~MessageBoxScope();
  };

 private:
  static LRESULT CALLBACK OnEvent(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam);
  void Created(HWND window);
  void Activated(HWND window);
  void Destroyed(HWND window);

  HHOOK m_events;
  HHOOK m_sent = nullptr;     // only while m_loops has any
  std::vector<HWND> m_loops;  // dialogs and pop-ups of menus
  std::vector<HWND> m_known;  // dialogs that were active
  int m_messageBoxes = 0;
};

}  // namespace devhost
