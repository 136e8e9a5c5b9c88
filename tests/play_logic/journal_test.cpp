// The journal: numbers, lines, waiting; and UTF-8.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <thread>

#include "devhost/core/base/journal.h"

namespace devhost {
namespace {

using namespace std::chrono_literals;

std::string Written(const std::function<void(Journal&)>& record) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
  if (!file) return "no temporary file";
  Journal journal;
  journal.WriteTo(file.get());
  record(journal);
  std::rewind(file.get());
  std::string text;
  for (int c; (c = std::fgetc(file.get())) != EOF;) text += static_cast<char>(c);
  return text;
}

TEST(Journal, EntriesAreNumberedFromOne) {
  Journal journal;
  EXPECT_EQ(journal.Count(), 0);
  journal.Record("sent", {{"text", "a"}});
  journal.Record("printed", {{"text", "b"}});
  EXPECT_EQ(journal.Count(), 2);
  const auto since = journal.Since(1);
  ASSERT_EQ(since.size(), 1u);
  EXPECT_EQ(since[0].number, 2);
  EXPECT_EQ(since[0].event, "printed");
  EXPECT_TRUE(journal.Since(2).empty());
  EXPECT_TRUE(journal.Since(99).empty());
}

TEST(Journal, WritesOneLineAnEntry) {
  const std::string text = Written([](Journal& journal) {
    journal.Record("sent", {{"text", "\x1B墙\n"}});
    journal.Record("command", {{"phase", "start"}, {"name", "LINE"}});
  });
  const std::size_t end = text.find('\n');
  const Json first = Json::parse(text.substr(0, end));
  EXPECT_EQ(first["n"], 1);
  EXPECT_TRUE(first["ms"].is_number());
  EXPECT_EQ(first["event"], "sent");
  EXPECT_EQ(first["text"], "\x1B墙\n");
  EXPECT_EQ(Json::parse(text.substr(end + 1))["phase"], "start");
}

TEST(Journal, InvalidTextIsReplaced) {
  const std::string text = Written([](Journal& journal) {
    journal.Record("sent", {{"text", "a\xFFz"}});
  });
  EXPECT_NE(text.find("a\xEF\xBF\xBDz"), std::string::npos);
}

TEST(Journal, WaitForReturnsWithTheEntry) {
  Journal journal;
  journal.Record("sent", {{"text", "early"}});
  std::thread other([&] { journal.Record("sent", {{"text", "late"}}); });
  const bool came = journal.WaitFor(
      0, 10s, [](const JournalEntry& entry) { return entry.fields["text"] == "late"; });
  other.join();
  EXPECT_TRUE(came);
}

TEST(Journal, WaitForExaminesOnlyEntriesAfterTheNumber) {
  Journal journal;
  journal.Record("sent", {{"text", "a"}});
  EXPECT_TRUE(journal.WaitFor(0, 0ms, [](const JournalEntry&) { return true; }));
  EXPECT_FALSE(journal.WaitFor(1, 1ms, [](const JournalEntry&) { return true; }));
}

TEST(Utf8, ConvertsBothWays) {
  for (const char* text : {"", "a", "é", "墙体", "\xF0\x9F\x8F\xA0"})
    EXPECT_EQ(Utf8(Wide(text)), text);
  EXPECT_EQ(Utf8(L"墙"), "\xE5\xA2\x99");
  EXPECT_EQ(Utf8(static_cast<const wchar_t*>(nullptr)), "");
}

TEST(Utf8, ACharacterAboveTheFirstPlaneIsTwoUnits) {
  const std::wstring wide = Wide("\xF0\x9F\x8F\xA0");
  ASSERT_EQ(wide.size(), 2u);
  EXPECT_EQ(static_cast<unsigned>(wide[0]), 0xD83Cu);
  EXPECT_EQ(static_cast<unsigned>(wide[1]), 0xDFE0u);
}

// How many replacement characters a broken sequence gives depends on the system.
void ExpectOnlyReplacements(const std::string& broken) {
  const std::wstring wide = Wide(broken);
  EXPECT_FALSE(wide.empty());
  EXPECT_EQ(wide.find_first_not_of(L'\xFFFD'), std::wstring::npos);
}

TEST(Utf8, InvalidTextBecomesTheReplacementCharacter) {
  EXPECT_EQ(Wide("a\xFFz"), L"a\xFFFDz");
  ExpectOnlyReplacements("\xC0\x80");      // a longer form than needed
  ExpectOnlyReplacements("\xE5\xA2");      // cut off
  ExpectOnlyReplacements("\xED\xA0\x80");  // half of a pair
}

TEST(Utf8, LoneSurrogatesBecomeTheReplacementCharacter) {
  EXPECT_EQ(Utf8(std::wstring{L'a', static_cast<wchar_t>(0xD83C), L'z'}), "a\xEF\xBF\xBDz");
  EXPECT_EQ(Utf8(std::wstring{static_cast<wchar_t>(0xDC00)}), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf8(std::wstring{L'a', static_cast<wchar_t>(0xD83C)}), "a\xEF\xBF\xBD");
}

}  // namespace
}  // namespace devhost
