// The mouse rules of the hover-aware button, without a window.
#include <gtest/gtest.h>

#include "dialogs/button_pointer.h"

namespace {

using qvx::PointerFacts;
using qvx::PointerStep;

// The state that the window class keeps: the flag, and whether it has the capture.
struct Button {
  int mouseOn = 0;
  int flat = 1;
  bool captured = false;
  int paints = 0;

  PointerStep Move(bool inside, bool leftDown, bool hasOwner = true) {
    const PointerStep step = qvx::StepOnMove(mouseOn, flat, {leftDown, captured, hasOwner, inside});
    if (step.enter) captured = true;
    if (step.invalidate) ++paints;
    if (step.releaseCapture) captured = false;
    return step;
  }
};

TEST(ButtonPointer, TheFirstMoveOverAnIdleButtonLightsItAndTakesTheCapture) {
  Button button;
  const PointerStep step = button.Move(true, false);
  EXPECT_EQ(step, (PointerStep{true, true, false}));
  EXPECT_EQ(button.mouseOn, 1);
}

TEST(ButtonPointer, APressThatBeganElsewhereDoesNotLightTheButtonItIsDraggedOver) {
  Button button;
  EXPECT_EQ(button.Move(true, true), PointerStep{});
  EXPECT_EQ(button.mouseOn, 0);
  EXPECT_FALSE(button.captured);
}

TEST(ButtonPointer, ANonFlatButtonDoesNotFollowTheMouse) {
  Button button;
  button.flat = 0;
  EXPECT_EQ(button.Move(true, false), PointerStep{});
  EXPECT_EQ(button.mouseOn, 0);
}

TEST(ButtonPointer, AMoveInsideALitButtonChangesNothing) {
  Button button;
  button.Move(true, false);
  EXPECT_EQ(button.Move(true, false), PointerStep{});
  EXPECT_EQ(button.mouseOn, 1);
  EXPECT_TRUE(button.captured);
}

TEST(ButtonPointer, LeavingWithoutAButtonHeldEndsTheHoverAndReleasesTheCapture) {
  Button button;
  button.Move(true, false);
  EXPECT_EQ(button.Move(false, false), (PointerStep{false, true, true}));
  EXPECT_EQ(button.mouseOn, 0);
}

TEST(ButtonPointer, LeavingWithTheButtonHeldEndsTheHoverAndKeepsTheCapture) {
  Button button;
  button.Move(true, false);
  EXPECT_EQ(button.Move(false, true), (PointerStep{false, true, false}));
  EXPECT_EQ(button.mouseOn, 0);
  EXPECT_TRUE(button.captured);
}

TEST(ButtonPointer, APressDraggedOffAndReleasedOutsideLeavesNoHover) {
  Button button;
  button.Move(true, false);
  button.Move(true, true);
  button.Move(false, true);
  EXPECT_EQ(button.Move(true, true), PointerStep{}) << "back over the button, still held";
  button.Move(false, true);
  const PointerStep released = button.Move(false, false);
  EXPECT_FALSE(released.enter);
  EXPECT_TRUE(released.releaseCapture);
  EXPECT_EQ(button.mouseOn, 0);
}

TEST(ButtonPointer, WithoutOwnerAndParentNothingIsLit) {
  Button button;
  button.Move(true, false, false);
  EXPECT_EQ(button.mouseOn, 0);
  EXPECT_FALSE(button.captured);
}

TEST(ButtonPointer, LosingTheFocusEndsTheHoverOfAFlatButtonOnly) {
  int on = 1;
  EXPECT_EQ(qvx::StepOnFocusLost(on, 0), PointerStep{});
  EXPECT_EQ(on, 1);
  EXPECT_EQ(qvx::StepOnFocusLost(on, 1), (PointerStep{false, true, false}));
  EXPECT_EQ(on, 0);
  EXPECT_EQ(qvx::StepOnFocusLost(on, 1), PointerStep{}) << "nothing left to end";
}

// A lit button that loses the capture stays lit until the next move or the loss of focus.
TEST(ButtonPointer, LosingTheCaptureRepaintsALitButtonButKeepsItsFlag) {
  EXPECT_EQ(qvx::StepOnCaptureLost(1), (PointerStep{false, true, true}));
  EXPECT_EQ(qvx::StepOnCaptureLost(0), PointerStep{});
}

TEST(ButtonPointer, AfterAClickTheNextMoveTakesTheCaptureAgain) {
  Button button;
  button.Move(true, false);
  button.captured = false;  // the click took the capture and released it
  EXPECT_EQ(button.Move(true, false), (PointerStep{true, true, false}));
}

}  // namespace
