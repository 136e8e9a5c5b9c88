// A storm of pointer moves through the filter and the selection preview, over a message queue with
// the rule of the window system: a timer's message comes only when no other message is waiting.
#pragma once

struct StormResult {
  int moves = 0;
  int pauses = 0;    // gaps of at least the timer's time, and the end
  int steps = 0;     // of the preview
  int hitTests = 0;  // in them
};

// Bursts of moves 10 to 500 microseconds apart, with pauses of 1 to 50 ms between bursts. With
// `pauseEvery` 0 there is one burst.
StormResult RunPointerStorm(int moves, int pauseEvery);
