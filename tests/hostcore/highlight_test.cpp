// Highlighted objects: by selecting, by acedRedraw, by the host's preview.
#include "devhost/core/selection/highlight.h"

#include "devhost/core/selection/selection.h"
#include "host_fixture.h"

using namespace devhost;

class Highlight : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    Begin(24, 0);
  }
  // Starts over as a host of this release, with two lines and a circle.
  void Begin(int major, int minor) {
    host.End();
    HostOptions options;
    options.major = major;
    options.minor = minor;
    host.Begin(options, &ui, &modules);
    host.variables.Set(L"SELECTIONPREVIEW", L"3");  // outlives the drawings of a test
    NewDrawing();
    Send(L"LINE 0,0 10,0 \nLINE 0,50 10,50 \nCIRCLE 50,50 2\n");
    ASSERT_EQ(Entities().size(), 3u);
  }
  Document& Drawing() { return *host.documents.Current(); }
  AcDbObjectId Id(int i) { return Entities()[static_cast<std::size_t>(i)]->objectId(); }
  int Redraw(int i, int mode) {
    ads_name name{};
    acdbGetAdsName(name, Id(i));
    return acedRedraw(name, mode);
  }
  void Preview(double x, double y) { PreviewAt(Drawing(), {x, y, 0}, 1); }
  // A letter for each entity: "x" highlighted, "-" not.
  std::string Lit() {
    std::string text;
    for (AcDbEntity* e : Entities()) text += IsHighlighted(Drawing(), e->objectId()) ? "x" : "-";
    EXPECT_EQ(HighlightedObjects(Drawing()).size(),
              static_cast<std::size_t>(std::count(text.begin(), text.end(), 'x')));
    return text;
  }
};

TEST_F(Highlight, Mode3HighlightsUntilMode4) {
  EXPECT_EQ(Lit(), "---");
  ui.log.clear();
  EXPECT_EQ(Redraw(1, 3), RTNORM);
  EXPECT_EQ(Lit(), "-x-");
  EXPECT_EQ(ui.log, (std::vector<std::wstring>{L"selection"})) << "the view is told once";
  EXPECT_EQ(Redraw(1, 3), RTNORM);
  EXPECT_EQ(ui.log.size(), 1u) << "nothing changed";
  EXPECT_EQ(Redraw(1, 4), RTNORM);
  EXPECT_EQ(Lit(), "---");
  EXPECT_EQ(ui.log.size(), 2u);
  EXPECT_EQ(Redraw(1, 0), RTERROR);
  EXPECT_EQ(Redraw(1, 5), RTERROR);
  EXPECT_EQ(acedRedraw(nullptr, 1), RTNORM);
}

TEST_F(Highlight, SelectingHighlightsAndModeFourEndsItOnASelectedObjectToo) {
  SetPickFirst(Drawing(), {Id(0), Id(1)});
  EXPECT_EQ(Lit(), "xx-");
  EXPECT_EQ(Redraw(0, 4), RTNORM);
  EXPECT_EQ(Lit(), "-x-") << "the object is selected and drawn as if it were not";
  EXPECT_EQ(Drawing().pickFirst.size(), 2u);
  SetPickFirst(Drawing(), {});
  EXPECT_EQ(Lit(), "---");
}

TEST_F(Highlight, AHighlightOfAModuleStaysWhenTheSelectionChanges) {
  Redraw(2, 3);
  SetPickFirst(Drawing(), {Id(0)});
  SetPickFirst(Drawing(), {Id(1)});
  EXPECT_EQ(Lit(), "-xx");
  host.engine.PressEscape();
  EXPECT_EQ(Lit(), "--x");
}

TEST_F(Highlight, AnErasedObjectIsNotHighlightedAndItsHighlightCanBeEnded) {
  const AcDbObjectId line = Id(0);
  ads_name name{};
  acdbGetAdsName(name, line);
  acedRedraw(name, 3);
  line.object()->erase();
  EXPECT_FALSE(IsHighlighted(Drawing(), line));
  EXPECT_TRUE(HighlightedObjects(Drawing()).empty());
  EXPECT_EQ(acedRedraw(name, 3), RTERROR);
  EXPECT_EQ(acedRedraw(name, 4), RTERROR);
  line.object()->erase(false);
  EXPECT_FALSE(IsHighlighted(Drawing(), line)) << "mode 4 ended it";
}

TEST_F(Highlight, TheHostsPreviewFollowsThePointer) {
  Preview(5, 0.2);
  EXPECT_EQ(Lit(), "x--");
  Preview(5, 49.5);
  EXPECT_EQ(Lit(), "-x-");
  Preview(200, 200);
  EXPECT_EQ(Lit(), "---");
  Preview(5, 0);
  EndPreview(Drawing());
  EXPECT_EQ(Lit(), "---");
}

TEST_F(Highlight, ThePreviewLeavesASelectedObjectHighlighted) {
  SetPickFirst(Drawing(), {Id(0)});
  Preview(5, 0);
  Preview(200, 200);
  EXPECT_EQ(Lit(), "x--");
}

TEST_F(Highlight, ThePreviewObeysTheBitsOfItsVariable) {
  const auto set = [&](const wchar_t* value) {
    ASSERT_EQ(host.variables.Set(L"SELECTIONPREVIEW", value), VarResult::Ok);
  };
  std::string atPrompt, atPoint;
  const auto look = [&](const wchar_t* value) {
    set(value);
    Preview(5, 0);
    const std::string idle = Lit();
    EndPreview(Drawing());
    Then([&] {
      Preview(5, 0);
      atPrompt = Lit();
      host.engine.EnterLine(L"");
    });
    Send(L"ERASE\n");
    Then([&] {
      Preview(5, 0);
      atPoint = Lit();
      host.engine.PressEscape();
    });
    Send(L"LINE\n");
    EXPECT_EQ(Lit(), "---") << "no preview is left";
    return idle + " " + atPrompt + " " + atPoint;
  };
  EXPECT_EQ(look(L"3"), "x-- x-- ---") << "idle, selecting, asking for a point";
  EXPECT_EQ(look(L"1"), "x-- --- ---");
  EXPECT_EQ(look(L"2"), "--- x-- ---");
  EXPECT_EQ(look(L"0"), "--- --- ---");
}

TEST_F(Highlight, OldReleasesHaveNoPreview) {
  for (const auto& [major, minor, lit] :
       {std::tuple(15, 0, "---"), {16, 1, "---"}, {16, 2, "x--"}, {24, 0, "x--"}}) {
    Begin(major, minor);
    Preview(5, 0);
    EXPECT_EQ(Lit(), lit) << major << "." << minor;
    EndPreview(Drawing());
  }
}

TEST_F(Highlight, ACommandEndsThePreview) {
  Preview(5, 0);
  EXPECT_EQ(Lit(), "x--");
  std::string during;
  Then([&] {
    during = Lit();
    host.engine.PressEscape();
  });
  Send(L"LINE\n");
  EXPECT_EQ(during, "---");
}
