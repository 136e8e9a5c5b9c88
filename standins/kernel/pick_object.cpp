// Picking objects; see the header.
#include "kernel/pick_object.h"

#include <string>
#include <string_view>

#include "acedads.h"
#include "adslib.h"
#include "kernel/qvxexport.h"

namespace {

constexpr short kPickMissedErrno = 7;
constexpr int kTypeCode = 0;

// A number of the host; `otherwise` when it has no such variable.
double NumberVariable(const wchar_t* name, double otherwise) {
  resbuf value{};
  if (acedGetVar(name, &value) != RTNORM) return otherwise;
  if (value.restype == RTSHORT) return value.resval.rint;
  return value.restype == RTREAL ? value.resval.rreal : otherwise;
}

double ScreenHeight() {
  resbuf value{};
  if (acedGetVar(L"SCREENSIZE", &value) != RTNORM) return 0;
  return value.restype == RTPOINT || value.restype == RT3DPOINT ? value.resval.rpoint[1] : 0;
}

// The host reports Enter and a point without an object alike, and the reason by a variable.
int StatusOfPick(int status) {
  if (status == RTNONE) return RTERROR;
  if (status != RTERROR) return status;
  return NumberVariable(L"ERRNO", 0) == kPickMissedErrno ? kPickMissed : RTERROR;
}

void CopyGroup(TRBList& to, const TGroups& group) {
  switch (QvxExport::TypeOfCode(static_cast<unsigned short>(group.restype))) {
    case RTSTR: {
      const wchar_t* text = group.resval.rstring ? group.resval.rstring : L"";
      to.AppendString(group.restype,
                      group.restype == kTypeCode ? TrimmedPatterns(text).c_str() : text);
      break;
    }
    case RTREAL:
      to.AppendReal(group.restype, group.resval.rreal);
      break;
    case RTLONG:
      to.AppendLong(group.restype, group.resval.rlong);
      break;
    default:
      to.AppendShort(group.restype, group.resval.rint);
  }
}

bool Accepts(const TRBList& filter, const TEntitySet& entity) {
  if (filter.IsEmpty()) return true;
  TRBList trimmed;
  for (const TGroups* group = filter.Head(); group; group = group->Next())
    CopyGroup(trimmed, *group);
  return entity.MatchBase(trimmed);
}

AcGeMatrix3d PlaneMatrix(const ads_matrix& from) {
  AcGeMatrix3d matrix;
  matrix.a = from[0][0], matrix.b = from[0][1], matrix.tx = from[0][3];
  matrix.c = from[1][0], matrix.d = from[1][1], matrix.ty = from[1][3];
  return matrix;
}

bool IsWild(wchar_t c) { return std::wstring_view(L"#@.*?~[]-,`").find(c) != std::wstring::npos; }

std::wstring_view Trimmed(std::wstring_view text) {
  while (!text.empty() && text.front() == L' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == L' ' && (text.size() < 2 || text[text.size() - 2] != L'`'))
    text.remove_suffix(1);
  return text;
}

}  // namespace

std::wstring TrimmedPatterns(std::wstring_view patterns) {
  std::wstring out;
  std::size_t first = 0;
  for (std::size_t i = 0; i <= patterns.size(); ++i) {
    if (i < patterns.size() && patterns[i] == L'`') {
      ++i;  // the next character is a part of the pattern
      continue;
    }
    if (i < patterns.size() && patterns[i] != L',') continue;
    out += Trimmed(patterns.substr(first, i - first));
    if (i < patterns.size()) out += L',';
    first = i + 1;
  }
  if (first < patterns.size()) out += Trimmed(patterns.substr(first));  // a back quote at the end
  return out;
}

int TaPh23shdLhsj1(const CString& prompt, TEntitySet& entity, TRBList& filter) {
  ads_name name{};
  ads_point at{};
  const int status = StatusOfPick(acedEntSel(prompt, name, at));
  if (status != RTNORM) return status;
  const TEntitySet picked(name);
  if (!Accepts(filter, picked)) return kPickMissed;
  entity = picked;
  return RTNORM;
}

int TaPhsU12hdLhsj3(const CString& prompt, TEntitySet& entity, TADSGePoint3d& point,
                    AcGeMatrix3d& xform, bool alsoPlain, TRBList& filter) {
  ads_name name{};
  ads_point at{};
  ads_matrix matrix{};
  resbuf* references = nullptr;
  const int status = StatusOfPick(acedNEntSelP(prompt, name, at, 0, matrix, &references));
  if (status != RTNORM) return status;
  const bool isPlain = !references;
  acutRelRb(references);
  const TEntitySet picked(name);
  if ((isPlain && !alsoPlain) || !Accepts(filter, picked)) return kPickMissed;
  entity = picked;
  point = {at[0], at[1], at[2]};
  xform = PlaneMatrix(matrix);
  return RTNORM;
}

double GetApertureWcs() {
  const double pixels = ScreenHeight();
  if (!(pixels > 0)) return 0;
  return NumberVariable(L"APERTURE", 0) * NumberVariable(L"VIEWSIZE", 0) / pixels;
}

bool SpringStrHasSpecialChar(CString* text) {
  if (!text) return false;
  std::wstring escaped;
  for (const wchar_t c : std::wstring_view(text->GetString(), text->GetLength())) {
    if (IsWild(c)) escaped += L'`';
    escaped += c;
  }
  const bool changed = static_cast<int>(escaped.size()) != text->GetLength();
  *text = escaped.c_str();
  return changed;
}
