#include "kernel/tentityset.h"

#include <cwchar>
#include <map>

#include "acdocman.h"
#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "kernel/qvxexport.h"
#include "kernel/tacdbobjectptr.h"

namespace {

// Stores the first value of one code while an object writes its groups.
class OneGroup : public AcDbDxfFiler {
 public:
  OneGroup(AcDbDatabase* database, int code) : m_database(database), m_code(code) {}
  TEntitySet::Value value;

  AcDbDatabase* database() const override { return m_database; }
  Acad::ErrorStatus readItem(resbuf*) override { return Acad::eEndOfFile; }
  void pushBackItem() override {}
  Acad::ErrorStatus writeString(short code, const ACHAR* text) override {
    return Keep(code, std::wstring(text ? text : L""));
  }
  Acad::ErrorStatus writeDouble(short code, double number) override { return Keep(code, number); }
  Acad::ErrorStatus writeInt(short code, int number) override {
    return Keep(code, static_cast<long long>(number));
  }
  // The coordinates of a point have codes that are ten apart.
  Acad::ErrorStatus writePoint(short code, const AcGePoint3d& point) override {
    Keep(code, point.x);
    Keep(static_cast<short>(code + 10), point.y);
    return Keep(static_cast<short>(code + 20), point.z);
  }

 private:
  Acad::ErrorStatus Keep(short code, TEntitySet::Value found) {
    if (code == m_code && value.index() == 0) value = std::move(found);
    return Acad::eOk;
  }

  AcDbDatabase* m_database;
  int m_code;
};

bool InPaperSpace(const AcDbEntity& entity) {
  const auto* space = AcDbBlockTableRecord::cast(entity.ownerId().object());
  return space && acutWcMatch(space->getName(), L"`" ACDB_PAPER_SPACE L"*") == RTNORM;
}

// Groups of an unknown class are texts, whatever the code.
TEntitySet::Value AsKind(TEntitySet::Value value, short kind) {
  const auto* text = std::get_if<std::wstring>(&value);
  if (!text || kind == RTSTR) return value;
  if (kind == RTREAL) return std::wcstod(text->c_str(), nullptr);
  if (kind == RTSHORT || kind == RTLONG)
    return static_cast<long long>(std::wcstoll(text->c_str(), nullptr, 10));
  return {};
}

bool Fits(const TGroups& group, const TEntitySet::Value& value) {
  switch (QvxExport::TypeOfCode(static_cast<unsigned short>(group.restype))) {
    case RTSTR:
      if (const auto* text = std::get_if<std::wstring>(&value))
        return acutWcMatch(text->c_str(), group.resval.rstring ? group.resval.rstring : L"") ==
               RTNORM;
      return false;
    case RTREAL:
      return value == TEntitySet::Value(group.resval.rreal);
    case RTSHORT:
      return value == TEntitySet::Value(static_cast<long long>(group.resval.rint));
    case RTLONG:
      return value == TEntitySet::Value(static_cast<long long>(group.resval.rlong));
    default:
      return false;
  }
}

using OpenEntity = TAcDbObjectPtr<AcDbEntity>;

}  // namespace

TEntitySet& TEntitySet::operator=(const TEntitySet& other) noexcept {
  m_groups.SetHead(nullptr);
  m_name[0] = other.m_name[0];
  m_name[1] = other.m_name[1];
  return *this;
}

AcDbObjectId TEntitySet::ObjectId() const {
  AcDbObjectId id;
  if (IsEmpty() || acdbGetObjectId(id, m_name) != Acad::eOk) return AcDbObjectId::kNull;
  return id;
}

const wchar_t* TEntitySet::TypeOf(const AcDbEntity& entity) {
  if (const auto* proxy = AcDbProxyEntity::cast(&entity)) return proxy->originalDxfName();
  const ACHAR* name = entity.isA()->dxfName();
  return name ? name : L"";
}

void TEntitySet::GroupOf(const AcDbEntity& entity, int code, Value& out) {
  OneGroup group(entity.database(), code);
  switch (code) {
    case 0:
      out = std::wstring(TypeOf(entity));
      return;
    case 6:
      out = std::wstring(entity.linetype());
      return;
    case 8:
      out = std::wstring(entity.layer());
      return;
    case 62:
      out = static_cast<long long>(entity.colorIndex());
      return;
    case 67:
      out = static_cast<long long>(InPaperSpace(entity));
      return;
    default:
      entity.dxfOutFields(&group);
      out = AsKind(std::move(group.value), QvxExport::TypeOfCode(code));
  }
}

bool TEntitySet::Is(const wchar_t* type) const {
  const OpenEntity entity(ObjectId(), AcDb::kForRead);
  return entity.Get() && acutWcMatch(TypeOf(*entity.Get()), type) == RTNORM;
}

bool TEntitySet::GetData(int code, wchar_t* out) const {
  out[0] = 0;
  m_groups.SetHead(nullptr);
  const OpenEntity entity(ObjectId(), AcDb::kForRead);
  if (!entity.Get()) return false;
  Value value;
  GroupOf(*entity.Get(), code, value);
  std::wstring text;
  if (const auto* words = std::get_if<std::wstring>(&value)) text = *words;
  if (const auto* number = std::get_if<long long>(&value)) text = std::to_wstring(*number);
  if (const auto* real = std::get_if<double>(&value)) text = std::to_wstring(*real);
  if (QvxExport::TypeOfCode(code) == RTSTR) m_groups.AppendString(code, text.c_str());
  std::wcsncpy(out, text.c_str(), kDataUnits - 1);
  out[kDataUnits - 1] = 0;
  return value.index() != 0;
}

bool TEntitySet::MatchBase(const TRBList& mask) const {
  const OpenEntity entity(ObjectId(), AcDb::kForRead);
  if (!entity.Get() || mask.IsEmpty()) return false;
  for (const TGroups* group = mask.Head(); group; group = group->Next()) {
    Value value;
    GroupOf(*entity.Get(), static_cast<unsigned short>(group->restype), value);
    if (!Fits(*group, value)) return false;
  }
  return true;
}

void TEntitySet::Redraw(int mode) const {
  if (!IsEmpty()) acedRedraw(m_name, mode);
}

namespace {

// Removes closed drawings: a new drawing at the same address would get their slot.
void ForgetClosedDrawings(std::map<AcApDocument*, TEntitySet>& slots, AcApDocManager& documents) {
  std::map<AcApDocument*, TEntitySet> open;
  AcApDocumentIterator* at = documents.newAcApDocumentIterator();
  for (; at && !at->done(); at->step())
    if (const auto slot = slots.find(at->document()); slot != slots.end())
      open.insert(slots.extract(slot));
  delete at;
  slots.swap(open);
}

}  // namespace

TEntitySet& DocGetEntMouseOn() {
  static std::map<AcApDocument*, TEntitySet> slots;
  static TEntitySet nobodys;
  AcApDocManager* documents = acDocManagerPtr();
  AcApDocument* current = documents ? documents->curDocument() : nullptr;
  if (!current) {
    nobodys = TEntitySet();
    return nobodys;
  }
  if (!slots.contains(current)) ForgetClosedDrawings(slots, *documents);
  return slots[current];
}
