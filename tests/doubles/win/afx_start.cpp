// Initializes the window class library before the first test of a program that creates windows,
// without a program object of its own.
#include <gtest/gtest.h>

#include "afxwin.h"

namespace {

class AfxStart : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_TRUE(AfxWinInit(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOWNORMAL));
  }
};

[[maybe_unused]] testing::Environment* const g_start =
    testing::AddGlobalTestEnvironment(new AfxStart);

}  // namespace
