// Closes each dialog as it opens. A module may show one while it is loaded, such as a tip; a run
// that only prints something has no user to close it.
#pragma once

#include "afxwin.h"

namespace devhost {

class DialogCloser {
 public:
  explicit DialogCloser(bool isNeeded);
  ~DialogCloser();
  DialogCloser(const DialogCloser&) = delete;
  DialogCloser& operator=(const DialogCloser&) = delete;

 private:
  HHOOK m_hook = nullptr;
};

}  // namespace devhost
