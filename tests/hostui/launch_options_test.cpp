// The command line: every option and every error message.
#include <gtest/gtest.h>

#include "devhost/ui/launch/launch_options.h"

using devhost::LaunchOptions;
using Words = std::vector<std::wstring>;

namespace {

std::wstring ErrorOf(const Words& words) {
  LaunchOptions options;
  std::wstring error;
  return devhost::ParseLaunchOptions(words, &options, &error) ? L"" : error;
}

LaunchOptions Parsed(const Words& words) {
  LaunchOptions options;
  std::wstring error;
  EXPECT_TRUE(devhost::ParseLaunchOptions(words, &options, &error));
  return options;
}

}  // namespace

TEST(LaunchOptions, WithoutWordsTheDefaultsApply) {
  const LaunchOptions o = Parsed({});
  EXPECT_EQ(o.hostVersion, 24.0);
  EXPECT_EQ(o.profile, L"default");
  EXPECT_TRUE(o.startTrace.empty());
  EXPECT_FALSE(o.longestWait);
  EXPECT_TRUE(o.modules.empty() && o.drawings.empty() && o.script.empty() && o.journal.empty());
}

TEST(LaunchOptions, EveryOptionSetsItsField) {
  const LaunchOptions o =
      Parsed({L"--product", L"p",     L"--host-version", L"18.2",   L"--profile",      L"q",
              L"--arx",     L"a.arx", L"--arx",          L"b.arx",  L"--play",         L"s",
              L"--journal", L"-",     L"--trace-start",  L"t.json", L"--longest-wait", L"0.5",
              L"x.dxf",     L"y.dxf"});
  EXPECT_EQ(o.productFolder, L"p");
  EXPECT_EQ(o.hostVersion, 18.2);
  EXPECT_EQ(o.profile, L"q");
  EXPECT_EQ(o.modules, (Words{L"a.arx", L"b.arx"}));
  EXPECT_EQ(o.script, L"s");
  EXPECT_EQ(o.journal, L"-");
  EXPECT_EQ(o.startTrace, L"t.json");
  EXPECT_EQ(o.longestWait, 0.5);
  EXPECT_EQ(o.drawings, (Words{L"x.dxf", L"y.dxf"}));
}

TEST(LaunchOptions, AValueMayFollowAnEqualsSign) {
  EXPECT_EQ(Parsed({L"--journal=out.jsonl"}).journal, L"out.jsonl");
}

TEST(LaunchOptions, AfterTwoHyphensEveryWordIsADrawing) {
  EXPECT_EQ(Parsed({L"--", L"--play"}).drawings, Words{L"--play"});
}

TEST(LaunchOptions, MistakesAreReportedWithTheWrongWord) {
  EXPECT_EQ(ErrorOf({L"--wrong"}), L"unknown option --wrong");
  EXPECT_EQ(ErrorOf({L"-x"}), L"unknown option -x");
  EXPECT_EQ(ErrorOf({L"--play"}), L"--play needs a value");
  EXPECT_EQ(ErrorOf({L"--play="}), L"--play needs a value");
  EXPECT_EQ(ErrorOf({L"--host-version", L"new"}),
            L"--host-version takes a release number such as 24.0, not new");
  EXPECT_EQ(ErrorOf({L"--host-version", L"3"}),
            L"--host-version takes a release number such as 24.0, not 3");
  for (const wchar_t* wrong : {L"long", L"0.5s", L"-1", L"61", L"nan"})
    EXPECT_EQ(ErrorOf({L"--longest-wait", wrong}),
              std::wstring(L"--longest-wait takes seconds from 0 to 60, not ") + wrong);
  EXPECT_EQ(ErrorOf({L""}), L"a drawing has an empty name");
}

TEST(LaunchOptions, AReleaseHasOneDecimal) {
  EXPECT_EQ(Parsed({L"--host-version", L"15.0"}).hostVersion, 15.0);
  EXPECT_EQ(Parsed({L"--host-version", L"24.3"}).hostVersion, 24.3);
  EXPECT_EQ(ErrorOf({L"--host-version", L"16.11"}),
            L"--host-version takes a release number such as 24.0, not 16.11");
  EXPECT_EQ(ErrorOf({L"--host-version", L"14.9"}),
            L"--host-version takes a release number such as 24.0, not 14.9");
}

TEST(LaunchOptions, TheDoctorTakesTheSameOptions) {
  LaunchOptions options;
  std::wstring error;
  ASSERT_TRUE(ParseLaunchOptions({L"--doctor", L"--product", L"p"}, &options, &error));
  EXPECT_TRUE(options.doctor);
  EXPECT_EQ(options.productFolder, L"p");
}

TEST(LaunchOptions, ListingTheCommandsTakesModules) {
  LaunchOptions options;
  std::wstring error;
  ASSERT_TRUE(ParseLaunchOptions({L"--list-commands", L"--arx", L"m.arx"}, &options, &error));
  EXPECT_TRUE(options.listCommands);
  EXPECT_EQ(options.modules, std::vector<std::wstring>{L"m.arx"});
}
