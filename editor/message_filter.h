// Decides what the module does with each message of the host before the host dispatches it. Plain
// logic over a message and the questions of FilterHost. Most messages concern nothing here and end
// after the acceptance questions and one look at the running commands.
#pragma once

#include "editor/key_input.h"
#include "editor/right_button.h"

class InPlaceEdit;

namespace qvx {

class FilterHost;

class MessageFilter {
 public:
  // Both outlive the filter.
  MessageFilter(FilterHost& host, InPlaceEdit& edit) : m_host(host), m_edit(edit) {}

  // True swallows the message. Reentrant: menus handle messages before it returns.
  bool Filter(const MSG& message);

 private:
  bool Accepts(const MSG& message);
  bool Dispatch(const MSG& message);
  bool OnMouseMove(const MSG& message);
  bool OnLeftButtonDown(const MSG& message);
  bool OnMiddleButtonUp();
  bool OnWheel(const MSG& message);
  bool OnChar(const MSG& message);

  FilterHost& m_host;
  InPlaceEdit& m_edit;
  KeyInput m_keys;
  RightButton m_rightButton;
};

}  // namespace qvx
