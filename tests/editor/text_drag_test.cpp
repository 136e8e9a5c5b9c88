// Dragging of selected text, as steps over plain positions.
#include "editor/text_drag.h"

#include <gtest/gtest.h>

namespace {

using qvx::DropResult;
using qvx::TextDrag;
using qvx::TextRange;

class TextDragging : public ::testing::Test {
 protected:
  // A press inside the selection, moves over the positions, the release.
  DropResult DragTo(const std::wstring& text, TextRange selected, std::vector<int> positions,
                    bool copies = false) {
    drag.OnPress(selected);
    drag.AfterPress({selected.start + 1, selected.start + 1});
    for (const int position : positions) {
      EXPECT_TRUE(drag.Follows());
      EXPECT_EQ(drag.AfterMove(RangeTo(selected, position)), selected);
    }
    return drag.OnRelease(text, copies);
  }
  // The control's selection while the pointer is at a position.
  static TextRange RangeTo(TextRange selected, int position) {
    return position < selected.start ? TextRange{position, selected.end}
                                     : TextRange{selected.start, position};
  }
  TextDrag drag;
};

TEST_F(TextDragging, TheFirstPressInAFreshBoxSavesNoSelection) {
  drag.m_bFreshClick = true;
  drag.m_nDropPos = 3;
  drag.OnPress({0, 7});
  EXPECT_FALSE(drag.m_bFreshClick);
  EXPECT_EQ(drag.m_nSelStart, 3);
  EXPECT_EQ(drag.m_nSelEnd, 3);
  EXPECT_FALSE(drag.m_bButtonDown);
  EXPECT_FALSE(drag.AfterPress({2, 2}));
  EXPECT_EQ(drag.m_nDropPos, 3) << "the control's caret is not read";
  EXPECT_FALSE(drag.Follows());
  const DropResult drop = drag.OnRelease(L"Kitchen", false);
  EXPECT_FALSE(drop.text);
  EXPECT_FALSE(drop.selection);
}

TEST_F(TextDragging, APressSavesTheSelectionOnce) {
  drag.OnPress({1, 3});
  EXPECT_TRUE(drag.m_bButtonDown);
  drag.OnPress({5, 6});
  EXPECT_EQ(drag.m_nSelStart, 1) << "the button is down already";
  EXPECT_EQ(drag.m_nSelEnd, 3);
}

TEST_F(TextDragging, APressRestoresTheSelectionAndNotesTheCaret) {
  drag.OnPress({1, 5});
  EXPECT_EQ(drag.AfterPress({2, 2}), (TextRange{1, 5}));
  EXPECT_EQ(drag.m_nDropPos, 2);
}

TEST_F(TextDragging, APressWithoutASelectionNotesWhereTheCaretWas) {
  drag.m_nDropPos = 9;
  drag.OnPress({4, 4});
  EXPECT_FALSE(drag.AfterPress({1, 1}));
  EXPECT_EQ(drag.m_nDropPos, 4);
}

TEST_F(TextDragging, APressAtPositionZeroKeepsTheDropPosition) {
  drag.m_nDropPos = 4;
  drag.OnPress({0, 5});
  EXPECT_EQ(drag.AfterPress({0, 0}), (TextRange{0, 5}));
  EXPECT_EQ(drag.m_nDropPos, 4);
}

TEST_F(TextDragging, APlainClickInASelectionCollapsesItAtTheRelease) {
  drag.OnPress({1, 5});
  drag.AfterPress({2, 2});
  const DropResult drop = drag.OnRelease(L"abcdefg", false);
  EXPECT_FALSE(drop.text);
  EXPECT_EQ(drop.selection, (TextRange{2, 2}));
  EXPECT_EQ(drag.m_nSelStart, 2);
  EXPECT_EQ(drag.m_nSelEnd, 2);
  EXPECT_FALSE(drag.m_bButtonDown);
  EXPECT_EQ(drop.caretHides, 0);
}

TEST_F(TextDragging, MovesWithoutAPressOrASelectionAreNotFollowed) {
  EXPECT_FALSE(drag.Follows());
  drag.OnPress({2, 2});
  EXPECT_TRUE(drag.m_bButtonDown);
  EXPECT_FALSE(drag.Follows());
}

TEST_F(TextDragging, AMoveInsideTheSelectionKeepsTheDropPosition) {
  drag.OnPress({1, 5});
  drag.AfterPress({2, 2});
  EXPECT_EQ(drag.AfterMove({1, 4}), (TextRange{1, 5}));
  EXPECT_EQ(drag.m_nDropPos, 2);
  EXPECT_EQ(drag.AfterMove({1, 5}), (TextRange{1, 5}));
  EXPECT_EQ(drag.m_nDropPos, 2);
  EXPECT_EQ(drag.AfterMove({0, 6}), (TextRange{1, 5}));
  EXPECT_EQ(drag.m_nDropPos, 0) << "the start counts first";
}

TEST_F(TextDragging, TextMovesForward) {
  const DropResult drop = DragTo(L"abcdefg", {1, 3}, {4, 6});
  EXPECT_EQ(drop.text, L"adefbcg");
  EXPECT_EQ(drop.selection, (TextRange{4, 6}));
  EXPECT_EQ(drop.caretHides, 2);
  EXPECT_EQ(drag.m_nDropPos, 4) << "lowered by the length of the text";
  EXPECT_FALSE(drag.m_bDragging);
  EXPECT_EQ(drag.m_nCaretHides, 0);
}

TEST_F(TextDragging, TextMovesBackward) {
  const DropResult drop = DragTo(L"abcdefg", {4, 6}, {1});
  EXPECT_EQ(drop.text, L"aefbcdg");
  EXPECT_EQ(drop.selection, (TextRange{1, 3}));
  EXPECT_EQ(drag.m_nDropPos, 1);
}

TEST_F(TextDragging, TextMovesToBothEnds) {
  EXPECT_EQ(DragTo(L"abcdefg", {1, 3}, {7}).text, L"adefgbc");
  EXPECT_EQ(DragTo(L"abcdefg", {1, 3}, {0}).text, L"bcadefg");
}

TEST_F(TextDragging, CtrlAtTheReleaseMakesACopy) {
  const DropResult after = DragTo(L"abcdefg", {1, 3}, {6}, true);
  EXPECT_EQ(after.text, L"abcdefbcg");
  EXPECT_EQ(after.selection, (TextRange{6, 8}));
  const DropResult before = DragTo(L"abcdefg", {4, 6}, {1}, true);
  EXPECT_EQ(before.text, L"aefbcdefg");
  EXPECT_EQ(before.selection, (TextRange{1, 3}));
}

TEST_F(TextDragging, ADropInsideItsOwnRangeChangesNothing) {
  for (const int position : {2, 3, 4}) {
    drag.Reset();
    drag.OnPress({2, 4});
    drag.AfterPress({position, position});
    drag.AfterMove({2, 3});
    const DropResult drop = drag.OnRelease(L"abcdefg", true);
    EXPECT_FALSE(drop.text) << position;
    EXPECT_FALSE(drop.selection);
    EXPECT_EQ(drop.caretHides, 1) << "the caret is shown again";
  }
}

TEST_F(TextDragging, ASavedRangeOutsideTheTextChangesNothing) {
  const DropResult drop = DragTo(L"abc", {1, 9}, {0});
  EXPECT_FALSE(drop.text);
  EXPECT_EQ(drop.caretHides, 1);
  EXPECT_FALSE(drag.m_bDragging);
  drag.m_nSelStart = -1;
  drag.m_nSelEnd = 1;
  drag.m_bDragging = true;
  EXPECT_FALSE(drag.OnRelease(L"abc", false).text);
  drag.m_nSelStart = 2;
  drag.m_bDragging = true;
  EXPECT_FALSE(drag.OnRelease(L"abc", false).text) << "exchanged ends";
}

TEST_F(TextDragging, ADropPositionBeyondTheTextAppends) {
  drag.m_nSelStart = 0;
  drag.m_nSelEnd = 1;
  drag.m_nDropPos = 50;
  drag.m_bDragging = true;
  const DropResult drop = drag.OnRelease(L"abc", false);
  EXPECT_EQ(drop.text, L"bca");
  EXPECT_EQ(drop.selection, (TextRange{2, 3}));
}

TEST_F(TextDragging, ADropPositionBeyondTheTextIsInsideARangeThatEndsThere) {
  drag.m_nSelStart = 1;
  drag.m_nSelEnd = 3;
  drag.m_nDropPos = 50;
  drag.m_bDragging = true;
  EXPECT_FALSE(drag.OnRelease(L"abc", false).text);
}

TEST_F(TextDragging, AnOpeningClearsAllButTheDropPosition) {
  drag.OnPress({1, 3});
  drag.AfterPress({2, 2});
  drag.AfterMove({1, 6});
  drag.m_bFreshClick = true;
  drag.Reset();
  EXPECT_EQ(drag.m_nDropPos, 6);
  EXPECT_EQ(drag.m_nSelStart, 0);
  EXPECT_EQ(drag.m_nSelEnd, 0);
  EXPECT_EQ(drag.m_nCaretHides, 0);
  EXPECT_FALSE(drag.m_bDragging);
  EXPECT_FALSE(drag.m_bButtonDown);
  EXPECT_FALSE(drag.m_bFreshClick);
}

TEST_F(TextDragging, OnlyADragWithASelectionDrops) {
  EXPECT_FALSE(drag.IsDropping());
  drag.OnPress({1, 3});
  EXPECT_FALSE(drag.IsDropping());
  drag.AfterMove({1, 4});
  EXPECT_TRUE(drag.IsDropping());
  drag.m_nSelEnd = 1;
  EXPECT_FALSE(drag.IsDropping());
}

}  // namespace
