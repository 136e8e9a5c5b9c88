// The invariants of the message filter, as checks over one filtered message. They know the filter
// only by the diary of its host: what was asked and done, in order.
#pragma once

#include "tests/fuzz/filter_fuzz_host.h"
#include "tests/fuzz/require.h"

namespace filterfuzz {

using fuzz::Require;

// What decides on a message, as it was when the message came.
struct Before {
  bool isAccepted = false, isDisabled = false, isOrbit = false, resizeTakes = false;
  bool isIdle = false, isTyped = false, isEditing = false, hasText = false, isCtrlDown = false;
  int firstActive = 0;  // the first answer to CMDACTIVE
  int customFlag = 0, mode = 0, menuTime = 0;
  std::vector<editortest::GroupedObject> objects;
};

// The expected state of the filter after the messages so far.
struct Memory {
  bool isPressed = false;  // a press of the right button is captured
  DWORD pressTime = 0;
  bool isCtrlUsed = false;

  // To be called ahead of the message: those that arrive during it see the change.
  void Note(const MSG& message, const Before& before);
};

struct Filtered {
  MSG message;
  Before before;
  Memory memory;  // as it was when the message came
  std::vector<std::string> diary;
  bool isSwallowed = false;
};

void CheckInvariants(const Filtered& filtered);

}  // namespace filterfuzz
