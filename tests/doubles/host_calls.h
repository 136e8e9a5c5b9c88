// A host that a test can look into: integer variables, the LISP call in progress, symbols, and a
// diary of what was asked. Linked instead of the real host calls of the same names; only those that
// the code under test makes are here.
#pragma once

#include <map>
#include <string>
#include <vector>

struct HostDouble {
  std::map<std::wstring, int> variables;  // what acedGetVar knows, all short integers
  int functionCode = 0;                   // what acedGetFunCode answers
  bool lispPathAnswers = false;           // whether acedInvoke succeeds, with the text "C:/lisp/"
  std::vector<std::wstring> diary;
  int openChains = 0;  // result chains given out and not yet released
};

HostDouble& TheHostDouble();  // one for the program; tests reset it by assigning a new one
