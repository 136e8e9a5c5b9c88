// The right button in the drawing: the press is kept from the host, and the release decides between
// the module's menu and Enter.
#pragma once

#include "ground/plain_types.h"

class InPlaceEdit;

namespace qvx {

class FilterHost;

class RightButton {
 public:
  // True swallows the message.
  bool Press(FilterHost& host, const MSG& message);
  bool Release(FilterHost& host, InPlaceEdit& edit, const MSG& message);

 private:
  static constexpr DWORD kNotCaptured = 0xFFFFFFFF;

  bool ShowMenu(FilterHost& host, const MSG& message);
  bool IsForced(const MSG& message) const;

  // Message time of a captured press. The release does not clear it: one whose press the host got,
  // as the second press of a double click, is decided by the press before.
  DWORD m_pressTime = kNotCaptured;
  bool m_areMenusAllowed = true;  // nothing changes it
};

}  // namespace qvx
