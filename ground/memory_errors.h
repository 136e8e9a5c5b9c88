// Lack of memory in the two forms in which it is thrown: the C++ library's std::bad_alloc, and the
// CMemoryException of the class library, whose own operator new throws that instead.
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
