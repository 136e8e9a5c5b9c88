#include "popup/open_timers.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using Diary = std::vector<std::wstring>;

class DiaryOpener : public DocumentOpener {
 public:
  Diary diary;
  bool applicationContext = true;
  std::function<void()> whileOpening;

  bool IsApplicationContext() override { return applicationContext; }
  void OpenDocument(const wchar_t* path) override {
    diary.push_back(std::wstring(L"open ") + path);
    if (whileOpening) whileOpening();
  }
  void StopTimer(int id) override { diary.push_back(L"stop " + std::to_wstring(id)); }
  void PostCommand(const wchar_t* text) override { diary.push_back(std::wstring(L"post ") + text); }
};

void Fill(TDPtrList<CString>& queue) {
  queue.Append(new CString(L"a.dwg"));
  queue.Append(new CString(L"b.dwg"));
}

}  // namespace

TEST(RecentOpening, OpensOneFilePerFiringInOrderAndThenStops) {
  TDPtrList<CString> queue;
  Fill(queue);
  DiaryOpener opener;
  RecentOpening opening;
  opening.Step(queue, opener);
  EXPECT_EQ(opener.diary, Diary{L"open a.dwg"});
  EXPECT_EQ(queue.Length(), 1);
  opening.Step(queue, opener);
  opening.Step(queue, opener);
  EXPECT_EQ(opener.diary, (Diary{L"open a.dwg", L"open b.dwg", L"stop 10"}));
}

TEST(RecentOpening, AFiringWhileAFileIsBeingOpenedDoesNothing) {
  TDPtrList<CString> queue;
  Fill(queue);
  DiaryOpener opener;
  RecentOpening opening;
  opener.whileOpening = [&] { opening.Step(queue, opener); };
  opening.Step(queue, opener);
  EXPECT_EQ(opener.diary, Diary{L"open a.dwg"});
}

TEST(RecentOpening, OutsideApplicationContextItStopsPermanently) {
  TDPtrList<CString> queue;
  Fill(queue);
  DiaryOpener opener;
  opener.applicationContext = false;
  RecentOpening opening;
  opening.Step(queue, opener);
  opener.applicationContext = true;
  opening.Step(queue, opener);
  EXPECT_EQ(opener.diary, Diary{L"stop 10"});
  EXPECT_EQ(queue.Length(), 2);
}

TEST(OpenRequestedFile, OpensAndThenPostsTheCommand) {
  DiaryOpener opener;
  OpenRequestedFile(L"c.dwg", L"TWall\n", opener);
  EXPECT_EQ(opener.diary, (Diary{L"stop 5", L"open c.dwg", L"post TWall\n"}));
}

TEST(OpenRequestedFile, AnEmptyCommandIsNotPosted) {
  DiaryOpener opener;
  OpenRequestedFile(L"c.dwg", L"", opener);
  EXPECT_EQ(opener.diary, (Diary{L"stop 5", L"open c.dwg"}));
}

TEST(OpenRequestedFile, OutsideApplicationContextOnlyTheTimerStops) {
  DiaryOpener opener;
  opener.applicationContext = false;
  OpenRequestedFile(L"c.dwg", L"TWall\n", opener);
  EXPECT_EQ(opener.diary, Diary{L"stop 5"});
}
