// The host's C interface: resbuf lists, variables, LISP functions and symbols, user input,
// selection sets, printing. For the main thread. Functions return RTNORM, or RTERROR, RTCAN or
// RTREJ without an effect. The creator of a resbuf chain releases it with acutRelRb.
#pragma once

#include "adsdef.h"

// Lists ------------------------------------------------------------------------------------------
resbuf* acutNewRb(int type);           // zeroed; null for a type that is neither RT nor DXF
int acutRelRb(resbuf* chain);          // strings too; RTERROR for null
resbuf* acutBuildList(int type, ...);  // type, value, ... ends with RTNONE (or 0 after a DXF list)
int acutNewString(const ACHAR* text, ACHAR*& copy);  // released with acutDelString or free
void acutDelString(ACHAR*& text);

// Printing ---------------------------------------------------------------------------------------
int acutPrintf(const ACHAR* format, ...);
int acedPrompt(const ACHAR* text);
int acedAlert(const ACHAR* text);

// Variables --------------------------------------------------------------------------------------
int acedGetVar(const ACHAR* name, resbuf* result);  // the caller frees a string result
int acedSetVar(const ACHAR* name,
               const resbuf* value);  // RTERROR: unknown; RTREJ: read only, range

// LISP -------------------------------------------------------------------------------------------
int acedDefun(const ACHAR* name, int code);  // in the current document, for the calling module
int acedUndef(const ACHAR* name, int code);
int acedGetFunCode();   // RTERROR outside kInvkSubrMsg
resbuf* acedGetArgs();  // owned by the caller; null for no arguments
int acedRetVoid();
int acedRetNil();
int acedRetT();
int acedRetInt(int value);
int acedRetReal(ads_real value);
int acedRetStr(const ACHAR* value);
int acedRetList(const resbuf* value);
int acedInvoke(const resbuf* call, resbuf** result);  // first the name, then the arguments
int acedPutSym(const ACHAR* name, resbuf* value);
int acedGetSym(const ACHAR* name, resbuf** value);

// Input ------------------------------------------------------------------------------------------
// Inside a command only. RTCAN for Escape, RTNONE for Enter alone, RTKWORD for a keyword.
int acedInitGet(int flags, const ACHAR* keywords);
int acedGetPoint(const ads_point base, const ACHAR* prompt, ads_point result);
int acedGetCorner(const ads_point base, const ACHAR* prompt, ads_point result);
int acedGetDist(const ads_point base, const ACHAR* prompt, ads_real* result);
int acedGetAngle(const ads_point base, const ACHAR* prompt, ads_real* result);
int acedGetReal(const ACHAR* prompt, ads_real* result);
int acedGetInt(const ACHAR* prompt, int* result);
int acedGetString(int blanks, const ACHAR* prompt, ACHAR* result);  // result: 133 characters
int acedGetKword(const ACHAR* prompt, ACHAR* result);
int acedGetInput(ACHAR* keyword);  // the keyword after RTKWORD
int acedEntSel(const ACHAR* prompt, ads_name entity, ads_point point);

// Selection sets ---------------------------------------------------------------------------------
// Modes: null (prompt the user, or the nearest object at the first point that passes the filter),
// "X", "I", "P", "L", "C", "W", "A", and "F" with a chain of RT3DPOINT. A point and "F" do not
// change what "P" gives. RTERROR for an empty result.
int acedSSGet(const ACHAR* mode, const void* first, const void* second, const resbuf* filter,
              ads_name set);
int acedSSFree(const ads_name set);
int acedSSLength(const ads_name set, int* length);
int acedSSName(const ads_name set, int index, ads_name entity);
int acedSSAdd(const ads_name entity, const ads_name set, ads_name result);
int acedSSDel(const ads_name entity, const ads_name set);
int acedSSMemb(const ads_name entity, const ads_name set);
// RTNORM with null lists when nothing is selected; otherwise the caller frees lists and sets.
int acedSSGetFirst(resbuf** grips, resbuf** pickFirst);
int acedSSSetFirst(const ads_name pickFirst, const ads_name unused);
// Modes: 1 and 2 repaint, 3 highlights, 4 ends the highlight, also that of a selected entity. Null
// entity: repaints everything. RTERROR for an erased entity, whose highlight mode 4 ends too.
int acedRedraw(const ads_name entity, int mode);
// RTNORM if the text matches one of the wild card patterns, which are separated
// by commas. Ignores case.
int acutWcMatch(const ACHAR* text, const ACHAR* patterns);

// Files, modules, coordinates --------------------------------------------------------------------
int acedFindFile(const ACHAR* name, ACHAR* path);  // along the support path
resbuf* acedArxLoaded();                           // names of the loaded modules, or null
// Systems are RTSHORT values: 0 world, 1 user, 2 display of the current viewport; others are
// RTERROR. `vector` other than 0: a displacement. `result` may be `point`.
int acedTrans(const ads_point point, const resbuf* from, const resbuf* to, int vector,
              ads_point result);
