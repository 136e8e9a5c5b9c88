// The list of recent drawings.
#include <gtest/gtest.h>

#include "kernel/recent_drawings.h"

namespace {

std::wstring Noted(std::initializer_list<const wchar_t*> files) {
  CString list;
  for (const wchar_t* file : files) NoteRecentDrawing(list, file);
  return list.GetString();
}

TEST(RecentDrawings, EachIsFollowedByACommaAndTheLastUsedIsLast) {
  EXPECT_EQ(Noted({L"C:\\a.dwg", L"C:\\图\\b.dwg"}), L"C:\\a.dwg,C:\\图\\b.dwg,");
  EXPECT_EQ(Noted({L"C:\\a.dwg", L"C:\\b.dwg", L"c:\\A.DWG"}), L"C:\\b.dwg,c:\\A.DWG,");
}

TEST(RecentDrawings, FourAreKept) {
  EXPECT_EQ(Noted({L"/1", L"/2", L"/3", L"/4", L"/5", L"/6"}), L"/3,/4,/5,/6,");
}

TEST(RecentDrawings, NamesThatCannotBeReopenedAreLeftOut) {
  EXPECT_EQ(Noted({L"Drawing1.dwg", L"", nullptr, L"C:\\a,b.dwg"}), L"");
}

TEST(RecentDrawings, AListOfAnyFormIsReadUpToItsLastComma) {
  CString list(L",,/a,,/b");
  NoteRecentDrawing(list, L"/c");
  EXPECT_STREQ(list.GetString(), L"/a,/c,");
}

}  // namespace
