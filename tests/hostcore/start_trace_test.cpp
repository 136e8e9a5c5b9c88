// The trace of the start: when it begins and ends, what is one step, and how it is written.
#include "devhost/core/base/start_trace.h"

#include "host_fixture.h"

using namespace devhost;

namespace {

std::vector<std::string> Names(const StartTrace& trace) {
  std::vector<std::string> names;
  for (const StartStep& step : trace.Steps()) names.push_back(step.name);
  return names;
}

}  // namespace

class StartTraceTest : public ::testing::Test {
 protected:
  long long now = 5000000;  // microseconds
  StartTrace trace{[this] { return now; }};
};

TEST_F(StartTraceTest, NothingIsKeptUnlessItIsAsked) {
  trace.Begin("a.arx");
  trace.Step("addCommand", "TOne");
  trace.PaletteShown();
  EXPECT_TRUE(trace.Steps().empty());
  EXPECT_FALSE(trace.Shown());
}

TEST_F(StartTraceTest, TheClockBeginsWithTheFirstModuleAndStaysThereForTheNext) {
  trace.Arm();
  trace.Step("command line");  // before any module: not of its start
  trace.Begin("a.arx");
  now += 1500;
  trace.Begin("kernel.arx");
  EXPECT_EQ(Names(trace), (std::vector<std::string>{"kInitAppMsg", "kInitAppMsg"}));
  EXPECT_EQ(trace.Steps()[0].milliseconds, 0);
  EXPECT_EQ(trace.Steps()[1].milliseconds, 1.5);
  EXPECT_EQ(trace.Steps()[1].detail, "kernel.arx");
}

TEST_F(StartTraceTest, AsManyStepsOfOneNameInARowAreOneWithTheFirstDetail) {
  trace.Arm();
  trace.Begin("a.arx");
  for (const char* name : {"TOne", "TTwo", "TThree"}) {
    now += 100;
    trace.Step("addCommand", name);
  }
  trace.Step("addReactor");
  trace.Step("addCommand", "TFour");
  EXPECT_EQ(Names(trace),
            (std::vector<std::string>{"kInitAppMsg", "addCommand", "addReactor", "addCommand"}));
  EXPECT_EQ(trace.Steps()[1].times, 3);
  EXPECT_EQ(trace.Steps()[1].detail, "TOne");
}

TEST_F(StartTraceTest, IdleTimeEndsItOnlyBehindThePalette) {
  trace.Arm();
  trace.Begin("a.arx");
  trace.Quiet();
  EXPECT_TRUE(trace.Runs());
  now += 2000;
  trace.PaletteShown();
  now += 1000;
  trace.PaletteShown();  // it is shown again while it is laid out
  trace.Quiet();
  EXPECT_FALSE(trace.Runs());
  trace.Step("late");
  EXPECT_EQ(Names(trace),
            (std::vector<std::string>{"kInitAppMsg", "idle", "palette shown", "idle"}));
  const Json written = Json::parse(trace.Json());
  EXPECT_EQ(written["module"], "a.arx");
  EXPECT_EQ(written["palette_shown_ms"], 2.0);
  EXPECT_EQ(written["idle_ms"], 3.0);
  EXPECT_EQ(written["steps"][1]["took"], 2.0);
  EXPECT_EQ(written["steps"][3]["took"], 0.0);
}

TEST_F(StartTraceTest, WhatWasNotReachedIsNull) {
  trace.Arm();
  trace.Begin("a.arx");
  const Json written = Json::parse(trace.Json());
  EXPECT_TRUE(written["palette_shown_ms"].is_null());
  EXPECT_TRUE(written["idle_ms"].is_null());
}
