// The two languages of the tool: every phrase of the sources has a translation with the same
// places, and a run uses one language.
#include <set>

#include "tests/qmn/qmn_testing.h"
#include "tools/qmn/check/rules.h"
#include "tools/qmn/phrases.h"
#include "tools/qmn/tool_process.h"

namespace {

namespace fs = std::filesystem;

// Reads the string literal at `at` and sets `at` to its end. False if none begins there or it does
// not end in its line.
bool ReadLiteral(const std::string& source, std::size_t& at, std::string& text) {
  if (at >= source.size() || source[at] != '"') return false;
  std::string read;
  for (std::size_t next = at + 1; next < source.size() && source[next] != '\n'; ++next) {
    if (source[next] == '"') {
      at = next + 1;
      text += read;
      return true;
    }
    if (source[next] == '\\') ++next;
    if (next < source.size()) read += source[next];
  }
  return false;
}

// The phrases of a source: adjacent string literals that end in _say.
std::vector<std::string> PhrasesIn(const std::string& source) {
  std::vector<std::string> phrases;
  for (std::size_t start = 0; (start = source.find('"', start)) != source.npos; ++start) {
    std::size_t at = start;
    std::string text;
    while (ReadLiteral(source, at, text))
      if (source.compare(at, 4, "_say") != 0) at = source.find_first_not_of(" \t\r\n", at);
    if (at >= source.size() || source.compare(at, 4, "_say") != 0) continue;
    phrases.push_back(text);
    start = at;
  }
  return phrases;
}

std::multiset<std::string> PlacesOf(const std::string& text) {
  std::multiset<std::string> places;
  for (std::size_t at = 0; at + 2 < text.size(); ++at)
    if (text[at] == '{' && text[at + 1] >= '0' && text[at + 1] <= '9' && text[at + 2] == '}')
      places.insert(text.substr(at, 3));
  return places;
}

std::set<std::string> AllPhrases() {
  std::set<std::string> phrases;
  for (const char* folder : {"tools/qmn", "tools/qmn/check"})
    for (const auto& entry : fs::directory_iterator(fs::path(QVX_SOURCE_DIR) / folder)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".cpp" && extension != ".h") continue;
      if (entry.path().filename() == "message.h") continue;
      for (std::string& text : PhrasesIn(ReadBytes(entry.path()))) phrases.insert(std::move(text));
    }
  for (const RuleInfo& info : AllRules()) phrases.insert(info.summary);
  phrases.insert(kOverview);
  return phrases;
}

TEST(QmnMessages, EveryPhraseHasATranslationWithTheSamePlaces) {
  const std::set<std::string> phrases = AllPhrases();
  EXPECT_GT(phrases.size(), 250u);
  for (const std::string& phrase : phrases) {
    const char* chinese = ChineseOf(phrase);
    ASSERT_NE(chinese, nullptr) << phrase;
    const auto places = PlacesOf(phrase);
    // A place may be repeated, but none is dropped or added.
    EXPECT_EQ(std::set<std::string>(places.begin(), places.end()), [&] {
      const auto translated = PlacesOf(chinese);
      return std::set<std::string>(translated.begin(), translated.end());
    }()) << phrase;
  }
}

TEST(QmnMessages, EveryTranslationIsUsed) {
  const std::set<std::string> phrases = AllPhrases();
  for (const auto& rows : {FindingPhrases(), RulePhrases(), CommandPhrases(), OptionPhrases()})
    for (const Translation& row : rows) EXPECT_EQ(phrases.count(row.english), 1u) << row.english;
}

TEST(QmnMessages, PartsAreTranslatedToo) {
  const Message message =
      Phrase("expected {0}, found {1}")("a menu line or '***'"_say, "the number {0}"_say(7));
  EXPECT_EQ(message.English(), "expected a menu line or '***', found the number 7");
  EXPECT_EQ(message.In(Language::kChinese), "应为菜单行或 '***'，实际为数 7");
}

TEST(QmnMessages, APartIsNotSearchedForPlaces) {
  EXPECT_EQ(Phrase("the text {0}")(std::string("{0}{1}")).English(), "the text {0}{1}");
}

TEST(QmnMessages, LangChoosesTheLanguageOfAllMessages) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"--lang", "zh", "check", "-"}, {"check", "-", "--lang=zh"}}) {
    const QmnRun run = Qmn(args, "x");
    EXPECT_EQ(run.out,
              "-:1:1: 错误: 文件必须以 MENU_TITLE = \"...\" 开头，实际为名称 'x' [QMN002]\nx\n^\n"
              "-:1:2: 错误: 文件结束，但没有菜单块、***SWITCH 和 ***RESOURCE [QMN002]\nx\n ^\n");
    EXPECT_EQ(run.err, "检查了 1 个文件：2 个错误\n");
  }
  EXPECT_EQ(Qmn({"compile", "--lang", "zh"}).err,
            "qmn compile: 错误: 缺少 IN\n用 'qmn help compile' 查看其选项\n");
  EXPECT_EQ(Qmn({"compile", "-", "--lang", "fr"}).err,
            "qmn compile: error: --lang: the languages are zh and en\n'qmn help compile' explains "
            "its options\n");
}

TEST(QmnMessages, ChineseHelpHasNoEnglishExplanations) {
  const std::string help = Qmn({"--lang", "zh", "help", "fmt"}).out;
  for (const char* word : {"Usage", "Options", "Arguments", "write", "REQUIRED"})
    EXPECT_EQ(help.find(word), std::string::npos) << word << "\n" << help;
}

TEST(QmnMessages, DataIsTheSameInEveryLanguage) {
  for (const std::vector<std::string>& args : {std::vector<std::string>{"dump", "-", "--tree"},
                                               {"why", "-"},
                                               {"compile", "-"},
                                               {"fmt", "-"}}) {
    std::vector<std::string> chinese = args;
    chinese.insert(chinese.end(), {"--lang", "zh"});
    EXPECT_EQ(Qmn(chinese, kGoodSource).out, Qmn(args, kGoodSource).out) << args[0];
  }
}

TEST(QmnMessages, TheChineseListOfRulesIsAligned) {
  const std::string list = Qmn({"check", "--list-rules", "--lang", "zh"}).out;
  EXPECT_NE(list.find("QMN003  错误     empty-block            菜单块至少要有一行。\n"),
            std::string::npos)
      << list;
  EXPECT_EQ(list.find("warning"), std::string::npos);
}

TEST(QmnMessages, TheLocaleDecidesWithoutLang) {
  EXPECT_EQ(LanguageOfLocale("zh_CN.UTF-8"), Language::kChinese);
  EXPECT_EQ(LanguageOfLocale("zh-TW"), Language::kChinese);
  EXPECT_EQ(LanguageOfLocale("en_US.UTF-8"), Language::kEnglish);
  EXPECT_EQ(LanguageOfLocale("C"), Language::kEnglish);
}

}  // namespace
