// Records dialogs of the main thread in the journal and marks the pump idle when a dialog or menu
// waits for input. Message boxes of the class library are recorded by the application object with
// their answers, not here.
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

  // During its lifetime the next dialog is a message box and not recorded.
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
  HHOOK m_sent = nullptr;     // installed only while m_loops is not empty
  std::vector<HWND> m_loops;  // dialogs and pop-up menus
  std::vector<HWND> m_known;  // dialogs that have been active
  int m_messageBoxes = 0;
};

}  // namespace devhost
