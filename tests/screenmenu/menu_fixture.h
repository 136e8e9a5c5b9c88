// Menus built in code, and a LISP caller with a table of results and a record of calls, for the
// tests of the screen menu's logic.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "menu/menu_model.h"
#include "ground/lisp_caller.h"

namespace fixture {

class FakeLisp : public qvx::LispCaller {
 public:
  qvx::LispAnswer Call(const wchar_t* function) override {
    diary.push_back(function);
    if (const auto act = actions.find(function); act != actions.end()) act->second();
    const auto found = answers.find(function);
    return found == answers.end() ? qvx::LispAnswer{} : found->second;
  }
  void Number(const wchar_t* function, int value) {
    answers[function] = {true, qvx::LispAnswer::Kind::kNumber, value};
  }
  void True(const wchar_t* function) {
    answers[function] = {true, qvx::LispAnswer::Kind::kTrue, 0};
  }
  void Nil(const wchar_t* function) {
    answers[function] = {true, qvx::LispAnswer::Kind::kNothing, 0};
  }
  void Fail(const wchar_t* function) { answers.erase(function); }

  std::map<std::wstring, qvx::LispAnswer> answers;
  // Run when a function is called, before it returns.
  std::map<std::wstring, std::function<void()>> actions;
  std::vector<std::wstring> diary;
};

inline TMenuItem* AddLine(TMenuBar& bar, const wchar_t* label, const wchar_t* command = L"") {
  auto* line = new TMenuItem(label, command);
  bar.Append(line);
  return line;
}

inline TMenuBar* AddHeader(TMenuBar& bar, const wchar_t* label, TMenuBar* below = new TMenuBar) {
  TMenuItem* line = AddLine(bar, label);
  line->m_pSubMenu = below;
  return line->m_pSubMenu;
}

// A switch with states 1, 2, ... with the given labels and icons 0, 1, ...
inline std::unique_ptr<TMenuSwitchItem> MakeSwitch(const wchar_t* getFn, const wchar_t* setFn,
                                                   const std::vector<const wchar_t*>& labels) {
  auto made = std::make_unique<TMenuSwitchItem>();
  made->m_strGetFn = getFn;
  made->m_strSetFn = setFn;
  int value = 0;
  for (const wchar_t* label : labels) {
    auto* state = new TSwitchStateItem;
    state->m_nIconIndex = value;
    state->m_nValue = ++value;
    state->m_strLabel = label;
    state->m_strIconName = label;
    made->m_states.Append(state);
  }
  return made;
}

inline TMenuItem* AddSwitchLine(TMenuBar& bar, TMenuSwitchItem& shown) {
  TMenuItem* line = AddLine(bar, L"开关");
  line->m_pSwitch = &shown;
  return line;
}

inline void AddResource(TMenuSystem& system, const wchar_t* name, const wchar_t* image,
                        const wchar_t* help = L"") {
  system.m_resources.Append(new TMenuResItem(name, image, help));
}

}  // namespace fixture
