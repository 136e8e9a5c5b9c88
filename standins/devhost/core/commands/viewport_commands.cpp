// Commands for viewports and directions of view: -VPORTS, PLAN, 3DORBIT.
#include <optional>

#include "aced.h"
#include "adslib.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

Document& Current() { return *TheHost().documents.Current(); }

// The keyword that the user enters, `byDefault` for Enter alone; empty for a cancel.
std::wstring AskKeyword(const wchar_t* keywords, const wchar_t* prompt, const wchar_t* byDefault) {
  ACHAR word[40] = L"";
  acedInitGet(0, keywords);
  const int status = acedGetKword(prompt, word);
  if (status == RTNONE) return byDefault;
  return status == RTNORM ? word : L"";
}

std::optional<Tiling> AskTilingOfTwo() {
  const std::wstring word =
      AskKeyword(L"Horizontal Vertical", L"输入配置选项 [水平(H)/垂直(V)] <垂直>: ", L"Vertical");
  if (word.empty()) return std::nullopt;
  return word[0] == L'H' ? Tiling::TwoHorizontal : Tiling::TwoVertical;
}

std::optional<Tiling> AskTilingOfThree() {
  const std::wstring word =
      AskKeyword(L"Horizontal Vertical Above Below Left Right",
                 L"输入配置选项 [水平(H)/垂直(V)/上(A)/下(B)/左(L)/右(R)] <右>: ", L"Right");
  if (word.empty()) return std::nullopt;
  switch (word[0]) {
    case L'H':
      return Tiling::ThreeHorizontal;
    case L'V':
      return Tiling::ThreeVertical;
    case L'A':
      return Tiling::ThreeAbove;
    case L'B':
      return Tiling::ThreeBelow;
    case L'L':
      return Tiling::ThreeLeft;
    default:
      return Tiling::ThreeRight;
  }
}

void Vports() {
  if (Current().viewports.IsOnSheet()) {
    TheHost().Print(L"** 命令只能在“模型”选项卡中使用 **\n");
    return;
  }
  const std::wstring word = AskKeyword(L"SIngle 2 3 4", L"输入选项 [单一(SI)/2/3/4] <3>: ", L"3");
  if (word.empty()) return;
  std::optional<Tiling> tiling = Tiling::Four;
  if (word == L"2") tiling = AskTilingOfTwo();
  if (word == L"3") tiling = AskTilingOfThree();
  if (!tiling) return;
  ViewportSet& viewports = Current().viewports;
  if (word == L"SIngle") {
    viewports.MakeSingle();
  } else if (!viewports.Split(*tiling)) {
    TheHost().Print(L"视口数目已达到上限。\n");
    return;
  }
  TheHost().variables.Set(L"CVPORT", std::to_wstring(viewports.CurrentNumber()));
  TheHost().Ui().ViewChanged(Current());
}

void Plan() {
  Document& document = Current();
  document.view.LookDown();
  document.view.ZoomTo(ExtentsOf(*document.database()));
  TheHost().Ui().ViewChanged(document);
}

// Stays active while the user drags the direction of view in the window.
void Orbit() {
  for (;;) {
    const InputAnswer answer = TheHost().engine.Ask(
        InputRequest::View, L"按 ESC 或 ENTER 键退出，或拖动以旋转视图: ", false, nullptr);
    if (answer.kind == InputAnswer::Kind::Cancelled || answer.kind == InputAnswer::Kind::Enter)
      return;
  }
}

constexpr NativeCommand kViewports[] = {
    {L"3DORBIT", ACRX_CMD_TRANSPARENT, Orbit},
    {L"PLAN", 0, Plan},
    {L"VPORTS", 0, Vports},  // also typed as -VPORTS
};

}  // namespace

std::span<const NativeCommand> ViewportCommands() { return kViewports; }

}  // namespace devhost
