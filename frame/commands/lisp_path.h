// The LISP symbols that hold the path of the product's LISP programs.
#pragma once

// Sets _qvxatoml to nil, and _prefix and _prefix1 to the result of the LISP function TGetLispPath;
// without a result both are unchanged.
void PublishLispPath();
