// Whether the preview may remember an object.
#include "editor/preview_allowed.h"

#include <gtest/gtest.h>

namespace {

using qvx::IsPreviewAllowed;

TEST(PreviewAllowed, DependsOnTheHostFrom1611OnAndOnTheDrawingBefore) {
  EXPECT_TRUE(IsPreviewAllowed({24.0, true, 1, false}));
  EXPECT_TRUE(IsPreviewAllowed({24.0, true, 3, true}));
  EXPECT_FALSE(IsPreviewAllowed({24.0, true, 2, false}));
  EXPECT_FALSE(IsPreviewAllowed({24.0, false, 1, false}));
  EXPECT_TRUE(IsPreviewAllowed({16.11, true, 1, true}));
  EXPECT_FALSE(IsPreviewAllowed({16.11, true, 0, false}));
  EXPECT_TRUE(IsPreviewAllowed({16.1, true, 0, false}));
  EXPECT_FALSE(IsPreviewAllowed({16.1, true, 1, true}));
  EXPECT_FALSE(IsPreviewAllowed({16.1, false, 1, false}));
}

}  // namespace
