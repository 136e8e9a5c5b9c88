// Keys that are pressed and released: evaluates the key table and carries out the effects.
#pragma once

#include "editor/key_table.h"

namespace qvx {

class FilterHost;

class KeyInput {
 public:
  // True swallows the message.
  bool Down(FilterHost& host, const MSG& message);
  bool Up(FilterHost& host, const MSG& message);

 private:
  // Set while Ctrl is part of a combination: a lone press of Ctrl has an effect of its own. A
  // repeated Ctrl clears it again.
  bool m_isCtrlUsed = false;
};

}  // namespace qvx
