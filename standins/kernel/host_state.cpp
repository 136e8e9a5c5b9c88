// The state of the host; see the header.
#include "kernel/host_state.h"

#include "acdocman.h"
#include "adslib.h"
#include "kernel/drawing_data.h"
#include "kernel/frame_input.h"

// Cheap questions first: pointer moves ask this.
bool IsAcadIdle() {
  const AcApDocManager* documents = acDocManagerPtr();
  const AcApDocument* document = documents ? documents->curDocument() : nullptr;
  if (!document || !document->isQuiescent() || !documents->isApplicationContext()) return false;
  if (!FrameTakesInput()) return false;
  resbuf active{};
  const int status = acedGetVar(L"CMDACTIVE", &active);
  return status != RTNORM || active.restype != RTSHORT || active.resval.rint == 0;
}

bool IsCommandLineEmpty() {
  const TDocData* data = GetCurDocData();
  return !data || data->TypedText().empty();
}

bool IsLispExpress() {
  const TDocData* data = GetCurDocData();
  return data && data->IsTypingLisp();
}

void ClearKeyboardBuffer() {
  if (TDocData* data = GetCurDocData()) data->ClearTypedText();
}
