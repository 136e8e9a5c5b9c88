// The play driver: reads a script and plays it on a thread of its own, with real mouse and keys,
// while the main thread runs as always. Windows only; the program's entry calls it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "devhost/play/ui_port.h"

namespace devhost {

struct PlayOptions {
  std::wstring script;
  int restarts = 0;  // the part behind so many restarts is played
  // In seconds. A play whose main thread lets a message wait longer has failed.
  std::optional<double> longestWait;
};

class PlayDriver {
 public:
  PlayDriver();
  ~PlayDriver();  // waits for the thread; the port must still live

  // Reads the script. False when it can't be read: what is wrong is printed on the error stream as
  // file:line:column, and the program is to end with exit code 2.
  bool Load(const PlayOptions& options);

  // Starts playing. At the end, or at the first failure, the driver calls port.Quit with 0 or 1.
  void Start(UiPort& port);

  // True when the program was asked to end in order to start again and play on.
  bool WantsRestart() const;

 private:
  struct Running;
  std::unique_ptr<Running> m_running;
};

}  // namespace devhost
