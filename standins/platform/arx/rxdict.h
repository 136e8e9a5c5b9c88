// Dictionaries of run-time objects, and the one that holds the host's services by name.
#pragma once

#include "rxobject.h"

class AcRxDictionary : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcRxDictionary);
  virtual AcRxObject* at(const ACHAR* key) const = 0;  // null when there is none; not owned
};

AcRxDictionary* acrxSysRegistry();
