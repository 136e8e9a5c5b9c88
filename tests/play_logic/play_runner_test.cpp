// Playing steps and checking expectations, with a simulated clock.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "devhost/play/play_runner.h"

namespace devhost {
namespace {

using namespace std::chrono_literals;

// Logs performed steps and adds journal entries at set times.
class DiaryWorld : public PlayWorld {
 public:
  explicit DiaryWorld(Journal& journal) : m_journal(journal) {}

  std::string Perform(const Step& step) override {
    log += step.source + "; ";
    if (on.contains(step.source)) on[step.source]();
    return problems.contains(step.source) ? problems[step.source] : "";
  }
  bool IsIdle() override { return m_now >= idleFrom; }
  bool IsMenuOpen() override { return m_now >= menuFrom; }
  bool IsPopupOpen() override { return m_now >= popupFrom; }
  void WaitForTimers() override { Pause(200ms); }
  std::string ShellState() override { return state; }
  bool Variable(const std::string& name, std::string* value) override {
    if (!variables.contains(name)) return false;
    *value = variables[name];
    return true;
  }
  bool Setting(const std::string& name, std::string* value) override {
    if (!settings.contains(name)) return false;
    *value = settings[name];
    return true;
  }
  std::vector<std::string> HighlightedHandles() override { return highlighted; }
  std::string TypedText() override { return typed; }
  std::string TipText() override { return tip; }
  bool DrawnTexts(const std::string& handle, std::vector<std::string>* texts) override {
    if (!drawn.contains(handle)) return false;
    *texts = drawn[handle];
    return true;
  }
  std::string PointerAway(const Target& target) override {
    return target.x == pointerX ? "" : "it is elsewhere";
  }
  Milliseconds Now() override { return m_now; }
  void Pause(Milliseconds time) override {
    m_now += time;
    while (!later.empty() && later.begin()->first <= m_now) {
      later.begin()->second();
      later.erase(later.begin());
    }
  }
  void Print(const std::string& line) override { printed += line; }

  void Send(const std::string& text) { m_journal.Record("sent", {{"text", text}}); }
  void SendAfter(Milliseconds time, const std::string& text) {
    later.emplace(m_now + time, [this, text] { Send(text); });
  }
  void OpenHelp(const std::string& file, int command, const std::string& keyword) {
    m_journal.Record("help", {{"file", file}, {"command", command}, {"keyword", keyword}});
  }
  void PrintText(const std::string& text) { m_journal.Record("printed", {{"text", text}}); }

  std::string log, printed, state = "{}";
  std::map<std::string, std::function<void()>> on;
  std::map<std::string, std::string> problems, variables, settings;
  std::vector<std::string> highlighted;
  std::string typed, tip;
  std::map<std::string, std::vector<std::string>> drawn;
  double pointerX = 0;
  std::multimap<Milliseconds, std::function<void()>> later;
  Milliseconds idleFrom{0}, menuFrom{1h}, popupFrom{1h};

 private:
  Journal& m_journal;
  Milliseconds m_now{0};
};

class PlayTest : public testing::Test {
 protected:
  int Play(const std::string& script) {
    std::vector<Step> steps;
    ScriptError error;
    EXPECT_TRUE(ParsePlayScript(script, &steps, &error)) << ScriptErrorText("t", error);
    return PlayRunner("t.script", steps, journal, world).Play();
  }

  Journal journal;
  DiaryWorld world{journal};
};

TEST_F(PlayTest, StepsRunInOrderUntilQuit) {
  EXPECT_EQ(Play("new\ntype \"a\"\nquit\nclose\n"), 0);
  EXPECT_EQ(world.log, "new; type \"a\"; ");
}

TEST_F(PlayTest, HighlightedObjectsAreComparedAsASetAndWaitedFor) {
  world.highlighted = {"2A", "21"};
  EXPECT_EQ(Play("expect highlighted 21 2a\n"), 0);
  EXPECT_EQ(Play("expect highlighted 21\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:1: expect highlighted 21\n"
            "  expected to be highlighted: 21; highlighted: 21 2A");
  world.printed.clear();
  EXPECT_EQ(Play("expect highlighted none\n"), 1);
  EXPECT_NE(world.printed.find("expected to be highlighted: none"), std::string::npos);
  world.later.emplace(world.Now() + 300ms, [this] { world.highlighted.clear(); });
  EXPECT_EQ(Play("expect highlighted none\n"), 0);
}

TEST_F(PlayTest, OneOfTheTextsOfAnObjectIsTheExpectedOne) {
  world.drawn["2A"] = {"客厅", "12.5"};
  world.drawn["2B"] = {};
  EXPECT_EQ(Play("expect text 2a \"12.5\"\nexpect text 2A \"客厅\"\nexpect text 2B \"\"\n"), 0);
  EXPECT_EQ(Play("expect text 2A \"12\"\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:1: expect text 2A \"12\"\n"
            "  expected 2A to draw the text: \"12\"; it draws \"客厅\", \"12.5\"");
  world.printed.clear();
  EXPECT_EQ(Play("expect text 2A \"\"\n"), 1);
  world.printed.clear();
  EXPECT_EQ(Play("expect text 2B \"a\"\n"), 1);
  EXPECT_NE(world.printed.find("it draws no text"), std::string::npos) << world.printed;
  world.printed.clear();
  EXPECT_EQ(Play("expect text 3F \"\"\n"), 1);
  EXPECT_NE(world.printed.find("the active drawing has no such object"), std::string::npos);
  world.later.emplace(world.Now() + 300ms, [this] { world.drawn["3F"] = {"a"}; });
  EXPECT_EQ(Play("expect text 3F \"a\"\n"), 0);
}

TEST_F(PlayTest, SettingsAreComparedLikeVariables) {
  world.settings["g_nSpeedMenu"] = "3";
  EXPECT_EQ(Play("expect setting g_nSpeedMenu 3\nexpect setting g_nSpeedMenu 3.0\n"), 0);
  EXPECT_EQ(Play("expect setting g_nSpeedMenu 2\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:1: expect setting g_nSpeedMenu 2\n"
            "  expected setting g_nSpeedMenu to be \"2\"; it is \"3\"");
  world.printed.clear();
  EXPECT_EQ(Play("expect setting g_bNone 1\n"), 1);
  EXPECT_NE(world.printed.find("there is no such setting"), std::string::npos);
}

TEST_F(PlayTest, HelpCallsAreComparedByFileCommandAndKeywordAndMeetOneExpectationEach) {
  world.on["press F1"] = [this] {
    world.OpenHelp("C:\\product\\help.chm", 0, "");
    world.OpenHelp("C:\\product\\help.chm", 13, "墙体");
    world.OpenHelp("C:\\product\\help.chm", 2, "墙体");
  };
  EXPECT_EQ(Play("press F1\nexpect help \"help.chm\" topic\nexpect help \"help.chm\" topic\n"), 1);
  EXPECT_NE(world.printed.find("opened: \"help.chm\" 13 \"墙体\", \"help.chm\" 2 \"墙体\""),
            std::string::npos)
      << world.printed;
  EXPECT_EQ(Play("press F1\n"
                 "expect help \"help.chm\" topic\n"
                 "expect help \"help.chm\" keyword \"墙体\"\n"
                 "expect help \"help.chm\" index \"墙体\"\n"),
            0);
}

TEST_F(PlayTest, PointerAndTypedTextAreWaitedFor) {
  world.pointerX = 5;
  world.typed = "_.LI";
  EXPECT_EQ(Play("expect pointer view 5 9\nexpect typed \"_.LI\"\n"), 0);
  EXPECT_EQ(Play("expect pointer view 6 9\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:1: expect pointer view 6 9\n"
            "  expected the pointer on the target; it is elsewhere");
  world.printed.clear();
  EXPECT_EQ(Play("expect typed \"\"\n"), 1);
  EXPECT_NE(world.printed.find("expected to be typed: \"\"; it is \"_.LI\""), std::string::npos);
}

TEST_F(PlayTest, TheTipIsWaitedForAndComparedWhole) {
  EXPECT_EQ(Play("expect tip \"\"\n"), 0);
  world.later.emplace(world.Now() + 500ms, [this] { world.tip = "C:\\A\\plan.dxf"; });
  EXPECT_EQ(Play("expect tip \"C:\\\\A\\\\plan.dxf\"\n"), 0);
  EXPECT_EQ(Play("expect tip \"plan.dxf\"\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:1: expect tip \"plan.dxf\"\n"
            "  expected the tip: \"plan.dxf\"; it is \"C:\\\\A\\\\plan.dxf\"");
  world.printed.clear();
  world.tip.clear();
  EXPECT_EQ(Play("expect tip \"plan.dxf\"\n"), 1);
  EXPECT_NE(world.printed.find("no tip is shown"), std::string::npos) << world.printed;
}

TEST_F(PlayTest, APartEndsAtARestart) {
  const auto endsInRestart = [this](const std::string& script, int exitCode) {
    std::vector<Step> steps;
    ScriptError error;
    EXPECT_TRUE(ParsePlayScript(script, &steps, &error));
    PlayRunner runner("t.script", steps, journal, world);
    EXPECT_EQ(runner.Play(), exitCode) << script;
    return runner.EndedInRestart();
  };
  EXPECT_TRUE(endsInRestart("new\nrestart\nclose\n", 0));
  EXPECT_EQ(world.log, "new; ");
  EXPECT_FALSE(endsInRestart("new\nquit\nrestart\n", 0));
  EXPECT_FALSE(endsInRestart("new\n", 0));
  world.problems["close"] = "there is no drawing";
  EXPECT_FALSE(endsInRestart("close\nrestart\n", 1));
}

TEST_F(PlayTest, TheFirstFailureStopsThePlayAndIsPrintedWithItsLine) {
  world.problems["close"] = "there is no drawing";
  EXPECT_EQ(Play("new\n\nclose\nnew\n"), 1);
  EXPECT_EQ(world.log, "new; close; ");
  EXPECT_EQ(world.printed, "t.script:3: close\n  there is no drawing");
}

TEST_F(PlayTest, AnExpectedTextMayArriveLater) {
  world.on["new"] = [this] { world.SendAfter(150ms, "LINE\n"); };
  EXPECT_EQ(Play("new\nexpect sent \"LINE\\n\"\n"), 0);
  EXPECT_LT(world.Now(), 1s);
}

TEST_F(PlayTest, AnExpectedTextMustBeExact) {
  world.on["new"] = [this] { world.Send("LINE"); };
  EXPECT_EQ(Play("new\nexpect sent \"LINE\\n\"\n"), 1);
  EXPECT_EQ(
      world.printed,
      "t.script:2: expect sent \"LINE\\n\"\n  expected to be sent: \"LINE\\n\"; sent: \"LINE\"");
}

TEST_F(PlayTest, OneEntryMatchesOneExpectation) {
  world.on["new"] = [this] { world.Send("A"); };
  EXPECT_EQ(Play("new\nexpect sent \"A\"\nexpect sent \"A\"\n"), 1);
}

TEST_F(PlayTest, ConsecutiveExpectationsExamineTheStepsBeforeThem) {
  world.on["new"] = [this] { world.Send("A"); };
  world.on["close"] = [this] { world.Send("B"); };
  EXPECT_EQ(Play("new\nclose\nexpect sent \"A\"\nexpect sent \"B\"\n"), 0);
}

// Regression: a text sent before an earlier expectation matched a later one.
TEST_F(PlayTest, EntriesBeforeTheLastExpectationDoNotCount) {
  world.on["new"] = [this] {
    world.Send("A");
    world.Send("B");
  };
  EXPECT_EQ(Play("new\nexpect sent \"A\"\nclose\nexpect sent \"B\"\n"), 1);
}

TEST_F(PlayTest, WaitingIsNotAnActingStep) {
  world.on["new"] = [this] { world.Send("A"); };
  EXPECT_EQ(Play("new\nexpect sent \"A\"\nwait idle\nshot \"a\"\nexpect nothing sent\n"), 0);
  EXPECT_EQ(Play("new\nwait idle\nexpect nothing sent\n"), 1);
}

TEST_F(PlayTest, NothingSentWaitsForTheSendDelay) {
  world.on["new"] = [this] { world.SendAfter(150ms, "LATE"); };
  EXPECT_EQ(Play("new\nexpect nothing sent\n"), 1);
  EXPECT_EQ(world.printed,
            "t.script:2: expect nothing sent\n  expected nothing to be sent; sent: \"LATE\"");
}

TEST_F(PlayTest, WaitingForIdleWaitsForPendingTimers) {
  world.state = R"({"menu":"coming"})";
  world.on["new"] = [this] {
    world.later.emplace(world.Now() + 150ms, [this] { world.state = R"({"menu":"up"})"; });
  };
  std::string seen;
  world.on["dump shell"] = [&] { seen = world.state; };
  EXPECT_EQ(Play("new\nwait idle\ndump shell\n"), 0);
  EXPECT_EQ(seen, R"({"menu":"up"})");
}

TEST_F(PlayTest, NothingSentRequiresAnIdleProgram) {
  world.idleFrom = 1h;
  EXPECT_EQ(Play("expect nothing sent\n"), 1);
  EXPECT_NE(world.printed.find("does not become idle"), std::string::npos);
}

TEST_F(PlayTest, PrintedTextIsFoundAcrossEntries) {
  world.on["new"] = [this] {
    world.PrintText("\n选择");
    world.PrintText("墙体: ");
  };
  EXPECT_EQ(Play("new\nexpect printed \"选择墙体\"\n"), 0);
}

// The first line of a script may expect output of the program's start.
TEST_F(PlayTest, TextPrintedBeforeTheScriptCounts) {
  world.PrintText("hello");
  EXPECT_EQ(Play("expect printed \"hello\"\n"), 0);
}

TEST_F(PlayTest, PrintedTextMatchesOneExpectation) {
  world.on["new"] = [this] { world.PrintText("墙体: "); };
  EXPECT_EQ(Play("new\nexpect printed \"墙体\"\nexpect printed \"墙体:\"\n"), 1);
  EXPECT_NE(world.printed.find("expected to be printed: \"墙体:\"; printed: \"\""),
            std::string::npos);
}

TEST_F(PlayTest, SentAndPrintedAreMatchedSeparately) {
  world.on["new"] = [this] {
    world.PrintText("one");
    world.Send("A");
  };
  EXPECT_EQ(Play("new\nexpect sent \"A\"\nexpect printed \"one\"\n"), 0);
}

TEST_F(PlayTest, VariablesAreComparedAsTextOrNumber) {
  world.variables = {{"DIMSCALE", "100.0"}, {"CLAYER", "0"}, {"DWGNAME", "plan.dwg"}};
  EXPECT_EQ(Play("expect var DIMSCALE 100\nexpect var CLAYER 0\nexpect var DWGNAME \"plan.dwg\"\n"),
            0);
  EXPECT_EQ(Play("expect var DIMSCALE 50\n"), 1);
  EXPECT_NE(world.printed.find("expected variable DIMSCALE to be \"50\"; it is \"100.0\""),
            std::string::npos);
  world.variables["VIEWSIZE"] = "11184.210526315786";
  EXPECT_EQ(Play("expect var VIEWSIZE 11184.210526\n"), 0);
  EXPECT_EQ(Play("expect var VIEWSIZE 11184.2105\n"), 1);
  EXPECT_EQ(Play("expect var VIEWSIZE \"11184.210526\"\n"), 1);
  EXPECT_EQ(Play("expect var NOSUCH 1\n"), 1);
  EXPECT_NE(world.printed.find("there is no such variable"), std::string::npos);
}

TEST_F(PlayTest, AnExpectedStateMayArriveLater) {
  world.state = R"({"tabs": {"active": 1}})";
  world.later.emplace(700ms, [this] { world.state = R"({"tabs": {"active": 2}})"; });
  EXPECT_EQ(Play("expect state tabs.active 2\n"), 0);
  EXPECT_LT(world.Now(), 1s);
}

TEST_F(PlayTest, AStateThatNeverArrivesIsReported) {
  world.state = R"({"tabs": {"active": 1}})";
  EXPECT_EQ(Play("expect state tabs.active 2\n"), 1);
  EXPECT_EQ(
      world.printed,
      "t.script:1: expect state tabs.active 2\n  expected state tabs.active to be 2; it is 1");
  world.state = "no json";
  EXPECT_EQ(Play("expect state tabs.active \"a\"\n"), 1);
  EXPECT_NE(world.printed.find("to be \"a\"; the shell state is no JSON"), std::string::npos);
}

TEST_F(PlayTest, WaitsTakeTheirTime) {
  world.idleFrom = 300ms;
  world.menuFrom = 900ms;
  world.popupFrom = 2s;
  EXPECT_EQ(Play("wait idle\nwait menu\nwait popup\nwait 40\n"), 0);
  EXPECT_GE(world.Now(), 2040ms);
}

TEST_F(PlayTest, ATimeoutNamesWhatWasExpected) {
  EXPECT_EQ(Play("wait popup\n"), 1);
  EXPECT_EQ(world.printed, "t.script:1: wait popup\n  waited 20 s in vain for a pop-up");
}

TEST(PlayRunner, ReportsTheCurrentStep) {
  Journal journal;
  DiaryWorld world(journal);
  std::vector<Step> steps;
  ScriptError error;
  ASSERT_TRUE(ParsePlayScript("new\n# here\nclose\n", &steps, &error));
  PlayRunner runner("t.script", steps, journal, world);
  std::string place;
  world.on["close"] = [&] { place = runner.Place(runner.StepNumber()); };
  runner.Play();
  EXPECT_EQ(place, "t.script:3: close");
}

}  // namespace
}  // namespace devhost
