#include "doctabs/tabs_json.h"

#include <gtest/gtest.h>

#include "tests/doctabs/strip_diary.h"

TEST(TabsJson, WithoutTabsFirstAndActiveAreMinusOne) {
  DiaryWindow window;
  TabStrip strip{window};
  EXPECT_EQ(
      TabsToJson(strip, false, {100, 7, 250, 27}),
      R"({"mode":0,"visible":false,"rect":[100,7,250,27],"first":-1,"arrows":false,"active":-1,"order":[],"tabs":[]})");
}

TEST(TabsJson, EdgesAreScreenPixelsAndFollowTheScrollPosition) {
  DiaryWindow window;
  window.client = {150, 20};
  TabStrip strip{window};
  strip.AddTab(L"平面");
  strip.AddTab(L"a\"b");
  strip.AddTab(L"cde");
  strip.RecalcTabs(0, 0);
  EXPECT_EQ(TabsToJson(strip, true, {100, 7, 250, 27}),
            "{\"mode\":0,\"visible\":true,\"rect\":[100,7,250,27],\"first\":0,\"arrows\":false,"
            "\"active\":2,\"order\":[2,1,0],"
            "\"tabs\":[{\"text\":\"平面\",\"left\":100,\"right\":140},"
            "{\"text\":\"a\\\"b\",\"left\":140,\"right\":190},"
            "{\"text\":\"cde\",\"left\":190,\"right\":240}]}");
  strip.AddTab(L"f");
  strip.OnLayoutTimer();
  strip.m_nShowMode = -1;
  EXPECT_EQ(strip.m_nFirstTab, 2);
  const std::string json = TabsToJson(strip, true, {100, 7, 250, 27});
  EXPECT_NE(
      json.find("\"mode\":-1,\"visible\":true,\"rect\":[100,7,250,27],\"first\":2,\"arrows\":true"),
      json.npos)
      << json;
  EXPECT_NE(json.find("{\"text\":\"平面\",\"left\":10,\"right\":50}"), json.npos) << json;
}
