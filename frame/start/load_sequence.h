// The load and unload sequences of the module, called by its entry function.
#pragma once

// Bits of the custom flags; each leaves out one part.
enum CustomFlag : int {
  kNoScalePane = 0x01,
  kNoTipsAtStart = 0x02,
  kNoFirstStart = 0x08,
  kNoViewportResize = 0x10,
  kNoDrawingPanes = 0x20,
};

// `packet`: the argument of the host's load message.
void RunLoadSequence(void* packet);
void RunUnloadSequence();
