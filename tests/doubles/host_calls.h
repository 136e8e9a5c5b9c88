// A double of the host's calls: integer variables, the LISP call in progress, symbols, and a
// record of the calls. Linked instead of the real functions of the same names; offers only those
// that the code under test calls.
#pragma once

#include <map>
#include <string>
#include <vector>

struct HostDouble {
  std::map<std::wstring, int> variables;  // for acedGetVar, all short integers
  int functionCode = 0;                   // result of acedGetFunCode
  bool lispPathAnswers = false;           // whether acedInvoke succeeds, with the text "C:/lisp/"
  std::vector<std::wstring> diary;
  int openChains = 0;  // result chains not yet released
};

HostDouble& TheHostDouble();  // one for the program; tests reset it by assigning a new one
