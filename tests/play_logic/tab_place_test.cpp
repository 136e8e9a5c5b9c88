// Places of tabs, arrows and the empty part of the strip in the shell state.
#include <gtest/gtest.h>

#include "devhost/play/state_path.h"

namespace devhost {
namespace {

// A strip from (10, 50) to (310, 70), scrolled by one tab.
Json State(bool arrows) {
  Json state = Json::parse(R"({"tabs": {"visible": true, "rect": [10, 50, 310, 70], "tabs": [
    {"text": "A", "left": -90, "right": 10}, {"text": "B", "left": 10, "right": 130},
    {"text": "C", "left": 130, "right": 250}]}})");
  state["tabs"]["arrows"] = arrows;
  return state;
}

Json Wider() {
  Json state = State(true);
  state["tabs"]["tabs"].push_back(Json{{"text", "D"}, {"left", 250}, {"right", 350}});
  state["tabs"]["tabs"].push_back(Json{{"text", "E"}, {"left", 350}, {"right", 450}});
  return state;
}

}  // namespace

TEST(TabPlace, IsTheMiddleOfTheTab) {
  const RowPlace place = PlaceOfTab(State(false), "B");
  EXPECT_EQ(place.problem, "");
  EXPECT_EQ(place.point.x, 70);
  EXPECT_EQ(place.point.y, 60);
}

TEST(TabPlace, OnlyThePartInFrontOfTheArrowsIsClicked) {
  EXPECT_EQ(PlaceOfTab(Wider(), "D").point.x, (250 + 270) / 2);
}

TEST(TabPlace, ErrorsNameTheReason) {
  EXPECT_EQ(PlaceOfTab(Wider(), "A").problem, "tab \"A\" is scrolled out of the strip");
  EXPECT_EQ(PlaceOfTab(Wider(), "E").problem, "tab \"E\" is scrolled out of the strip");
  EXPECT_EQ(PlaceOfTab(State(false), "F").problem,
            "there is no tab \"F\"; there are \"A\", \"B\", \"C\"");
  EXPECT_EQ(PlaceOfTab(Json::object(), "A").problem, "there is no strip of tabs");
  EXPECT_EQ(PlaceOfTab(Json::parse(R"({"tabs": null})"), "A").problem, "there is no strip of tabs");
  Json hidden = State(false);
  hidden["tabs"]["visible"] = false;
  EXPECT_EQ(PlaceOfTab(hidden, "A").problem, "the strip of tabs is hidden");
  const Json none = Json::parse(R"({"tabs": {"visible": true, "rect": [0, 0, 9, 9]}})");
  EXPECT_EQ(PlaceOfTab(none, "A").problem, "there is no tab \"A\"; there are no tabs");
}

TEST(StripPart, TheArrowsAreTwiceAsWideAsHighAtTheRightEnd) {
  EXPECT_EQ(PlaceOfStripPart(Wider(), "left").point.x, 280);
  EXPECT_EQ(PlaceOfStripPart(Wider(), "right").point.x, 300);
  EXPECT_EQ(PlaceOfStripPart(Wider(), "right").point.y, 60);
  EXPECT_EQ(PlaceOfStripPart(State(false), "left").problem, "the strip shows no arrows");
}

TEST(StripPart, TheEmptyPartFollowsTheLastTab) {
  EXPECT_EQ(PlaceOfStripPart(State(false), "empty").point.x, 280);
  EXPECT_EQ(PlaceOfStripPart(State(true), "empty").point.x, 260);
  EXPECT_EQ(PlaceOfStripPart(Wider(), "empty").problem, "tabs cover the whole strip");
  EXPECT_EQ(PlaceOfStripPart(Json::object(), "empty").problem, "there is no strip of tabs");
}

}  // namespace devhost
