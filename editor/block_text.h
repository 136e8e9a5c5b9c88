// The command TTextEditInBlock: finds the text under a pick inside a block reference and opens it
// for editing. The block definition changes, and with it every reference of the block
// (block_references.h).
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "editor/block_references.h"
#include "editor/text_objects.h"

namespace qvx {

struct NestedPick {
  AcDbObjectId entity;   // inside the block
  AcGePoint3d user;      // in the user's coordinate system
  AcGeMatrix3d toWorld;  // from the block's space
};

enum class PlainTextClass { kText, kMText };  // AcDbText, AcDbMText

class BlockTextHost : public TextObjects {
 public:
  // RTNORM or the code of a pick without an object. Messages are handled meanwhile.
  virtual int PickNested(const wchar_t* prompt, const wchar_t* types, NestedPick& pick) = 0;
  virtual double Aperture() const = 0;  // in units of the world
  virtual AcGePoint3d UserToWorld(const AcGePoint3d& user) const = 0;
  virtual AcGePoint3d WorldToUser(const AcGePoint3d& world) const = 0;

  // Null when nothing was found. Corners in the user's coordinate system.
  virtual std::unique_ptr<ReferenceSet> SelectCrossing(const AcGePoint3d& from,
                                                       const AcGePoint3d& to,
                                                       const wchar_t* types) = 0;
  // In the whole drawing; `namePattern` is compared with the block's name by wild cards.
  virtual std::unique_ptr<ReferenceSet> SelectReferences(const wchar_t* types,
                                                         const std::wstring& namePattern) = 0;
  virtual std::wstring EscapeWildCards(const std::wstring& name) const = 0;

  virtual bool IsReference(AcDbObjectId object) const = 0;  // AcDbBlockReference
  virtual AcDbObjectId RecordOf(AcDbObjectId reference) const = 0;
  // The dynamic block's definition; null when the block is not dynamic.
  virtual AcDbObjectId DynamicRecordOf(AcDbObjectId reference) const = 0;
  virtual std::optional<std::wstring> NameOf(AcDbObjectId record) const = 0;
  // In the record's order, without erased ones.
  virtual std::vector<AcDbObjectId> EntitiesOf(AcDbObjectId record) const = 0;

  virtual bool IsEntity(AcDbObjectId object) const = 0;          // opens as AcDbEntity
  virtual std::wstring TypeName(AcDbObjectId object) const = 0;  // group 0
  virtual bool Is(AcDbObjectId object, const wchar_t* type) const = 0;
  virtual void Highlight(AcDbObjectId object, bool on) = 0;
  // A fragment over a copy of the object; null when it is of another class.
  virtual std::unique_ptr<EditFragment> NewFragment(AcDbObjectId object, PlainTextClass type) = 0;
  virtual void RunAttributeEditor(const ReferenceSet& references) = 0;
};

// Asks again after each step that fails; ends with an edit, a cancel or an error.
void EditTextInBlock(BlockTextHost& host, BlockReferences& blocks);

// The entity at the same place of the dynamic definition as `picked` has in the anonymous copy;
// `picked` when there is none. Both records list their entities in the same order.
AcDbObjectId FindCounterpart(const BlockTextHost& host, AcDbObjectId copy, AcDbObjectId definition,
                             AcDbObjectId picked);

}  // namespace qvx
