// The steps of the selection preview and its lag test.
#include "editor/selection_preview.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "editor/editor_door.h"
#include "editor/preview_host.h"
#include "kernel/globals.h"

namespace {

using Entries = std::vector<std::string>;

TEntitySet Object(long id) {
  const ads_name name = {id, 0};
  return id ? TEntitySet(name) : TEntitySet();
}
std::string Name(const TEntitySet& entity) {
  return entity.IsEmpty() ? "none" : std::to_string(entity.Name()[0]);
}

class PreviewDouble : public qvx::PreviewHost {
 public:
  bool hasView = true;
  int active = 0;
  std::optional<int> port = 2;
  bool runsCommand = false, refusesSelection = false, isOff = false, hasConfig = true;
  std::set<long> selected;
  int viewport = 2;
  long under = 0;  // the object under the pointer
  unsigned ticks = 1000, duration = 0;
  TEntitySet mouseOn;
  int liveSelections = 0;
  Entries diary;

  bool HasCurrentView() override { return Note("view?", hasView); }
  int CommandActive() override { return Note("CMDACTIVE?", active); }
  std::optional<int> CurrentViewport() override { return Note("CVPORT?", port); }
  bool RunsAnyCommand() override { return Note("CMDNAMES?", runsCommand); }
  std::unique_ptr<qvx::SelectedObjects> Selected() override {
    diary.push_back("selected?");
    if (refusesSelection) return nullptr;
    return std::make_unique<Selection>(*this);
  }
  int ViewportAt(POINT screen) override {
    return Note("viewport at " + std::to_string(screen.x) + "," + std::to_string(screen.y) + "?",
                viewport);
  }
  bool IsOffInDrawing() override { return Note("off?", isOff); }
  unsigned Ticks() override { return Note("ticks?", ticks); }
  TEntitySet HitTest() override {
    diary.push_back("hit test");
    ticks += duration;
    return Object(under);
  }
  TEntitySet MouseOn() override { return mouseOn; }
  void SetMouseOn(const TEntitySet& entity) override {
    diary.push_back("mouse on " + Name(entity));
    mouseOn = entity;
  }
  void Highlight(const TEntitySet& entity, bool on) override {
    diary.push_back((on ? "highlight " : "unhighlight ") + Name(entity));
  }
  void LockForWrite() override { diary.push_back("lock"); }
  void Unlock() override { diary.push_back("unlock"); }
  void TurnOffInDrawing() override {
    diary.push_back("turn off");
    isOff |= hasConfig;
  }
  void PrintWithPrompt(const wchar_t* text) override {
    printed += text;
    diary.push_back("print");
  }
  std::wstring printed;

 private:
  struct Selection : qvx::SelectedObjects {
    explicit Selection(PreviewDouble& host) : host(host) { ++host.liveSelections; }
    ~Selection() override { --host.liveSelections; }
    bool Includes(const TEntitySet& entity) override {
      return host.Note("selected " + Name(entity) + "?",
                       host.selected.count(entity.Name()[0]) != 0);
    }
    PreviewDouble& host;
  };

  template <class T>
  T Note(const std::string& entry, T answer) {
    diary.push_back(entry);
    return answer;
  }
};

class SelectionPreviewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_dHostVersion = 16.1;
    g_bEnableSelectPreview = 1;
  }
  void TearDown() override {
    EXPECT_EQ(host.liveSelections, 0) << "the host's sets are freed";
    g_dHostVersion = 24.0;
    g_bEnableSelectPreview = 1;
  }
  // A step at a new point. Returns its diary.
  const Entries& Step() { return StepAt({++m_x, 20}); }
  const Entries& StepAt(POINT at) {
    host.diary.clear();
    preview.Step(host, at);
    return host.diary;
  }
  Entries Done() const {
    Entries done;
    for (const std::string& entry : host.diary)
      if (entry.back() != '?' && entry != "hit test") done.push_back(entry);
    return done;
  }
  bool Asked(const std::string& entry) const {
    for (const std::string& each : host.diary)
      if (each == entry) return true;
    return false;
  }
  // Steps with hit tests of these durations.
  void Measure(std::initializer_list<unsigned> durations) {
    for (const unsigned duration : durations) {
      host.duration = duration;
      Step();
    }
  }

  PreviewDouble host;
  qvx::SelectionPreview preview;

 private:
  LONG m_x = 10;
};

TEST_F(SelectionPreviewTest, AsksAndActsInTheWrittenOrder) {
  host.under = 7;
  EXPECT_EQ(StepAt({30, 40}), (Entries{"view?", "CMDACTIVE?", "CVPORT?", "CMDNAMES?", "selected?",
                                       "viewport at 30,40?", "off?", "ticks?", "hit test", "ticks?",
                                       "highlight 7", "mouse on 7"}));
}

TEST_F(SelectionPreviewTest, EndsWithoutAViewOrWithACommand) {
  host.hasView = false;
  EXPECT_EQ(Step(), Entries{"view?"});
  host.hasView = true;
  host.active = 1;
  EXPECT_EQ(Step(), (Entries{"view?", "CMDACTIVE?"}));
}

TEST_F(SelectionPreviewTest, ThePositionIsStoredBehindCommandAndViewport) {
  host.active = 1;
  StepAt({5, 5});
  host.active = 0;
  host.port.reset();
  EXPECT_EQ(StepAt({5, 5}), (Entries{"view?", "CMDACTIVE?", "CVPORT?"}));
  host.port = 2;
  host.refusesSelection = true;
  EXPECT_EQ(StepAt({5, 5}).back(), "selected?") << "now it is stored";
  host.refusesSelection = false;
  EXPECT_EQ(StepAt({5, 5}), (Entries{"view?", "CMDACTIVE?"}));
  EXPECT_TRUE(StepAt({5, 6}).size() > 2);
  EXPECT_TRUE(StepAt({6, 6}).size() > 2);
}

TEST_F(SelectionPreviewTest, TheFirstPositionIsTheCorner) {
  EXPECT_EQ(StepAt({0, 0}), (Entries{"view?", "CMDACTIVE?"}));
}

TEST_F(SelectionPreviewTest, ANamedCommandLeavesTheSelectionUnread) {
  host.runsCommand = true;
  host.under = 7;
  Step();
  EXPECT_FALSE(Asked("selected?"));
  EXPECT_EQ(Done(), (Entries{"highlight 7", "mouse on 7"}));
  host.under = 0;
  host.selected = {7};
  Step();
  EXPECT_EQ(Done(), (Entries{"unhighlight 7", "mouse on none"}));
}

TEST_F(SelectionPreviewTest, LaterHostsKeepNoObjectAndAreNotMeasured) {
  for (const double release : {16.11, 24.0}) {
    g_dHostVersion = release;
    host.mouseOn = Object(7);
    EXPECT_EQ(Step().back(), "mouse on none") << release;
    EXPECT_EQ(Done(), Entries{"mouse on none"}) << "its highlight stays";
    EXPECT_FALSE(Asked("hit test"));
    EXPECT_FALSE(Asked("off?"));
  }
}

TEST_F(SelectionPreviewTest, TheSettingAndTheDrawingTurnItOffWithoutARedraw) {
  host.mouseOn = Object(7);
  g_bEnableSelectPreview = 0;
  Step();
  EXPECT_EQ(Done(), Entries{"mouse on none"});
  EXPECT_FALSE(Asked("off?"));
  g_bEnableSelectPreview = 1;
  host.isOff = true;
  host.mouseOn = Object(7);
  Step();
  EXPECT_EQ(Done(), Entries{"mouse on none"});
}

TEST_F(SelectionPreviewTest, TheHighlightMovesFromObjectToObject) {
  host.under = 7;
  Step();
  Step();
  EXPECT_EQ(Done(), Entries{}) << "still the same object";
  host.under = 8;
  Step();
  EXPECT_EQ(Done(), (Entries{"unhighlight 7", "highlight 8", "mouse on 8"}));
  host.under = 0;
  Step();
  EXPECT_EQ(Done(), (Entries{"unhighlight 8", "mouse on none"}));
  Step();
  EXPECT_EQ(Done(), Entries{"mouse on none"});
}

TEST_F(SelectionPreviewTest, ASelectedObjectStaysHighlightedWhenThePointerLeavesIt) {
  host.selected = {7};
  host.under = 7;
  Step();
  EXPECT_EQ(Done(), (Entries{"highlight 7", "mouse on 7"}));
  host.under = 8;
  Step();
  EXPECT_EQ(Done(), (Entries{"highlight 8", "mouse on 8"}));
  host.under = 7;
  Step();
  host.under = 0;
  Step();
  EXPECT_EQ(Done(), Entries{"mouse on none"});
}

TEST_F(SelectionPreviewTest, OverAnotherViewportNothingIsUnderThePointer) {
  host.under = 7;
  Step();
  host.viewport = 3;
  Step();
  EXPECT_FALSE(Asked("hit test"));
  EXPECT_EQ(Done(), (Entries{"unhighlight 7", "mouse on none"}));
}

TEST_F(SelectionPreviewTest, AMeanOfExactlySixtyMillisecondsKeepsItOn) {
  Measure({60, 60, 60, 60, 60});
  Measure({0, 0, 0, 0, 304});
  EXPECT_FALSE(host.isOff);
  EXPECT_EQ(host.printed, L"");
}

TEST_F(SelectionPreviewTest, OneSlowHitTestInABlockOfFiveCanTurnItOff) {
  Measure({0, 0, 305, 0});
  EXPECT_FALSE(host.isOff) << "not before the block is complete";
  Measure({0});
  EXPECT_TRUE(host.isOff);
}

TEST_F(SelectionPreviewTest, TheBlocksDoNotOverlap) {
  Measure({60, 60, 60, 60, 60});
  Measure({0, 0, 0, 0, 300});
  Measure({300, 0, 0, 0, 0});
  EXPECT_FALSE(host.isOff);
}

TEST_F(SelectionPreviewTest, TheTurnOffEmptiesTheHitSetAndClearsTheMouseOnObject) {
  host.under = 7;
  Measure({100, 100, 100, 100});
  host.under = 8;
  Measure({100});
  EXPECT_EQ(Done(),
            (Entries{"lock", "turn off", "print", "unlock", "unhighlight 7", "mouse on none"}));
  EXPECT_EQ(host.printed,
            L"<检测到光标移动滞后情况，关闭本图选择预览特性，此特性可在自定义中重新设定>\n");
}

TEST_F(SelectionPreviewTest, WithoutSettingsOfTheDrawingTheTurnOffSavesNothingAndCountsAgain) {
  host.hasConfig = false;
  Measure({100, 100, 100, 100, 100});
  EXPECT_TRUE(Asked("print"));
  Measure({100, 100, 100, 100});
  EXPECT_FALSE(Asked("print"));
  Measure({100});
  EXPECT_TRUE(Asked("print"));
}

TEST_F(SelectionPreviewTest, AnotherDrawingIsNotChargedWithTheHitTestsOfThisOne) {
  Measure({200, 200, 200, 200});
  preview.ResetCounters();
  Measure({200, 0, 0, 0});
  EXPECT_FALSE(host.isOff);
  Measure({0});
  EXPECT_FALSE(host.isOff) << "a mean of 40";
  Measure({200, 200});
  preview.ResetCounters();
  Measure({0, 0, 0});
  EXPECT_FALSE(host.isOff) << "two samples were dropped too";
  Measure({0, 301});
  EXPECT_FALSE(host.isOff);
}

TEST_F(SelectionPreviewTest, TheModulesOnePreviewIsResetByItsDoor) {
  host.duration = 200;
  LONG x = 5000;
  const auto step = [&](int times) {
    while (times-- > 0) qvx::ThePreview().Step(host, {++x, 5000});
  };
  ResetPreviewCounters();
  step(4);
  ResetPreviewCounters();
  step(4);
  EXPECT_FALSE(host.isOff) << "each block has four hit tests";
  step(1);
  EXPECT_TRUE(host.isOff);
  ResetPreviewCounters();
}

TEST_F(SelectionPreviewTest, TheClockMayWrapDuringAHitTest) {
  host.ticks = 0xFFFFFFF0;
  Measure({10, 10, 10, 10, 10});
  EXPECT_FALSE(host.isOff);
}

TEST_F(SelectionPreviewTest, TheLockEndsAlsoWhenTheTurnOffFails) {
  class Failing : public PreviewDouble {
   public:
    void TurnOffInDrawing() override { throw 1; }
  };
  Failing failing;
  failing.duration = 100;
  for (LONG x = 1; x < 5; ++x) preview.Step(failing, {x, 0});
  EXPECT_THROW(preview.Step(failing, {5, 0}), int);
  EXPECT_EQ(failing.diary.back(), "unlock");
  EXPECT_EQ(failing.liveSelections, 0);
}

TEST_F(SelectionPreviewTest, TheStepOfAThreadIsUntimedAndInsideOneLock) {
  host.under = 7;
  qvx::StepPreviewUntimed(host);
  EXPECT_EQ(host.diary, (Entries{"CMDNAMES?", "lock", "selected?", "hit test", "highlight 7",
                                 "mouse on 7", "unlock"}));
  host.diary.clear();
  host.refusesSelection = true;
  qvx::StepPreviewUntimed(host);
  EXPECT_EQ(host.diary, (Entries{"CMDNAMES?", "lock", "selected?", "unlock"}));
  host.diary.clear();
  host.runsCommand = true;
  qvx::StepPreviewUntimed(host);
  EXPECT_EQ(host.diary, Entries{"CMDNAMES?"});
}

}  // namespace
