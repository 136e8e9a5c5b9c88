// Drawing files as blocks; see the header. Entities are copied by their file groups.
#include "devhost/core/commands/insert_drawing.h"

#include <memory>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/dxf_filer.h"
#include "devhost/core/dxf/dxf_objects.h"
#include "devhost/core/entities/dxf_name.h"
#include "devhost/core/host/host.h"

namespace devhost {
namespace {

AcDbBlockTable& BlocksOf(const AcDbDatabase& database) {
  return *AcDbBlockTable::cast(database.blockTableId().object());
}

bool IsSpace(const std::wstring& name) { return !name.empty() && name[0] == L'*'; }

class DrawingCopy {
 public:
  DrawingCopy(AcDbDatabase& from, AcDbDatabase& to) : m_from(from), m_to(to) {
    m_decoder.SetPage(65001);
  }

  void CopyLayers() {
    auto& layers = *AcDbLayerTable::cast(m_to.layerTableId().object());
    for (AcDbObjectId id : AcDbLayerTable::cast(m_from.layerTableId().object())->records()) {
      const auto* old = AcDbLayerTableRecord::cast(id.object());
      if (layers.has(old->getName())) continue;
      auto layer = std::make_unique<AcDbLayerTableRecord>();
      layer->setName(old->getName());
      layer->setColorIndex(old->isOff() ? -old->colorIndex() : old->colorIndex());
      layer->setLinetype(old->linetype());
      if (layers.add(layer.get()) == Acad::eOk) layer.release();
    }
  }

  // Blocks before the entities that refer to them; references find their block by name.
  void CopyBlocks() {
    for (AcDbObjectId id : BlocksOf(m_from).records()) {
      const auto* old = AcDbBlockTableRecord::cast(id.object());
      if (!IsSpace(old->getName()) && !BlocksOf(m_to).has(old->getName()))
        CopyBlock(*old, old->getName());
    }
  }

  AcDbObjectId CopyBlock(const AcDbBlockTableRecord& old, const std::wstring& name) {
    auto made = std::make_unique<AcDbBlockTableRecord>();
    made->setName(name.c_str());
    made->setOrigin(old.origin());
    made->setFlags(old.flags());
    if (BlocksOf(m_to).add(made.get()) != Acad::eOk) return {};
    AcDbBlockTableRecord* block = made.release();
    for (AcDbObjectId id : old.entities())
      if (AcDbEntity* entity = id.isErased() ? nullptr : AcDbEntity::cast(id.object()))
        CopyEntity(*entity, *block);
    return block->objectId();
  }

 private:
  std::unique_ptr<AcDbEntity> CopyOf(const AcDbEntity& old) {
    std::string text = "0\n";
    DxfOutFiler out(m_from, text);
    text += Utf8(DxfNameOf(old)) + "\n";
    old.dxfOutFields(&out);
    text += "0\nEOF\n";
    const DxfScan scan = ScanDxf(text);
    const std::span<const DxfGroup> groups(scan.groups);
    DxfObjectMaker maker(m_to, m_decoder, m_problems);
    const DxfObject object = SplitObject(groups.first(groups.size() - 1));
    std::unique_ptr<AcDbEntity> made = maker.MakeKnown(object);
    if (!made) made = maker.MakeOpaque(object);
    AcDbObjectAccess::SetXData(*made, AcDbObjectAccess::XData(old));
    return made;
  }

  void CopyEntity(const AcDbEntity& old, AcDbBlockTableRecord& block) {
    std::unique_ptr<AcDbEntity> made = CopyOf(old);
    if (block.appendAcDbEntity(made.get()) != Acad::eOk) return;
    auto* reference = AcDbBlockReference::cast(made.release());
    const auto* oldReference = AcDbBlockReference::cast(&old);
    if (!reference || !oldReference) return;
    for (AcDbObjectId id : oldReference->attributes()) {
      const AcDbEntity* attribute = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
      if (!attribute) continue;
      std::unique_ptr<AcDbEntity> copy = CopyOf(*attribute);
      if (reference->appendAttribute(AcDbAttribute::cast(copy.get())) == Acad::eOk) copy.release();
    }
  }

  AcDbDatabase& m_from;
  AcDbDatabase& m_to;
  DxfDecoder m_decoder;
  DxfProblems m_problems;
};

}  // namespace

AcDbObjectId BlockForInsert(AcDbDatabase& database, const std::wstring& name, std::wstring* why) {
  AcDbObjectId id;
  const std::wstring block = WithoutExtension(FileNameOf(name));
  if (!IsSpace(name) && BlocksOf(database).getAt(name.c_str(), id) == Acad::eOk) return id;
  if (IsSpace(block) || block.empty()) {
    *why = L"块名无效: " + name;
    return {};
  }
  const std::wstring path = TheHost().FindFile(name);
  AcDbDatabase file;
  const DrawingReport report = ReadDrawing(path.empty() ? name : path, file);
  *why = report.message;
  if (!report.readAnything) return {};
  if (BlocksOf(database).getAt(block.c_str(), id) == Acad::eOk) return id;  // inserted before
  DrawingCopy copy(file, database);
  copy.CopyLayers();
  copy.CopyBlocks();
  AcDbObjectId space;
  BlocksOf(file).getAt(ACDB_MODEL_SPACE, space);
  id = copy.CopyBlock(*AcDbBlockTableRecord::cast(space.object()), block);
  if (id.isNull()) *why = L"图形 " + name + L" 含有与它同名的块。";
  return id;
}

}  // namespace devhost
