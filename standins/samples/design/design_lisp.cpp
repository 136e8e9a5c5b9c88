// LISP functions of the sample module; see the header. Orthogonal mode is a host variable; grouping
// and dynamic dimensions are settings of the kernel; wall styles are stored in the drawing.
#include "design_lisp.h"

#include "acdocman.h"
#include "aced.h"
#include "adslib.h"
#include "kernel/drawing_switches.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"

namespace {

// A switch of the current drawing; 0 without a drawing.
template <int (TDbConfig::*Switch)() const>
int SwitchOfDrawing() {
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb);
  if (!config) return 0;
  const int on = (config->*Switch)();
  config->close();
  return on;
}

int Ortho() {
  resbuf value{};
  return acedGetVar(L"ORTHOMODE", &value) == RTNORM && value.restype == RTSHORT ? value.resval.rint
                                                                                : 0;
}

void SetOrtho(int on) {
  resbuf value{};
  value.restype = RTSHORT;
  value.resval.rint = static_cast<short>(on);
  acedSetVar(L"ORTHOMODE", &value);
}

template <int (TDbConfig::*Switch)() const>
void Get() {
  acedRetInt(SwitchOfDrawing<Switch>());
}
template <int (TDbConfig::*Switch)() const, void (*On)(), void (*Off)()>
void Toggle() {
  SwitchOfDrawing<Switch>() == 1 ? Off() : On();
  acedRedraw(nullptr, 0);
  acedRetT();
}

void GetOrtho() { acedRetInt(Ortho()); }
void ToggleOrtho() {
  SetOrtho(!Ortho());
  acedRetT();
}
void OrthoOn() { Ortho() ? acedRetT() : acedRetNil(); }
void NoDrawing() { acDocManagerPtr()->curDocument() ? acedRetNil() : acedRetT(); }
void GetGroup() { acedRetInt(g_bMakeGroup); }
void ToggleGroup() {
  g_bMakeGroup = !g_bMakeGroup;
  acedRetT();
}
void GetDynDim() { acedRetInt(g_bDynamicCoord); }
void ToggleDynDim() {
  g_bDynamicCoord = !g_bDynamicCoord;
  acedRetT();
}
void LispPath() { acedRetStr(QvxGeLib::g_sAppPath); }

}  // namespace

const DesignFunction kDesignFunctions[] = {
    {L"QvxGetOrtho", GetOrtho},
    {L"QvxToggleOrtho", ToggleOrtho},
    {L"QvxGetFill", Get<&TDbConfig::SolidFill>},
    {L"QvxToggleFill", Toggle<&TDbConfig::SolidFill, SolidFillOn, SolidFillOff>},
    {L"QvxGetBold", Get<&TDbConfig::BoldLine>},
    {L"QvxToggleBold", Toggle<&TDbConfig::BoldLine, BoldLineOn, TasGhdHsj123>},
    {L"QvxGetBase", Get<&TDbConfig::WallBase>},
    {L"QvxToggleBase", Toggle<&TDbConfig::WallBase, ToggleWallBase, ToggleWallBase>},
    {L"QvxGetDynDim", GetDynDim},
    {L"QvxToggleDynDim", ToggleDynDim},
    {L"QvxGetGroup", GetGroup},
    {L"QvxToggleGroup", ToggleGroup},
    {L"QvxOrthoOn", OrthoOn},
    {L"QvxNoDrawing", NoDrawing},
    {L"TGetLispPath", LispPath},
};
const int kDesignFunctionCount = sizeof kDesignFunctions / sizeof *kDesignFunctions;
