// Exceptions at the module's borders: each kind ends there, is counted, and gives the fallback.
#include "ground/guard.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "afx.h"

namespace {

void Throw() { throw std::bad_alloc(); }

class CountedException : public CException {
 public:
  CountedException() { ++s_alive; }
  ~CountedException() override { --s_alive; }
  static inline int s_alive = 0;
};

}  // namespace

TEST(Guard, WorkThatDoesNotThrowRunsOnceAndCountsNoFault) {
  const int before = qvx::FaultCount();
  int runs = 0;
  qvx::Guarded([&] { ++runs; });
  EXPECT_EQ(qvx::GuardedOr(1, [&] { return ++runs, 7; }), 7);
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(qvx::FaultCount(), before);
}

TEST(Guard, EveryKindOfExceptionEndsAndIsCountedOnce) {
  const int before = qvx::FaultCount();
  qvx::Guarded([] { throw std::bad_alloc(); });
  qvx::Guarded([] { throw std::runtime_error("x"); });
  qvx::Guarded([] { throw 5; });
  EXPECT_EQ(qvx::FaultCount(), before + 3);
}

TEST(Guard, AnExceptionOfTheClassLibraryIsDeleted) {
  const int before = qvx::FaultCount();
  qvx::Guarded([] { throw new CountedException; });
  EXPECT_EQ(CountedException::s_alive, 0);
  EXPECT_EQ(qvx::FaultCount(), before + 1);
}

TEST(Guard, TheFallbackIsTheResultOfWorkThatThrows) {
  EXPECT_EQ(qvx::GuardedOr(-3, []() -> int { throw std::bad_alloc(); }), -3);
  const wchar_t* text = qvx::GuardedOr(L"none", []() -> const wchar_t* { throw 1; });
  EXPECT_STREQ(text, L"none");
}

TEST(Guard, AHandlerIsAPlainFunctionThatThrowsNothing) {
  const int before = qvx::FaultCount();
  void (*handler)() noexcept = qvx::GuardedHandler<Throw>;
  handler();
  EXPECT_EQ(qvx::FaultCount(), before + 1);
}
