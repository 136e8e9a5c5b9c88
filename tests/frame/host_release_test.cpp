#include "frame/start/host_release.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {
std::vector<std::wstring> Names(double release) {
  const wchar_t* names[2];
  const int count = FirstStartValueNames(release, names);
  return {names, names + count};
}
using List = std::vector<std::wstring>;
}  // namespace

// Each limit belongs to the row below it; the next greater number belongs to the next row.
TEST(FirstStartValues, EachReleaseHasItsOwnFromJustAboveItsLimit) {
  const struct {
    double limit;
    const wchar_t *upToIt, *above;
  } rows[] = {
      {15.9, L"InitStart15", L"InitStart16"},        {16.0001, L"InitStart16", L"InitStart16.1"},
      {16.1001, L"InitStart16.1", L"InitStart16.2"}, {16.9, L"InitStart16.2", L"InitStart17"},
      {17.0001, L"InitStart17", L"InitStart17.1"},   {17.11, L"InitStart17.1", L"InitStart17.2"},
      {17.21, L"InitStart17.2", L"InitStart18"},     {18.0001, L"InitStart18", L"InitStart18.1"},
      {18.11, L"InitStart18.1", L"InitStart18.2"},   {18.21, L"InitStart18.2", L"InitStart19"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Names(row.limit), List{row.upToIt}) << row.limit;
    EXPECT_EQ(Names(std::nextafter(row.limit, 99)), List{row.above}) << row.limit;
  }
}

TEST(FirstStartValues, TheExistingReleasesHaveTheirOwn) {
  const struct {
    double release;
    const wchar_t* name;
  } rows[] = {
      {15.0, L"InitStart15"},   {16.0, L"InitStart16"}, {16.1, L"InitStart16.1"},
      {16.2, L"InitStart16.2"}, {17.0, L"InitStart17"}, {17.1, L"InitStart17.1"},
      {17.2, L"InitStart17.2"}, {18.0, L"InitStart18"}, {18.1, L"InitStart18.1"},
      {18.2, L"InitStart18.2"}, {19.0, L"InitStart19"},
  };
  for (const auto& row : rows) EXPECT_EQ(Names(row.release), List{row.name}) << row.release;
}

TEST(FirstStartValues, AboveNineteenTwoAreReadAndTheOlderOneLast) {
  EXPECT_EQ(Names(19.0), List{L"InitStart19"});
  EXPECT_EQ(Names(std::nextafter(19.0, 99)), (List{L"InitStart19.1", L"InitStart19"}));
  EXPECT_EQ(Names(19.1), (List{L"InitStart19.1", L"InitStart19"}));
  EXPECT_EQ(Names(24.0), (List{L"InitStart19.1", L"InitStart19"}));
}

TEST(FrameTitle, TakesTheHostsNameBeforeTheHyphen) {
  EXPECT_STREQ(FrameTitle(L"奇维建筑", L"AutoCAD 2021 - [Drawing1.dwg]", 24.0),
               L"奇维建筑 For AutoCAD 2021");
}

TEST(FrameTitle, TheFirstHyphenCountsAndTheCharacterBeforeItIsDropped) {
  EXPECT_STREQ(FrameTitle(L"Q", L"Draw-It - x", 24.0), L"Q For Dra");
}

TEST(FrameTitle, AHyphenAtTheStartLeavesNoHostName) {
  EXPECT_STREQ(FrameTitle(L"Q", L"- x", 24.0), L"Q For ");
  EXPECT_STREQ(FrameTitle(L"Q", L" - x", 24.0), L"Q For ");
}

// Each limit belongs to the row above it; the next smaller number belongs to its own row.
TEST(FrameTitle, WithoutAHyphenTheReleaseDeterminesTheName) {
  const struct {
    double limit;
    const wchar_t *below, *fromIt;
  } rows[] = {
      {15.99, L"Q For AutoCAD 2002", L"Q For AutoCAD 2004"},
      {16.01, L"Q For AutoCAD 2004", L"Q For AutoCAD 2005"},
      {16.11, L"Q For AutoCAD 2005", L"Q For AutoCAD 2006"},
      {16.21, L"Q For AutoCAD 2006", L"Q For AutoCAD 2007"},
      {17.01, L"Q For AutoCAD 2007", L"Q For AutoCAD 2008"},
      {17.11, L"Q For AutoCAD 2008", L"Q For AutoCAD 2009"},
      {17.21, L"Q For AutoCAD 2009", L"Q For AutoCAD 2010"},
      {18.01, L"Q For AutoCAD 2010", L"Q For AutoCAD 2011"},
      {18.11, L"Q For AutoCAD 2011", L"Q For AutoCAD 2012"},
      {18.21, L"Q For AutoCAD 2012", L"Q For AutoCAD 2013"},
  };
  for (const auto& row : rows) {
    EXPECT_STREQ(FrameTitle(L"Q", L"Host", std::nextafter(row.limit, 0)), row.below) << row.limit;
    EXPECT_STREQ(FrameTitle(L"Q", L"Host", row.limit), row.fromIt) << row.limit;
  }
  EXPECT_STREQ(FrameTitle(L"Q", L"Host", 15.0), L"Q For AutoCAD 2002");
  EXPECT_STREQ(FrameTitle(L"Q", L"Host", 24.3), L"Q For AutoCAD 2013");
}

TEST(FrameTitle, WithoutATitleTheTextStartsWithFor) {
  EXPECT_STREQ(FrameTitle(L"", L"Host 1 - a", 24.0), L" For Host 1");
}
