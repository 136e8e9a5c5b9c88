// An element type that counts its live instances, so that ownership tests detect
// leaks and double deletes.
#pragma once

struct Counted {
  explicit Counted(int v = 0) : value(v) { ++s_live; }
  Counted(const Counted&) = delete;
  virtual ~Counted() { --s_live; }
  bool operator<(const Counted& other) const { return value < other.value; }
  int value;
  static inline int s_live = 0;
};

inline int CompareCounted(const Counted* a, const Counted* b) { return a->value - b->value; }
