// Dynamic blocks; see the header.
#include "devhost/core/blocks/dynamic_block.h"

#include <algorithm>
#include <cwchar>
#include <memory>

#include "adslib.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/undo/object_copy.h"

namespace devhost {
namespace {

constexpr wchar_t kTrueName[] = L"AcDbDynamicBlockTrueName";
constexpr wchar_t kDefinition[] = L"AcDbBlockRepBTag";
constexpr wchar_t kState[] = L"DEVHOST_BLOCK_STATE";
constexpr int kAnonymous = 1;  // flag of a block

// Frees a chain.
struct ReleaseChain {
  void operator()(resbuf* chain) const { acutRelRb(chain); }
};
using Chain = std::unique_ptr<resbuf, ReleaseChain>;

const resbuf* Find(const resbuf* chain, int code) {
  while (chain && chain->restype != code) chain = chain->rbnext;
  return chain;
}

AcDbBlockTable& BlocksOf(const AcDbObject& object) {
  return *AcDbBlockTable::cast(object.database()->blockTableId().object());
}

std::wstring HandleText(const AcDbObject& object) {
  ACHAR text[17];
  object.handle().getIntoAsciiBuffer(text);
  return text;
}

void SetData(AcDbObject& object, resbuf* data) {
  const Chain owner(data);
  object.setXData(data);
}

std::wstring FreeName(const AcDbBlockTable& blocks) {
  for (int number = 1;; ++number) {
    std::wstring name = L"*U" + std::to_wstring(number);
    if (!blocks.has(name.c_str())) return name;
  }
}

AcDbBlockTableRecord* NewCopy(const AcDbBlockTableRecord& definition, const BlockState& state) {
  AcDbBlockTable& blocks = BlocksOf(definition);
  auto made = std::make_unique<AcDbBlockTableRecord>();
  made->setName(FreeName(blocks).c_str());
  made->setOrigin(definition.origin());
  made->setFlags(definition.flags() | kAnonymous);
  if (blocks.add(made.get()) != Acad::eOk) return nullptr;
  AcDbBlockTableRecord* copy = made.release();
  SetData(*copy,
          acutBuildList(1001, kDefinition, 1070, 1, 1005, HandleText(definition).c_str(), RTNONE));
  SetData(*copy,
          acutBuildList(1001, kState, 1070, state.flipped ? 1 : 0, 1040, state.stretch, RTNONE));
  UpdateCopy(*copy, definition);
  return copy;
}

AcDbBlockTableRecord* CopyInState(const AcDbBlockTableRecord& definition, const BlockState& state) {
  for (AcDbBlockTableRecord* copy : CopiesOf(definition))
    if (StateOf(*copy) == state) return copy;
  return NewCopy(definition, state);
}

// Moves the part of the entity that is right of the line: as a whole, or its ends and vertices.
void Stretch(AcDbEntity& entity, double line, double by) {
  AcDbExtents extents;
  if (entity.getGeomExtents(extents) != Acad::eOk || extents.maxPoint().x <= line) return;
  const AcGeVector3d offset(by, 0, 0);
  if (extents.minPoint().x >= line) {
    entity.subTransformBy(AcGeMatrix3d::translation(offset));
  } else if (auto* straight = AcDbLine::cast(&entity)) {
    if (straight->startPoint().x > line) straight->setStartPoint(straight->startPoint() + offset);
    if (straight->endPoint().x > line) straight->setEndPoint(straight->endPoint() + offset);
  } else if (auto* polyline = AcDbPolyline::cast(&entity)) {
    for (unsigned i = 0; i < polyline->numVerts(); ++i) {
      AcGePoint3d at;
      polyline->getPointAt(i, at);
      if (at.x > line) polyline->setPointAt(i, at + offset);
    }
  }
}

void ApplyState(AcDbEntity& entity, const BlockState& state, const AcGePoint3d& base) {
  if (state.stretch != 0) Stretch(entity, base.x, state.stretch);
  if (!state.flipped) return;
  AcGeMatrix3d mirror;
  mirror.a = -1;
  mirror.tx = 2 * base.x;
  entity.subTransformBy(mirror);
}

// Puts the attributes where the definition has them in that state. Their values are unchanged.
void PlaceAttributes(AcDbBlockReference& reference, const AcDbBlockTableRecord& definition,
                     const BlockState& state) {
  for (AcDbObjectId id : reference.attributes()) {
    auto* attribute = id.isErased() ? nullptr : AcDbAttribute::cast(id.object());
    const AcDbAttributeDefinition* from =
        attribute ? AttributeNamed(definition, attribute->tagConst()) : nullptr;
    if (!from) continue;
    AcDbObjectAccess::NotifyChanging(*attribute);
    const std::wstring value = attribute->textStringConst();
    attribute->setAttributeFromBlock(from, AcGeMatrix3d());
    attribute->setTextString(value.c_str());
    ApplyState(*attribute, state, definition.origin());
    attribute->subTransformBy(reference.blockTransform());
  }
}

// Whether the data of one can be written into the other. Attributes are objects of their own.
bool CanTakeData(const AcDbEntity& to, const AcDbEntity& from) {
  const auto hasAttributes = [](const AcDbEntity& entity) {
    const auto* reference = AcDbBlockReference::cast(&entity);
    return reference && !reference->attributes().empty();
  };
  return to.isA() == from.isA() && !AcDbProxyEntity::cast(&to) && !hasAttributes(to) &&
         !hasAttributes(from);
}

}  // namespace

bool IsDynamic(const AcDbBlockTableRecord& block) {
  return AcDbObjectAccess::IsEnhanced(block) || Chain(block.xData(kTrueName));
}

void MakeDynamic(AcDbBlockTableRecord& block) {
  SetData(block, acutBuildList(1001, kTrueName, 1000, block.getName(), RTNONE));
}

AcDbBlockTableRecord* DynamicDefinitionOf(AcDbBlockTableRecord& block) {
  if (IsDynamic(block)) return &block;
  const Chain data(block.xData(kDefinition));
  const resbuf* handle = Find(data.get(), 1005);
  AcDbObjectId id;
  if (!handle || !block.database() ||
      block.database()->getAcDbObjectId(
          id, false, AcDbHandle(std::wcstoull(handle->resval.rstring, nullptr, 16))) != Acad::eOk)
    return nullptr;
  auto* definition = AcDbBlockTableRecord::cast(id.object());
  return definition && IsDynamic(*definition) ? definition : nullptr;
}

BlockState StateOf(const AcDbBlockTableRecord& copy) {
  const Chain data(copy.xData(kState));
  const resbuf* flipped = Find(data.get(), 1070);
  const resbuf* stretch = Find(data.get(), 1040);
  return {flipped && flipped->resval.rint != 0, stretch ? stretch->resval.rreal : 0};
}

std::vector<AcDbBlockTableRecord*> CopiesOf(const AcDbBlockTableRecord& definition) {
  std::vector<AcDbBlockTableRecord*> copies;
  for (AcDbObjectId id : BlocksOf(definition).records()) {
    auto* block = id.isErased() ? nullptr : AcDbBlockTableRecord::cast(id.object());
    if (block && block != &definition && DynamicDefinitionOf(*block) == &definition)
      copies.push_back(block);
  }
  return copies;
}

bool SetState(AcDbBlockReference& reference, const BlockState& state) {
  auto* block = AcDbBlockTableRecord::cast(reference.blockTableRecord().object());
  AcDbBlockTableRecord* definition = block ? DynamicDefinitionOf(*block) : nullptr;
  if (!definition) return false;
  const AcDbBlockTableRecord* shown =
      state.IsInitial() ? definition : CopyInState(*definition, state);
  if (!shown || reference.setBlockTableRecord(shown->objectId()) != Acad::eOk) return false;
  PlaceAttributes(reference, *definition, state);
  return true;
}

void UpdateCopy(AcDbBlockTableRecord& copy, const AcDbBlockTableRecord& definition) {
  const BlockState state = StateOf(copy);
  const std::vector<AcDbEntity*> from = LiveEntities(definition), to = LiveEntities(copy);
  std::size_t same = 0;
  for (; same < std::min(from.size(), to.size()) && CanTakeData(*to[same], *from[same]); ++same) {
    AcDbObjectAccess::NotifyChanging(*to[same]);
    CopyData(*from[same], *to[same]);
    ApplyState(*to[same], state, definition.origin());
  }
  // The rest in the order of the definition.
  for (std::size_t i = same; i < to.size(); ++i) to[i]->erase();
  for (std::size_t i = same; i < from.size(); ++i)
    if (AcDbEntity* entity = CopyInto(copy, *from[i], AcGeMatrix3d()))
      ApplyState(*entity, state, definition.origin());
}

}  // namespace devhost
