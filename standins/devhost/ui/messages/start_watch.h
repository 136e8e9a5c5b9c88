// Adds window events to the trace of a start: window creations, and when the module's palette
// becomes visible. Arms the trace and writes it at the end.
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
