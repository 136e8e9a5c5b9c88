// Values and rows in the shell state.
#include <gtest/gtest.h>

#include "devhost/play/state_path.h"

namespace devhost {
namespace {

const char kState[] = R"({
  "screenmenu": {"exists": true, "visible": true, "title": "奇维建筑", "rect": [0, 100, 120, 300],
    "scroll": null, "rows": [
      {"label": "设置", "kind": "header", "visible": true, "open": false, "rect": [0, 100, 120, 120], "rows": []},
      {"label": "墙体", "kind": "header", "visible": true, "open": true, "rect": [0, 120, 120, 140], "rows": [
        {"label": "绘制墙体", "visible": true, "rect": [10, 140, 120, 160]},
        {"label": "单/双线", "visible": true, "rect": [10, 160, 120, 180]},
        {"label": "隐藏", "visible": false, "rect": [10, 180, 120, 200]},
        {"label": "半露", "visible": true, "rect": [10, 290, 120, 310]},
        {"label": "远处", "visible": true, "rect": [10, 400, 120, 420]},
        {"label": "无处", "visible": true}
      ]},
      {"label": "墙体/别的", "visible": true, "rect": [0, 200, 120, 220]}
  ]},
  "popup": {"open": true, "rows": [{"label": "删除", "rect": [500, 500, 600, 520]}]},
  "tabs": {"active": 2, "first": 0.5, "order": [2, 1], "tabs": [{"text": "plan"}, {"text": "新图"}]},
  "panes": [{"name": "TMakeGroupPane", "text": "编组"}]
})";

Json State() { return Json::parse(kState); }

std::string Found(const std::string& path) {
  Json value;
  std::string problem;
  return FindInState(State(), path, &value, &problem) ? value.dump() : problem;
}

TEST(StatePath, FollowsMembersAndIndices) {
  EXPECT_EQ(Found("tabs.active"), "2");
  EXPECT_EQ(Found("screenmenu.rows[1].open"), "true");
  EXPECT_EQ(Found("screenmenu.rows[1].rows[0].rect[3]"), "160");
  EXPECT_EQ(Found("screenmenu.scroll"), "null");
}

TEST(StatePath, FindsAnElementByItsLabelNameOrText) {
  EXPECT_EQ(Found("screenmenu.rows[墙体].open"), "true");
  EXPECT_EQ(Found("panes[TMakeGroupPane].text"), "\"编组\"");
  EXPECT_EQ(Found("tabs.tabs[新图].text"), "\"新图\"");
}

TEST(StatePath, CountsLists) {
  EXPECT_EQ(Found("screenmenu.rows.count"), "3");
  EXPECT_EQ(Found("tabs.count"), "there is no count in tabs.count");
}

TEST(StatePath, NamesThePartThatIsMissing) {
  EXPECT_EQ(Found("screenmenu.rows[9].open"), "there is no [9] in screenmenu.rows[9].open");
  EXPECT_EQ(Found("editor.open"), "there is no editor in editor.open");
  EXPECT_EQ(Found("tabs.active.x"), "there is no x in tabs.active.x");
  EXPECT_EQ(Found("panes[none].text"), "there is no [none] in panes[none].text");
}

TEST(StatePath, RejectsInvalidPaths) {
  for (const char* path :
       {"", ".a", "a.", "a..b", "a[", "a[]", "a[1", "a]b", "[0]", "a[0]b", "a[99999999]"}) {
    std::vector<PathPart> parts;
    std::string problem;
    EXPECT_FALSE(ParseStatePath(path, &parts, &problem)) << path;
    EXPECT_FALSE(problem.empty());
  }
}

TEST(StateValue, QuotedTextMatchesOnlyStrings) {
  EXPECT_TRUE(ValueMatches("plan", {"plan", true}));
  EXPECT_TRUE(ValueMatches("1", {"1", true}));
  EXPECT_FALSE(ValueMatches(1, {"1", true}));
  EXPECT_FALSE(ValueMatches(true, {"true", true}));
}

TEST(StateValue, UnquotedTextHasTheTypeOfTheActualValue) {
  EXPECT_TRUE(ValueMatches(1, {"1", false}));
  EXPECT_TRUE(ValueMatches(0.5, {"5e-1", false}));
  EXPECT_FALSE(ValueMatches(1, {"one", false}));
  EXPECT_TRUE(ValueMatches("1", {"1", false}));
  EXPECT_TRUE(ValueMatches(false, {"false", false}));
  EXPECT_FALSE(ValueMatches(false, {"0", false}));
  EXPECT_TRUE(ValueMatches(nullptr, {"null", false}));
  EXPECT_FALSE(ValueMatches(nullptr, {"0", false}));
}

TEST(StateValue, ListsAreComparedCompletely) {
  EXPECT_TRUE(ValueMatches(Json::array({2, 1}), {"[2, 1]", true}));
  EXPECT_FALSE(ValueMatches(Json::array({2, 1}), {"[1, 2]", true}));
  EXPECT_FALSE(ValueMatches(Json::array({2, 1}), {"no list", false}));
}

TEST(RowPlace, IsTheMiddleOfTheRow) {
  const RowPlace place = PlaceOfScreenMenuRow(State(), "墙体/绘制墙体");
  EXPECT_EQ(place.problem, "");
  EXPECT_EQ(place.point.x, 65);
  EXPECT_EQ(place.point.y, 150);
}

TEST(RowPlace, ALabelMayContainASlash) {
  EXPECT_EQ(PlaceOfScreenMenuRow(State(), "墙体/单/双线").point.y, 170);
  EXPECT_EQ(PlaceOfScreenMenuRow(State(), "墙体/别的").point.y, 210);
}

TEST(RowPlace, OnlyTheVisiblePartOfARowIsClicked) {
  EXPECT_EQ(PlaceOfScreenMenuRow(State(), "墙体/半露").point.y, 295);
}

TEST(RowPlace, ErrorsNameTheReason) {
  const auto problem = [](const char* path) { return PlaceOfScreenMenuRow(State(), path).problem; };
  EXPECT_EQ(problem("墙体/远处"), "row \"墙体/远处\" is scrolled out of the window");
  EXPECT_EQ(problem("墙体/隐藏"), "row \"墙体/隐藏\" is not visible");
  EXPECT_EQ(problem("墙体/无处"), "row \"墙体/无处\" has no place on the screen");
  EXPECT_EQ(problem("设置/没有"),
            "there is no row \"设置/没有\"; row \"设置\" is there, or is it folded?");
  EXPECT_EQ(problem("没有"),
            "there is no row \"没有\"; there are \"设置\", \"墙体\", \"墙体/别的\"");
  EXPECT_EQ(PlaceOfScreenMenuRow(Json::object(), "a").problem, "there is no screen menu");
}

TEST(RowPlace, PopupRowsAreFoundTheSameWay) {
  EXPECT_EQ(PlaceOfPopupRow(State()["popup"], "删除").point.x, 550);
  EXPECT_EQ(PlaceOfPopupRow(Json::object(), "a").problem, "no pop-up is open");
  EXPECT_EQ(PlaceOfPopupRow(Json::parse(R"({"open": false, "rows": []})"), "a").problem,
            "no pop-up is open");
}

TEST(RowPlace, APopupRowIsFoundByItsLabelAndItsVisibleText) {
  const Json popup = Json::parse(R"json({"open": true, "rows": [
    {"label": "改层(&L)\tCtrl+L", "text": "改层", "rect": [0, 0, 20, 10], "rows": [
      {"label": "下(&D)", "text": "下", "rect": [20, 0, 40, 10]},
      {"label": "关着", "text": "关着", "rect": null}]}]})json");
  EXPECT_EQ(PlaceOfPopupRow(popup, "改层").point.x, 10);
  EXPECT_EQ(PlaceOfPopupRow(popup, "改层(&L)\tCtrl+L").point.x, 10);
  EXPECT_EQ(PlaceOfPopupRow(popup, "改层/下").point.x, 30);
  EXPECT_EQ(PlaceOfPopupRow(popup, "改层/关着").problem,
            "row \"改层/关着\" has no place on the screen");
}

TEST(RowPlace, ADamagedStateGivesNoPlace) {
  for (const char* text :
       {"[]", "3", R"({"screenmenu": {"rows": 5}})",
        R"({"screenmenu": {"rows": [1, {"label": 2}, {"label": "a", "rect": "x"}]}})"})
    EXPECT_NE(PlaceOfScreenMenuRow(Json::parse(text), "a").problem, "") << text;
}

}  // namespace
}  // namespace devhost
