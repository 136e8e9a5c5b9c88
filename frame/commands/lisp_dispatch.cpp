#include "frame/commands/lisp_dispatch.h"

#include "aced.h"
#include "adslib.h"
#include "frame/commands/push_acad_var.h"
#include "kernel/tpushacadundo.h"

namespace {

bool IsCommandStyle(const wchar_t* name) { return name[0] && name[1] == L':'; }

void RunAsCommand(const LispRow& row) {
  {
    TPushAcadUndo group;
    row.handler();
  }
  acedRetVoid();
}

}  // namespace

void DefineLispFunctions(const LispRow* rows, int count) {
  for (int code = 0; code < count; ++code) acedDefun(rows[code].name, static_cast<short>(code));
}

int DispatchLisp(const LispRow* rows, int count) {
  const TPushAcadVar<int, 0> echo(L"CMDECHO");
  const TPushAcadVar<int, 0> blips(L"BLIPMODE");
  const int code = acedGetFunCode();
  if (code < 0 || code >= count) return RTERROR;
  const LispRow& row = rows[code];
  if (IsCommandStyle(row.name))
    RunAsCommand(row);
  else
    row.handler();
  return RTNORM;
}
