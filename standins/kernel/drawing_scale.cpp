#include "kernel/drawing_scale.h"

#include "adslib.h"
#include "dbsymtb.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"

namespace {

constexpr double kSheetScale = 1;
constexpr short kReal = 1040;

int ShortVariable(const wchar_t* name, int otherwise) {
  resbuf value{};
  return acedGetVar(name, &value) == RTNORM && value.restype == RTSHORT ? value.resval.rint
                                                                        : otherwise;
}

double ScaleOfSheet(AcDbDatabase& database) {
  double scale = kSheetScale;
  AcDbBlockTable* blocks = nullptr;
  if (database.getBlockTable(blocks, AcDb::kForRead) != Acad::eOk) return scale;
  AcDbObjectId id;
  if (blocks->getAt(ACDB_PAPER_SPACE, id) == Acad::eOk) {
    resbuf* chain = id.object()->xData(kPaperScaleApplication);
    for (const resbuf* group = chain; group; group = group->rbnext)
      if (group->restype == kReal) scale = group->resval.rreal;
    acutRelRb(chain);
  }
  blocks->close();
  return scale;
}

// No viewport is entered.
bool IsInPaperSpace() {
  return ShortVariable(L"TILEMODE", 1) == 0 && ShortVariable(L"CVPORT", 2) == 1;
}

}  // namespace

double DocGetPScale() {
  AcDbDatabase* database = QvxGeLib::g_pCurrentDb;
  if (database && IsInPaperSpace()) return ScaleOfSheet(*database);
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, database);
  if (!config) return TDbConfigValues::kDefaultScale;
  const double scale = config->PScale();
  config->close();
  return scale;
}
