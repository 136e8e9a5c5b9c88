#include "ground/guard.h"

#include "afx.h"

namespace qvx {
namespace {

int s_faults = 0;

}  // namespace

int FaultCount() noexcept { return s_faults; }

void EndFault() noexcept {
  ++s_faults;
  try {
    throw;
  } catch (CException* exception) {
    exception->Delete();
  } catch (...) {
    // Any other exception frees itself.
  }
}

}  // namespace qvx
