// See host_variables.h.
#include "ground/host_variables.h"

#include <cstdlib>
#include <cwchar>

#include "aced.h"
#include "adslib.h"

namespace qvx {
namespace {

// A host variable's value; frees a text that the host allocated.
class VariableValue {
 public:
  explicit VariableValue(const wchar_t* name) : m_isRead(acedGetVar(name, &m_value) == RTNORM) {}
  ~VariableValue() {
    if (Is(RTSTR)) std::free(m_value.resval.rstring);
  }
  VariableValue(const VariableValue&) = delete;
  VariableValue& operator=(const VariableValue&) = delete;

  bool IsRead() const { return m_isRead; }
  bool Is(int type) const { return m_isRead && m_value.restype == type; }
  int Short() const { return m_value.resval.rint; }
  double Real() const { return m_value.resval.rreal; }
  double X() const { return m_value.resval.rpoint[0]; }
  const wchar_t* Text() const { return m_value.resval.rstring; }  // may be null

 private:
  resbuf m_value{};
  bool m_isRead;
};

}  // namespace

std::optional<int> ShortVariable(const wchar_t* name) {
  const VariableValue value(name);
  if (!value.Is(RTSHORT)) return {};
  return value.Short();
}

std::optional<double> PointVariableX(const wchar_t* name) {
  const VariableValue value(name);
  if (!value.Is(RTPOINT) && !value.Is(RT3DPOINT)) return {};
  return value.X();
}

TWCString TextVariable(const wchar_t* name) {
  const VariableValue value(name);
  return value.Is(RTSTR) && value.Text() ? TWCString(value.Text()) : TWCString();
}

bool TextVariableContains(const wchar_t* name, const wchar_t* part) {
  const VariableValue value(name);
  return value.Is(RTSTR) && value.Text() && std::wcsstr(value.Text(), part);
}

bool VariableAsText(const wchar_t* name, std::wstring& text) {
  const VariableValue value(name);
  if (value.Is(RTSHORT)) text = std::to_wstring(value.Short());
  if (value.Is(RTSTR) && value.Text()) text = value.Text();
  if (value.Is(RTREAL)) {
    wchar_t digits[40];
    std::swprintf(digits, 40, L"%g", value.Real());
    text = digits;
  }
  return value.IsRead();
}

void SetShortVariable(const wchar_t* name, int value) {
  resbuf wanted{};
  wanted.restype = RTSHORT;
  wanted.resval.rint = static_cast<short>(value);
  acedSetVar(name, &wanted);
}

void SetRealVariable(const wchar_t* name, double value) {
  resbuf wanted{};
  wanted.restype = RTREAL;
  wanted.resval.rreal = value;
  acedSetVar(name, &wanted);
}

}  // namespace qvx
