// Fragments of the kernel and write locks of the host as the in-place editor uses them.
#pragma once

#include <memory>

#include "editor/document_lock.h"
#include "editor/edit_fragment.h"

class TSubText;

namespace qvx {

// Takes ownership; null for null.
std::unique_ptr<EditFragment> MakeFragment(TSubText* text);

// Mode AcAp::kWrite on the current document; null when it fails.
std::unique_ptr<DocumentLock> LockCurrentForWrite();

}  // namespace qvx
