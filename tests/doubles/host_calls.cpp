#include "tests/doubles/host_calls.h"

#include "adslib.h"

namespace {
// The only chain that acedInvoke returns; nodes of acutBuildList have another address.
wchar_t g_path[] = L"C:/lisp/";
resbuf g_result{};
resbuf g_call{};
}  // namespace

HostDouble& TheHostDouble() {
  static HostDouble host;
  return host;
}

int acedGetVar(const ACHAR* name, resbuf* result) {
  const auto& variables = TheHostDouble().variables;
  const auto at = variables.find(name);
  if (at == variables.end()) return RTERROR;
  result->restype = RTSHORT;
  result->resval.rint = static_cast<short>(at->second);
  return RTNORM;
}

int acedSetVar(const ACHAR* name, const resbuf* value) {
  HostDouble& host = TheHostDouble();
  host.diary.push_back(std::wstring(name) + L"=" + std::to_wstring(value->resval.rint));
  if (!host.variables.count(name)) return RTERROR;
  host.variables[name] = value->resval.rint;
  return RTNORM;
}

int acedGetFunCode() { return TheHostDouble().functionCode; }

int acedDefun(const ACHAR* name, int code) {
  TheHostDouble().diary.push_back(L"defun " + std::to_wstring(code) + L" " + name);
  return RTNORM;
}

int acedRetVoid() {
  TheHostDouble().diary.push_back(L"void");
  return RTNORM;
}

resbuf* acutBuildList(int, ...) { return &g_call; }

int acutRelRb(resbuf* chain) {
  if (chain == &g_result) --TheHostDouble().openChains;
  return RTNORM;
}

int acedInvoke(const resbuf*, resbuf** result) {
  HostDouble& host = TheHostDouble();
  host.diary.push_back(L"invoke");
  if (!host.lispPathAnswers) return RTERROR;
  g_result.restype = RTSTR;
  g_result.resval.rstring = g_path;
  ++host.openChains;
  *result = &g_result;
  return RTNORM;
}

int acedPutSym(const ACHAR* name, resbuf* value) {
  const std::wstring text = value->restype == RTSTR ? value->resval.rstring : L"nil";
  TheHostDouble().diary.push_back(std::wstring(name) + L":" + text);
  return RTNORM;
}
