// The choice of a block for a selection.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "menu/menu_model.h"
#include "popup/object_match.h"
#include "tests/doubles/reference_wild_match.h"

namespace {

bool NoLayers(std::wstring_view, std::wstring&) { return false; }

class ObjectMatch : public testing::Test {
 protected:
  TRBList& AddBlock(const wchar_t* name) {
    auto* bar = new TMenuBar;
    bar->m_strName = name;
    m_system.Append(bar);
    return bar->m_objectMask;
  }
  int Find(const LayerResolver& layers = NoLayers) {
    return BlockMatcher(m_system).Find(m_selection, layers);
  }
  MatchResult Match(int block, const LayerResolver& layers = NoLayers) {
    return BlockMatcher(m_system).Match(block, m_selection, layers);
  }

  TMenuSystem m_system;
  SelectionDescription m_selection;
};

TEST_F(ObjectMatch, WithoutASelectionTheSpaceSelectsTheBlockByNameWithoutCase) {
  AddBlock(L"SCREEN");
  AddBlock(L"Layout");
  AddBlock(L"common").AppendString(0, L"X");
  EXPECT_EQ(Find(), 2);
  m_selection.SetPaperSpace(true);
  EXPECT_EQ(Find(), 1);
  EXPECT_EQ(Match(2).why, MatchResult::kOtherName);
}

TEST_F(ObjectMatch, WithoutSuchABlockNothingIsFound) {
  AddBlock(L"SCREEN");
  EXPECT_EQ(Find(), -1);
}

TEST_F(ObjectMatch, ASelectionNeverFitsAnEmptyMaskNotEvenThatOfCommon) {
  AddBlock(L"COMMON");
  AddBlock(L"LAYOUT");
  m_selection.Add(L"LINE", L"0");
  m_selection.SetPaperSpace(true);
  EXPECT_EQ(Find(), -1);
  EXPECT_EQ(Match(1).why, MatchResult::kNoMask);
}

TEST_F(ObjectMatch, TheFirstBlockThatFitsAllObjectsIsFound) {
  AddBlock(L"A").AppendString(0, L"QVX_WALL");
  AddBlock(L"B").AppendString(0, L"QVX_*");
  AddBlock(L"C").AppendString(0, L"*");
  m_selection.Add(L"QVX_WALL", L"0");
  EXPECT_EQ(Find(), 0);
  m_selection.Add(L"QVX_DOOR", L"0");
  EXPECT_EQ(Find(), 1);
  m_selection.Add(L"LINE", L"0");
  EXPECT_EQ(Find(), 2);
  EXPECT_EQ(Match(1).object, 2u);
  EXPECT_EQ(Match(1).group, m_system.At(1)->m_objectMask.Head());
}

TEST_F(ObjectMatch, EveryGroupOfTheMaskMustMatch) {
  TRBList& mask = AddBlock(L"A");
  mask.AppendString(0, L"LINE,CIRCLE");
  mask.AppendString(8, L"墙*");
  m_selection.Add(L"circle", L"墙线");
  EXPECT_EQ(Find(), 0);
  m_selection.Add(L"LINE", L"0");
  EXPECT_EQ(Find(), -1);
  EXPECT_EQ(Match(0).group, mask.Head()->Next());
}

TEST_F(ObjectMatch, ALogicalLayerKeyIsReplacedByItsLayer) {
  AddBlock(L"A").AppendString(8, L"@WALL");
  m_selection.Add(L"LINE", L"墙线");
  const LayerResolver layers = [](std::wstring_view key, std::wstring& layer) {
    layer = L"墙线";
    return key == L"WALL";
  };
  EXPECT_EQ(Find(layers), 0);
  EXPECT_EQ(m_system.At(0)->m_objectMask.Head()->resval.rstring, std::wstring(L"@WALL"));
}

// "@" is then the wild card for a letter.
TEST_F(ObjectMatch, AKeyWithoutALayerIsMatchedAsText) {
  AddBlock(L"A").AppendString(8, L"@WALL");
  m_selection.Add(L"LINE", L"XWALL");
  EXPECT_EQ(Find(), 0);
  m_selection.Add(L"LINE", L"WALL");
  EXPECT_EQ(Find(), -1);
}

TEST_F(ObjectMatch, TheLayerOfAKeyIsAPattern) {
  AddBlock(L"A").AppendString(8, L"@K");
  const LayerResolver layers = [](std::wstring_view, std::wstring& layer) {
    layer = L"A#";
    return true;
  };
  m_selection.Add(L"LINE", L"A1");
  EXPECT_EQ(Find(layers), 0);
  m_selection.Add(L"LINE", L"A#");
  EXPECT_EQ(Find(layers), -1);
}

TEST_F(ObjectMatch, AKeyIsReplacedOnlyInTheLayerGroup) {
  AddBlock(L"A").AppendString(0, L"@WALL");
  m_selection.Add(L"XWALL", L"0");
  EXPECT_EQ(Find([](std::wstring_view, std::wstring& layer) {
              layer = L"LINE";
              return true;
            }),
            0);
}

TEST_F(ObjectMatch, AViewportOrAnObjectThatDoesNotOpenFitsNothing) {
  AddBlock(L"A").AppendString(0, L"*");
  m_selection.Add(L"LINE", L"0");
  m_selection.Add(L"VIEWPORT", L"0", ObjectState::kViewport);
  EXPECT_EQ(Find(), -1);
  EXPECT_EQ(Match(0).why, MatchResult::kViewport);
  EXPECT_EQ(Match(0).object, 1u);
  SelectionDescription other;
  other.Add(L"LINE", L"0", ObjectState::kUnreadable);
  EXPECT_EQ(BlockMatcher(m_system).Match(0, other, NoLayers).why, MatchResult::kUnreadable);
}

TEST_F(ObjectMatch, OtherGroupsAreReadFromTheObjectAndUnknownOnesDoNotFit) {
  AddBlock(L"A").AppendShort(62, 3);
  AddBlock(L"B").AppendString(6, L"dash*");
  AddBlock(L"C").AppendReal(48, 0.5);
  AddBlock(L"D").AppendLong(90, 7);
  m_selection.Add(L"LINE", L"0");
  m_selection.Add(L"LINE", L"0");
  EXPECT_EQ(Find(), -1);
  GroupValue known;
  int askedFor = -1;
  m_selection.SetGroupReader([&](size_t object, int code) {
    askedFor = static_cast<int>(object);
    return code == 62 && object == 0 ? GroupValue(3LL) : known;
  });
  EXPECT_EQ(Match(0).object, 1u);
  known = 3LL;
  EXPECT_TRUE(Match(0).Matches());
  known = std::wstring(L"DASHED");
  EXPECT_TRUE(Match(1).Matches());
  EXPECT_FALSE(Match(0).Matches());
  known = 0.5;
  EXPECT_TRUE(Match(2).Matches());
  known = 7LL;
  EXPECT_TRUE(Match(3).Matches());
  EXPECT_EQ(askedFor, 1);
}

TEST_F(ObjectMatch, ACodeWithoutATypeFitsNothing) {
  AddBlock(L"A").SetHead(new TGroups(80));
  m_selection.Add(L"LINE", L"0");
  m_selection.SetGroupReader([](size_t, int) { return GroupValue(0LL); });
  EXPECT_EQ(Find(), -1);
}

TEST_F(ObjectMatch, MasksWithTheSameValueReadItsLayerOnce) {
  for (int i = 0; i < 5; ++i) AddBlock(L"A").AppendString(8, L"@K");
  m_selection.Add(L"LINE", L"0");
  int asked = 0;
  EXPECT_EQ(Find([&](std::wstring_view, std::wstring& layer) {
              ++asked;
              layer = L"1";
              return true;
            }),
            -1);
  EXPECT_EQ(asked, 1);
}

TEST(SelectionDescription, KeepsEachNameOnceWithItsFirstObject) {
  SelectionDescription selection;
  std::mt19937 random(4);
  std::vector<std::wstring> layers;
  for (int i = 0; i < 3000; ++i) {
    layers.push_back(L"L" + std::to_wstring(random() % 200));
    selection.Add(i % 2 ? L"LINE" : L"ARC", layers.back());
  }
  EXPECT_EQ(selection.Count(), 3000u);
  EXPECT_EQ(selection.Types().All().size(), 2u);
  EXPECT_EQ(selection.Layers().All().size(), 200u);
  for (size_t i = 0; i < layers.size(); ++i) {
    EXPECT_EQ(selection.LayerOf(i), layers[i]);
    EXPECT_EQ(selection.TypeOf(i), i % 2 ? L"LINE" : L"ARC");
  }
  for (const SeenNames::Name& name : selection.Layers().All())
    EXPECT_EQ(std::find(layers.begin(), layers.end(), name.text) - layers.begin(),
              static_cast<long long>(name.firstObject));
}

// Compared with a simple implementation that checks every object.
TEST(SelectionDescription, GivesTheSameResultAsCheckingEachObject) {
  std::mt19937 random(8);
  const wchar_t* const patterns[] = {L"A*", L"*", L"~B", L"AB,B", L"@", L"B#", L"a"};
  const wchar_t* const names[] = {L"A", L"AB", L"B", L"B1", L"a1"};
  int found = 0;
  for (int round = 0; round < 3000; ++round) {
    TMenuSystem system;
    for (unsigned n = 1 + random() % 6; n; --n) {
      auto* bar = new TMenuBar;
      for (unsigned groups = random() % 3; groups; --groups)
        bar->m_objectMask.AppendString(random() % 2 ? 0 : 8, patterns[random() % 7]);
      system.Append(bar);
    }
    SelectionDescription selection;
    std::vector<std::pair<std::wstring, std::wstring>> objects;
    for (unsigned n = 1 + random() % 4; n; --n) {
      objects.emplace_back(names[random() % 5], names[random() % 5]);
      selection.Add(objects.back().first, objects.back().second);
    }
    int wanted = -1;
    for (int i = 0; i < system.Length() && wanted < 0; ++i) {
      bool fits = !system.At(i)->m_objectMask.IsEmpty();
      for (const TGroups* group = system.At(i)->m_objectMask.Head(); group; group = group->Next())
        for (const auto& [type, layer] : objects)
          fits =
              fits && ReferenceWildMatch(group->restype == 0 ? type : layer, group->resval.rstring);
      if (fits) wanted = i;
    }
    ASSERT_EQ(BlockMatcher(system).Find(selection, NoLayers), wanted) << round;
    found += wanted >= 0;
  }
  EXPECT_GE(found, 500);
}

}  // namespace
