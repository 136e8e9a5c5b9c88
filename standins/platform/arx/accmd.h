// The command stack: named commands in groups, found in the system registry under
// "ACAD_REGISTERED_COMMANDS".
#pragma once

#include "adslib.h"
#include "rxdict.h"
#include "rxregsvc.h"

#define ACRX_CMD_MODAL 0x00000000
#define ACRX_CMD_TRANSPARENT 0x00000001  // may run while another command waits for input
#define ACRX_CMD_USEPICKSET 0x00000002   // keeps the pick-first set

#define ACRX_CMDS L"ACAD_REGISTERED_COMMANDS"

class AcEdCommand;
class AcEdUIContext;

class AcRxResourceInstance {
 public:
  static const AcRxResourceInstance empty;
};

typedef void (*AcRxFunctionPtr)();

namespace Acad {
enum ErrorStatus {
  eOk = 0,
  eNotImplementedYet,
  eInvalidInput,
  eDuplicateKey,
  eKeyNotFound,
  eNullObjectId,
  eWasErased,
  eNotOpenForWrite,
  eLockViolation,
  eWrongObjectType,
  eNotApplicable,
  eFileNotFound,
  eNoDocument,
  eNullExtents,
  eEndOfFile,
};
}

class AcEdCommandStack : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcEdCommandStack);
  virtual Acad::ErrorStatus addCommand(
      const ACHAR* group, const ACHAR* globalName, const ACHAR* localName, Adesk::Int32 flags,
      AcRxFunctionPtr function, AcEdUIContext* uiContext = nullptr, int functionCode = -1,
      const AcRxResourceInstance& resource = AcRxResourceInstance::empty,
      AcEdCommand** result = nullptr) = 0;  // eDuplicateKey
  virtual Acad::ErrorStatus removeCmd(const ACHAR* group, const ACHAR* globalName) = 0;
  virtual Acad::ErrorStatus removeGroup(const ACHAR* group) = 0;  // eKeyNotFound
};
