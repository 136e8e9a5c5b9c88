// The published functions for variables: acedGetVar and acedSetVar.
#include <cstring>
#include <cwchar>

#include "adslib.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/variable_values.h"

using namespace devhost;

int acedGetVar(const ACHAR* name, resbuf* result) {
  if (name) TheStartTrace().Step("acedGetVar", Utf8(name));
  std::wstring value;
  if (!name || !result || TheHost().variables.Get(name, &value) != VarResult::Ok) return RTERROR;
  std::memset(result, 0, sizeof *result);
  switch (TheHost().variables.Find(name)->type) {
    case VarType::Short:
      result->restype = RTSHORT;
      result->resval.rint = static_cast<short>(std::wcstol(value.c_str(), nullptr, 10));
      break;
    case VarType::Real:
      result->restype = RTREAL;
      result->resval.rreal = std::wcstod(value.c_str(), nullptr);
      break;
    case VarType::Text:
      result->restype = RTSTR;
      acutNewString(value.c_str(), result->resval.rstring);
      break;
    case VarType::Point: {
      result->restype = RT3DPOINT;
      const wchar_t* at = value.c_str();
      for (int i = 0; i < 3; ++i) {
        wchar_t* end = nullptr;
        result->resval.rpoint[i] = std::wcstod(at, &end);
        at = *end == L',' ? end + 1 : end;
      }
      break;
    }
  }
  return RTNORM;
}

int acedSetVar(const ACHAR* name, const resbuf* value) {
  if (!name || !value) return RTERROR;
  const VariableInfo* info = TheHost().variables.Find(name);
  if (!info) return RTERROR;
  std::wstring text;
  switch (value->restype) {
    case RTSHORT:
      text = std::to_wstring(value->resval.rint);
      break;
    case RTLONG:
      text = std::to_wstring(value->resval.rlong);
      break;
    case RTREAL:
      text = RealText(value->resval.rreal);
      break;
    case RTPOINT:
    case RT3DPOINT: {
      const double* p = value->resval.rpoint;
      text = VectorText({p[0], p[1], value->restype == RT3DPOINT ? p[2] : 0});
      break;
    }
    case RTSTR:
      text = value->resval.rstring ? value->resval.rstring : L"";
      break;
    default:
      return RTERROR;
  }
  const bool isPoint = value->restype == RTPOINT || value->restype == RT3DPOINT;
  if ((info->type == VarType::Point) != isPoint) return RTERROR;
  if ((info->type == VarType::Text) != (value->restype == RTSTR)) return RTERROR;
  switch (TheHost().variables.Set(name, text)) {
    case VarResult::Ok:
      return RTNORM;
    case VarResult::ReadOnly:
    case VarResult::OutOfRange:
      return RTREJ;
    default:
      return RTERROR;
  }
}
