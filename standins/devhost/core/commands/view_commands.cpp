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

bool ZoomToWindow(ViewTransform& view, const ads_point first) {
  ads_point second{};
  if (acedGetCorner(first, L"指定对角点: ", second) != RTNORM) return false;
  AcDbExtents window;
  window.addPoint(WorldOfUser(first));
  window.addPoint(WorldOfUser(second));
  view.ZoomTo(window, 1);
  return true;
}

// "2", "2X", "2XP"
bool ZoomByFactor(ViewTransform& view, const wchar_t* word) {
  wchar_t* end = nullptr;
  const double factor = std::wcstod(word, &end);
  if (!(factor > 0) || (*end && UpperCase(end) != L"X" && UpperCase(end) != L"XP")) {
    TheHost().Print(L"\n需要点或选项关键字。\n");
    return false;
  }
  view.ZoomAt(view.Middle(), factor);
  return true;
}

void Zoom() {
  Document* document = CurrentDocument();
  ViewTransform& view = document->view;
  ads_point corner{};
  acedInitGet(128, L"All Extents Window");
  int status = acedGetPoint(nullptr, L"指定窗口或 [全部(A)/范围(E)/窗口(W)/比例(nX)]: ", corner);
  ACHAR word[40] = L"";
  if (status == RTKWORD) acedGetInput(word);
  if (word[0] == L'W') status = acedGetPoint(nullptr, L"指定第一个角点: ", corner);
  if (status == RTNORM) {
    if (!ZoomToWindow(view, corner)) return;
  } else if (word[0] == L'A' || word[0] == L'E') {
    view.ZoomTo(ExtentsOf(*document->database()));
  } else if (status != RTKWORD || !ZoomByFactor(view, word)) {
    return;
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
