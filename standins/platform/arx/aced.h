// The editor's interface in one include: the C functions, the command stack, the documents.
#pragma once

#include "accmd.h"
#include "acdocman.h"
#include "adslib.h"
#include "rxdlinkr.h"
