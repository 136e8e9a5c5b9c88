// Objects from groups; see the header.
#include "devhost/core/dxf/dxf_objects.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "adslib.h"
#include "dbents.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/db_classes.h"
#include "devhost/core/dxf/dxf_filer.h"
#include "devhost/core/dxf/kept_groups.h"

namespace devhost {
namespace {

bool IsSharedMark(std::string_view value) { return TrimBlanks(value) == "AcDbEntity"; }

// The number of groups in the shared part: up to the first subclass mark of the class. Files of R12
// have no marks; there shared groups may be anywhere.
std::size_t SharedGroupCount(std::span<const DxfGroup> groups) {
  for (std::size_t i = 1; i < groups.size(); ++i)
    if (groups[i].code == 100 && !IsSharedMark(groups[i].value)) return i;
  const bool marks =
      std::any_of(groups.begin(), groups.end(), [](const DxfGroup& g) { return g.code == 100; });
  return marks ? groups.size() : 0;
}

bool ReadSharedGroup(DxfObject& object, const DxfGroup& group) {
  switch (group.code) {
    case 5:
      object.handle = DxfHandle(group.value).value_or(0);
      return true;
    case 6:
      object.linetype = group.value;
      return true;
    case 8:
      object.layer = group.value;
      return true;
    case 62: {
      const long long color = DxfInteger(group.value).value_or(256);
      object.color = color >= 0 && color <= 256 ? static_cast<int>(color) : 256;
      return true;
    }
    case 67:
      object.inPaper = DxfInteger(group.value).value_or(0) == 1;
      return true;
    default:
      return false;
  }
}

// The groups of an embedded object, which class members must not take.
std::vector<DxfGroup>::const_iterator ForeignGroups(const std::vector<DxfGroup>& own) {
  return std::find_if(own.begin(), own.end(), [](const DxfGroup& group) {
    return BeginsForeignGroups(group.code, group.value);
  });
}

}  // namespace

void DxfProblems::Add(int line, const wchar_t* text) {
  if (m_count++ > 0) return;
  m_line = line;
  m_text = text;
}

std::wstring DxfProblems::Message(const std::wstring& fileName) const {
  if (IsEmpty()) return {};
  std::wstring message = fileName + L"(" + std::to_wstring(m_line) + L"): " + m_text;
  if (m_count > 1) message += L" (另有 " + std::to_wstring(m_count - 1) + L" 处问题)";
  return message;
}

DxfObject SplitObject(std::span<const DxfGroup> groups, DxfObjectKind kind) {
  DxfObject object;
  object.type = TrimBlanks(groups[0].value);
  object.line = groups[0].line;
  const auto xdata = std::find_if(groups.begin() + 1, groups.end(),
                                  [](const DxfGroup& g) { return g.code == 1001; });
  const std::size_t end = static_cast<std::size_t>(xdata - groups.begin());
  object.xdata = groups.subspan(end);
  const std::size_t shared = SharedGroupCount(groups.first(end));
  object.hasMarks = shared > 0;
  bool inBraces = false, owner = false;
  for (std::size_t i = 1; i < end; ++i) {
    const DxfGroup& group = groups[i];
    const bool plain = shared == 0 || (i < shared && !inBraces);
    if (shared > 0 && i < shared) {
      // Reactors and the extension dictionary are lists in braces; a 330 in them is not the owner.
      if (group.code == 102) inBraces = TrimBlanks(group.value).substr(0, 1) == "{";
      if (!inBraces && group.code == 330 && !owner) {
        owner = true;
        continue;
      }
      if (group.code == 100) continue;
    }
    const bool shares = kind == DxfObjectKind::Entity || group.code == 5;
    if (plain && shares && ReadSharedGroup(object, group)) continue;
    (i < shared ? object.common : object.own).push_back(group);
  }
  return object;
}

void AddVertex(DxfObject& polyline, std::span<const DxfGroup> vertex) {
  const DxfObject object = SplitObject(vertex);
  polyline.own.push_back(vertex[0]);
  polyline.own.insert(polyline.own.end(), object.own.begin(), object.own.end());
}

DxfObject SplitWithVertices(std::span<const DxfGroup> groups) {
  const auto next = [&](std::size_t at) {
    return static_cast<std::size_t>(
        std::find_if(groups.begin() + static_cast<std::ptrdiff_t>(at) + 1, groups.end(),
                     [](const DxfGroup& group) { return group.code == 0; }) -
        groups.begin());
  };
  std::size_t at = next(0);
  DxfObject object = SplitObject(groups.first(at));
  for (; at < groups.size(); at = next(at)) AddVertex(object, groups.subspan(at, next(at) - at));
  return object;
}

std::unique_ptr<AcDbEntity> DxfObjectMaker::MakeKnown(const DxfObject& object) {
  const AcRxClass* cls = acrxClassOfDxfName(m_decoder.Text(object.type).c_str());
  std::unique_ptr<AcRxObject> made(cls ? cls->create() : nullptr);
  AcDbEntity* entity = AcDbEntity::cast(made.get());
  if (!entity) return nullptr;
  const auto foreign = IsHostClass(*cls) ? ForeignGroups(object.own) : object.own.end();
  DxfInFiler filer(m_database, m_decoder, std::span(object.own.begin(), foreign));
  const bool read = entity->dxfInFields(&filer) == Acad::eOk;
  if (filer.BadLine() != 0) {
    m_problems.Add(filer.BadLine(), L"应为数值，该图元未读入");
    m_refused = true;
    return nullptr;
  }
  if (!read) return nullptr;  // rejected by its class: becomes opaque
  made.release();
  SetShared(*entity, object);
  return std::unique_ptr<AcDbEntity>(entity);
}

std::unique_ptr<AcDbEntity> DxfObjectMaker::MakeOpaque(const DxfObject& object) {
  auto proxy = std::make_unique<AcDbProxyEntity>();
  proxy->setOriginalDxfName(UpperCase(m_decoder.Text(object.type)).c_str());
  for (const DxfGroup& group : object.own)
    proxy->addGroup(group.code, m_decoder.Text(group.value).c_str());
  SetShared(*proxy, object);
  return proxy;
}

void DxfObjectMaker::SetShared(AcDbEntity& entity, const DxfObject& object) {
  if (!object.layer.empty()) entity.setLayer(m_decoder.Text(object.layer).c_str());
  if (!object.linetype.empty()) entity.setLinetype(m_decoder.Text(object.linetype).c_str());
  entity.setColorIndex(object.color);
  if (object.common.empty()) return;
  std::vector<KeptGroup>& kept = AcDbObjectAccess::CommonGroups(entity);
  for (const DxfGroup& group : object.common)
    kept.push_back({group.code, m_decoder.Text(group.value)});
}

void DxfObjectMaker::FillXData(AcDbObject& to, const DxfObject& object) {
  for (resbuf* chain : XDataChains(object.xdata, m_decoder)) {
    to.setXData(chain);
    acutRelRb(chain);
  }
}

AcDbEntity* DxfObjectMaker::MakeEntity(const DxfObject& object) {
  m_refused = false;
  std::unique_ptr<AcDbEntity> made = MakeKnown(object);
  if (!made && m_refused) return nullptr;
  if (!made) made = MakeOpaque(object);
  AcDbEntity* entity = made.release();  // owned by the database from here on
  AcDbObjectAccess::AddObject(m_database, entity, AcDbHandle(object.handle));
  FillXData(*entity, object);
  return entity;
}

bool DxfObjectMaker::FillRecord(AcDbObject& record, const DxfObject& object) {
  DxfInFiler filer(m_database, m_decoder, object.own);
  record.dxfInFields(&filer);
  if (filer.BadLine() != 0) m_problems.Add(filer.BadLine(), L"应为数值");
  FillXData(record, object);
  return filer.BadLine() == 0;
}

std::string DxfObjectMaker::TextOf(std::span<const DxfGroup> groups) const {
  std::string text;
  for (const DxfGroup& group : groups) AppendGroup(text, group, m_decoder);
  return text;
}

KeptPart DxfObjectMaker::PartOf(std::span<const DxfGroup> groups) const {
  KeptPart part;
  part.type = TrimBlanks(groups[0].value);
  const bool marks =
      std::any_of(groups.begin(), groups.end(), [](const DxfGroup& g) { return g.code == 100; });
  bool inBraces = false, handle = false, owner = !marks;
  for (const DxfGroup& group : groups.subspan(1)) {
    if (group.code == 102) inBraces = TrimBlanks(group.value).starts_with("{");
    if (group.code == 5 && !std::exchange(handle, true)) {
      part.handle = DxfHandle(group.value).value_or(0);
      continue;
    }
    if (group.code == 330 && !inBraces && !std::exchange(owner, true)) continue;
    AppendGroup(part.groups, group, m_decoder);
  }
  return part;
}

void DxfObjectMaker::Keep(AcDbEntity& entity, std::string own) {
  if (!IsHostClass(*entity.isA())) return;
  std::string text;
  DxfOutFiler filer(m_database, text);
  entity.dxfOutFields(&filer);
  const ClassText now = SplitClassText(text);
  AcDbDatabase::Body& body = m_database.body();
  body.kept[entity.handle().value()] = {{}, WithMarks(own, now.own), now.hash};
  const auto parts = body.parts.find(entity.handle().value());
  if (parts == body.parts.end() || now.parts.empty()) return;
  PartMatch match(now.parts);
  for (KeptPart& part : parts->second) part.groups = WithMarks(part.groups, match.Model(part));
}

void DxfObjectMaker::Keep(AcDbObject& record, const DxfObject& object) {
  m_database.body().kept[record.handle().value()] = {TextOf(object.common), TextOf(object.own), 0};
}

}  // namespace devhost
