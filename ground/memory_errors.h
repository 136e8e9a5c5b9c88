// Catches both exceptions for lack of memory: std::bad_alloc of the C++ library, and
// CMemoryException, which the class library's operator new throws instead.
#pragma once

#include <new>
#include <utility>

#include "afx.h"

namespace qvx {

// Runs the work; false when it ended for lack of memory. Other exceptions pass.
template <class Work>
bool HasMemoryFor(Work&& work) {
  try {
    std::forward<Work>(work)();
    return true;
  } catch (CMemoryException* exception) {
    exception->Delete();
  } catch (const std::bad_alloc&) {
  }
  return false;
}

}  // namespace qvx
