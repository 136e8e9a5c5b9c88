// Reading a selection through the real core of the host: sets and objects of the kernel, and the
// description that blocks are matched with.
#include "popup/host_selection.h"

#include <random>

#include "kernel/globals.h"
#include "kernel/logical_layers.h"
#include "menu/menu_model.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class HostSelection : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
    Send(L"LAYER WALL\nLINE 0,0 10,0 \nLAYER 0\nCIRCLE 5,5 2 LINE 20,20 30,30 \n");
    ASSERT_EQ(Entities().size(), 3u);
    ForgetLogicalLayers();
    g_dHostVersion = 24.0;
    g_bEnableSelectPreview = 1;
  }
  TEntitySet Object(int index) {
    ads_name name{};
    acdbGetAdsName(name, Entities()[static_cast<size_t>(index)]->objectId());
    return TEntitySet(name);
  }
  void Select(std::initializer_list<int> indices) {
    ads_name set{};
    acedSSAdd(nullptr, nullptr, set);
    for (const int i : indices) acedSSAdd(Object(i).Name(), set, set);
    acedSSSetFirst(set, set);
    acedSSFree(set);
  }
};

TEST_F(HostSelection, TheImpliedSetIsReadInItsOrderAndEndsWithItsObject) {
  Select({2, 0});
  TPickEntSet set;
  EXPECT_EQ(set.Length(), 0);
  EXPECT_EQ(set.Get(L"I"), RTNORM);
  ASSERT_EQ(set.Length(), 2);
  EXPECT_TRUE(set[0] == Object(2));
  EXPECT_TRUE(set[1] == Object(0));
  EXPECT_TRUE(set[2].IsEmpty());
  EXPECT_TRUE(set.IsInclude(Object(0)));
  EXPECT_FALSE(set.IsInclude(Object(1)));
  const ads_name kept = {set.Name()[0], set.Name()[1]};
  set.Free();
  EXPECT_EQ(set.Length(), 0);
  int length = 0;
  EXPECT_EQ(acedSSLength(kept, &length), RTERROR) << "the host's set is released";
}

TEST_F(HostSelection, APointFindsTheObjectAtIt) {
  TPickEntSet set;
  const AcGePoint3d onLine(5, 0, 0), beside(1000, 1000, 0);
  EXPECT_EQ(set.Get(nullptr, &onLine), RTNORM);
  EXPECT_TRUE(set[0] == Object(0));
  EXPECT_NE(set.Get(nullptr, &beside), RTNORM);
  EXPECT_EQ(set.Length(), 0);
  TRBList arcs;
  arcs.AppendString(0, L"ARC");
  EXPECT_NE(set.Get(nullptr, &onLine, nullptr, arcs.Head()), RTNORM);
}

TEST_F(HostSelection, AFenceFindsTheObjectsThatItsLineCrosses) {
  TPickEntSet set;
  const AcGePoint3d above(5, 1e9, 0), below(5, -1e9, 0), right(15, 1e9, 0), lower(15, -1e9, 0);
  EXPECT_EQ(set.Get(L"F", &above, &below), RTNORM);
  EXPECT_EQ(set.Length(), 2);
  EXPECT_TRUE(set.IsInclude(Object(0)) && set.IsInclude(Object(1)));
  TRBList circles;
  circles.AppendString(0, L"CIRCLE");
  EXPECT_EQ(set.Get(L"F", &above, &below, circles.Head()), RTNORM);
  EXPECT_EQ(set.Length(), 1);
  EXPECT_NE(set.Get(L"F", &right, &lower), RTNORM);
  EXPECT_EQ(set.Length(), 0);
}

TEST_F(HostSelection, AnObjectReturnsItsGroupsAndNoValueForMissingOnes) {
  const TEntitySet line = Object(0);
  EXPECT_TRUE(line.Is(L"line"));
  EXPECT_FALSE(line.Is(L"CIRCLE"));
  wchar_t text[TEntitySet::kDataUnits];
  EXPECT_TRUE(line.GetData(0, text));
  EXPECT_STREQ(text, L"LINE");
  EXPECT_TRUE(line.GetData(8, text));
  EXPECT_STREQ(text, L"WALL");
  EXPECT_TRUE(line.GetData(62, text));
  EXPECT_STREQ(text, L"256");
  EXPECT_FALSE(line.GetData(40, text));
  EXPECT_STREQ(text, L"");
  EXPECT_FALSE(TEntitySet().GetData(0, text));
}

TEST_F(HostSelection, EveryGroupOfAMaskHasToFitAnObject) {
  TRBList mask;
  EXPECT_FALSE(Object(1).MatchBase(mask)) << "an empty mask fits nothing";
  mask.AppendString(0, L"*LE");
  EXPECT_TRUE(Object(1).MatchBase(mask));
  EXPECT_FALSE(Object(0).MatchBase(mask));
  mask.AppendReal(40, 2.0);
  EXPECT_TRUE(Object(1).MatchBase(mask));
  mask.AppendShort(67, 1);
  EXPECT_FALSE(Object(1).MatchBase(mask));
  EXPECT_FALSE(TEntitySet().MatchBase(mask));
}

TEST_F(HostSelection, TheQuickMatchingOfBlocksAgreesWithTheKernelOnEveryObject) {
  const wchar_t* types[] = {L"LINE", L"CIRCLE", L"LIN?", L"~LINE", L"*", L"NOSUCH"};
  const wchar_t* layers[] = {L"0", L"WALL", L"W*", L"@", L"NONE"};
  std::mt19937 random(5);
  int fits = 0;
  for (int round = 0; round < 300; ++round) {
    TMenuSystem system;
    auto* bar = new TMenuBar;
    system.Append(bar);
    if (random() % 2) bar->m_objectMask.AppendString(0, types[random() % 6]);
    if (random() % 2) bar->m_objectMask.AppendString(8, layers[random() % 5]);
    if (random() % 3 == 0) bar->m_objectMask.AppendShort(62, random() % 2 ? 256 : 1);
    if (random() % 3 == 0) bar->m_objectMask.AppendReal(40, random() % 2 ? 2.0 : 3.0);
    if (random() % 4 == 0) bar->m_objectMask.AppendReal(11, 10.0);
    const int object = static_cast<int>(random() % 3);
    Select({object});
    TPickEntSet set;
    set.Get(L"I");
    const bool wanted = Object(object).MatchBase(bar->m_objectMask);
    EXPECT_EQ(BlockMatcher(system).Find(DescribeSelection(set), nullptr) == 0, wanted) << round;
    fits += wanted;
  }
  EXPECT_GT(fits, 30);
}

TEST_F(HostSelection, ADescriptionKeepsTypesLayersViewportsAndPaperSpace) {
  Select({0, 1});
  TPickEntSet set;
  set.Get(L"I");
  const SelectionDescription two = DescribeSelection(set);
  ASSERT_EQ(two.Count(), 2u);
  EXPECT_EQ(two.TypeOf(0), L"LINE");
  EXPECT_EQ(two.LayerOf(0), L"WALL");
  EXPECT_EQ(two.TypeOf(1), L"CIRCLE");
  EXPECT_EQ(two.FirstMisfit(), 2u);
  Select({});
  set.Get(L"I");
  EXPECT_FALSE(DescribeSelection(set).InPaperSpace());
  host.variables.Set(L"TILEMODE", L"0");
  EXPECT_EQ(Var(L"CVPORT"), L"1");
  EXPECT_TRUE(DescribeSelection(set).InPaperSpace());
}

TEST_F(HostSelection, ASelectedViewportFitsNoMask) {
  auto* port = new AcDbViewport;
  AcDbObjectId space = host.documents.Current()->database()->currentSpaceId();
  AcDbBlockTableRecord::cast(space.object())->appendAcDbEntity(port);
  ads_name name{}, chosen{};
  acdbGetAdsName(name, port->objectId());
  acedSSAdd(name, nullptr, chosen);
  acedSSSetFirst(chosen, chosen);
  acedSSFree(chosen);
  TPickEntSet set;
  set.Get(L"I");
  TMenuSystem system;
  auto* bar = new TMenuBar;
  bar->m_objectMask.AppendString(0, L"*");
  system.Append(bar);
  EXPECT_EQ(BlockMatcher(system).Find(DescribeSelection(set), nullptr), -1);
  port->close();
}

TEST_F(HostSelection, LogicalLayersAreTheStandardOnesUnlessRenamed) {
  std::wstring layer = L"before";
  EXPECT_FALSE(ResolveLayer(L"NOSUCHKEY", layer));
  EXPECT_FALSE(ResolveLayer(L"", layer));
  EXPECT_EQ(layer, L"before");
  EXPECT_TRUE(ResolveLayer(L"wall", layer));
  EXPECT_EQ(layer, L"WALL");
  MakeFile("qvx.ini", "[Layers]\nWALL=A-WALL-*\n");
  EXPECT_TRUE(ResolveLayer(L"WALL", layer));
  EXPECT_EQ(layer, L"WALL") << "read once";
  DocStatus();
  EXPECT_TRUE(ResolveLayer(L"WALL", layer));
  EXPECT_EQ(layer, L"A-WALL-*");
  EXPECT_TRUE(ResolveLayer(L"DOTE", layer));
  EXPECT_EQ(layer, L"DOTE");
}

// Without a pointer in a view the mouse-on object is reset.
TEST_F(HostSelection, WithPreviewOnTheMouseOnObjectIsTheOneUnderThePointer) {
  DocGetEntMouseOn() = Object(1);
  TPickEntSet set;
  ReadSelection(set);
  EXPECT_EQ(set.Length(), 0);
  EXPECT_TRUE(DocGetEntMouseOn().IsEmpty());
}

TEST_F(HostSelection, WithPreviewOffOrASelectionTheMouseOnObjectIsKept) {
  DocGetEntMouseOn() = Object(1);
  g_bEnableSelectPreview = 0;
  TPickEntSet set;
  ReadSelection(set);
  EXPECT_TRUE(DocGetEntMouseOn() == Object(1));
  g_bEnableSelectPreview = 1;
  Select({0});
  ReadSelection(set);
  EXPECT_EQ(set.Length(), 1);
  EXPECT_TRUE(DocGetEntMouseOn() == Object(1));
}

TEST_F(HostSelection, EachDrawingHasItsOwnMouseOnObject) {
  DocGetEntMouseOn() = Object(1);
  devhost::Document* first = host.documents.Current();
  devhost::Document& second = NewDrawing();
  EXPECT_TRUE(DocGetEntMouseOn().IsEmpty());
  host.documents.Activate(first);
  EXPECT_FALSE(DocGetEntMouseOn().IsEmpty());
  host.documents.Activate(&second);
  host.documents.Close(first);
  EXPECT_TRUE(DocGetEntMouseOn().IsEmpty());
}

TEST(ChooseBlock, WithoutASelectionThereIsNoMenuFromSpeedMenuTwoOnUnlessForced) {
  TMenuSystem system;
  auto* common = new TMenuBar;
  common->m_strName = L"COMMON";
  system.Append(common);
  const SelectionDescription nothing;
  EXPECT_EQ(ChooseBlock(system, nothing, 1, false), 0);
  EXPECT_EQ(ChooseBlock(system, nothing, 2, false), -1);
  EXPECT_EQ(ChooseBlock(system, nothing, 3, false), -1);
  EXPECT_EQ(ChooseBlock(system, nothing, 2, true), 0);
  common->m_objectMask.AppendString(0, L"LINE");
  SelectionDescription line;
  line.Add(L"LINE", L"0");
  EXPECT_EQ(ChooseBlock(system, line, 2, false), 0);
}

}  // namespace
