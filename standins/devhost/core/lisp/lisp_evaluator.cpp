// Evaluates expressions typed on the command line: the forms setq, quote, list, getvar, setvar,
// command, princ, progn, + and -, and the functions that modules define. No defun, no loops.
#include <cwchar>

#include "devhost/core/host/host.h"
#include "devhost/core/lisp/lisp_calls.h"
#include "devhost/core/lisp/lisp_reader.h"

namespace devhost {
namespace {

class Evaluator {
 public:
  Evaluator(Document& document, std::wstring* error) : m_document(document), m_error(error) {}

  LispValue Value(const LispValue& form, int depth = 0) {
    if (depth > kMaxExpressionDepth) return Fail(L"嵌套太深");
    if (form.kind == LispValue::Kind::Symbol) return SymbolValue(form.text);
    if (form.kind != LispValue::Kind::List) return form;
    if (form.items.empty()) return LispValue::Nil();
    if (form.items[0].kind != LispValue::Kind::Symbol) return Fail(L"函数错误");
    const std::wstring& name = form.items[0].text;
    if (name == L"QUOTE") return form.items.size() > 1 ? form.items[1] : LispValue::Nil();
    if (name == L"SETQ") return SetQ(form, depth);
    std::vector<LispValue> arguments;
    for (std::size_t i = 1; i < form.items.size() && m_error->empty(); ++i)
      arguments.push_back(Value(form.items[i], depth + 1));
    return m_error->empty() ? Apply(name, arguments) : LispValue::Nil();
  }

 private:
  LispValue Fail(std::wstring why) {
    if (m_error->empty()) *m_error = std::move(why);
    return LispValue::Nil();
  }
  LispValue SymbolValue(const std::wstring& name) {
    if (name == L"T") return LispValue::True();
    if (name == L"NIL") return LispValue::Nil();
    const auto at = m_document.lispSymbols.find(name);
    return at == m_document.lispSymbols.end() ? LispValue::Nil() : at->second;
  }
  LispValue SetQ(const LispValue& form, int depth) {
    LispValue last;
    for (std::size_t i = 1; i + 1 < form.items.size() && m_error->empty(); i += 2) {
      if (form.items[i].kind != LispValue::Kind::Symbol) return Fail(L"setq 需要符号");
      last = Value(form.items[i + 1], depth + 1);
      m_document.lispSymbols[form.items[i].text] = last;
    }
    return last;
  }
  static std::wstring TextOf(const LispValue& v) {
    return v.kind == LispValue::Kind::String ? v.text : Printed(v);
  }
  LispValue GetVar(const std::wstring& name) {
    std::wstring text;
    if (TheHost().variables.Get(name, &text) != VarResult::Ok) return LispValue::Nil();
    switch (TheHost().variables.Find(name)->type) {
      case VarType::Short:
        return LispValue::Integer(std::wcstol(text.c_str(), nullptr, 10));
      case VarType::Real:
        return LispValue::Real(std::wcstod(text.c_str(), nullptr));
      default:
        return LispValue::String(text);
    }
  }
  LispValue Sum(const std::vector<LispValue>& arguments, bool minus) {
    bool real = false;
    double total = 0;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      const LispValue& v = arguments[i];
      if (v.kind != LispValue::Kind::Integer && v.kind != LispValue::Kind::Real)
        return Fail(L"参数类型错误");
      real |= v.kind == LispValue::Kind::Real;
      const double n = v.kind == LispValue::Kind::Real ? v.real : static_cast<double>(v.integer);
      total = minus && (i > 0 || arguments.size() == 1) ? total - n : total + n;
    }
    const bool whole = !real && total > -9e15 && total < 9e15;
    return whole ? LispValue::Integer(static_cast<long long>(total)) : LispValue::Real(total);
  }
  LispValue Apply(const std::wstring& name, std::vector<LispValue>& arguments) {
    LispValue result;
    bool failed = false;
    if (CallLispFunction(m_document, name, arguments, &result, &failed))
      return failed ? Fail(name + L" 失败") : result;
    if (name == L"LIST") return LispValue::List(std::move(arguments));
    if (name == L"PROGN") return arguments.empty() ? LispValue::Nil() : arguments.back();
    if (name == L"+" || name == L"-") return Sum(arguments, name == L"-");
    if (name == L"PRINC" && !arguments.empty()) {
      TheHost().Print(TextOf(arguments[0]));
      return arguments[0];
    }
    if (name == L"GETVAR" && arguments.size() == 1) return GetVar(TextOf(arguments[0]));
    if (name == L"SETVAR" && arguments.size() == 2)
      return TheHost().variables.Set(TextOf(arguments[0]), TextOf(arguments[1])) == VarResult::Ok
                 ? arguments[1]
                 : Fail(L"变量不能设置: " + TextOf(arguments[0]));
    if (name == L"COMMAND") {
      std::deque<InputAnswer> input;
      for (std::size_t i = 1; i < arguments.size(); ++i)
        input.push_back(InputAnswer::OfText(TextOf(arguments[i])));
      if (!arguments.empty()) TheHost().engine.RunNested(TextOf(arguments[0]), std::move(input));
      return LispValue::Nil();
    }
    return Fail(L"没有函数定义: " + name);
  }

  Document& m_document;
  std::wstring* m_error;
};

constexpr const wchar_t* kForms[] = {L"QUOTE", L"SETQ",  L"LIST",   L"PROGN",  L"+",
                                     L"-",     L"PRINC", L"GETVAR", L"SETVAR", L"COMMAND"};

}  // namespace

std::span<const wchar_t* const> EvaluatorForms() { return kForms; }

LispValue Evaluate(Document& document, const std::wstring& expression, std::wstring* error) {
  LispReader reader(expression);
  LispValue form;
  if (!reader.Read(&form, error)) return LispValue::Nil();
  if (!reader.AtEnd()) {
    *error = L"表达式后面有多余的字符";
    return LispValue::Nil();
  }
  return Evaluator(document, error).Value(form);
}

}  // namespace devhost
