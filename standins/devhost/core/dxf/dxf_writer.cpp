// The text of a drawing: release 2007 or that of its file if later, UTF-8; see drawing_file.h.
// Entities write their own groups, joined with those of the file (kept_groups.h). Sections, tables
// and entities that the host does not interpret are written as they were read.
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/application_names.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/dxf_filer.h"
#include "devhost/core/dxf/dxf_objects.h"
#include "devhost/core/dxf/header_systems.h"
#include "devhost/core/dxf/kept_groups.h"
#include "devhost/core/entities/dxf_name.h"

namespace devhost {
namespace {

constexpr wchar_t kRelease[] = L"AC1021";
constexpr wchar_t kHostApplication[] = L"ACAD";
constexpr wchar_t kLayers[] = L"LAYER", kBlocks[] = L"BLOCK_RECORD";
constexpr wchar_t kApplicationMark[] = L"AcDbRegAppTableRecord";

class Writer {
 public:
  explicit Writer(AcDbDatabase& database)
      : m_database(database), m_body(database.body()), m_filer(database, m_out) {}

  std::string Write();

 private:
  void WriteGroup(short code, const std::wstring& text) { m_filer.writeString(code, text.c_str()); }
  void Section(const wchar_t* name);
  void WriteGroups(const std::vector<KeptGroup>& groups);
  std::vector<KeptGroup> HeaderGroups() const;
  void Header();
  void HeaderGroup(const std::wstring& variable, const KeptGroup& group);
  void Tables();
  void WriteTables();
  void BeginTable(const wchar_t* name, std::size_t count, std::uint64_t handle);
  void TableMarks(std::uint64_t handle);
  void OwnTable(const wchar_t* name, const std::vector<KeptGroup>& head);
  void NamedRecords(const wchar_t* table, const wchar_t* mark,
                    const std::vector<std::wstring>& names);
  void NamedRecord(const wchar_t* table, const wchar_t* mark, const std::wstring& name);
  void ApplicationTable();
  void Record(const wchar_t* type, const AcDbObject& record, const wchar_t* mark);
  void Blocks();
  std::string SharedGroups(const wchar_t* layer);
  void Part(const wchar_t* type, const AcDbObject& owner, std::size_t index, std::string_view now);
  void BeginPart(const std::string& type, const AcDbObject& owner, std::size_t index);
  void EntitiesOf(const AcDbBlockTableRecord& block);
  void Entity(const AcDbEntity& entity, const AcDbObject& owner);
  void UnmarkedEntity(const AcDbProxyEntity& proxy);
  void Vertices(const AcDbEntity& entity, const ClassText& now, const ClassText& before,
                bool changed);
  const AcDbBlockTableRecord& Space(const wchar_t* name) const;
  const AcDbSymbolTable& Table(const wchar_t* name) const {
    return *static_cast<const AcDbSymbolTable*>(
        (SameName(name, kLayers) ? m_body.layerTable : m_body.blockTable).object());
  }

  AcDbDatabase& m_database;
  AcDbDatabase::Body& m_body;
  std::string m_out;
  DxfOutFiler m_filer;  // writes to m_out
};

// What the class wrote when the entity had been read.
std::string TextAfterReading(const AcDbEntity& entity) {
  AcDbDatabase& database = *entity.database();
  AcDbDatabase::Body& body = database.body();
  const std::uint64_t handle = entity.handle().value();
  std::string source = "0\n" + Utf8(DxfNameOf(entity)) + "\n" + body.kept[handle].own;
  for (const KeptPart& part : body.parts[handle])
    if (part.type == "VERTEX") ((source += "0\nVERTEX\n") += part.groups);
  const DxfScan scan = ScanDxf(source);
  DxfDecoder decoder;
  decoder.SetPage(65001);
  DxfProblems problems;
  DxfObjectMaker maker(database, decoder, problems);
  const std::unique_ptr<AcDbEntity> made = maker.MakeKnown(SplitWithVertices(scan.groups));
  std::string text;
  DxfOutFiler filer(database, text);
  if (made) made->dxfOutFields(&filer);
  return text;
}

bool IsMainSpace(const AcDbBlockTableRecord& block) {
  return SameName(block.getName(), ACDB_MODEL_SPACE) || SameName(block.getName(), ACDB_PAPER_SPACE);
}

void Writer::Section(const wchar_t* name) {
  WriteGroup(0, L"SECTION");
  WriteGroup(2, name);
}

void Writer::WriteGroups(const std::vector<KeptGroup>& groups) {
  for (const KeptGroup& group : groups) WriteGroup(group.code, group.text);
}

// The variables of the file, with those that a reader of this text needs. The release is first: it
// determines how the others are decoded.
std::vector<KeptGroup> Writer::HeaderGroups() const {
  std::vector<KeptGroup> groups = m_body.header;
  const auto has = [&](const wchar_t* variable) {
    return std::any_of(groups.begin(), groups.end(), [&](const KeptGroup& group) {
      return group.code == 9 && SameName(group.text, variable);
    });
  };
  if (!has(L"$ACADVER")) groups.insert(groups.begin(), {{9, L"$ACADVER"}, {1, kRelease}});
  if (m_body.header.empty()) groups.insert(groups.end(), {{9, L"$DWGCODEPAGE"}, {3, L"ANSI_936"}});
  if (!has(L"$HANDSEED")) groups.insert(groups.end(), {{9, L"$HANDSEED"}, {5, L"0"}});
  if (!has(L"$TILEMODE")) groups.insert(groups.end(), {{9, L"$TILEMODE"}, {70, L"1"}});
  return groups;
}

void Writer::HeaderGroup(const std::wstring& variable, const KeptGroup& group) {
  // Releases from 2007 on are all UTF-8.
  if (SameName(variable, L"$ACADVER"))
    WriteGroup(1, std::max<std::wstring>(group.text, kRelease));
  else if (SameName(variable, L"$HANDSEED"))
    m_filer.WriteHandle(5, m_body.nextHandle);
  else if (SameName(variable, L"$TILEMODE") &&
           (std::wcstol(group.text.c_str(), nullptr, 10) == 0) != m_body.paperIsCurrent)
    m_filer.writeInt(70, m_body.paperIsCurrent ? 0 : 1);
  else if (const auto number = SystemNumber(m_body, variable, group.code);
           number && *number != std::wcstod(group.text.c_str(), nullptr))
    m_filer.writeDouble(group.code, *number);
  else
    WriteGroup(group.code, group.text);
}

void Writer::Header() {
  Section(L"HEADER");
  std::wstring variable;
  for (const KeptGroup& group : HeaderGroups()) {
    if (group.code == 9)
      WriteGroup(9, variable = group.text);
    else
      HeaderGroup(variable, group);
  }
  for (const std::wstring& missing : MissingSystemVariables(m_body)) {
    WriteGroup(9, missing);
    for (const short code : {10, 20, 30})
      m_filer.writeDouble(code, *SystemNumber(m_body, missing, code));
  }
  WriteGroup(0, L"ENDSEC");
}

void Writer::BeginTable(const wchar_t* name, std::size_t count, std::uint64_t handle) {
  WriteGroup(0, L"TABLE");
  WriteGroup(2, name);
  TableMarks(handle);
  m_filer.writeInt(70, static_cast<int>(count));
}

void Writer::TableMarks(std::uint64_t handle) {
  m_filer.WriteHandle(5, handle);
  WriteGroup(330, L"0");
  WriteGroup(100, L"AcDbSymbolTable");
}

// Tables that other programs require, for drawings that were not read from a file.
void Writer::NamedRecords(const wchar_t* table, const wchar_t* mark,
                          const std::vector<std::wstring>& names) {
  if (HasTable(m_body.otherTables, table)) return;
  BeginTable(table, names.size(), m_body.AddedHandle(table));
  for (const std::wstring& name : names) NamedRecord(table, mark, name);
  WriteGroup(0, L"ENDTAB");
}

void Writer::NamedRecord(const wchar_t* table, const wchar_t* mark, const std::wstring& name) {
  WriteGroup(0, table);
  m_filer.WriteHandle(5, m_body.AddedHandle(std::wstring(table) + L"/" + name));
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
// only a hint to readers, is increased. Layers and block records follow the stored head.
void Writer::WriteTables() {
  const auto& groups = m_body.otherTables;
  auto missing = MissingNames(groups, ApplicationsInUse(m_body));
  std::wstring table, record;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto& [code, text] = groups[i];
    if (code == 0) record = text;
    if (code == 0 && text == L"TABLE" && i + 1 < groups.size()) {
      table = groups[i + 1].text;
      if (SameName(table, kLayers) || SameName(table, kBlocks)) {
        const std::size_t head = i;
        while (groups[i].text != L"ENDTAB" || groups[i].code != 0) ++i;
        OwnTable(SameName(table, kLayers) ? kLayers : kBlocks,
                 std::vector<KeptGroup>(groups.begin() + static_cast<std::ptrdiff_t>(head),
                                        groups.begin() + static_cast<std::ptrdiff_t>(i)));
        continue;
      }
    }
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

// Layers or block records, after the head of the file's table if it has one.
void Writer::OwnTable(const wchar_t* name, const std::vector<KeptGroup>& head) {
  const AcDbSymbolTable& table = Table(name);
  const std::uint64_t handle = table.handle().value();
  const auto isHandle = [](const KeptGroup& group) { return group.code == 5; };
  const bool hasHandle = std::any_of(head.begin(), head.end(), isHandle);
  const auto live = static_cast<std::size_t>(
      std::ranges::count_if(table.records(), [](AcDbObjectId id) { return !id.isErased(); }));
  if (head.empty()) BeginTable(name, live, handle);
  for (const KeptGroup& group : head) {
    if (isHandle(group))
      m_filer.WriteHandle(5, handle);
    else
      WriteGroup(group.code, group.text);
    if (group.code == 2 && !hasHandle) TableMarks(handle);
  }
  const wchar_t* mark = SameName(name, kLayers) ? L"AcDbLayerTableRecord" : L"AcDbBlockTableRecord";
  for (AcDbObjectId id : table.records())
    if (!id.isErased()) Record(name, *id.object(), mark);
  WriteGroup(0, L"ENDTAB");
}

void Writer::Record(const wchar_t* type, const AcDbObject& record, const wchar_t* mark) {
  std::string now;
  DxfOutFiler filer(m_database, now);
  filer.writeString(100, L"AcDbSymbolTableRecord");
  filer.writeString(100, mark);
  record.dxfOutFields(&filer);
  const auto found = m_body.kept.find(record.handle().value());
  const KeptObject kept = found == m_body.kept.end() ? KeptObject() : found->second;
  WriteGroup(0, type);
  m_filer.WriteHandle(5, record.handle().value());
  m_out += kept.lists;
  m_filer.WriteHandle(330, record.ownerId().handle().value());
  m_out += kept.own.empty() ? now : JoinGroups(WithMarks(kept.own, now), now);
  WriteXData(m_filer, AcDbObjectAccess::XData(record));
}

void Writer::Tables() {
  Section(L"TABLES");
  WriteTables();
  NamedRecords(L"LTYPE", L"AcDbLinetypeTableRecord", {L"ByBlock", L"ByLayer", L"Continuous"});
  if (!HasTable(m_body.otherTables, kLayers)) OwnTable(kLayers, {});
  NamedRecords(L"STYLE", L"AcDbTextStyleTableRecord", {L"Standard"});
  ApplicationTable();
  if (!HasTable(m_body.otherTables, kBlocks)) OwnTable(kBlocks, {});
  WriteGroup(0, L"ENDSEC");
}

void Writer::BeginPart(const std::string& type, const AcDbObject& owner, std::size_t index) {
  ((m_out += "0\n") += type) += '\n';
  m_filer.WriteHandle(5, m_body.Part(owner.handle().value(), index).handle);
  m_filer.WriteHandle(330, owner.handle().value());
}

std::string Writer::SharedGroups(const wchar_t* layer) {
  std::string text;
  DxfOutFiler filer(m_database, text);
  filer.writeString(100, L"AcDbEntity");
  filer.writeString(8, layer);
  return text;
}

// What is written only for parts that are not from a file: their layer.
std::string WithoutLayer(std::string_view groups) {
  std::string text;
  for (const TextGroup& group : SplitGroups(groups))
    if (group.code != 8) text += group.lines;
  return text;
}

// Writes a part with the groups that it has in the file, of which those in `now` may have changed.
void Writer::Part(const wchar_t* type, const AcDbObject& owner, std::size_t index,
                  std::string_view now) {
  BeginPart(Utf8(type), owner, index);
  const KeptPart& part = m_body.Part(owner.handle().value(), index);
  if (part.type.empty())
    m_out += now;
  else
    m_out += JoinGroups(WithMarks(part.groups, now), WithoutLayer(now));
}

// The vertices of a polyline and its SEQEND. Those of the file keep their groups, apart from what
// the class changed, and so do vertices that the class does not read.
void Writer::Vertices(const AcDbEntity& entity, const ClassText& now, const ClassText& before,
                      bool changed) {
  if (now.parts.empty()) return;
  const std::vector<KeptPart>& kept = m_body.parts[entity.handle().value()];
  PartMatch match(now.parts), old(before.parts);
  std::size_t count = 0;  // of parts from the file, which precede others
  std::optional<std::size_t> end;
  for (; count < kept.size() && !kept[count].type.empty(); ++count) {
    const KeptPart& part = kept[count];
    if (part.type == "SEQEND") end = count;
    if (end) continue;
    const auto next = match.Next(part), was = old.Next(part);
    if (!next && IsReadByClass(part)) continue;  // removed
    BeginPart(part.type, entity, count);
    m_out += !changed || !next ? part.groups
             : was             ? JoinGroups(part.groups, *was, *next)
                               : JoinGroups(part.groups, *next);
  }
  std::size_t at = count;
  for (std::string_view vertex : match.Rest()) {
    BeginPart("VERTEX", entity, at++);
    m_out += vertex;
  }
  Part(L"SEQEND", entity, end.value_or(at), match.SequenceEnd());
}

// A proxy without subclass marks, from a file of R12: with the marks of other releases its groups
// could not be distinguished from the shared ones.
void Writer::UnmarkedEntity(const AcDbProxyEntity& proxy) {
  const auto* space = AcDbBlockTableRecord::cast(proxy.ownerId().object());
  if (space && SameName(space->getName(), ACDB_PAPER_SPACE)) m_filer.writeInt(67, 1);
  WriteGroup(8, proxy.layer());
  if (AcDbObjectAccess::HasLinetype(proxy)) WriteGroup(6, proxy.linetype());
  if (proxy.colorIndex() != 256) m_filer.writeInt(62, proxy.colorIndex());
  for (const AcDbProxyEntity::Group& group : proxy.groups()) WriteGroup(group.code, group.text);
  WriteXData(m_filer, AcDbObjectAccess::XData(proxy));
}

bool IsUnmarked(const AcDbProxyEntity& proxy) {
  return !proxy.groups().empty() &&
         std::none_of(proxy.groups().begin(), proxy.groups().end(),
                      [](const AcDbProxyEntity::Group& group) { return group.code == 100; });
}

void Writer::Entity(const AcDbEntity& entity, const AcDbObject& owner) {
  WriteGroup(0, DxfNameOf(entity));
  m_filer.WriteHandle(5, entity.handle().value());
  if (const auto* proxy = AcDbProxyEntity::cast(&entity); proxy && IsUnmarked(*proxy))
    return UnmarkedEntity(*proxy);
  std::string text, textBefore;
  DxfOutFiler filer(m_database, text);
  entity.dxfOutFields(&filer);
  const ClassText now = SplitClassText(text);
  m_out += now.lists;
  m_filer.WriteHandle(330, owner.handle().value());
  m_out += now.shared;
  const auto kept = m_body.kept.find(entity.handle().value());
  const bool known = kept != m_body.kept.end() && !AcDbProxyEntity::cast(&entity);
  const bool changed = known && now.hash != kept->second.asWritten;
  ClassText before;
  if (changed) before = SplitClassText(textBefore = TextAfterReading(entity));
  m_out += !known    ? std::string(now.own)
           : changed ? JoinGroups(kept->second.own, before.own, now.own)
                     : kept->second.own;
  WriteXData(m_filer, AcDbObjectAccess::XData(entity));
  Vertices(entity, now, before, changed);
  const auto* reference = AcDbBlockReference::cast(&entity);
  if (!reference) return;
  bool any = false;
  for (AcDbObjectId id : reference->attributes()) {
    if (id.isErased()) continue;
    Entity(*AcDbEntity::cast(id.object()), entity);
    any = true;
  }
  if (any) Part(L"SEQEND", entity, 0, SharedGroups(entity.layer()));
}

void Writer::EntitiesOf(const AcDbBlockTableRecord& block) {
  for (AcDbObjectId id : block.entities())
    if (!id.isErased()) Entity(*AcDbEntity::cast(id.object()), block);
}

void Writer::Blocks() {
  Section(L"BLOCKS");
  for (AcDbObjectId id : Table(kBlocks).records()) {
    const auto& block = *static_cast<const AcDbBlockTableRecord*>(id.object());
    if (id.isErased()) continue;
    std::string now = SharedGroups(L"0");
    DxfOutFiler filer(m_database, now);
    filer.writeString(100, L"AcDbBlockBegin");
    filer.writeString(2, block.getName());
    filer.writeInt(70, block.flags());
    filer.writePoint(10, block.origin());
    filer.writeString(3, block.getName());
    Part(L"BLOCK", block, 0, now);
    if (!IsMainSpace(block)) EntitiesOf(block);
    Part(L"ENDBLK", block, 1, SharedGroups(L"0") + "100\nAcDbBlockEnd\n");
  }
  WriteGroup(0, L"ENDSEC");
}

const AcDbBlockTableRecord& Writer::Space(const wchar_t* name) const {
  AcDbObjectId id;
  static_cast<const AcDbSymbolTable*>(m_body.blockTable.object())->getAt(name, id);
  return *static_cast<const AcDbBlockTableRecord*>(id.object());
}

// The header is made last: its next handle is above those that writing gives to parts.
std::string Writer::Write() {
  if (!m_body.classes.empty()) {
    Section(L"CLASSES");
    WriteGroups(m_body.classes);
    WriteGroup(0, L"ENDSEC");
  }
  Tables();
  Blocks();
  Section(L"ENTITIES");
  EntitiesOf(Space(ACDB_MODEL_SPACE));
  EntitiesOf(Space(ACDB_PAPER_SPACE));
  WriteGroup(0, L"ENDSEC");
  WriteGroups(m_body.otherSections);
  WriteGroup(0, L"EOF");
  const std::string sections = std::exchange(m_out, {});
  Header();
  return m_out + sections;
}

}  // namespace

// The database changes only in the handles of parts that get their first one.
std::string DrawingText(const AcDbDatabase& database) {
  return Writer(const_cast<AcDbDatabase&>(database)).Write();
}

}  // namespace devhost
