// Objects from groups; see the header.
#include "devhost/core/dxf/dxf_objects.h"

#include <algorithm>
#include <memory>

#include "adslib.h"
#include "dbents.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/dxf_filer.h"

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

std::unique_ptr<AcDbEntity> DxfObjectMaker::MakeKnown(const DxfObject& object) {
  const AcRxClass* cls = acrxClassOfDxfName(m_decoder.Text(object.type).c_str());
  std::unique_ptr<AcRxObject> made(cls ? cls->create() : nullptr);
  AcDbEntity* entity = AcDbEntity::cast(made.get());
  if (!entity) return nullptr;
  DxfInFiler filer(m_database, m_decoder, object.own);
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

void DxfObjectMaker::FillRecord(AcDbObject& record, const DxfObject& object) {
  DxfInFiler filer(m_database, m_decoder, object.own);
  record.dxfInFields(&filer);
  if (filer.BadLine() != 0) m_problems.Add(filer.BadLine(), L"应为数值");
  FillXData(record, object);
}

}  // namespace devhost
