// The fixture of the message filter's tests: a filter over the double, with the settings of a fresh
// start, and short ways to make messages.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "editor/message_filter.h"
#include "kernel/globals.h"
#include "tests/editor/filter_double.h"

namespace editortest {

using Entries = std::vector<std::string>;

class FilterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_bDisableHook = g_nCustomFlag = g_bShiftToggle = 0;
    g_bZoomKey = g_bDwgTabBar = g_bDblClkEditObj = g_nProductId = 1;
    g_nSpeedMenu = 3;
    g_nRBtnMenuTime = 250;
    g_dHostVersion = 24.0;
  }
  void TearDown() override { FilterTest::SetUp(); }

  static MSG Message(UINT number, WPARAM wParam = 0, DWORD time = 0) {
    return {kView, number, wParam, 0, time, {200, 150}};
  }
  static MSG Key(WPARAM key) { return Message(WM_KEYDOWN, key); }
  static MSG KeyUp(WPARAM key) { return Message(WM_KEYUP, key); }

  bool Filter(const MSG& message) {
    diary.entries.clear();
    return filter.Filter(message);
  }
  // What is asked and done after the acceptance questions.
  Entries Order(const MSG& message) {
    Filter(message);
    Entries entries = diary.entries;
    for (const char* asked : {"document?", "database?", "window?", "ready?"}) {
      EXPECT_EQ(entries.empty() ? "" : entries.front(), asked);
      if (!entries.empty()) entries.erase(entries.begin());
    }
    return entries;
  }
  // Operations of the last message, without questions and the closing of the tip.
  Entries Done() const {
    Entries done;
    for (const std::string& entry : diary.entries)
      if (entry.back() != '?' && entry != "close tip") done.push_back(entry);
    return done;
  }
  bool Asked(const std::string& entry) const {
    return std::ranges::count(diary.entries, entry) != 0;
  }
  void Hold(int key) { host.keysDown.insert(key); }

  Diary diary;
  FilterDouble host{diary};
  EditDouble edit{diary};
  qvx::MessageFilter filter{host, edit};
};

}  // namespace editortest
