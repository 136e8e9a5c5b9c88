#include "test_app.h"

namespace {
TestApp theApp;
}

TestApp& App() { return theApp; }

void PumpQueue() {
  MSG message;
  for (int i = 0; i < 10000; ++i)
    if (!::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) || !AfxPumpMessage()) return;
  ADD_FAILURE() << "the queue never runs empty; last message " << message.message;
}
