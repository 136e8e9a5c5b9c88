// Writing drawings: release 2007 text, which is UTF-8; see drawing_file.h. Entities write their
// own groups; sections, tables and entities that the host does not interpret are written as
// they were read.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/application_names.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/dxf_filer.h"
#include "devhost/core/dxf/header_systems.h"
#include "devhost/core/entities/dxf_name.h"

namespace devhost {
namespace {

constexpr wchar_t kRelease[] = L"AC1021";
constexpr wchar_t kHostApplication[] = L"ACAD";
constexpr wchar_t kApplicationMark[] = L"AcDbRegAppTableRecord";

class Writer {
 public:
  explicit Writer(AcDbDatabase& database)
      : m_database(database), m_body(database.body()), m_filer(database, m_out) {}

  const std::string& Write();

 private:
  // A group 0 without the handle that sub-entities get.
  void WriteType(const wchar_t* type) { WriteGroup(0, type); }
  void WriteGroup(short code, const std::wstring& text);
  void Section(const wchar_t* name);
  void WriteGroups(const std::vector<KeptGroup>& groups);
  void WriteOtherTables();
  void Header();
  void HeaderWithoutFile();
  void Tables();
  bool HasTable(const wchar_t* name) const;
  void BeginTable(const wchar_t* name, std::size_t count);
  void NamedRecords(const wchar_t* table, const wchar_t* mark,
                    const std::vector<std::wstring>& names);
  void NamedRecord(const wchar_t* table, const wchar_t* mark, const std::wstring& name);
  void ApplicationTable();
  void LayerTable();
  void BlockRecordTable();
  void RecordHead(const wchar_t* type, const AcDbObject& record, const wchar_t* mark);
  void Blocks();
  void EntitiesOf(const AcDbBlockTableRecord& block);
  void Entity(const AcDbEntity& entity, const AcDbObject& owner);
  const AcDbBlockTableRecord& Space(const wchar_t* name) const;
  const std::vector<AcDbObjectId>& Records(AcDbObjectId table) const {
    return static_cast<const AcDbSymbolTable*>(table.object())->records();
  }

  AcDbDatabase& m_database;
  AcDbDatabase::Body& m_body;
  std::string m_out;
  DxfOutFiler m_filer;
};

bool IsMainSpace(const AcDbBlockTableRecord& block) {
  return SameName(block.getName(), ACDB_MODEL_SPACE) || SameName(block.getName(), ACDB_PAPER_SPACE);
}

void Writer::WriteGroup(short code, const std::wstring& text) {
  if (code == 0)
    m_filer.WriteType(text);
  else
    m_filer.writeString(code, text.c_str());
}

void Writer::Section(const wchar_t* name) {
  WriteType(L"SECTION");
  WriteGroup(2, name);
}

void Writer::WriteGroups(const std::vector<KeptGroup>& groups) {
  for (const KeptGroup& group : groups) WriteGroup(group.code, group.text);
}

void Writer::HeaderWithoutFile() {
  WriteGroup(9, L"$ACADVER");
  WriteGroup(1, kRelease);
  WriteGroup(9, L"$DWGCODEPAGE");
  WriteGroup(3, L"ANSI_936");
  WriteGroup(9, L"$HANDSEED");
  m_filer.WriteHandle(5, m_body.nextHandle + 0x10000);
  WriteGroup(9, L"$TILEMODE");
  m_filer.writeInt(70, m_body.paperIsCurrent ? 0 : 1);
}

void Writer::Header() {
  Section(L"HEADER");
  if (m_body.header.empty()) HeaderWithoutFile();
  std::wstring name;
  for (const KeptGroup& group : m_body.header) {
    if (group.code == 9) name = group.text;
    if (group.code == 9)
      WriteGroup(9, name);
    else if (SameName(name, L"$ACADVER"))
      WriteGroup(1, kRelease);
    // Parts get handles during writing, so the seed is well above the next handle.
    else if (SameName(name, L"$HANDSEED"))
      m_filer.WriteHandle(5, m_body.nextHandle + 0x10000);
    else if (SameName(name, L"$TILEMODE"))
      m_filer.writeInt(70, m_body.paperIsCurrent ? 0 : 1);
    else if (const auto number = SystemNumber(m_body, name, group.code);
             number && *number != std::wcstod(group.text.c_str(), nullptr))
      m_filer.writeDouble(group.code, *number);
    else
      WriteGroup(group.code, group.text);
  }
  for (const std::wstring& variable : MissingSystemVariables(m_body)) {
    WriteGroup(9, variable);
    for (const short code : {10, 20, 30})
      m_filer.writeDouble(code, *SystemNumber(m_body, variable, code));
  }
  WriteType(L"ENDSEC");
}

bool Writer::HasTable(const wchar_t* name) const {
  const auto& groups = m_body.otherTables;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i)
    if (groups[i].code == 0 && groups[i].text == L"TABLE" && SameName(groups[i + 1].text, name))
      return true;
  return false;
}

void Writer::BeginTable(const wchar_t* name, std::size_t count) {
  WriteType(L"TABLE");
  WriteGroup(2, name);
  m_filer.WriteHandle(5, m_body.NextHandle());
  WriteGroup(330, L"0");
  WriteGroup(100, L"AcDbSymbolTable");
  m_filer.writeInt(70, static_cast<int>(count));
}

void Writer::RecordHead(const wchar_t* type, const AcDbObject& record, const wchar_t* mark) {
  WriteType(type);
  m_filer.WriteHandle(5, record.handle().value());
  WriteGroup(100, L"AcDbSymbolTableRecord");
  WriteGroup(100, mark);
}

// Tables that other programs require, for drawings that were not read from a file.
void Writer::NamedRecords(const wchar_t* table, const wchar_t* mark,
                          const std::vector<std::wstring>& names) {
  if (HasTable(table)) return;
  BeginTable(table, names.size());
  for (const std::wstring& name : names) NamedRecord(table, mark, name);
  WriteType(L"ENDTAB");
}

void Writer::NamedRecord(const wchar_t* table, const wchar_t* mark, const std::wstring& name) {
  WriteType(table);
  m_filer.WriteHandle(5, m_body.NextHandle());
  WriteGroup(100, L"AcDbSymbolTableRecord");
  WriteGroup(100, mark);
  WriteGroup(2, name);
  m_filer.writeInt(70, 0);
  if (!SameName(table, L"LTYPE")) return;
  WriteGroup(3, L"");
  m_filer.writeInt(72, 65);
  m_filer.writeInt(73, 0);
  m_filer.writeDouble(40, 0);
}

void Writer::ApplicationTable() {
  std::vector<std::wstring> names = ApplicationsInUse(m_body);
  std::erase_if(names, [](const std::wstring& name) { return SameName(name, kHostApplication); });
  names.insert(names.begin(), kHostApplication);
  NamedRecords(L"APPID", kApplicationMark, names);
}

// Writes stored tables unchanged, except that an APPID table gets the missing names. Its count,
// only a hint to readers, is increased.
void Writer::WriteOtherTables() {
  const auto& groups = m_body.otherTables;
  auto missing = MissingNames(groups, ApplicationsInUse(m_body));
  std::wstring table, record;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto& [code, text] = groups[i];
    if (code == 0) record = text;
    if (code == 0 && text == L"TABLE" && i + 1 < groups.size()) table = groups[i + 1].text;
    const bool applications = SameName(table, L"APPID") && !missing.empty();
    if (applications && record == L"TABLE" && code == 70) {
      m_filer.writeInt(70, std::max(0, static_cast<int>(std::wcstol(text.c_str(), nullptr, 10))) +
                               static_cast<int>(missing.size()));
      continue;
    }
    if (applications && record == L"ENDTAB") {
      for (const std::wstring& name : missing) NamedRecord(L"APPID", kApplicationMark, name);
      missing.clear();
    }
    WriteGroup(code, text);
  }
}

void Writer::LayerTable() {
  const auto& records = Records(m_body.layerTable);
  BeginTable(L"LAYER", records.size());
  for (AcDbObjectId id : records) {
    if (id.isErased()) continue;
    RecordHead(L"LAYER", *id.object(), L"AcDbLayerTableRecord");
    id.object()->dxfOutFields(&m_filer);
    WriteXData(m_filer, AcDbObjectAccess::XData(*id.object()));
  }
  WriteType(L"ENDTAB");
}

void Writer::BlockRecordTable() {
  const auto& records = Records(m_body.blockTable);
  BeginTable(L"BLOCK_RECORD", records.size());
  for (AcDbObjectId id : records) {
    if (id.isErased()) continue;
    RecordHead(L"BLOCK_RECORD", *id.object(), L"AcDbBlockTableRecord");
    id.object()->dxfOutFields(&m_filer);
    WriteXData(m_filer, AcDbObjectAccess::XData(*id.object()));
  }
  WriteType(L"ENDTAB");
}

void Writer::Tables() {
  Section(L"TABLES");
  WriteOtherTables();
  NamedRecords(L"LTYPE", L"AcDbLinetypeTableRecord", {L"ByBlock", L"ByLayer", L"Continuous"});
  LayerTable();
  NamedRecords(L"STYLE", L"AcDbTextStyleTableRecord", {L"Standard"});
  ApplicationTable();
  BlockRecordTable();
  WriteType(L"ENDSEC");
}

void Writer::Entity(const AcDbEntity& entity, const AcDbObject& owner) {
  WriteType(DxfNameOf(entity));
  m_filer.WriteHandle(5, entity.handle().value());
  m_filer.WriteHandle(330, owner.handle().value());
  m_filer.BeforeNextObject([&] { WriteXData(m_filer, AcDbObjectAccess::XData(entity)); });
  entity.dxfOutFields(&m_filer);
  m_filer.RunPending();
  const auto* reference = AcDbBlockReference::cast(&entity);
  if (!reference || reference->attributes().empty()) return;
  for (AcDbObjectId id : reference->attributes())
    if (!id.isErased()) Entity(*AcDbEntity::cast(id.object()), entity);
  m_filer.writeString(0, L"SEQEND");
  WriteGroup(100, L"AcDbEntity");
  WriteGroup(8, entity.layer());
}

void Writer::EntitiesOf(const AcDbBlockTableRecord& block) {
  for (AcDbObjectId id : block.entities())
    if (!id.isErased()) Entity(*AcDbEntity::cast(id.object()), block);
}

void Writer::Blocks() {
  Section(L"BLOCKS");
  for (AcDbObjectId id : Records(m_body.blockTable)) {
    const auto& block = *static_cast<const AcDbBlockTableRecord*>(id.object());
    if (id.isErased()) continue;
    m_filer.writeString(0, L"BLOCK");
    m_filer.WriteHandle(330, block.handle().value());
    WriteGroup(100, L"AcDbEntity");
    WriteGroup(8, L"0");
    WriteGroup(100, L"AcDbBlockBegin");
    WriteGroup(2, block.getName());
    m_filer.writeInt(70, block.flags());
    m_filer.writePoint(10, block.origin());
    WriteGroup(3, block.getName());
    WriteGroup(1, L"");
    if (!IsMainSpace(block)) EntitiesOf(block);
    m_filer.writeString(0, L"ENDBLK");
    m_filer.WriteHandle(330, block.handle().value());
    WriteGroup(100, L"AcDbEntity");
    WriteGroup(8, L"0");
    WriteGroup(100, L"AcDbBlockEnd");
  }
  WriteType(L"ENDSEC");
}

const AcDbBlockTableRecord& Writer::Space(const wchar_t* name) const {
  AcDbObjectId id;
  static_cast<const AcDbSymbolTable*>(m_body.blockTable.object())->getAt(name, id);
  return *static_cast<const AcDbBlockTableRecord*>(id.object());
}

const std::string& Writer::Write() {
  Header();
  if (!m_body.classes.empty()) {
    Section(L"CLASSES");
    WriteGroups(m_body.classes);
    WriteType(L"ENDSEC");
  }
  Tables();
  Blocks();
  Section(L"ENTITIES");
  EntitiesOf(Space(ACDB_MODEL_SPACE));
  EntitiesOf(Space(ACDB_PAPER_SPACE));
  WriteType(L"ENDSEC");
  WriteGroups(m_body.otherSections);
  WriteType(L"EOF");
  return m_out;
}

bool Fail(std::wstring* why, const std::wstring& path) {
  if (why) *why = path + L": 无法写入文件";
  return false;
}

}  // namespace

// The database changes only in its next handle.
std::string DrawingText(const AcDbDatabase& database) {
  return Writer(const_cast<AcDbDatabase&>(database)).Write();
}

// Written to a temporary file and renamed, so that a full disk does not destroy the old drawing.
bool WriteDrawing(const std::wstring& path, const AcDbDatabase& database, std::wstring* why) {
  const std::filesystem::path target(path), beside(path + L".tmp");
  {
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    const std::string text = DrawingText(database);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.flush();
    if (!file) {
      std::error_code ignored;
      std::filesystem::remove(beside, ignored);
      return Fail(why, path);
    }
  }
  std::error_code error;
  std::filesystem::rename(beside, target, error);
  if (!error) {
    database.body().modified = 0;
    return true;
  }
  std::filesystem::remove(beside, error);
  return Fail(why, path);
}

}  // namespace devhost
