// Names of keys in play scripts and their virtual key codes.
#pragma once

#include <string>

namespace devhost {

struct KeyChord {
  bool ctrl = false;
  bool shift = false;
  bool alt = false;
  int key = 0;            // virtual key code
  bool extended = false;  // an extended key (arrows, Delete, ...)
};

// Parses "Ctrl+Shift+Minus", "F1", "A", ignoring case. False: unknown key.
bool ParseKeyChord(const std::string& text, KeyChord* chord);

}  // namespace devhost
