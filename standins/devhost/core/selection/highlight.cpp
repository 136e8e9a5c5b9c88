// Highlighted objects, the host's preview and acedRedraw; see the header.
#include "devhost/core/selection/highlight.h"

#include "adslib.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

constexpr double kFirstReleaseWithPreview = 16.11;
constexpr int kPreviewIdle = 1, kPreviewAtPrompt = 2;  // bits of SELECTIONPREVIEW

bool PreviewIsOn() {
  Host& host = TheHost();
  if (host.Options().major + host.Options().minor / 10.0 < kFirstReleaseWithPreview) return false;
  std::wstring value;
  if (host.variables.Get(L"SELECTIONPREVIEW", &value) != VarResult::Ok) return false;
  const int bit = !host.engine.IsCommandRunning() ? kPreviewIdle
                  : host.engine.AsksForObjects()  ? kPreviewAtPrompt
                                                  : 0;
  return (std::stoi(value) & bit) != 0;
}

void SetPreview(Document& document, AcDbObjectId id) {
  if (document.previewed == id) return;
  document.previewed = id;
  TheHost().Ui().SelectionChanged(document);
}

}  // namespace

void SetHighlight(Document& document, AcDbObjectId id, bool on) {
  const bool changed = on ? document.highlighted.insert(id.object()).second
                          : document.highlighted.erase(id.object());
  if (changed) TheHost().Ui().SelectionChanged(document);
}

bool IsHighlighted(const Document& document, AcDbObjectId id) {
  return !id.isNull() && !id.isErased() &&
         (document.highlighted.count(id.object()) || document.previewed == id);
}

std::vector<AcDbObjectId> HighlightedObjects(const Document& document) {
  std::vector<AcDbObjectId> all;
  for (AcDbObject* object : document.highlighted)
    if (!object->isErased()) all.push_back(object->objectId());
  const AcDbObjectId preview = document.previewed;
  if (!preview.isNull() && !preview.isErased() && !document.highlighted.count(preview.object()))
    all.push_back(preview);
  return all;
}

void ForgetHighlights(Document& document) {
  document.highlighted.clear();
  document.previewed.setNull();
}

void PreviewAt(Document& document, const AcGePoint3d& at, double reach) {
  const AcDbEntity* hit = PreviewIsOn() ? EntityAt(*document.database(), at, reach) : nullptr;
  SetPreview(document, hit ? hit->objectId() : AcDbObjectId());
}

void EndPreview(Document& document) { SetPreview(document, AcDbObjectId()); }

}  // namespace devhost

int acedRedraw(const ads_name name, int mode) {
  using namespace devhost;
  constexpr int kShow = 1, kHide = 2, kHighlight = 3, kEndHighlight = 4;
  if (!name || !name[0]) {
    Document* current = TheHost().documents.Current();
    if (current) TheHost().Ui().PictureChanged(*current);
    return current ? RTNORM : RTERROR;
  }
  AcDbObjectId id;
  if (acdbGetObjectId(id, name) != Acad::eOk) return RTERROR;
  Document* document =
      TheHost().documents.FindDocument(TheHost().documents.document(id.database()));
  if (!document || mode < kShow || mode > kEndHighlight) return RTERROR;
  if (mode == kEndHighlight) SetHighlight(*document, id, false);
  if (id.isErased()) return RTERROR;
  if (mode == kHighlight) SetHighlight(*document, id, true);
  if (mode == kShow || mode == kHide) TheHost().Ui().PictureChanged(*document);
  return RTNORM;
}
