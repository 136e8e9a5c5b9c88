// Commands that change the view: ZOOM, PAN, REGEN.
#include <cwchar>

#include "aced.h"
#include "adslib.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/view/entity_index.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

Document* CurrentDocument() { return TheHost().documents.Current(); }

void Zoom() {
  Document* document = CurrentDocument();
  ACHAR word[40] = L"";
  ads_real factor = 0;
  acedInitGet(128, L"All Extents");
  const int status = acedGetReal(L"指定窗口或 [全部(A)/范围(E)/比例(nX)]: ", &factor);
  if (status == RTKWORD)
    acedGetInput(word);
  else if (status != RTNORM)
    return;
  wchar_t* end = nullptr;
  if (status == RTKWORD && (word[0] == L'A' || word[0] == L'E')) {
    document->view.ZoomTo(ExtentsOf(*document->database()));
  } else {
    if (status == RTKWORD) factor = std::wcstod(word, &end);  // "2X"
    if (!(factor > 0) || (end && *end && UpperCase(end) != L"X" && UpperCase(end) != L"XP")) {
      TheHost().Print(L"\n需要点或选项关键字。\n");
      return;
    }
    document->view.ZoomAt(document->view.Middle(), factor);
  }
  TheHost().Ui().ViewChanged(*document);
}

void Pan() {
  ads_point from{}, to{};
  Document* document = CurrentDocument();
  if (acedGetPoint(nullptr, L"指定基点: ", from) != RTNORM ||
      acedGetPoint(from, L"指定第二点: ", to) != RTNORM)
    return;
  const POINT a = document->view.ToPixel(WorldOfUser(from)),
              b = document->view.ToPixel(WorldOfUser(to));
  document->view.PanBy(b.x - a.x, b.y - a.y);
  TheHost().Ui().ViewChanged(*document);
}

void Regen() {
  TheHost().Print(L"正在重生成模型。\n");
  // Objects of modules may draw by more than their own data.
  EntityIndex::Of(*CurrentDocument()->database()).Reset();
  TheHost().Ui().PictureChanged(*CurrentDocument());
}

constexpr NativeCommand kView[] = {
    {L"PAN", ACRX_CMD_TRANSPARENT, Pan},
    {L"REGEN", 0, Regen},
    {L"ZOOM", ACRX_CMD_TRANSPARENT, Zoom},
};

}  // namespace

std::span<const NativeCommand> ViewCommands() { return kView; }

}  // namespace devhost
