// The windows' share of the trace of the start: which windows are made, and when the palette of the
// module first stands on the screen. Arms the trace; what was traced is written at the end.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace devhost {

class StartWatch {
 public:
  explicit StartWatch(std::wstring file);
  ~StartWatch();
  StartWatch(const StartWatch&) = delete;
  StartWatch& operator=(const StartWatch&) = delete;

  bool Write() const;

 private:
  static LRESULT CALLBACK OnEvent(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK OnReturn(int code, WPARAM wParam, LPARAM lParam);

  std::wstring m_file;
  HHOOK m_events, m_returns;
};

}  // namespace devhost
