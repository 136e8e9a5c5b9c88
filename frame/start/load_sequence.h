// The order in which the module comes up and goes down. Called by the module's entry function.
#pragma once

// Bits of the custom flags that leave something out.
enum CustomFlag : int {
  kNoScalePane = 0x01,
  kNoTipsAtStart = 0x02,
  kNoFirstStart = 0x08,
  kNoViewportResize = 0x10,
  kNoDrawingPanes = 0x20,
};

// `packet` is what the host gave with the load message.
void RunLoadSequence(void* packet);
void RunUnloadSequence();
