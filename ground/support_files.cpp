// See support_files.h.
#include "ground/support_files.h"

#include "aced.h"
#include "adslib.h"
#include "kernel/qvxexport.h"

namespace qvx {

bool FindFile(const wchar_t* name, TWCString& path) {
  wchar_t found[QvxExport::kPathUnits];
  if (!QvxExport::FindFile(name, found)) return false;
  path = found;
  return true;
}

bool FindFile(const wchar_t* name) { return QvxExport::FindFile(name, nullptr) != 0; }

bool FindHostFile(const wchar_t* name, TWCString& path) {
  constexpr int kHostPathUnits = 512;
  wchar_t found[kHostPathUnits];
  if (acedFindFile(name, found) != RTNORM) return false;
  path = found;
  return true;
}

}  // namespace qvx
