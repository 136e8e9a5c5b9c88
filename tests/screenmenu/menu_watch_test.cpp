// LISP functions that replace the menu while they are called: the caller must not use any part of
// the old menu after that. The sanitizers detect use after free.
#include <gtest/gtest.h>

#include "menu_fixture.h"
#include "screenmenu/dispatch_rules.h"
#include "screenmenu/group_plan.h"

namespace {

using namespace fixture;

// A menu that is destroyed with lines, switches and icons when the named function runs.
class GoingMenu : public testing::Test {
 protected:
  GoingMenu() : bar(std::make_unique<TMenuBar>()), system(std::make_unique<TMenuSystem>()) {
    AddResource(*system, L"ID_A", L"A16");
    shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
    lisp.Nil(L"set");
    lisp.Number(L"get", 2);
  }
  void GoesIn(const wchar_t* function) {
    lisp.actions[function] = [this] {
      bar.reset();
      shown.reset();
      system.reset();
      life.Renew();
    };
  }
  qvx::RowSources Sources() { return {Lines(), 25}; }
  qvx::LineSources Lines() { return {&lisp, system.get(), true, life.Watch()}; }
  std::unique_ptr<qvx::GroupPlan> Plan() {
    return qvx::PlanTree(*bar, {Sources(), false, false, -1, 500});
  }
  // A line with both functions and an icon, after a header and before another line.
  void FillAround(TMenuBar& nested) {
    TMenuItem* line = AddLine(nested, L"墙", L"TWall\n");
    line->m_nIconIndex = 0;
    line->m_nFlags = TMenuItem::kHasCheckFn | TMenuItem::kHasGrayFn;
    line->m_strCheckFn = L"check";
    line->m_strGrayFn = L"gray";
    TMenuItem* plain = AddLine(nested, L"门", L"TDoor\n");
    plain->m_nIconIndex = 0;
    plain->m_nFlags = TMenuItem::kHasGrayFn;
    plain->m_strGrayFn = L"gray2";
    AddSwitchLine(nested, *shown);
    AddLine(nested, L"后", L"TLast\n");
  }

  FakeLisp lisp;
  qvx::MenuLife life;
  std::unique_ptr<TMenuBar> bar;
  std::unique_ptr<TMenuSystem> system;
  std::unique_ptr<TMenuSwitchItem> shown;
};

TEST(MenuWatch, IsGoneAfterAReplacementAndAfterTheEndOfTheMenu) {
  auto life = std::make_unique<qvx::MenuLife>();
  const qvx::MenuWatch first = life->Watch();
  EXPECT_FALSE(first.IsGone());
  life->Renew();
  EXPECT_TRUE(first.IsGone());
  const qvx::MenuWatch second = life->Watch();
  EXPECT_FALSE(second.IsGone());
  life.reset();
  EXPECT_TRUE(second.IsGone());
  EXPECT_FALSE(qvx::MenuWatch().IsGone()) << "a menu that can't go";
}

TEST_F(GoingMenu, NoPlanIsReturnedWhicheverFunctionReplacesTheMenu) {
  for (const wchar_t* function : {L"check", L"gray", L"gray2", L"get"}) {
    for (bool nested : {false, true}) {
      SCOPED_TRACE(testing::Message() << function << (nested ? L" nested" : L""));
      bar = std::make_unique<TMenuBar>();
      system = std::make_unique<TMenuSystem>();
      AddResource(*system, L"ID_A", L"A16");
      shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
      lisp.actions.clear();
      FillAround(nested ? *AddHeader(*bar, L"组") : *bar);
      AddLine(*bar, L"尾", L"TEnd\n");
      GoesIn(function);
      EXPECT_EQ(Plan(), nullptr);
      EXPECT_EQ(lisp.diary.back(), function) << "and nothing is asked any more";
    }
  }
}

TEST_F(GoingMenu, APlanIsReturnedWhenTheMenuStays) {
  FillAround(*AddHeader(*bar, L"组"));
  ASSERT_NE(Plan(), nullptr);
  EXPECT_EQ(lisp.diary, (std::vector<std::wstring>{L"gray", L"check", L"gray2", L"get"}));
}

TEST_F(GoingMenu, ARefreshedSwitchThatReplacesItsMenuIsNotUsed) {
  TMenuItem* line = AddSwitchLine(*bar, *shown);
  GoesIn(L"get");
  EXPECT_FALSE(qvx::RefreshSwitchLine(*line, Lines()));
}

TEST_F(GoingMenu, AClickedSwitchStopsWhenTheSetOrTheGetFunctionReplacesItsMenu) {
  TMenuItem* line = AddSwitchLine(*bar, *shown);
  GoesIn(L"get");
  EXPECT_EQ(qvx::FlipSwitch(*line, Lines()), qvx::SwitchResult::kGone);

  bar = std::make_unique<TMenuBar>();
  shown = MakeSwitch(L"get", L"set", {L"开", L"关"});
  line = AddSwitchLine(*bar, *shown);
  lisp.actions.clear();
  lisp.diary.clear();
  GoesIn(L"set");
  EXPECT_EQ(qvx::FlipSwitch(*line, Lines()), qvx::SwitchResult::kGone);
  EXPECT_EQ(lisp.diary, (std::vector<std::wstring>{L"set"}));
}

TEST_F(GoingMenu, ASetFunctionThatReplacesTheMenuAndFailsIsGoneAndNotRefused) {
  TMenuItem* line = AddSwitchLine(*bar, *shown);
  lisp.Fail(L"set");
  GoesIn(L"set");
  EXPECT_EQ(qvx::FlipSwitch(*line, Lines()), qvx::SwitchResult::kGone);
}

}  // namespace
