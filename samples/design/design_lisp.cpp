// States behind the menu's switches; see the header. Orthogonal drawing is the host's, grouping and
// dynamic dimensions are the kernel's settings, and the looks of walls are this module's own.
#include "design_lisp.h"

#include "aced.h"
#include "kernel/globals.h"

namespace {

int wallFill = 0, boldLines = 0, baseLines = 0;

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

template <int* State>
void Get() {
  acedRetInt(*State);
}
template <int* State>
void Toggle() {
  *State = !*State;
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
    {L"QvxGetOrtho", GetOrtho},       {L"QvxToggleOrtho", ToggleOrtho},
    {L"QvxGetFill", Get<&wallFill>},  {L"QvxToggleFill", Toggle<&wallFill>},
    {L"QvxGetBold", Get<&boldLines>}, {L"QvxToggleBold", Toggle<&boldLines>},
    {L"QvxGetBase", Get<&baseLines>}, {L"QvxToggleBase", Toggle<&baseLines>},
    {L"QvxGetDynDim", GetDynDim},     {L"QvxToggleDynDim", ToggleDynDim},
    {L"QvxGetGroup", GetGroup},       {L"QvxToggleGroup", ToggleGroup},
    {L"QvxOrthoOn", OrthoOn},         {L"QvxNoDrawing", NoDrawing},
    {L"TGetLispPath", LispPath},
};
const int kDesignFunctionCount = sizeof kDesignFunctions / sizeof *kDesignFunctions;
