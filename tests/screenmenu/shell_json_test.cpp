// The JSON text of the screen menu's state.
#include <gtest/gtest.h>

#include "screenmenu/shell_json.h"

namespace {

TEST(ShellJson, WithoutAPaletteAllFieldsArePresent) {
  EXPECT_EQ(qvx::ToJson({}),
            "{\"exists\":false,\"visible\":false,\"enabled\":false,\"floating\":false,"
            "\"dock\":\"none\",\"title\":\"\",\"rect\":[0,0,0,0],\"scroll\":null,\"rows\":[]}");
}

TEST(ShellJson, RowsNestInTheirHeaders) {
  qvx::ShellScreenMenu menu;
  menu.scroll = qvx::ShellScroll{0, 300, 40, 8};
  qvx::ShellRow leaf;
  leaf.label = L"画墙";
  leaf.depth = 1;
  leaf.rect = {1, 2, 3, 4};
  qvx::ShellRow header;
  header.label = L"墙体";
  header.kind = "header";
  header.enabled = header.visible = header.open = true;
  header.rows = {leaf};
  menu.rows = {header};
  const std::string json = qvx::ToJson(menu);
  EXPECT_NE(json.find("\"scroll\":{\"min\":0,\"max\":300,\"pos\":40,\"width\":8}"),
            std::string::npos);
  EXPECT_NE(json.find("{\"label\":\"墙体\",\"kind\":\"header\",\"enabled\":true,\"visible\":true,"
                      "\"depth\":0,\"open\":true,\"rect\":[0,0,0,0],\"rows\":[{\"label\":\"画墙\","
                      "\"kind\":\"command\",\"enabled\":false,\"visible\":false,\"depth\":1,"
                      "\"open\":false,\"rect\":[1,2,3,4],\"rows\":[]}]}"),
            std::string::npos)
      << json;
}

}  // namespace
