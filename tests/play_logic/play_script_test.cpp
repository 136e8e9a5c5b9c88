// Parsing play scripts: every step, and every error with its message.
#include <gtest/gtest.h>

#include <random>

#include "devhost/play/play_script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace devhost {
namespace {

Step OneStep(const std::string& text) {
  std::vector<Step> steps;
  ScriptError error;
  EXPECT_TRUE(ParsePlayScript(text, &steps, &error)) << ScriptErrorText("t", error);
  EXPECT_EQ(steps.size(), 1u);
  return steps.empty() ? Step() : steps[0];
}

std::string ErrorOf(const std::string& text) {
  std::vector<Step> steps;
  ScriptError error;
  if (ParsePlayScript(text, &steps, &error)) return "read";
  return ScriptErrorText("t.script", error);
}

TEST(PlayScript, BlankLinesAndCommentsAreNotSteps) {
  std::vector<Step> steps;
  ScriptError error;
  ASSERT_TRUE(
      ParsePlayScript("\xEF\xBB\xBF# tour\r\n\r\n  \t\nnew # a drawing\nclose\n", &steps, &error));
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0].kind, StepKind::New);
  EXPECT_EQ(steps[0].line, 4);
  EXPECT_EQ(steps[0].source, "new # a drawing");
  EXPECT_EQ(steps[1].line, 5);
}

TEST(PlayScript, QuotedTextResolvesItsEscapes) {
  EXPECT_EQ(OneStep(R"(expect sent "\e\eTWall\n\t\"\\#")").text, "\x1B\x1BTWall\n\t\"\\#");
  EXPECT_EQ(OneStep(R"(type "")").text, "");
  EXPECT_EQ(OneStep(R"(open "图纸/平面 一.dxf")").text, "图纸/平面 一.dxf");
}

TEST(PlayScript, EveryVerbHasItsKind) {
  const std::pair<const char*, StepKind> verbs[] = {
      {"open \"a\"", StepKind::Open},
      {"new", StepKind::New},
      {"activate \"a\"", StepKind::Activate},
      {"close", StepKind::Close},
      {"command \"a\"", StepKind::Command},
      {"type \"a\"", StepKind::Type},
      {"press F1", StepKind::Press},
      {"click view 1 2", StepKind::Click},
      {"rightclick view 1 2", StepKind::RightClick},
      {"doubleclick view 1 2", StepKind::DoubleClick},
      {"middleclick view 1 2", StepKind::MiddleClick},
      {"hold 300 view 1 2", StepKind::Hold},
      {"buttondown right view 1 2", StepKind::ButtonDown},
      {"buttonup left view 1 2 Ctrl", StepKind::ButtonUp},
      {"middledrag view 1 2 view 3 4", StepKind::MiddleDrag},
      {"move view 1 2", StepKind::Move},
      {"wheel view 1 2 -120", StepKind::Wheel},
      {"drag view 1 2 view 3 4", StepKind::Drag},
      {"click row \"a\" then row \"b\"", StepKind::ClickTwo},
      {"select none", StepKind::Select},
      {"setvar OSMODE 1", StepKind::SetVar},
      {"setting g_nRunMode 1", StepKind::Setting},
      {"wait 5", StepKind::Wait},
      {"wait idle", StepKind::WaitIdle},
      {"wait menu", StepKind::WaitMenu},
      {"wait popup", StepKind::WaitPopup},
      {"expect sent \"a\"", StepKind::ExpectSent},
      {"expect nothing sent", StepKind::ExpectNothingSent},
      {"expect printed \"a\"", StepKind::ExpectPrinted},
      {"expect typed \"a\"", StepKind::ExpectTyped},
      {"expect text 1A \"a\"", StepKind::ExpectText},
      {"expect help \"a.chm\" topic", StepKind::ExpectHelp},
      {"expect highlighted 1A", StepKind::ExpectHighlighted},
      {"expect pointer world 1 2", StepKind::ExpectPointer},
      {"expect setting g_nRunMode 1", StepKind::ExpectSetting},
      {"expect var OSMODE 1", StepKind::ExpectVar},
      {"expect state tabs.active 1", StepKind::ExpectState},
      {"dump shell", StepKind::DumpShell},
      {"dump windows", StepKind::DumpWindows},
      {"dump database", StepKind::DumpDatabase},
      {"shot \"a.png\"", StepKind::Shot},
      {"restart", StepKind::Restart},
      {"quit", StepKind::Quit},
  };
  for (const auto& [text, kind] : verbs) EXPECT_EQ(OneStep(text).kind, kind) << text;
}

TEST(PlayScript, EachStartPlaysThePartAfterEarlierRestarts) {
  std::vector<Step> steps;
  ScriptError error;
  ASSERT_TRUE(ParsePlayScript("new\nrestart\nclose\nwait 1\nrestart\nwait 2\n", &steps, &error));
  const auto lines = [&](int restarts) {
    std::vector<int> found;
    for (const Step& step : PartOfScript(steps, restarts)) found.push_back(step.line);
    return found;
  };
  EXPECT_EQ(lines(0), (std::vector<int>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(lines(1), (std::vector<int>{3, 4, 5, 6}));
  EXPECT_EQ(lines(2), (std::vector<int>{6}));
  EXPECT_EQ(lines(3), (std::vector<int>{}));
}

TEST(PlayScript, TargetsHaveLabelsHandlesAndPoints) {
  EXPECT_EQ(OneStep("click row \"墙体/绘制墙体\"").target.text, "墙体/绘制墙体");
  EXPECT_EQ(OneStep("click tab \"plan\"").target.kind, TargetKind::Tab);
  EXPECT_EQ(OneStep("rightclick tab \"plan*\"").target.text, "plan*");
  EXPECT_EQ(OneStep("click strip left").target.kind, TargetKind::Strip);
  EXPECT_EQ(OneStep("rightclick strip empty").target.text, "empty");
  EXPECT_EQ(OneStep("click pane \"TMakeGroupPane\"").target.kind, TargetKind::Pane);
  EXPECT_EQ(OneStep("click popup \"删除\"").target.kind, TargetKind::Popup);
  EXPECT_EQ(OneStep("click button \"确定\"").target.kind, TargetKind::Button);
  EXPECT_EQ(OneStep("click entity 2AF").target.text, "2AF");
  EXPECT_EQ(OneStep("click character 12").target.kind, TargetKind::Character);
  EXPECT_EQ(OneStep("click character 12").target.position, 12);
  const Step both = OneStep("click row \"a\" then view 3 4 Ctrl");
  EXPECT_EQ(both.target.text, "a");
  EXPECT_EQ(both.target2.kind, TargetKind::View);
  EXPECT_EQ(both.target2.x, 3);
  EXPECT_TRUE(both.ctrl);
  const Step drag = OneStep("drag world -1.5 2e3 view 10 20 Shift");
  EXPECT_EQ(drag.target.kind, TargetKind::World);
  EXPECT_EQ(drag.target.x, -1.5);
  EXPECT_EQ(drag.target.y, 2000);
  EXPECT_EQ(drag.target2.kind, TargetKind::View);
  EXPECT_EQ(drag.target2.x, 10);
  EXPECT_TRUE(drag.shift);
}

TEST(PlayScript, ModifiersFollowTheTargetInAnyOrder) {
  const Step step = OneStep("rightclick row \"a\" Shift Ctrl");
  EXPECT_TRUE(step.ctrl);
  EXPECT_TRUE(step.shift);
  EXPECT_FALSE(OneStep("click row \"a\"").ctrl);
}

TEST(PlayScript, KeysHaveNames) {
  const Step step = OneStep("press Ctrl+Shift+Minus");
  EXPECT_TRUE(step.chord.ctrl);
  EXPECT_TRUE(step.chord.shift);
  EXPECT_FALSE(step.chord.alt);
  EXPECT_EQ(step.chord.key, 0xBD);
  EXPECT_EQ(OneStep("press a").chord.key, 'A');
  EXPECT_EQ(OneStep("press F12").chord.key, 0x7B);
  EXPECT_EQ(OneStep("press Numpad7").chord.key, 0x67);
  EXPECT_EQ(OneStep("press ctrl").chord.key, 0x11);
  EXPECT_TRUE(OneStep("press Delete").chord.extended);
}

TEST(PlayScript, SelectTakesHandlesUntilTheLineEnds) {
  EXPECT_EQ(OneStep("select 1A 2b").handles, (std::vector<std::string>{"1A", "2B"}));
  EXPECT_TRUE(OneStep("select none").handles.empty());
}

TEST(PlayScript, ButtonsHelpCallsAndHighlightedObjectsHaveTheirParts) {
  EXPECT_EQ(OneStep("buttondown middle view 1 2").button, MouseButton::Middle);
  const Step up = OneStep("buttonup right view 1 2 Ctrl");
  EXPECT_EQ(up.button, MouseButton::Right);
  EXPECT_TRUE(up.ctrl);
  const Step help = OneStep("expect help \"qvx.chm\" keyword \"墙体\"");
  EXPECT_EQ(help.text, "qvx.chm");
  EXPECT_EQ(help.number, 13);
  EXPECT_EQ(help.value.text, "墙体");
  EXPECT_TRUE(OneStep("expect highlighted none").handles.empty());
  const Step text = OneStep("expect text 2a \"A1\"");
  EXPECT_EQ(text.handles, (std::vector<std::string>{"2A"}));
  EXPECT_EQ(text.text, "A1");
  EXPECT_EQ(OneStep("expect highlighted 21 a0").handles, (std::vector<std::string>{"21", "A0"}));
  for (const char* text :
       {"expect help \"a\" index", "expect highlighted 21", "expect pointer view 1 2",
        "expect typed \"\"", "expect setting a 1", "expect tip \"a\"", "expect text 1 \"\""})
    EXPECT_TRUE(IsExpectation(OneStep(text).kind)) << text;
  EXPECT_FALSE(IsExpectation(OneStep("buttonup right view 1 2").kind));
}

TEST(PlayScript, ValuesRecordWhetherTheyWereQuoted) {
  const Step text = OneStep("expect state tabs.active \"1\"");
  EXPECT_EQ(text.text, "tabs.active");
  EXPECT_TRUE(text.value.quoted);
  EXPECT_FALSE(OneStep("expect var HPSCALE 100").value.quoted);
}

TEST(PlayScript, ErrorsHaveAPlaceAndNameWhatWasExpected) {
  const std::pair<const char*, const char*> cases[] = {
      {"\n\nclick rwo \"a\"", "t.script:3:7: error: there is no target \"rwo\""},
      {"clik row \"a\"", "t.script:1:1: error: there is no step \"clik\""},
      {"  \"new\"", "t.script:1:3: error: the step is missing"},
      {"type \"abc", "t.script:1:6: error: this quote is never closed"},
      {"type \"a\\x\"", "t.script:1:8: error: unknown escape; there are \\n \\t \\e \\\" and \\\\"},
      {"type \"a\"b", "t.script:1:9: error: a blank is missing after the quote"},
      {"type a\"b\"", "t.script:1:7: error: a blank is missing before the quote"},
      {"type abc", "t.script:1:6: error: the text in quotes is missing"},
      {"open", "t.script:1:5: error: the file in quotes is missing"},
      {"new now", "t.script:1:5: error: nothing may follow here"},
      {"press Ctrl+Foo", "t.script:1:7: error: there is no key \"Ctrl+Foo\""},
      {"press", "t.script:1:6: error: the key is missing"},
      {"click", "t.script:1:6: error: the target is missing"},
      {"click row", "t.script:1:10: error: the label in quotes is missing"},
      {"click row \"a\" then", "t.script:1:19: error: the target is missing"},
      {"click row \"a\" Alt", "t.script:1:15: error: only Ctrl and Shift may follow, each once"},
      {"click row \"a\" Ctrl Ctrl",
       "t.script:1:20: error: only Ctrl and Shift may follow, each once"},
      {"click world 1", "t.script:1:14: error: y is missing"},
      {"click world 1 two", "t.script:1:15: error: y must be a number"},
      {"click view inf 0", "t.script:1:12: error: x must be a number"},
      {"click entity XYZ", "t.script:1:14: error: a handle has up to 16 hexadecimal digits"},
      {"wheel view 0 0 99999",
       "t.script:1:16: error: the delta must be a whole number from -32767 to 32767"},
      {"hold -1 view 0 0", "t.script:1:6: error: the time must be a whole number from 0 to 600000"},
      {"buttondown view 0 0", "t.script:1:12: error: the button is left, right or middle"},
      {"buttondown", "t.script:1:11: error: the button is missing"},
      {"expect help topic", "t.script:1:13: error: the help file in quotes is missing"},
      {"expect help \"a\" page",
       "t.script:1:17: error: only topic, index and keyword can be expected"},
      {"expect highlighted", "t.script:1:19: error: the handle is missing"},
      {"click strip", "t.script:1:12: error: left, right or empty is missing"},
      {"click strip \"left\"", "t.script:1:13: error: left, right or empty is missing"},
      {"click strip end", "t.script:1:13: error: the part of the strip is left, right or empty"},
      {"click character", "t.script:1:16: error: the position is missing"},
      {"click character -1",
       "t.script:1:17: error: the position must be a whole number from 0 to 1000000"},
      {"expect text \"a\"", "t.script:1:13: error: the handle is missing"},
      {"expect text 2A", "t.script:1:15: error: the text in quotes is missing"},
      {"expect tip", "t.script:1:11: error: the text in quotes is missing"},
      {"expect pointer", "t.script:1:15: error: the target is missing"},
      {"wait long",
       "t.script:1:6: error: the time, or idle, menu, popup, must be a whole number from 0 to "
       "600000"},
      {"wait", "t.script:1:5: error: the time, or idle, menu, popup, is missing"},
      {"select", "t.script:1:7: error: the handle is missing"},
      {"setvar OSMODE", "t.script:1:14: error: the value is missing"},
      {"expect", "t.script:1:7: error: what is expected is missing"},
      {"expect sand \"a\"", "t.script:1:8: error: there is nothing to expect called \"sand\""},
      {"expect nothing printed", "t.script:1:16: error: only \"sent\" may follow"},
      {"expect state rows[ 1",
       "t.script:1:14: error: a path looks like tabs.active or screenmenu.rows[0].open"},
      {"dump menu", "t.script:1:6: error: only shell, windows and database can be dumped"},
      {"type \"\xFF\"", "t.script:1:1: error: the line is no UTF-8"},
  };
  for (const auto& [text, message] : cases) EXPECT_EQ(ErrorOf(text), message);
}

TEST(PlayScript, QuotedTextIsWrittenAsInAScript) {
  EXPECT_EQ(QuotedForScript("\x1B"
                            "a\n\t\"\\"),
            R"("\ea\n\t\"\\")");
}

TEST(PlayScript, AnyBytesAreAScriptOrAnError) {
  std::mt19937 random(20260101);
  const std::string seed =
      "click row \"墙体/绘制墙体\" Ctrl\nexpect state a.b[0].c \"\\e\"\nwait 5\npress Ctrl+F1\n"
      "drag world 1 2 entity 2F\nselect 1 2 3\nwheel view 1 2 -120\n";
  for (int round = 0; round < 3000; ++round) {
    std::string text = seed;
    for (unsigned change = random() % 5; change-- > 0;) {
      const std::size_t at = random() % text.size();
      if (random() % 2)
        text[at] = static_cast<char>(random());
      else
        text.erase(at, random() % 4);
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  }
}

}  // namespace
}  // namespace devhost
