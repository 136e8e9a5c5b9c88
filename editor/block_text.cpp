#include "editor/block_text.h"

#include <algorithm>
#include <utility>

#include "adscodes.h"
#include "editor/block_text_rows.h"
#include "kernel/twcstring.h"

namespace qvx {
namespace {

constexpr const wchar_t* kPrompt = L"\n请选择需要修改的各类文字<退出>";
constexpr const wchar_t* kTextTypes = L"QVX_*, TEXT, ATTRIB";
constexpr const wchar_t* kPickedTypes = L"QVX_BLOCK_INSERT,INSERT";
constexpr const wchar_t* kReferenceTypes = L"INSERT,QVX_BLOCK_INSERT,QVX_MVINSERT";
constexpr double kSmallestAperture = 1e-6;

// A pick that lies on a block reference.
struct Found {
  AcDbObjectId entity;
  AcGePoint3d inBlock;  // the picked point in the block's own space
  AcGeMatrix3d toWorld;
  std::unique_ptr<ReferenceSet> references;  // at the point; the first one counts
};

bool FindReferences(BlockTextHost& host, const NestedPick& pick, Found& found) {
  const AcGePoint3d world = host.UserToWorld(pick.user);
  AcGeMatrix3d toBlock;
  if (!pick.toWorld.invert(&toBlock)) return false;
  found.entity = pick.entity;
  found.inBlock = toBlock * world;
  found.toWorld = pick.toWorld;
  const double a = host.Aperture();
  if (!(a >= kSmallestAperture)) return false;
  found.references =
      host.SelectCrossing(host.WorldToUser({world.x - a, world.y - a, world.z}),
                          host.WorldToUser({world.x + a, world.y + a, world.z}), kPickedTypes);
  return found.references && found.references->Length() > 0 && !host.IsGone();
}

// Notes the dynamic definition and the references of the same name. A dynamic block's reference
// refers to an anonymous copy, so that the name is the copy's.
bool NoteBlock(BlockTextHost& host, BlockReferences& blocks, Found& found) {
  const AcDbObjectId reference = found.references->At(0);
  if (!host.IsReference(reference)) return false;
  const AcDbObjectId record = host.RecordOf(reference);
  const AcDbObjectId definition = host.DynamicRecordOf(reference);
  if (!definition.isNull()) blocks.NoteDynamicBlock(definition);
  const std::optional<std::wstring> name = host.NameOf(record);
  if (!name) return false;
  if (!definition.isNull()) found.entity = FindCounterpart(host, record, definition, found.entity);
  blocks.NoteSameName(nullptr);
  blocks.NoteSameName(host.SelectReferences(kReferenceTypes, host.EscapeWildCards(*name)));
  return !host.IsGone();
}

class PickedType : public TypeTest {
 public:
  PickedType(const BlockTextHost& host, AcDbObjectId object)
      : m_host(host), m_object(object), m_name(host.TypeName(object).c_str()) {}
  bool HasName(const wchar_t* type) const override { return m_name.EqualsNoCase(type); }
  bool Is(const wchar_t* type) const override { return m_host.Is(m_object, type); }

 private:
  const BlockTextHost& m_host;
  AcDbObjectId m_object;
  TWCString m_name;
};

std::unique_ptr<EditFragment> HitText(BlockTextHost& host, const Found& found) {
  if (!host.IsEntity(found.entity)) return nullptr;
  std::unique_ptr<EditFragment> text;
  for (const TextCarrier carrier : {TextCarrier::kEntity, TextCarrier::kCurve})
    if (!text && host.IsCarrier(carrier, found.entity))
      text = host.GetSubTextAt(carrier, found.entity, found.inBlock);
  for (const PlainTextClass type : {PlainTextClass::kText, PlainTextClass::kMText})
    if (!text) text = host.NewFragment(found.entity, type);
  return text;
}

TextObjects::EditFunction OwnEdit(BlockTextHost& host, AcDbObjectId entity) {
  TextObjects::EditFunction edit;
  if (host.IsReference(entity) || host.Is(entity, L"QVX_MVINSERT")) return edit;
  for (const TextCarrier carrier : {TextCarrier::kEntity, TextCarrier::kCurve})
    if (!edit && host.IsCarrier(carrier, entity)) edit = host.GetEditFunction(carrier, entity);
  return edit;
}

// Succeeds without a routine too.
bool RunOwnEdit(BlockTextHost& host, BlockReferences& blocks, AcDbObjectId entity) {
  host.Highlight(entity, true);
  if (const TextObjects::EditFunction edit = OwnEdit(host, entity)) edit(entity);
  if (host.IsGone()) return true;
  host.Highlight(entity, false);
  blocks.ReportSameNameBlocks();
  if (!host.IsGone()) blocks.UpdateDynBlock();
  return true;
}

bool EditInPlace(BlockTextHost& host, std::unique_ptr<EditFragment> text,
                 const AcGeMatrix3d& toWorld) {
  if (!text) return false;
  host.ClearSelection();
  if (!host.IsGone()) host.BeginEdit(std::move(text), toWorld);
  return true;
}

bool EditFound(BlockTextHost& host, BlockReferences& blocks, const Found& found) {
  switch (FindBlockTextAction(PickedType(host, found.entity))) {
    case BlockTextAction::kAttributeEditor:
      host.RunAttributeEditor(*found.references);
      return true;
    case BlockTextAction::kPlainText:
      return EditInPlace(host, host.NewFragment(found.entity, PlainTextClass::kText),
                         found.toWorld);
    case BlockTextAction::kOwnEdit:
      return RunOwnEdit(host, blocks, found.entity);
    case BlockTextAction::kOwnEditAtText:
      if (!HitText(host, found)) return false;  // the hit alone counts
      return RunOwnEdit(host, blocks, found.entity);
    case BlockTextAction::kInPlaceAtText:
      return EditInPlace(host, HitText(host, found), found.toWorld);
    default:
      return false;
  }
}

}  // namespace

void EditTextInBlock(BlockTextHost& host, BlockReferences& blocks) {
  for (;;) {
    blocks.ForgetDynamicBlock();
    NestedPick pick;
    const int answer = host.PickNested(kPrompt, kTextTypes, pick);
    if (host.IsGone() || answer == RTERROR || answer == RTCAN) return;
    if (answer != RTNORM) continue;
    Found found;
    if (FindReferences(host, pick, found) && NoteBlock(host, blocks, found) &&
        EditFound(host, blocks, found))
      return;
    if (host.IsGone()) return;
  }
}

AcDbObjectId FindCounterpart(const BlockTextHost& host, AcDbObjectId copy, AcDbObjectId definition,
                             AcDbObjectId picked) {
  const std::vector<AcDbObjectId> copied = host.EntitiesOf(copy);
  const auto place = static_cast<size_t>(std::ranges::find(copied, picked) - copied.begin());
  if (place == copied.size()) return picked;
  const std::vector<AcDbObjectId> defined = host.EntitiesOf(definition);
  return place < defined.size() ? defined[place] : picked;
}

}  // namespace qvx
