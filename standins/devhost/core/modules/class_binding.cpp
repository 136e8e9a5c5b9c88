// Replacing objects; see the header.
#include "devhost/core/modules/class_binding.h"

#include <memory>
#include <string>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/dxf_filer.h"
#include "devhost/core/dxf/dxf_objects.h"
#include "devhost/core/entities/dxf_name.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/highlight.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

enum class Result { Real, Opaque };

// A new object with the file data of the old one; null if the class rejects the data.
std::unique_ptr<AcDbEntity> Recreate(const AcDbEntity& old, Result result) {
  AcDbDatabase& database = *old.database();
  std::string text = "0\n";
  DxfOutFiler out(database, text);
  text += Utf8(DxfNameOf(old)) + "\n";
  old.dxfOutFields(&out);
  text += "0\nEOF\n";
  const DxfScan scan = ScanDxf(text);
  std::span<const DxfGroup> groups(scan.groups);
  DxfDecoder decoder;
  decoder.SetPage(65001);
  DxfProblems problems;
  DxfObjectMaker maker(database, decoder, problems);
  const DxfObject object = SplitObject(groups.first(groups.size() - 1));
  return result == Result::Real ? maker.MakeKnown(object) : maker.MakeOpaque(object);
}

// `replacement` returns the new object, or null for objects that stay.
template <class F>
void ReplaceEntities(Document& document, F replacement) {
  AcDbDatabase::Body& body = document.database()->body();
  bool changed = false;
  for (std::unique_ptr<AcDbObject>& held : body.objects) {
    AcDbEntity* old = AcDbEntity::cast(held.get());
    std::unique_ptr<AcDbEntity> fresh = old ? replacement(*old) : nullptr;
    if (!fresh) continue;
    if (!changed) {  // drop all stored ids first
      SetPickFirst(document, {});
      ForgetHighlights(document);
      document.previousSelection.clear();
      DiscardUndo(document);
      changed = true;
    }
    AcDbObjectAccess::SwapXData(old, fresh.get());
    AcDbObjectAccess::Replace(body, held, fresh.release());
  }
  if (changed) TheHost().Ui().PictureChanged(document);
}

}  // namespace

void BindOpaqueEntities() {
  for (const auto& document : TheHost().documents.All())
    ReplaceEntities(*document, [](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      const bool known = AcDbProxyEntity::cast(&old) && acrxClassOfDxfName(DxfNameOf(old));
      return known ? Recreate(old, Result::Real) : nullptr;
    });
}

void MakeEntitiesOpaque(const AcRxClass& cls) {
  for (const auto& document : TheHost().documents.All())
    ReplaceEntities(*document, [&](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      return old.isA() == &cls && cls.dxfName() ? Recreate(old, Result::Opaque) : nullptr;
    });
}

}  // namespace devhost

// Parents are linked when classes are constructed; only the objects of open drawings are
// left to bind.
void acrxBuildClassHierarchy() { devhost::BindOpaqueEntities(); }

void deleteAcRxClass(AcRxClass* cls) {
  if (!cls) return;
  devhost::MakeEntitiesOpaque(*cls);
  delete cls;
}
