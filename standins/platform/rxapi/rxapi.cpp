// The small library that every module is linked with: it tells the host which version of the
// interface the module was built for.
#include "rxregsvc.h"

int acrxGetApiVersion() { return 24; }
