// The LISP symbols that tell the product's LISP programs where they lie.
#pragma once

// Forgets _qvxatoml, asks the LISP function TGetLispPath and keeps its result in _prefix and
// _prefix1; both stay as they were when it gives none.
void PublishLispPath();
