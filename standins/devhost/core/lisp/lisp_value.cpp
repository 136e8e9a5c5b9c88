// LISP values and their resbuf chains; see the header.
#include "devhost/core/lisp/lisp_value.h"

#include <algorithm>
#include <cwchar>

#include "adslib.h"

namespace devhost {

LispValue LispValue::True() {
  LispValue v;
  v.kind = Kind::True;
  return v;
}
LispValue LispValue::Integer(long long value) {
  LispValue v;
  v.kind = Kind::Integer;
  v.integer = value;
  return v;
}
LispValue LispValue::Real(double value) {
  LispValue v;
  v.kind = Kind::Real;
  v.real = value;
  return v;
}
LispValue LispValue::String(std::wstring value) {
  LispValue v;
  v.kind = Kind::String;
  v.text = std::move(value);
  return v;
}
LispValue LispValue::Symbol(std::wstring value) {
  LispValue v;
  v.kind = Kind::Symbol;
  v.text = std::move(value);
  return v;
}
LispValue LispValue::List(std::vector<LispValue> items) {
  LispValue v;
  v.kind = Kind::List;
  v.items = std::move(items);
  return v;
}

namespace {

constexpr int kMaxListDepth = 200;  // nested lists; deeper ones are flattened

LispValue OneValue(const resbuf* node) {
  LispValue v;
  switch (node->restype) {
    case RTT:
      return LispValue::True();
    case RTSHORT:
      return LispValue::Integer(node->resval.rint);
    case RTLONG:
      return LispValue::Integer(node->resval.rlong);
    case RTREAL:
    case RTANG:
    case RTORINT:
      return LispValue::Real(node->resval.rreal);
    case RTSTR:
      return LispValue::String(node->resval.rstring ? node->resval.rstring : L"");
    case RTPOINT:
    case RT3DPOINT:
      v.kind = LispValue::Kind::Point;
      for (int i = 0; i < 3; ++i) v.point[i] = node->resval.rpoint[i];
      if (node->restype == RTPOINT) v.point[2] = 0;
      return v;
    case RTENAME:
    case RTPICKS:
      v.kind = node->restype == RTENAME ? LispValue::Kind::Entity : LispValue::Kind::Selection;
      v.name = {node->resval.rlname[0], node->resval.rlname[1]};
      return v;
    default:
      return v;
  }
}

std::vector<LispValue> Items(const resbuf*& at, int depth) {
  std::vector<LispValue> items;
  for (; at && at->restype != RTLE; at = at->rbnext) {
    if (at->restype != RTLB || depth >= kMaxListDepth) {
      if (at->restype != RTLB) items.push_back(OneValue(at));
      continue;
    }
    at = at->rbnext;
    items.push_back(LispValue::List(Items(at, depth + 1)));
    if (!at) break;
  }
  return items;
}

resbuf* AddNode(resbuf**& tail, int type) {
  resbuf* node = acutNewRb(type);
  *tail = node;
  tail = &node->rbnext;
  return node;
}

void AddInteger(resbuf**& tail, long long value) {
  if (value >= -32768 && value <= 32767)
    AddNode(tail, RTSHORT)->resval.rint = static_cast<short>(value);
  else
    AddNode(tail, RTLONG)->resval.rlong = static_cast<Adesk::Int32>(value);
}

void Add(resbuf**& tail, const LispValue& value, int depth) {
  switch (value.kind) {
    case LispValue::Kind::Nil:
      AddNode(tail, RTNIL);
      break;
    case LispValue::Kind::True:
      AddNode(tail, RTT);
      break;
    case LispValue::Kind::Integer:
      AddInteger(tail, value.integer);
      break;
    case LispValue::Kind::Real:
      AddNode(tail, RTREAL)->resval.rreal = value.real;
      break;
    case LispValue::Kind::Symbol:
    case LispValue::Kind::String:
      acutNewString(value.text.c_str(), AddNode(tail, RTSTR)->resval.rstring);
      break;
    case LispValue::Kind::Point:
      std::copy(value.point.begin(), value.point.end(), AddNode(tail, RT3DPOINT)->resval.rpoint);
      break;
    case LispValue::Kind::Entity:
      std::copy(value.name.begin(), value.name.end(), AddNode(tail, RTENAME)->resval.rlname);
      break;
    case LispValue::Kind::Selection:
      std::copy(value.name.begin(), value.name.end(), AddNode(tail, RTPICKS)->resval.rlname);
      break;
    case LispValue::Kind::List:
      AddNode(tail, RTLB);
      if (depth < kMaxListDepth)
        for (const LispValue& item : value.items) Add(tail, item, depth + 1);
      AddNode(tail, RTLE);
      break;
  }
}

std::wstring Quoted(const std::wstring& text) {
  std::wstring out = L"\"";
  for (wchar_t c : text) {
    if (c == L'"' || c == L'\\') out += L'\\';
    if (c == L'\n') {
      out += L"\\n";
      continue;
    }
    out += c;
  }
  return out + L'"';
}

std::wstring Number(double value) {
  wchar_t buffer[64];
  std::swprintf(buffer, 64, L"%.6g", value);
  std::wstring text = buffer;
  if (text.find_first_of(L".en") == std::wstring::npos) text += L".0";
  return text;
}

}  // namespace

LispValue FromResbuf(const resbuf* chain) {
  const resbuf* at = chain;
  std::vector<LispValue> items = Items(at, 0);
  if (items.empty()) return LispValue::Nil();
  return items.size() == 1 ? std::move(items[0]) : LispValue::List(std::move(items));
}

resbuf* ToResbuf(const LispValue& value) {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  Add(tail, value, 0);
  return head;
}

std::wstring Printed(const LispValue& value) {
  switch (value.kind) {
    case LispValue::Kind::Nil:
      return L"nil";
    case LispValue::Kind::True:
      return L"T";
    case LispValue::Kind::Integer:
      return std::to_wstring(value.integer);
    case LispValue::Kind::Real:
      return Number(value.real);
    case LispValue::Kind::String:
      return Quoted(value.text);
    case LispValue::Kind::Symbol:
      return value.text;
    case LispValue::Kind::Point:
      return L"(" + Number(value.point[0]) + L" " + Number(value.point[1]) + L" " +
             Number(value.point[2]) + L")";
    case LispValue::Kind::Entity:
      return L"<Entity name: " + std::to_wstring(value.name[0]) + L">";
    case LispValue::Kind::Selection:
      return L"<Selection set: " + std::to_wstring(value.name[0]) + L">";
    case LispValue::Kind::List:
      break;
  }
  if (value.items.empty()) return L"nil";
  std::wstring out = L"(";
  for (const LispValue& item : value.items) out += (out.size() > 1 ? L" " : L"") + Printed(item);
  return out + L")";
}

}  // namespace devhost
