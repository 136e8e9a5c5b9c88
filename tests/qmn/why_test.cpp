// qmn why: the text of each reason, the JSON, and the accepted command lines.
#include "tests/qmn/qmn_testing.h"

namespace {

const char kMenu[] =
    "MENU_TITLE = \"T\"\n***COMMON\n[a]\n***LAYOUT\n[a]\n"
    "***WALL W = 0,\"QVX_WALL\",8,\"@WALL\"\n[a]\n***RED R = 62,1\n[a]\n***LINE L = "
    "0,\"LINE\"\n[a]\n"
    "***SWITCH\n***RESOURCE\n";

class QmnWhy : public QmnTest {
 protected:
  QmnRun Why(std::vector<std::string> args) {
    args.insert(args.begin(), "why");
    args.push_back("-");
    return Qmn(args, kMenu);
  }
};

TEST_F(QmnWhy, PrintsTheBlockAndTheReasonsAgainstThoseBefore) {
  const QmnRun run =
      Why({"--type", "QVX_WALL", "--layer", "墙线", "--layer-key", "WALL=墙*", "--count", "3"});
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(run.out,
            "selected: 3 x QVX_WALL on layer 墙线\n"
            "COMMON: has no mask, so that no selection gets it\n"
            "LAYOUT: has no mask, so that no selection gets it\n"
            "WALL: fits\n"
            "chosen: WALL, block 3 of 5\n");
}

TEST_F(QmnWhy, PrintsTheObjectAndTheGroupThatDoNotFit) {
  EXPECT_EQ(Why({"--type", "QVX_WALL", "--layer", "A"}).out,
            "selected: 1 x QVX_WALL on layer A\n"
            "COMMON: has no mask, so that no selection gets it\n"
            "LAYOUT: has no mask, so that no selection gets it\n"
            "WALL: object 1: layer A does not fit @WALL, a logical layer that is not known and "
            "counts as it is written\n"
            "RED: object 1: group 62 does not fit 1\n"
            "LINE: object 1: type QVX_WALL does not fit LINE\n"
            "chosen: none, no menu is shown\n");
  EXPECT_NE(Why({"--type", "QVX_WALL", "--layer", "A", "--layer-key", "WALL=B"})
                .out.find("layer A does not fit @WALL, which is layer B\n"),
            std::string::npos);
}

TEST_F(QmnWhy, WithoutATypeTheSelectionIsEmpty) {
  EXPECT_EQ(Why({}).out,
            "nothing selected, in model space\nCOMMON: fits\nchosen: COMMON, block 1 of 5\n");
  EXPECT_EQ(Why({"--paper"}).out,
            "nothing selected, in paper space\nCOMMON: its name is not LAYOUT, the block for paper "
            "space with nothing selected\nLAYOUT: fits\nchosen: LAYOUT, block 2 of 5\n");
}

TEST_F(QmnWhy, SeveralTypesOfObjectsAndFurtherGroupsCanBeGiven) {
  const std::string mixed = Why({"--type", "LINE", "--type", "ARC", "--count", "2"}).out;
  EXPECT_NE(mixed.find("selected: 2 x LINE on layer 0\nselected: 2 x ARC on layer 0\n"),
            std::string::npos);
  EXPECT_NE(mixed.find("LINE: object 3: type ARC does not fit LINE\n"), std::string::npos);
  EXPECT_NE(Why({"--type", "ARC", "--group", "62=1"}).out.find("chosen: RED"), std::string::npos);
  EXPECT_NE(
      Why({"--type", "Viewport"}).out.find("WALL: object 1 is a viewport, which fits no block"),
      std::string::npos);
}

TEST_F(QmnWhy, JsonHasTheSameResult) {
  EXPECT_EQ(
      Why({"--json", "--type", "LINE", "--group", "62=5"}).out,
      "{\n  \"selection\": [\n    {\n      \"type\": \"LINE\",\n      \"layer\": \"0\",\n"
      "      \"count\": 1\n    }\n  ],\n  \"space\": \"model\",\n  \"blocks\": [\n"
      "    {\n      \"index\": 0,\n      \"name\": \"COMMON\",\n      \"result\": \"no mask\",\n"
      "      \"text\": \"has no mask, so that no selection gets it\"\n    },\n"
      "    {\n      \"index\": 1,\n      \"name\": \"LAYOUT\",\n      \"result\": \"no mask\",\n"
      "      \"text\": \"has no mask, so that no selection gets it\"\n    },\n"
      "    {\n      \"index\": 2,\n      \"name\": \"WALL\",\n      \"result\": \"group\",\n"
      "      \"object\": 0,\n      \"code\": 0,\n      \"value\": \"QVX_WALL\",\n"
      "      \"text\": \"object 1: type LINE does not fit QVX_WALL\"\n    },\n"
      "    {\n      \"index\": 3,\n      \"name\": \"RED\",\n      \"result\": \"group\",\n"
      "      \"object\": 0,\n      \"code\": 62,\n      \"value\": \"1\",\n"
      "      \"text\": \"object 1: group 62 does not fit 1\"\n    },\n"
      "    {\n      \"index\": 4,\n      \"name\": \"LINE\",\n      \"result\": \"fits\",\n"
      "      \"text\": \"fits\"\n    }\n  ],\n  \"chosen\": \"LINE\"\n}\n");
  EXPECT_TRUE(Why({"--json", "--type", "X"}).out.ends_with("  \"chosen\": null\n}\n"));
}

TEST_F(QmnWhy, SourceAndCompiledFileGiveTheSameResult) {
  const std::string compiled = Qmn({"compile", "-"}, kMenu).out;
  EXPECT_EQ(Qmn({"why", "-", "--type", "LINE"}, compiled).out, Why({"--type", "LINE"}).out);
}

TEST_F(QmnWhy, ContradictoryOptionsAreWrongUsage) {
  EXPECT_EQ(Why({"--layer", "A"}).code, 2);
  EXPECT_EQ(
      Why({"--type", "A", "--type", "B", "--layer", "1", "--layer", "2", "--layer", "3"}).code, 2);
  EXPECT_EQ(Why({"--type", "A", "--count", "0"}).code, 2);
  EXPECT_EQ(Why({"--type", "A", "--layer-key", "WALL"}).code, 2);
  EXPECT_EQ(Why({"--type", "A", "--group", "x=1"}).code, 2);
  EXPECT_EQ(Why({"--type", "A", "--group", "62"}).code, 2);
}

TEST_F(QmnWhy, AMenuWithErrorsHasNoResult) {
  EXPECT_EQ(Qmn({"why", Name(u8"none.qmn")}).code, 3);
  const QmnRun run = Qmn({"why", "-"}, "x");
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.out, "");
}

}  // namespace
