// Services and properties of the host.
#pragma once

#include "dbmain.h"

class AcDbHostApplicationServices {
 public:
  virtual ~AcDbHostApplicationServices() = default;
  virtual AcDbDatabase* workingDatabase() const = 0;  // of the current drawing; null without one
  virtual int releaseMajorVersion() const = 0;
  virtual int releaseMinorVersion() const = 0;
  virtual const ACHAR* getMachineRegistryProductRootKey() = 0;
};

AcDbHostApplicationServices* acdbHostApplicationServices();
