#include "design_input.h"

#include <algorithm>
#include <cwchar>

#include "adslib.h"

namespace {

constexpr int kPositive = 6;  // of acedInitGet: neither zero nor negative
constexpr int kPromptSize = 200;

}  // namespace

bool AskPoint(const wchar_t* prompt, ads_point at, const double* base) {
  return acedGetPoint(base, prompt, at) == RTNORM;
}

bool AskCorner(const wchar_t* prompt, ads_point at, const double* base) {
  return acedGetCorner(base, prompt, at) == RTNORM;
}

bool TwoPoints(ads_point a, ads_point b) {
  return AskPoint(L"\n起点: ", a) && AskPoint(L"\n终点: ", b, a);
}

bool TwoCorners(ads_point a, ads_point b) {
  return AskPoint(L"\n第一点: ", a) && AskCorner(L"\n对角点: ", b, a);
}

bool AskSize(const wchar_t* prompt, double& value) {
  wchar_t text[kPromptSize];
  std::swprintf(text, kPromptSize, L"\n%ls <%g>: ", prompt, value);
  acedInitGet(kPositive, nullptr);
  ads_real typed = value;
  const int status = acedGetReal(text, &typed);
  if (status == RTNORM) value = typed;
  return status == RTNORM || status == RTNONE;
}

bool AskCount(const wchar_t* prompt, int& value, int most) {
  wchar_t text[kPromptSize];
  std::swprintf(text, kPromptSize, L"\n%ls <%d>: ", prompt, value);
  acedInitGet(kPositive, nullptr);
  int typed = value;
  const int status = acedGetInt(text, &typed);
  if (status == RTNORM) value = std::min(typed, most);
  return status == RTNORM || status == RTNONE;
}

bool AskText(const wchar_t* prompt, std::wstring& text) {
  const std::wstring shown =
      std::wstring(L"\n") + prompt + (text.empty() ? L": " : L" <" + text + L">: ");
  ACHAR typed[140] = L"";
  const int status = acedGetString(1, shown.c_str(), typed);
  if (status == RTNORM && *typed) text = typed;
  return status == RTNORM || status == RTNONE;
}

bool Chosen(TPickEntSet& set) { return set.Get(L"I") == RTNORM || set.Get(nullptr) == RTNORM; }

AcDbObjectId PickObject(const wchar_t* prompt, AcGePoint3d* at) {
  ads_name name{};
  ads_point point{};
  AcDbObjectId id;
  if (acedEntSel(prompt, name, point) != RTNORM || acdbGetObjectId(id, name) != Acad::eOk)
    return {};
  if (at) *at = WorldPoint(point);
  return id;
}
