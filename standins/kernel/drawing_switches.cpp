#include "kernel/drawing_switches.h"

#include <optional>

#include "acdocman.h"
#include "adslib.h"
#include "axlock.h"
#include "kernel/globals.h"
#include "kernel/model_number.h"
#include "kernel/tdbconfig.h"

namespace {

template <class F>
void ChangeConfig(F change) {
  std::optional<AcAxDocLock> lock;
  if (acDocManagerPtr()->isApplicationContext()) lock.emplace();
  TDbConfig* config = GetDwgGlobal(AcDb::kForWrite, QvxGeLib::g_pCurrentDb);
  if (!config) return;
  change(*config);
  config->close();
}

}  // namespace

void SolidFillOn() {
  ChangeConfig([](TDbConfig& config) { config.SetSolidFill(1); });
}
void SolidFillOff() {
  ChangeConfig([](TDbConfig& config) { config.SetSolidFill(0); });
}
void BoldLineOn() {
  ChangeConfig([](TDbConfig& config) { config.SetBoldLine(1); });
}
void TasGhdHsj123() {
  ChangeConfig([](TDbConfig& config) { config.SetBoldLine(0); });
}
void ToggleModelNumber() {
  ChangeConfig(
      [](TDbConfig& config) { config.SetFlags(config.Flags() ^ TDbConfig::kModelNumbers); });
  acedRedraw(nullptr, 0);
}
void ToggleWallBase() {
  ChangeConfig([](TDbConfig& config) { config.SetWallBase(config.WallBase() == 1 ? 0 : 1); });
}
