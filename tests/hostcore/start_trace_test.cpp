// The trace of a start: begin, end, steps, JSON.
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

TEST_F(StartTraceTest, NothingIsRecordedUnlessArmed) {
  trace.Begin("a.arx");
  trace.Step("addCommand", "TOne");
  trace.MarkPaletteShown();
  EXPECT_TRUE(trace.Steps().empty());
  EXPECT_FALSE(trace.IsPaletteShown());
}

TEST_F(StartTraceTest, TimesAreRelativeToTheFirstModule) {
  trace.Arm();
  trace.Step("command line");  // before any module, so not recorded
  trace.Begin("a.arx");
  now += 1500;
  trace.Begin("kernel.arx");
  EXPECT_EQ(Names(trace), (std::vector<std::string>{"kInitAppMsg", "kInitAppMsg"}));
  EXPECT_EQ(trace.Steps()[0].milliseconds, 0);
  EXPECT_EQ(trace.Steps()[1].milliseconds, 1.5);
  EXPECT_EQ(trace.Steps()[1].detail, "kernel.arx");
}

TEST_F(StartTraceTest, ConsecutiveStepsOfOneNameAreOneStepWithTheFirstDetail) {
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

TEST_F(StartTraceTest, IdleTimeEndsTheTraceOnlyAfterThePalette) {
  trace.Arm();
  trace.Begin("a.arx");
  trace.MarkIdle();
  EXPECT_TRUE(trace.IsRunning());
  now += 2000;
  trace.MarkPaletteShown();
  now += 1000;
  trace.MarkPaletteShown();  // shown again during layout
  trace.MarkIdle();
  EXPECT_FALSE(trace.IsRunning());
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

TEST_F(StartTraceTest, TimesNotReachedAreNull) {
  trace.Arm();
  trace.Begin("a.arx");
  const Json written = Json::parse(trace.Json());
  EXPECT_TRUE(written["palette_shown_ms"].is_null());
  EXPECT_TRUE(written["idle_ms"].is_null());
}
