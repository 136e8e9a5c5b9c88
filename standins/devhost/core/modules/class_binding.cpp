// Objects change their class with its module; see the header.
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
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

enum class Into { RealOne, OpaqueOne };

// A new object with all that the old one would write to a file; null when the class will not have
// it.
std::unique_ptr<AcDbEntity> Remade(const AcDbEntity& old, Into into) {
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
  const DxfObject object = TakeApart(groups.first(groups.size() - 1));
  return into == Into::RealOne ? maker.MakeKnown(object) : maker.MakeOpaque(object);
}

// `replacement` gives the new object of one that has to change, or null.
template <class F>
void Exchange(Document& document, F replacement) {
  AcDbDatabase::Body& body = document.database()->body();
  bool changed = false;
  for (std::unique_ptr<AcDbObject>& held : body.objects) {
    AcDbEntity* old = AcDbEntity::cast(held.get());
    std::unique_ptr<AcDbEntity> fresh = old ? replacement(*old) : nullptr;
    if (!fresh) continue;
    if (!changed) {  // whoever held ids of this drawing lets go of them first
      SetPickFirst(document, {});
      document.previousSelection.clear();
      ForgetUndo(document);
      changed = true;
    }
    AcDbObjectAccess::TakeXData(old, fresh.get());
    AcDbObjectAccess::Replace(body, held, fresh.release());
  }
  if (changed) TheHost().Ui().PictureChanged(document);
}

}  // namespace

void BindOpaqueEntities() {
  for (const auto& document : TheHost().documents.All())
    Exchange(*document, [](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      const bool known = AcDbProxyEntity::cast(&old) && acrxClassOfDxfName(DxfNameOf(old));
      return known ? Remade(old, Into::RealOne) : nullptr;
    });
}

void MakeEntitiesOpaque(const AcRxClass& cls) {
  for (const auto& document : TheHost().documents.All())
    Exchange(*document, [&](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      return old.isA() == &cls && cls.dxfName() ? Remade(old, Into::OpaqueOne) : nullptr;
    });
}

}  // namespace devhost

// Parents are linked as the classes are made; what is left is to give open drawings their objects.
void acrxBuildClassHierarchy() { devhost::BindOpaqueEntities(); }

void deleteAcRxClass(AcRxClass* cls) {
  if (!cls) return;
  devhost::MakeEntitiesOpaque(*cls);
  delete cls;
}
