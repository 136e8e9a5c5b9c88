// The LISP functions that the menu's switches and conditions call. Each answers the running call
// itself.
#pragma once

struct DesignFunction {
  const wchar_t* name;
  void (*run)();
};

extern const DesignFunction kDesignFunctions[];
extern const int kDesignFunctionCount;
