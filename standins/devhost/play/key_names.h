// Names of keys as play scripts write them, to Windows' virtual key numbers.
#pragma once

#include <string>

namespace devhost {

struct KeyChord {
  bool ctrl = false;
  bool shift = false;
  bool alt = false;
  int key = 0;  // virtual key number
  bool extended =
      false;  // one of the keys that the keyboard marks as extended (arrows, Delete, ...)
};

// "Ctrl+Shift+Minus", "F1", "A". Case does not matter. False for a name that is no key.
bool ParseKeyChord(const std::string& text, KeyChord* chord);

}  // namespace devhost
