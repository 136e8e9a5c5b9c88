// Reading drawings, section by section and object by object; see drawing_file.h. Damage costs the
// object in which it is and is reported once. An object at which the file ends is dropped.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unordered_set>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/application_names.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/dynamic_marks.h"
#include "devhost/core/dxf/dxf_objects.h"
#include "devhost/core/dxf/dxf_text.h"
#include "devhost/core/dxf/header_systems.h"

namespace devhost {
namespace {

constexpr unsigned kUtf8 = 65001;

// From here on handles are not taken from files. The first ones are for objects that wait for their
// handle while a file is read.
constexpr std::uint64_t kNoHandle = std::uint64_t{1} << 62, kAside = 1 << 16;

const wchar_t* DamageMessage(DxfDamage damage) {
  switch (damage) {
    case DxfDamage::NotText:
      return L"这是二进制图形交换文件，只能读取文本格式";
    case DxfDamage::BadCode:
      return L"组码不是整数，其后的内容未读入";
    case DxfDamage::Truncated:
      return L"组码之后没有值，文件在此中断";
    case DxfDamage::NoEndMark:
      return L"文件在此中断，没有结束标记 EOF";
    case DxfDamage::DataAfterEnd:
      return L"结束标记 EOF 之后还有数据，已忽略";
    case DxfDamage::None:
      break;
  }
  return L"";
}

// Sub-entities and structure marks are not entities; nor are names that cannot be written back.
bool CanBeEntity(std::string_view type) {
  for (std::string_view mark :
       {"VERTEX", "SEQEND", "ATTRIB", "BLOCK", "ENDBLK", "TABLE", "ENDTAB", "CLASS"})
    if (type == mark) return false;
  return !type.empty() && std::all_of(type.begin(), type.end(), [](char c) {
    return static_cast<unsigned char>(c) > ' ' && c != '\\' && c != '^';
  });
}

class Reader {
 public:
  Reader(const std::vector<DxfGroup>& groups, AcDbDatabase& database, DxfProblems& problems)
      : m_groups(groups),
        m_database(database),
        m_body(database.body()),
        m_problems(problems),
        m_maker(database, m_decoder, problems) {}

  bool Read();  // false: there is no section

 private:
  using Groups = std::span<const DxfGroup>;

  bool Is(std::size_t at, short code, std::string_view value) const {
    return at < m_groups.size() && m_groups[at].code == code &&
           TrimBlanks(m_groups[at].value) == value;
  }
  std::size_t NextObject(std::size_t at) const;  // the next group 0 after this one
  // The groups of the object at an index; empty if the file ends inside it.
  Groups ObjectAt(std::size_t at) const;
  void ReserveHandles();
  void SettleHandles();

  std::size_t ReadSection(std::size_t at);
  void ReadHeader(std::size_t from, std::size_t to);
  void ReadHeaderVariable(std::string_view name, const DxfGroup& value);
  void ReadTables(std::size_t from, std::size_t to);
  void ReadTableHead(std::size_t at, AcDbObjectId table);
  void ReadLayer(Groups groups);
  void ReadBlockRecord(Groups groups);
  void ReadBlocks(std::size_t from, std::size_t to);
  struct BlockHead {
    std::wstring name;
    AcGePoint3d origin;
    int flags = 0;
  };
  BlockHead ReadBlockHead(const DxfObject& object) const;
  std::size_t ReadBlock(std::size_t at, std::size_t to);
  std::size_t ReadEntities(std::size_t from, std::size_t to, AcDbBlockTableRecord* block);
  std::size_t ReadEntity(std::size_t at, std::size_t to, AcDbBlockTableRecord* block);
  std::size_t AddVertices(std::size_t at, std::size_t to, DxfObject& polyline,
                          std::vector<KeptPart>& parts) const;
  std::size_t TakeSequenceEnd(std::size_t at, std::size_t to, std::vector<KeptPart>& parts) const;
  std::size_t ReadAttributes(std::size_t at, std::size_t to, AcDbBlockReference& reference);
  void StoreGroups(std::size_t from, std::size_t to, std::vector<KeptGroup>& where) const;
  AcDbBlockTableRecord* BlockNamed(std::wstring name, bool* existed, AcDbHandle wanted = {});

  const std::vector<DxfGroup>& m_groups;
  AcDbDatabase& m_database;
  AcDbDatabase::Body& m_body;
  DxfProblems& m_problems;
  DxfDecoder m_decoder;
  DxfObjectMaker m_maker;
};

std::size_t Reader::NextObject(std::size_t at) const {
  for (++at; at < m_groups.size() && m_groups[at].code != 0; ++at) {
  }
  return at;
}

Reader::Groups Reader::ObjectAt(std::size_t at) const {
  const std::size_t end = NextObject(at);
  if (end >= m_groups.size()) return {};
  return Groups(m_groups).subspan(at, end - at);
}

// Moves the database's own objects out of the way of the file's handles. New handles are above all
// of the file and not below its next one.
void Reader::ReserveHandles() {
  std::uint64_t next = m_body.nextHandle;
  bool seed = false;
  for (const DxfGroup& group : m_groups) {
    if (group.code == 5 || group.code == 105) {
      const std::uint64_t handle = DxfHandle(group.value).value_or(0);
      if (handle < kNoHandle) next = std::max(next, seed ? handle : handle + 1);
    }
    seed = group.code == 9 && TrimBlanks(group.value) == "$HANDSEED";
  }
  m_body.nextHandle = next;
  std::uint64_t aside = kNoHandle;
  for (const auto& object : m_body.objects)
    while (!AcDbObjectAccess::ChangeHandle(object.get(), AcDbHandle(aside++))) {
    }
}

// Gives handles to the database's own objects that the file does not have. A part whose handle is
// in use gets another one when it is written.
void Reader::SettleHandles() {
  for (const auto& object : m_body.objects)
    if (object->handle().value() >= kNoHandle && object->handle().value() < kNoHandle + kAside)
      AcDbObjectAccess::ChangeHandle(object.get(), AcDbHandle(m_body.NextHandle()));
  std::unordered_set<std::uint64_t> used;
  for (auto& [owner, parts] : m_body.parts)
    for (KeptPart& part : parts)
      if (part.handle >= kNoHandle || m_body.byHandle.contains(part.handle) ||
          !used.insert(part.handle).second)
        part.handle = 0;
}

bool Reader::Read() {
  ReserveHandles();
  bool any = false, outside = false;
  for (std::size_t at = 0; at < m_groups.size();) {
    if (Is(at, 0, "EOF")) break;
    if (Is(at, 0, "SECTION")) {
      any = true;
      at = ReadSection(at);
      continue;
    }
    if (!outside) m_problems.Add(m_groups[at].line, L"段之外有数据，已跳过");
    outside = true;
    ++at;
  }
  SettleHandles();
  return any;
}

std::size_t Reader::ReadSection(std::size_t at) {
  if (at + 1 >= m_groups.size()) return at + 1;
  if (m_groups[at + 1].code != 2) {
    m_problems.Add(m_groups[at].line, L"段没有名称，已跳过");
    return NextObject(at);
  }
  const std::string_view name = TrimBlanks(m_groups[at + 1].value);
  const std::size_t from = at + 2;
  std::size_t to = from;
  while (to < m_groups.size() && !Is(to, 0, "ENDSEC") && !Is(to, 0, "SECTION") && !Is(to, 0, "EOF"))
    ++to;
  if (to < m_groups.size() && !Is(to, 0, "ENDSEC"))
    m_problems.Add(m_groups[to].line, L"段没有结束 (ENDSEC)");
  if (name == "HEADER")
    ReadHeader(from, to);
  else if (name == "CLASSES")
    StoreGroups(from, to, m_body.classes);
  else if (name == "TABLES")
    ReadTables(from, to);
  else if (name == "BLOCKS")
    ReadBlocks(from, to);
  else if (name == "ENTITIES") {
    for (std::size_t next = from; next < to;) next = ReadEntities(next, to, nullptr);
  } else if (to < m_groups.size()) {
    StoreGroups(at, to, m_body.otherSections);
    m_body.otherSections.push_back({0, L"ENDSEC"});
  }
  return Is(to, 0, "ENDSEC") ? to + 1 : to;
}

void Reader::StoreGroups(std::size_t from, std::size_t to, std::vector<KeptGroup>& where) const {
  for (std::size_t i = from; i < to; ++i)
    where.push_back(
        {m_groups[i].code, m_decoder.Text(m_groups[i].code == 0 ? TrimBlanks(m_groups[i].value)
                                                                : m_groups[i].value)});
}

void Reader::ReadHeader(std::size_t from, std::size_t to) {
  for (std::size_t i = from; i + 1 < to; ++i)
    if (m_groups[i].code == 9) ReadHeaderVariable(TrimBlanks(m_groups[i].value), m_groups[i + 1]);
  StoreGroups(from, to, m_body.header);
  ReadHeaderSystems(m_body);
}

void Reader::ReadHeaderVariable(std::string_view name, const DxfGroup& value) {
  const std::string_view text = TrimBlanks(value.value);
  if (name == "$ACADVER" && text >= "AC1021") m_decoder.SetPage(kUtf8);
  if (name == "$DWGCODEPAGE" && m_decoder.Page() != kUtf8)
    if (const auto page = DxfPageOf(text)) m_decoder.SetPage(*page);
  if (name == "$TILEMODE") m_body.paperIsCurrent = DxfInteger(text).value_or(1) == 0;
}

void Reader::ReadTables(std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < to;) {
    if (!Is(at, 0, "TABLE")) {
      m_problems.Add(m_groups[at].line, L"表之外有数据，已跳过");
      for (++at; at < to && !Is(at, 0, "TABLE"); ++at) {
      }
      continue;
    }
    std::size_t end = at;
    while (end < to && !Is(end, 0, "ENDTAB")) ++end;
    const std::string_view name = at + 1 < to && m_groups[at + 1].code == 2
                                      ? TrimBlanks(m_groups[at + 1].value)
                                      : std::string_view();
    const bool layers = name == "LAYER", blocks = name == "BLOCK_RECORD";
    if (layers || blocks) ReadTableHead(at, layers ? m_body.layerTable : m_body.blockTable);
    for (std::size_t record = NextObject(at); record < end; record = NextObject(record)) {
      const Groups groups = ObjectAt(record);
      if (groups.empty()) break;
      if (layers) ReadLayer(groups);
      if (blocks) ReadBlockRecord(groups);
    }
    if (end < to && !layers && !blocks) {
      StoreGroups(at, end, m_body.otherTables);
      m_body.otherTables.push_back({0, L"ENDTAB"});
    }
    at = end + 1;
  }
}

// Keeps what precedes the records. Of two tables of one kind the first gives the head.
void Reader::ReadTableHead(std::size_t at, AcDbObjectId table) {
  const Groups head = ObjectAt(at);
  if (head.empty() || HasTable(m_body.otherTables, m_decoder.Text(TrimBlanks(head[1].value))))
    return;
  for (const DxfGroup& group : head)
    if (group.code == 5)
      AcDbObjectAccess::ChangeHandle(table.object(),
                                     AcDbHandle(DxfHandle(group.value).value_or(0)));
  StoreGroups(at, at + head.size(), m_body.otherTables);
  m_body.otherTables.push_back({0, L"ENDTAB"});
}

void Reader::ReadLayer(Groups groups) {
  const DxfObject object = SplitObject(groups, DxfObjectKind::Record);
  auto record = std::make_unique<AcDbLayerTableRecord>();
  const bool good = m_maker.FillRecord(*record, object);
  auto* table = AcDbLayerTable::cast(m_body.layerTable.object());
  AcDbObjectId id;
  if (table->getAt(record->getName(), id) == Acad::eOk) {  // layer 0 always exists
    m_maker.FillRecord(*id.object(), object);
    AcDbObjectAccess::ChangeHandle(id.object(), AcDbHandle(object.handle));
  } else {
    id = record->objectId();
    AcDbObjectAccess::AddObject(m_database, record.get(), AcDbHandle(object.handle));
    table->add(record.release());
  }
  if (good) m_maker.Keep(*id.object(), object);
}

AcDbBlockTableRecord* Reader::BlockNamed(std::wstring name, bool* existed, AcDbHandle wanted) {
  // R12 writes the spaces with a dollar sign.
  if (SameName(name, L"$MODEL_SPACE")) name = ACDB_MODEL_SPACE;
  if (SameName(name, L"$PAPER_SPACE")) name = ACDB_PAPER_SPACE;
  auto* table = AcDbBlockTable::cast(m_body.blockTable.object());
  AcDbObjectId id;
  *existed = table->getAt(name.c_str(), id) == Acad::eOk;
  if (*existed) return AcDbBlockTableRecord::cast(id.object());
  auto* block = new AcDbBlockTableRecord;
  block->setName(name.c_str());
  AcDbObjectAccess::AddObject(m_database, block, wanted);
  table->add(block);
  return block;
}

void Reader::ReadBlockRecord(Groups groups) {
  const DxfObject object = SplitObject(groups, DxfObjectKind::Record);
  std::wstring name;
  for (const DxfGroup& group : object.own)
    if (group.code == 2) name = m_decoder.Text(group.value);
  if (name.empty()) return;
  bool existed = false;
  AcDbBlockTableRecord* block = BlockNamed(name, &existed, AcDbHandle(object.handle));
  AcDbObjectAccess::ChangeHandle(block, AcDbHandle(object.handle));
  m_maker.FillXData(*block, object);
  m_maker.Keep(*block, object);
}

void Reader::ReadBlocks(std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < to;) {
    if (Is(at, 0, "BLOCK")) {
      at = ReadBlock(at, to);
      continue;
    }
    m_problems.Add(m_groups[at].line, L"块之外有数据，已跳过");
    for (++at; at < to && !Is(at, 0, "BLOCK"); ++at) {
    }
  }
}

Reader::BlockHead Reader::ReadBlockHead(const DxfObject& object) const {
  BlockHead head;
  for (const DxfGroup& group : object.own) switch (group.code) {
      case 2:
        head.name = m_decoder.Text(TrimBlanks(group.value));
        break;
      case 10:
        head.origin.x = DxfReal(group.value).value_or(0);
        break;
      case 20:
        head.origin.y = DxfReal(group.value).value_or(0);
        break;
      case 30:
        head.origin.z = DxfReal(group.value).value_or(0);
        break;
      case 70:
        head.flags = static_cast<int>(DxfInteger(group.value).value_or(0));
        break;
      default:
        break;
    }
  return head;
}

std::size_t Reader::ReadBlock(std::size_t at, std::size_t to) {
  const Groups groups = ObjectAt(at);
  if (groups.empty()) return to;
  const DxfObject object = SplitObject(groups);
  const BlockHead head = ReadBlockHead(object);
  bool existed = false;
  AcDbBlockTableRecord* block = BlockNamed(head.name, &existed);
  // Of two blocks with one name the first is used; with both, the entities would be drawn twice.
  const bool second = existed && !block->entities().empty() && !head.name.starts_with(L'*');
  if (second) m_problems.Add(object.line, L"同名的块已经存在，已跳过");
  const std::uint64_t handle = block->handle().value();
  if (!second) {
    block->setOrigin(head.origin);
    block->setFlags(head.flags);
    m_body.parts[handle] = {m_maker.PartOf(groups)};
  }
  std::size_t next = NextObject(at);
  while (next < to && !Is(next, 0, "ENDBLK") && !Is(next, 0, "BLOCK"))
    next = second ? NextObject(next) : ReadEntity(next, to, block);
  if (Is(next, 0, "ENDBLK")) {
    const Groups end = ObjectAt(next);
    if (!second && !end.empty()) m_body.parts[handle].push_back(m_maker.PartOf(end));
    return NextObject(next);
  }
  if (next < m_groups.size()) m_problems.Add(m_groups[next].line, L"块没有结束 (ENDBLK)");
  return next;
}

std::size_t Reader::ReadEntities(std::size_t from, std::size_t to, AcDbBlockTableRecord* block) {
  if (m_groups[from].code == 0) return ReadEntity(from, to, block);
  m_problems.Add(m_groups[from].line, L"图元之外有数据，已跳过");
  return NextObject(from);
}

// Reads one entity with its sub-entities. Returns the index after them.
std::size_t Reader::ReadEntity(std::size_t at, std::size_t to, AcDbBlockTableRecord* block) {
  const Groups groups = ObjectAt(at);
  std::size_t next = NextObject(at);
  if (groups.empty() || next > to) return to;
  DxfObject object = SplitObject(groups);
  if (!CanBeEntity(object.type)) {
    m_problems.Add(object.line, L"此处不应有这样的对象，已跳过");
    return next;
  }
  std::string own = m_maker.TextOf(object.own);
  std::vector<KeptPart> parts;
  if (object.type == "POLYLINE") next = AddVertices(next, to, object, parts);
  AcDbEntity* entity = m_maker.MakeEntity(object);
  if (!entity) return next;
  if (!parts.empty()) m_body.parts[entity->handle().value()] = std::move(parts);
  if (!block) {
    bool existed = false;
    block = BlockNamed(object.inPaper ? ACDB_PAPER_SPACE : ACDB_MODEL_SPACE, &existed);
  }
  block->appendAcDbEntity(entity);
  AcDbBlockReference* reference = AcDbBlockReference::cast(entity);
  if (reference && Is(next, 0, "ATTRIB")) next = ReadAttributes(next, to, *reference);
  m_maker.Keep(*entity, std::move(own));
  return next;
}

std::size_t Reader::AddVertices(std::size_t at, std::size_t to, DxfObject& polyline,
                                std::vector<KeptPart>& parts) const {
  while (at < to && Is(at, 0, "VERTEX")) {
    const Groups groups = ObjectAt(at);
    if (groups.empty()) return to;
    AddVertex(polyline, groups);
    parts.push_back(m_maker.PartOf(groups));
    at = NextObject(at);
  }
  return TakeSequenceEnd(at, to, parts);
}

std::size_t Reader::TakeSequenceEnd(std::size_t at, std::size_t to,
                                    std::vector<KeptPart>& parts) const {
  if (at >= to || !Is(at, 0, "SEQEND")) return at;
  const Groups groups = ObjectAt(at);
  if (!groups.empty()) parts.push_back(m_maker.PartOf(groups));
  return NextObject(at);
}

std::size_t Reader::ReadAttributes(std::size_t at, std::size_t to, AcDbBlockReference& reference) {
  while (at < to && Is(at, 0, "ATTRIB")) {
    const Groups groups = ObjectAt(at);
    if (groups.empty()) return to;
    const DxfObject object = SplitObject(groups);
    if (auto* attribute = AcDbAttribute::cast(m_maker.MakeEntity(object))) {
      reference.appendAttribute(attribute);
      m_maker.Keep(*attribute, m_maker.TextOf(object.own));
    }
    at = NextObject(at);
  }
  std::vector<KeptPart> parts;
  at = TakeSequenceEnd(at, to, parts);
  if (!parts.empty()) m_body.parts[reference.handle().value()] = std::move(parts);
  return at;
}

}  // namespace

DrawingReport ReadDrawingText(std::string_view bytes, const std::wstring& shownName,
                              AcDbDatabase& database) {
  DxfProblems problems;
  const DxfScan scan = ScanDxf(bytes);
  Reader reader(scan.groups, database, problems);
  DrawingReport report;
  report.readAnything = reader.Read();
  MarkDynamicBlocks(scan.groups, database);
  if (scan.damage != DxfDamage::None) problems.Add(scan.line, DamageMessage(scan.damage));
  if (!report.readAnything && scan.damage != DxfDamage::NotText) {
    problems = DxfProblems();
    problems.Add(1, L"这不是图形交换文件");
  }
  report.message = problems.Message(shownName);
  database.body().modified = 0;
  return report;
}

DrawingReport ReadDrawing(const std::wstring& path, AcDbDatabase& database) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  if (!file) return {false, path + L": 无法打开文件"};
  const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  return ReadDrawingText(bytes, FileNameOf(path), database);
}

}  // namespace devhost
