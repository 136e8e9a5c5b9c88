// The load and the unload sequence, with steps that record their calls.
#include "frame/start/load_sequence.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Diary = std::vector<std::string>;

const char* NameOf(StatusPane pane) {
  switch (pane) {
    case StatusPane::kMakeGroup:
      return "group";
    case StatusPane::kBaseLine:
      return "baseline";
    case StatusPane::kFill:
      return "fill";
    case StatusPane::kBoldLine:
      return "bold";
    case StatusPane::kDynDim:
      return "dyndim";
  }
  return "?";
}

class DiarySteps : public ShellSteps {
 public:
  Diary diary;
  int flags = 0;
  bool hidesCaption = false, reopens = false;

  int CustomFlags() override { return flags; }
  void LoadKernel() override { Note("kernel"); }
  void UnlockModule() override { Note("unlock"); }
  void RegisterMdiAware() override { Note("mdi aware"); }
  void ShowTipsAtStart() override { Note("tips"); }
  void LoadIconLibrary() override { Note("icons"); }
  void RunFirstStartModules() override { Note("first start"); }
  void ReadProductFile() override { Note("product file"); }
  void SetFrameTitle() override { Note("title"); }
  bool HidesCaption() override { return hidesCaption; }
  void HideFrameCaption() override { Note("caption"); }
  bool ReopensRecentFiles() override { return reopens; }
  void QueueRecentFiles() override { Note("recent files"); }
  void CreateDocTabBar() override { Note("tabs"); }
  void InitContextWindow(bool on) override { Note("window", on); }
  void InitMessageFilter(bool on) override { Note("filter", on); }
  void InitCommands(bool on) override { Note("commands", on); }
  void InitScreenMenuReactor(bool on) override { Note("reactor", on); }
  void InitPane(StatusPane pane, bool on) override { Note(NameOf(pane), on); }
  void InitScalePane(bool on) override { Note("scale", on); }
  void SaveSettings() override { Note("save settings"); }
  void SaveRecentCommands() override { Note("save recent"); }
  void RemoveScreenMenu() override { Note("remove screen menu"); }
  void FreeIconLibrary() override { Note("free icons"); }
  void DestroyDocTabBar() override { Note("destroy tabs"); }
  void UnloadKernel() override { Note("unload kernel"); }

 private:
  void Note(const std::string& text) { diary.push_back(text); }
  void Note(const std::string& text, bool on) { diary.push_back((on ? "+" : "-") + text); }
};

Diary Loaded(int flags, bool hidesCaption = false, bool reopens = false) {
  DiarySteps steps;
  steps.flags = flags;
  steps.hidesCaption = hidesCaption;
  steps.reopens = reopens;
  RunLoadSequence(steps);
  return steps.diary;
}

Diary Unloaded(int flags) {
  DiarySteps steps;
  steps.flags = flags;
  RunUnloadSequence(steps);
  return steps.diary;
}

bool Contains(const Diary& diary, const std::string& entry) {
  for (const auto& line : diary)
    if (line == entry) return true;
  return false;
}

}  // namespace

TEST(LoadSequence, RunsEveryStepInItsOrder) {
  EXPECT_EQ(Loaded(0, true, true),
            (Diary{"kernel",  "unlock",       "mdi aware", "tips",        "icons",        "+window",
                   "+filter", "+commands",    "+reactor",  "first start", "product file", "title",
                   "caption", "recent files", "tabs",      "+group",      "+baseline",    "+fill",
                   "+bold",   "+dyndim",      "+scale"}));
}

TEST(LoadSequence, KeepsTheCaptionAndTheRecentFilesUnlessTheSettingsAreOn) {
  const Diary diary = Loaded(0);
  EXPECT_FALSE(Contains(diary, "caption"));
  EXPECT_FALSE(Contains(diary, "recent files"));
}

TEST(LoadSequence, EachCustomFlagSkipsItsOwnStepsOnly) {
  const Diary all = Loaded(0);
  const struct {
    int flag;
    Diary missing;
  } rows[] = {
      {0x01, {"+scale"}},
      {0x02, {"tips"}},
      {0x08, {"first start"}},
      {0x10, {}},
      {0x20, {"+baseline", "+fill", "+bold", "+dyndim"}},
  };
  for (const auto& row : rows) {
    Diary expected;
    for (const auto& entry : all)
      if (!Contains(row.missing, entry)) expected.push_back(entry);
    EXPECT_EQ(Loaded(row.flag), expected) << "flag " << row.flag;
  }
}

TEST(UnloadSequence, RunsEveryStepInItsOrder) {
  EXPECT_EQ(Unloaded(0),
            (Diary{"save settings", "save recent", "-reactor", "remove screen menu", "-window",
                   "-filter", "-commands", "free icons", "destroy tabs", "-group", "-baseline",
                   "-fill", "-bold", "-dyndim", "-scale", "unload kernel"}));
}

TEST(UnloadSequence, RemovesBaseLineAndDynamicDimensionEvenWhenTheyWereNotAdded) {
  const Diary diary = Unloaded(0x20);
  EXPECT_TRUE(Contains(diary, "-baseline"));
  EXPECT_TRUE(Contains(diary, "-dyndim"));
  EXPECT_FALSE(Contains(diary, "-fill"));
  EXPECT_FALSE(Contains(diary, "-bold"));
}

TEST(UnloadSequence, DoesNotRemoveAScalePaneThatWasNotAdded) {
  EXPECT_FALSE(Contains(Unloaded(0x01), "-scale"));
}
