// The command that opens the first text of a picked object.
#include "editor/text_command.h"

#include <gtest/gtest.h>

#include "adscodes.h"
#include "tests/editor/block_text_double.h"

namespace edittest {
namespace {

using Entries = std::vector<std::string>;
using qvx::TextCarrier;

const std::string kPick = "pick \\n选择需要修改文字的图元<退出>: of QVX_*";

class TextCommand : public ::testing::Test {
 protected:
  Entries Run() {
    qvx::EditPickedText(host);
    EXPECT_EQ(host.object.live, 0);
    return diary.Take();
  }
  EditDiary diary;
  TextCommandDouble host{diary};
};

TEST_F(TextCommand, OpensTheFirstTextAndClearsTheSelection) {
  host.entities[10] = {.name = L"",
                       .kinds = {},
                       .carriers = {TextCarrier::kEntity},
                       .texts = {{TextCarrier::kEntity, {0, 1}}},
                       .hits = {},
                       .editFunctions = {},
                       .plain = {}};
  EXPECT_EQ(Run(), (Entries{kPick, "entity text 0 of 10", "clear selection", "begin edit at 0,0,0",
                            "delete 1.0"}));
}

TEST_F(TextCommand, TakesTheSecondTextOfAnEntityWithoutAFirst) {
  host.entities[10].carriers = {TextCarrier::kEntity};
  host.entities[10].texts = {{TextCarrier::kEntity, {1}}};
  EXPECT_EQ(Run(), (Entries{kPick, "entity text 0 of 10", "entity text 1 of 10", "clear selection",
                            "begin edit at 0,0,0", "delete 1.0"}));
}

TEST_F(TextCommand, OfACurveTakesTheFirstOnly) {
  host.entities[10].carriers = {TextCarrier::kEntity, TextCarrier::kCurve};
  host.entities[10].texts = {{TextCarrier::kCurve, {0, 1}}};
  EXPECT_EQ(Run(),
            (Entries{kPick, "entity text 0 of 10", "entity text 1 of 10", "curve text 0 of 10",
                     "clear selection", "begin edit at 0,0,0", "delete 1.0"}));
  host.entities[10].carriers = {TextCarrier::kCurve};
  host.entities[10].texts = {{TextCarrier::kCurve, {1}}};
  EXPECT_EQ(Run(), (Entries{kPick, "curve text 0 of 10"})) << "and ends silently";
}

TEST_F(TextCommand, EndsWithoutAText) { EXPECT_EQ(Run(), Entries{kPick}); }

TEST_F(TextCommand, EndsOnAnyAnswerButAnObject) {
  host.entities[10].carriers = {TextCarrier::kEntity};
  host.entities[10].texts = {{TextCarrier::kEntity, {0}}};
  for (const int answer : {RTERROR, RTCAN, RTNONE, RTREJ, 0}) {
    host.answer = answer;
    EXPECT_EQ(Run(), Entries{kPick}) << answer;
  }
}

TEST_F(TextCommand, TouchesNothingOfADrawingThatIsGone) {
  host.entities[10].carriers = {TextCarrier::kEntity};
  host.entities[10].texts = {{TextCarrier::kEntity, {0}}};
  diary.hooks[kPick] = [this] { host.isGone = true; };
  EXPECT_EQ(Run(), Entries{kPick});
  host.isGone = false;
  diary.hooks["clear selection"] = [this] { host.isGone = true; };
  EXPECT_EQ(Run(), (Entries{kPick, "entity text 0 of 10", "clear selection", "delete 1.0"}));
}

}  // namespace
}  // namespace edittest
