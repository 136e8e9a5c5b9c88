// Plays a script on its own thread, with real mouse and keyboard input, while the main thread runs.
// Windows only.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "devhost/play/ui_port.h"

namespace devhost {

struct PlayOptions {
  std::wstring script;
  int restarts = 0;  // plays the part after this many restarts
  // In seconds. A play in which a message waits longer fails.
  std::optional<double> longestWait;
};

class PlayDriver {
 public:
  PlayDriver();
  ~PlayDriver();  // waits for the thread; the port must still exist

  // Reads the script. False if it cannot be read; the error is printed as file:line:column, and the
  // program is to exit with code 2.
  bool Load(const PlayOptions& options);

  // Starts the thread. At the end or the first failure it calls port.Quit with 0 or 1.
  void Start(UiPort& port);

  // True if the script ended with `restart`.
  bool WantsRestart() const;

 private:
  struct Running;
  std::unique_ptr<Running> m_running;
};

}  // namespace devhost
