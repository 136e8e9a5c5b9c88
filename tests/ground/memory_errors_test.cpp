// Both exceptions for lack of memory.
#include "ground/memory_errors.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(MemoryErrors, CompletedWorkReturnsTrue) {
  bool ran = false;
  EXPECT_TRUE(qvx::HasMemoryFor([&] { ran = true; }));
  EXPECT_TRUE(ran);
}

TEST(MemoryErrors, ExceptionsOfTheLanguageAndOfTheClassLibraryReturnFalse) {
  EXPECT_FALSE(qvx::HasMemoryFor([] { throw std::bad_alloc(); }));
  EXPECT_FALSE(qvx::HasMemoryFor([] { AfxThrowMemoryException(); }));
}

TEST(MemoryErrors, OtherExceptionsPass) {
  EXPECT_THROW(qvx::HasMemoryFor([] { throw std::runtime_error("other"); }), std::runtime_error);
  EXPECT_THROW(qvx::HasMemoryFor([] { AfxThrowUserException(); }), CUserException*);
}

}  // namespace
