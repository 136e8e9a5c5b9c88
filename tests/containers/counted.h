// An element that counts how many of its kind live, so that tests of ownership see leaks and double
// deletes as numbers.
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
