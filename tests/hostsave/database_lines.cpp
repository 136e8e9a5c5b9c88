// A database as text; see the header. Objects are read through their published functions and their
// class's groups; groups that the host keeps are read from the database's private part.
#include "database_lines.h"

#include <cctype>
#include <cstdio>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/drawing/dxf_groups.h"
#include "devhost/core/dxf/kept_groups.h"
#include "devhost/core/entities/dxf_name.h"

namespace savetest {
namespace {

using devhost::Utf8;

std::string Exact(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%a", value);
  return text;
}

std::string Hex(std::uint64_t handle) {
  char text[24];
  std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(handle));
  return text;
}

// What the class of an object writes, on one line.
class LineFiler : public AcDbDxfFiler {
 public:
  std::string line;

  AcDbDatabase* database() const override { return nullptr; }
  Acad::ErrorStatus writeString(short code, const ACHAR* value) override {
    return Add(code, Utf8(value));
  }
  Acad::ErrorStatus writeDouble(short code, double value) override {
    return Add(code, Exact(value));
  }
  Acad::ErrorStatus writeInt(short code, int value) override {
    return Add(code, std::to_string(value));
  }
  Acad::ErrorStatus writePoint(short code, const AcGePoint3d& p) override {
    return Add(code, Exact(p.x) + "," + Exact(p.y) + "," + Exact(p.z));
  }
  Acad::ErrorStatus readItem(resbuf*) override { return Acad::eEndOfFile; }
  void pushBackItem() override {}

 private:
  Acad::ErrorStatus Add(short code, const std::string& value) {
    line += " " + std::to_string(code) + "=" + value;
    return Acad::eOk;
  }
};

std::string ClassLine(const AcDbObject& object) {
  LineFiler filer;
  object.dxfOutFields(&filer);
  return filer.line;
}

std::string XDataLine(const AcDbObject& object) {
  using devhost::GroupKind;
  std::string line;
  for (const resbuf* data = AcDbObjectAccess::XData(object); data; data = data->rbnext) {
    line += " " + std::to_string(data->restype) + "=";
    switch (devhost::KindOfGroup(data->restype)) {
      case GroupKind::String:
        line += Utf8(data->resval.rstring);
        break;
      case GroupKind::Point:
        for (double part : data->resval.rpoint) line += Exact(part) + ",";
        break;
      case GroupKind::Real:
        line += Exact(data->resval.rreal);
        break;
      case GroupKind::Short:
        line += std::to_string(data->resval.rint);
        break;
      default:
        line += std::to_string(data->resval.rlong);
        break;
    }
  }
  return line;
}

class Lines {
 public:
  explicit Lines(AcDbDatabase& database) : m_body(database.body()) {}

  DatabaseText Take() {
    Header();
    Groups("class", m_body.classes);
    Groups("table", m_body.otherTables);
    Groups("section", m_body.otherSections);
    Add(m_body.paperIsCurrent ? "paper" : "model");
    for (const devhost::UserSystem* s : {&m_body.modelSystem, &m_body.paperSystem})
      for (double d :
           {s->origin.x, s->origin.y, s->origin.z, s->x.x, s->x.y, s->x.z, s->y.x, s->y.y, s->y.z})
        Add("system " + Exact(d));
    for (AcDbObjectId table : {m_body.layerTable, m_body.blockTable})
      for (AcDbObjectId id : static_cast<AcDbSymbolTable*>(table.object())->records())
        Record(*static_cast<AcDbSymbolTableRecord*>(id.object()));
    return std::move(m_text);
  }

 private:
  void Add(std::string line) { m_text.objects.push_back(std::move(line)); }
  void AddSource(std::string line) { m_text.source.push_back(std::move(line)); }
  void AddGroups(const std::string& text) {
    for (const devhost::TextGroup& group : devhost::SplitGroups(text))
      if (group.code != 100)
        AddSource(std::to_string(group.code) + "=" + SpaceName(std::string(group.value)));
  }

  // The release and the next handle are the writer's.
  void Header() {
    std::wstring name;
    for (const KeptGroup& group : m_body.header) {
      if (group.code == 9) name = group.text;
      if (name != L"$ACADVER" && name != L"$HANDSEED")
        AddSource("header " + std::to_string(group.code) + "=" + Utf8(group.text));
    }
  }
  void Groups(const std::string& what, const std::vector<KeptGroup>& groups) {
    for (const KeptGroup& group : groups)
      AddSource(what + " " + std::to_string(group.code) + "=" + Utf8(group.text));
  }
  void Object(const std::string& what, const AcDbObject& object) {
    const std::uint64_t handle = object.handle().value();
    Add(what + " " + Hex(handle) + " of " + Hex(object.ownerId().handle().value()) +
        ClassLine(object));
    Add("xdata" + XDataLine(object));
    const auto kept = m_body.kept.find(handle);
    AddSource(what);
    if (kept != m_body.kept.end()) {
      AddGroups(kept->second.lists);
      AddGroups(kept->second.own);
    }
    const auto parts = m_body.parts.find(handle);
    if (parts == m_body.parts.end()) return;
    for (const KeptPart& part : parts->second) {
      if (!part.type.empty()) AddSource("part " + part.type + " " + Hex(part.handle));
      AddGroups(part.groups);
    }
  }
  void Record(const AcDbSymbolTableRecord& record) {
    Object("record " + Utf8(record.getName()), record);
    if (const auto* layer = AcDbLayerTableRecord::cast(&record))
      Add(std::to_string(layer->colorIndex()) + (layer->isOff() ? " off" : "") +
          (layer->isFrozen() ? " frozen" : "") + (layer->isLocked() ? " locked" : ""));
    const auto* block = AcDbBlockTableRecord::cast(&record);
    if (!block) return;
    const AcGePoint3d at = block->origin();
    Add("base " + Exact(at.x) + "," + Exact(at.y) + "," + Exact(at.z) + " " +
        std::to_string(block->flags()));
    for (AcDbObjectId id : block->entities())
      if (!id.isErased()) Entity(*AcDbEntity::cast(id.object()));
  }
  void Entity(const AcDbEntity& entity) {
    Object(Utf8(entity.isA()->name()) + " " + Utf8(devhost::DxfNameOf(entity)) + " " +
               Utf8(entity.layer()) + " " + Utf8(entity.linetype()) + " " +
               std::to_string(entity.colorIndex()),
           entity);
    const auto* reference = AcDbBlockReference::cast(&entity);
    if (!reference) return;
    for (AcDbObjectId id : reference->attributes())
      if (!id.isErased()) Entity(*AcDbEntity::cast(id.object()));
  }

  AcDbDatabase::Body& m_body;
  DatabaseText m_text;
};

}  // namespace

DatabaseText TextOf(AcDbDatabase& database) { return Lines(database).Take(); }

std::string SpaceName(const std::string& name) {
  std::string upper = name;
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  for (const char* space : {"MODEL_SPACE", "PAPER_SPACE"})
    if (upper == std::string("$") + space || upper == std::string("*") + space) return space;
  return name;
}

std::string Difference(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  for (std::size_t i = 0; i < a.size() || i < b.size(); ++i) {
    const std::string left = i < a.size() ? a[i] : "(end)", right = i < b.size() ? b[i] : "(end)";
    if (left != right) return (i ? a[i - 1] + "\n" : "") + "- " + left + "\n+ " + right;
  }
  return {};
}

std::string Missing(const std::vector<std::string>& part, const std::vector<std::string>& whole) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < part.size(); ++i, ++at) {
    while (at < whole.size() && whole[at] != part[i]) ++at;
    if (at == whole.size()) return (i ? part[i - 1] + "\n" : "") + part[i];
  }
  return {};
}

}  // namespace savetest
