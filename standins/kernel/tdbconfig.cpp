#include "kernel/tdbconfig.h"

#include <cmath>

#include "adslib.h"
#include "dbsymtb.h"
#include "kernel/trblist.h"

ACRX_NO_CONS_DEFINE_MEMBERS(TDbConfig, AcDbObject)

namespace {

// The groups of the record, in this order behind the application's name: three switches, the
// scale, the flags.
constexpr wchar_t kApplication[] = L"_QVX_CONFIG";
constexpr short kName = 1001, kReal = 1040, kShort = 1070, kLong = 1071;

int s_open = 0;

// Missing and invalid values have their defaults: a file may contain anything.
TDbConfigValues Read(const AcDbObject& holder) {
  TDbConfigValues values;
  resbuf* chain = holder.xData(kApplication);
  int* const switches[] = {&values.solidFill, &values.boldLine, &values.wallBase};
  unsigned next = 0;
  for (const resbuf* group = chain; group; group = group->rbnext) {
    if (group->restype == kShort && next < 3) *switches[next++] = group->resval.rint;
    if (group->restype == kLong) values.flags = group->resval.rlong;
    const double real = group->restype == kReal ? group->resval.rreal : 0;
    if (real > 0 && std::isfinite(real)) values.pscale = real;
  }
  acutRelRb(chain);
  return values;
}

void Write(AcDbObject& holder, const TDbConfigValues& values) {
  TRBList list;
  list.AppendString(kName, kApplication);
  list.AppendShort(kShort, values.solidFill);
  list.AppendShort(kShort, values.boldLine);
  list.AppendShort(kShort, values.wallBase);
  list.AppendReal(kReal, values.pscale);
  list.AppendLong(kLong, values.flags);
  holder.setXData(list.Head());
  acdbSetDbmod(holder.database(), 1);
}

AcDbBlockTableRecord* OpenHolder(AcDb::OpenMode mode, AcDbDatabase& database) {
  AcDbBlockTable* blocks = nullptr;
  if (database.getBlockTable(blocks, AcDb::kForRead) != Acad::eOk) return nullptr;
  AcDbObjectId id;
  const Acad::ErrorStatus found = blocks->getAt(ACDB_MODEL_SPACE, id);
  blocks->close();
  AcDbBlockTableRecord* holder = nullptr;
  if (found == Acad::eOk) acdbOpenObject(holder, id, mode);
  return holder;
}

}  // namespace

TDbConfig::TDbConfig(AcDbObject& holder, bool forWrite)
    : m_holder(holder), m_forWrite(forWrite), m_values(Read(holder)) {
  ++s_open;
}

TDbConfig::~TDbConfig() { --s_open; }

int TDbConfig::OpenCount() { return s_open; }

Acad::ErrorStatus TDbConfig::close() {
  if (m_changed) Write(m_holder, m_values);
  const Acad::ErrorStatus status = m_holder.close();
  delete this;
  return status;
}

TDbConfig* GetDwgGlobal(AcDb::OpenMode mode, AcDbDatabase* database) {
  AcDbObject* holder = database ? OpenHolder(mode, *database) : nullptr;
  return holder ? new TDbConfig(*holder, mode == AcDb::kForWrite) : nullptr;
}
