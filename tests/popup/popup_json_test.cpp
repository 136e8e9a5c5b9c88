#include "popup/popup_json.h"

#include <gtest/gtest.h>

TEST(PopupJson, HasTheFieldsThatScriptsRead) {
  EXPECT_EQ(PopupToJson(false, {}), "{\"open\":false,\"rows\":[]}");
  ShellPopupRow row, line, below;
  row.label = L"墙\t\"F1\"";
  row.id = 2000;
  row.enabled = row.checked = true;
  row.rect = {1, -2, 3, 4};
  line.separator = true;
  below.label = L"底";
  row.rows = {below};
  EXPECT_EQ(PopupToJson(true, {row, line}),
            "{\"open\":true,\"rows\":[{\"label\":\"墙\\u0009\\\"F1\\\"\",\"id\":2000,"
            "\"enabled\":true,\"checked\":true,\"separator\":false,\"rect\":[1,-2,3,4],\"rows\":["
            "{\"label\":\"底\",\"id\":0,\"enabled\":false,\"checked\":false,\"separator\":false,"
            "\"rect\":[0,0,0,0],\"rows\":[]}]},"
            "{\"label\":\"\",\"id\":0,\"enabled\":false,\"checked\":false,\"separator\":true,"
            "\"rect\":[0,0,0,0],\"rows\":[]}]}");
}
