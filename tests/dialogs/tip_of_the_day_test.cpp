// The tip of the day between two runs: position, time stamp, the start-up switch, and the effect of
// the buttons. Uses a host release number that does not exist.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "dialogs/tip_of_the_day.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "tests/dialogs/tip_file_double.h"

namespace {

constexpr int kUnset = -99;

class Messages : public qvx::TipMessages {
 public:
  CString Text(unsigned id) const override { return std::to_wstring(id).c_str(); }
  void ShowBox(unsigned id) const override { boxes.push_back(id); }
  mutable std::vector<unsigned> boxes;
};

class Tips : public qvx::TipOfTheDay {
 public:
  using TipOfTheDay::TipOfTheDay;
  std::wstring Shown() const { return m_strTip.GetString(); }
  void Switch(int startUp) { m_bStartUp = startUp; }
};

TRegProperty Key() {
  TRegProperty key(GetRegLocation(), L"Tips");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  return key;
}

int Kept(const wchar_t* name) {
  int value = kUnset;
  Key().GetValue(name, value);
  return value;
}

class TipOfTheDayTest : public ::testing::Test {
 protected:
  void SetUp() override {
    m_release = g_dHostVersion;
    g_dHostVersion = 98.1;
    Key().SetValue(L"StartUp", 1);
    Key().SetValue(L"Indicator", 0);
    Key().SetValue(L"TimeStamp", L"");
  }
  void TearDown() override { g_dHostVersion = m_release; }
  std::unique_ptr<Tips> Show() { return std::make_unique<Tips>(disk.Path().c_str(), messages); }

  TipFileOnDisk disk{"one\ntwo\nsix\n"};
  Messages messages;

 private:
  double m_release = 0;
};

}  // namespace

TEST_F(TipOfTheDayTest, AMissingFileShowsItsTextAndSavesNothing) {
  Key().SetValue(L"StartUp", 0);
  Key().SetValue(L"Indicator", 7);
  {
    Tips tips(nullptr, messages);
    EXPECT_EQ(tips.Shown(), L"40009");
    EXPECT_FALSE(tips.HasFile());
    EXPECT_FALSE(tips.CanGoBack());
    EXPECT_TRUE(tips.ShowsAtStart()) << "the switch is read only behind a file that opens";
    EXPECT_FALSE(tips.Previous());
    tips.Next();
    EXPECT_EQ(tips.Shown(), L"40009");
  }
  EXPECT_EQ(Kept(L"Indicator"), 7);
  const Tips unopened((disk.Path() + L".none").c_str(), messages);
  EXPECT_EQ(unopened.Shown(), L"40009");
  EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(TipOfTheDayTest, EachRunBeginsAfterTheLastTipShown) {
  EXPECT_EQ(Show()->Shown(), L"one\n");
  EXPECT_EQ(Kept(L"Indicator"), 4);
  {
    const auto tips = Show();
    EXPECT_EQ(tips->Shown(), L"two\n");
    EXPECT_TRUE(tips->CanGoBack());
    tips->Next();
    EXPECT_EQ(tips->Shown(), L"six\n");
  }
  EXPECT_EQ(Kept(L"Indicator"), 12);
  EXPECT_EQ(Show()->Shown(), L"one\n") << "from the end of the file in a circle";
}

TEST_F(TipOfTheDayTest, AnEditedFileRestartsAtItsFirstTip) {
  Show();
  disk.Write("new\nold\n");
  disk.Age(48);
  Key().SetValue(L"Indicator", 4);
  const auto tips = Show();
  EXPECT_EQ(tips->Shown(), L"new\n");
  EXPECT_FALSE(tips->CanGoBack());
}

TEST_F(TipOfTheDayTest, TheStampIsWrittenOnlyIfItDiffers) {
  Show();
  CString stamp;
  Key().GetValue(L"TimeStamp", stamp);
  EXPECT_EQ(stamp.GetLength(), 24);
  Show();
  CString again;
  Key().GetValue(L"TimeStamp", again);
  EXPECT_EQ(again, stamp);
  EXPECT_EQ(Kept(L"Indicator"), 8) << "the same stamp leaves the position";
}

TEST_F(TipOfTheDayTest, PreviousFromTheFirstTipAfterTheLastGoesBackInTheFile) {
  const auto tips = Show();
  tips->Next();
  tips->Next();
  tips->Next();
  EXPECT_EQ(tips->Shown(), L"one\n") << "after the last tip comes the first again";
  EXPECT_TRUE(tips->Previous());
  EXPECT_EQ(tips->Shown(), L"one\n");
  EXPECT_FALSE(tips->CanGoBack());
  tips->Next();
  tips->Next();
  EXPECT_TRUE(tips->Previous());
  EXPECT_EQ(tips->Shown(), L"two\n");
  EXPECT_TRUE(tips->CanGoBack());
  EXPECT_TRUE(tips->Previous());
  EXPECT_EQ(tips->Shown(), L"one\n");
  EXPECT_FALSE(tips->CanGoBack());
}

TEST_F(TipOfTheDayTest, ACommentBetweenTwoTipsIsSkippedBothWays) {
  disk.Write("one\n;c\n\ttwo\nsix\n");
  const auto tips = Show();
  tips->Next();
  EXPECT_EQ(tips->Shown(), L"six\n");
  tips->Previous();
  EXPECT_EQ(tips->Shown(), L"one\n");
  EXPECT_FALSE(tips->CanGoBack());
}

TEST_F(TipOfTheDayTest, BelowACommentAtTheTopPreviousIsAvailableOnceAtTheFirstTip) {
  disk.Write(";c1\none\ntwo\n");
  const auto tips = Show();
  tips->Next();
  tips->Previous();
  EXPECT_EQ(tips->Shown(), L"one\n");
  EXPECT_TRUE(tips->CanGoBack()) << "its position is not the start of the file";
  tips->Previous();
  EXPECT_EQ(tips->Shown(), L"one\n");
  EXPECT_FALSE(tips->CanGoBack());
}

TEST_F(TipOfTheDayTest, APositionThatCantBeReachedShowsAMessageBox) {
  Show();
  Key().SetValue(L"Indicator", -5);
  const auto tips = Show();
  EXPECT_EQ(messages.boxes, std::vector<unsigned>{40010});
  EXPECT_EQ(tips->Shown(), L"");
  EXPECT_TRUE(tips->HasFile());
}

TEST_F(TipOfTheDayTest, APositionBeyondTheEndStartsAgain) {
  Show();
  Key().SetValue(L"Indicator", 100000);
  EXPECT_EQ(Show()->Shown(), L"one\n");
}

TEST_F(TipOfTheDayTest, ThePositionMovesOnEvenIfTheTipsAreTurnedOff) {
  Key().SetValue(L"StartUp", 0);
  {
    const auto tips = Show();
    EXPECT_FALSE(tips->ShowsAtStart());
  }
  EXPECT_EQ(Kept(L"Indicator"), 4);
}

TEST_F(TipOfTheDayTest, TheSwitchIsSavedOnlyOnDemand) {
  {
    const auto tips = Show();
    tips->Switch(0);
  }
  EXPECT_EQ(Kept(L"StartUp"), 1);
  const auto tips = Show();
  tips->Switch(0);
  tips->KeepStartUp();
  EXPECT_EQ(Kept(L"StartUp"), 0);
}

TEST_F(TipOfTheDayTest, AFileWithoutATipShowsNothingAndEnds) {
  for (const char* bytes : {"", "; none\n", "\n \n\t\n"}) {
    disk.Write(bytes);
    const auto tips = Show();
    EXPECT_EQ(tips->Shown(), L"");
    tips->Next();
    tips->Previous();
    EXPECT_EQ(tips->Shown(), L"");
  }
  EXPECT_TRUE(messages.boxes.empty());
}
