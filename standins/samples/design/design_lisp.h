// LISP functions for the switches and conditions of the menu. Each sets the result of
// the running call.
#pragma once

struct DesignFunction {
  const wchar_t* name;
  void (*run)();
};

extern const DesignFunction kDesignFunctions[];
extern const int kDesignFunctionCount;
