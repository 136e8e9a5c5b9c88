// The fixture of the in-place editor's tests: an editor over the doubles, with some objects to
// edit. Characters of the box are 10 by 20 pixels, the view is 800 by 600.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "editor/in_place_editor.h"
#include "kernel/globals.h"
#include "tests/editor/edit_double.h"

namespace edittest {

using Entries = std::vector<std::string>;

class EditTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_dHostVersion = 24.1;
    g_iInPlaceFontHeight = 16;
  }
  void TearDown() override {
    diary.hooks.clear();
    editor.reset();
    for (const TextObject* object : {&room, &table, &note, &chain}) EXPECT_EQ(object->live, 0);
    EditTest::SetUp();
  }

  std::unique_ptr<qvx::EditFragment> Piece(TextObject& object, size_t index = 0) {
    return std::make_unique<FragmentDouble>(diary, object, index);
  }
  void Open(TextObject& object, size_t index = 0) {
    editor->BeginEdit(Piece(object, index), AcGeMatrix3d());
    diary.Take();
  }
  // What the user types replaces the selection.
  void Type(const std::wstring& typed) {
    const qvx::TextRange at = control.selection;
    control.text.replace(static_cast<size_t>(at.start), static_cast<size_t>(at.end - at.start),
                         typed);
    const int caret = at.start + static_cast<int>(typed.size());
    control.selection = {caret, caret};
    control.isModified = true;
    editor->OnChange();
    diary.Take();
  }
  bool Message(UINT number, WPARAM wParam = 0, LPARAM lParam = 0) {
    return editor->PreTranslateMessage({nullptr, number, wParam, lParam, 0, {0, 0}});
  }
  bool Key(WPARAM key) { return Message(WM_KEYDOWN, key); }
  // A hook in the middle of an operation.
  void During(const std::string& entry, std::function<void()> run) {
    diary.hooks[entry] = std::move(run);
  }
  void Unload() { editor.reset(); }

  EditDiary diary;
  TextObject room{.number = 1, .texts = {L"Kitchen"}};
  TextObject table{.number = 2, .texts = {L"a", L"b", L"c", L"d", L"e", L"f"}, .columns = 3};
  TextObject note{.number = 3, .texts = {L"one\r\ntwo"}, .isMultiLine = true};
  TextObject chain{.number = 4, .texts = {L"x", L"y", L"z"}, .isInSight = true};
  EditHostDouble host{diary};
  ControlDouble control{diary};
  ReferenceHostDouble referenceHost{diary};
  qvx::BlockReferences blocks{referenceHost};
  std::unique_ptr<qvx::InPlaceEditor> editor =
      std::make_unique<qvx::InPlaceEditor>(host, control, blocks);
};

constexpr WPARAM kLeft = 0x25, kUp = 0x26, kRight = 0x27, kDown = 0x28;

}  // namespace edittest
