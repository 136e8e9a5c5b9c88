// LISP functions of modules; see the header. The published functions are at the end.
#include "devhost/core/lisp/lisp_calls.h"

#include "adslib.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/documents/document_scope.h"
#include "devhost/core/host/host.h"

namespace devhost {
namespace {

// A running call of a module's function: its arguments and its result.
struct RunningCall {
  int code;
  const std::vector<LispValue>* arguments;
  LispValue result;
};
std::vector<RunningCall*>& Calls() {
  static std::vector<RunningCall*> calls;
  return calls;
}

constexpr int kMaxCallDepth = 64;

}  // namespace

bool CallLispFunction(Document& document, const std::wstring& name,
                      const std::vector<LispValue>& arguments, LispValue* result, bool* failed) {
  const auto at = document.lispFunctions.find(UpperCase(name));
  if (at == document.lispFunctions.end()) return false;
  *failed = true;
  if (static_cast<int>(Calls().size()) >= kMaxCallDepth) return true;
  const LispFunction function = at->second;
  RunningCall call{function.code, &arguments, {}};
  Calls().push_back(&call);
  LoadedModule* before = TheHost().modules.Running();
  TheHost().modules.SetRunning(function.module);
  {
    DocumentScope scope(&document);
    UndoRecording recording(document, UpperCase(name));
    ++document.locks;  // a LISP function may change the drawing without a command
    *failed = function.module->entry(AcRx::kInvkSubrMsg, function.module) != AcRx::kRetOK;
    --document.locks;
  }
  TheHost().modules.SetRunning(before);
  Calls().pop_back();
  *result = std::move(call.result);
  TheJournal().Record("lisp",
                      {{"function", Utf8(UpperCase(name))}, {"result", Utf8(Printed(*result))}});
  return true;
}

}  // namespace devhost

using namespace devhost;

namespace {

Document* LispDocument() {
  return TheHost().documents.FindDocument(TheHost().documents.curDocument());
}

int SetResult(LispValue value) {
  if (Calls().empty()) return RTERROR;
  Calls().back()->result = std::move(value);
  return RTNORM;
}

}  // namespace

int acedDefun(const ACHAR* name, int code) {
  Document* document = LispDocument();
  LoadedModule* module = TheHost().modules.Running();
  if (!name || !*name || !document || !module) return RTERROR;
  TheStartTrace().Step("acedDefun", Utf8(name));
  document->lispFunctions[UpperCase(name)] = {module, code};
  return RTNORM;
}

int acedUndef(const ACHAR* name, int code) {
  Document* document = LispDocument();
  if (!name || !document) return RTERROR;
  const auto at = document->lispFunctions.find(UpperCase(name));
  if (at == document->lispFunctions.end() || at->second.code != code) return RTERROR;
  document->lispFunctions.erase(at);
  return RTNORM;
}

int acedGetFunCode() { return Calls().empty() ? RTERROR : Calls().back()->code; }

resbuf* acedGetArgs() {
  if (Calls().empty() || Calls().back()->arguments->empty()) return nullptr;
  resbuf* head = nullptr;
  resbuf** tail = &head;
  for (const LispValue& argument : *Calls().back()->arguments) {
    *tail = ToResbuf(argument);
    while (*tail) tail = &(*tail)->rbnext;
  }
  return head;
}

int acedRetVoid() { return SetResult(LispValue::Nil()); }
int acedRetNil() { return SetResult(LispValue::Nil()); }
int acedRetT() { return SetResult(LispValue::True()); }
int acedRetInt(int value) { return SetResult(LispValue::Integer(value)); }
int acedRetReal(ads_real value) { return SetResult(LispValue::Real(value)); }
int acedRetStr(const ACHAR* value) { return SetResult(LispValue::String(value ? value : L"")); }
int acedRetList(const resbuf* value) { return SetResult(FromResbuf(value)); }

int acedInvoke(const resbuf* call, resbuf** result) {
  if (result) *result = nullptr;
  Document* document = LispDocument();
  if (!document || !call || call->restype != RTSTR || !call->resval.rstring) return RTERROR;
  std::vector<LispValue> arguments;
  if (call->rbnext) {
    LispValue given = FromResbuf(call->rbnext);
    if (given.kind == LispValue::Kind::List)
      arguments = std::move(given.items);
    else
      arguments.push_back(std::move(given));
  }
  TheStartTrace().Step("acedInvoke", Utf8(call->resval.rstring));
  LispValue value;
  bool failed = false;
  if (!CallLispFunction(*document, call->resval.rstring, arguments, &value, &failed) || failed)
    return RTERROR;
  if (result) *result = ToResbuf(value);
  return RTNORM;
}

int acedPutSym(const ACHAR* name, resbuf* value) {
  Document* document = LispDocument();
  if (!name || !*name || !document) return RTERROR;
  TheStartTrace().Step("acedPutSym", Utf8(name));
  document->lispSymbols[UpperCase(name)] = FromResbuf(value);
  return RTNORM;
}

int acedGetSym(const ACHAR* name, resbuf** value) {
  Document* document = LispDocument();
  if (!name || !value || !document) return RTERROR;
  const auto at = document->lispSymbols.find(UpperCase(name));
  *value = ToResbuf(at == document->lispSymbols.end() ? LispValue::Nil() : at->second);
  return RTNORM;
}
