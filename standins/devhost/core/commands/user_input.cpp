// The published input functions, based on CommandEngine::Ask.
#include <cmath>
#include <cwchar>
#include <numbers>
#include <optional>
#include <utility>

#include "adslib.h"
#include "devhost/core/commands/typed_input.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/selection/nested_pick.h"
#include "devhost/core/view/scene.h"

using namespace devhost;

namespace {

// Flags and keywords of acedInitGet, valid for the next request.
struct RequestOptions {
  int flags = 0;
  std::wstring keywords;
};
RequestOptions& NextOptions() {
  static RequestOptions next;
  return next;
}
std::wstring& LastKeyword() {
  static std::wstring keyword;
  return keyword;
}
AcGePoint3d& LastPoint() {
  static AcGePoint3d point;
  return point;
}

constexpr int kNoEmpty = 1, kNoZero = 2, kNoNegative = 4, kArbitrary = 128;

AcGePoint3d FromAds(const ads_point p) { return {p[0], p[1], p[2]}; }
void ToAds(const AcGePoint3d& p, ads_point out) {
  out[0] = p.x;
  out[1] = p.y;
  out[2] = p.z;
}

// Asks until `read` accepts the answer. Returns RTNORM, RTNONE, RTKWORD or RTCAN.
template <class Read>
int AskFor(InputRequest what, const ACHAR* prompt, bool blanks, const AcGePoint3d* base,
           const wchar_t* rejection, Read read) {
  const RequestOptions options = std::exchange(NextOptions(), RequestOptions());
  const std::wstring text = prompt ? prompt : L"";
  for (;;) {
    const InputAnswer answer = TheHost().engine.Ask(what, text, blanks, base);
    if (answer.kind == InputAnswer::Kind::Cancelled) return RTCAN;
    if (answer.kind == InputAnswer::Kind::Enter && !blanks) {
      if (!(options.flags & kNoEmpty)) return RTNONE;
    } else if (answer.kind == InputAnswer::Kind::Text && !blanks) {
      if (auto word = MatchKeyword(options.keywords, answer.text)) {
        LastKeyword() = *word;
        return RTKWORD;
      }
    }
    if (read(answer, options.flags)) return RTNORM;
    if (answer.kind == InputAnswer::Kind::Text && (options.flags & kArbitrary)) {
      LastKeyword() = answer.text;
      return RTKWORD;
    }
    TheHost().Print(rejection);
  }
}

int AskPoint(InputRequest what, const ads_point base, const ACHAR* prompt, ads_point result) {
  const AcGePoint3d from = base ? FromAds(base) : AcGePoint3d();
  const AcGePoint3d rubber = base ? WorldOfUser(base) : AcGePoint3d();
  return AskFor(what, prompt, false, base ? &rubber : nullptr, L"\n点无效。\n",
                [&](const InputAnswer& answer, int) {
                  std::optional<AcGePoint3d> p;
                  if (answer.kind == InputAnswer::Kind::Point)
                    p = CurrentUserSystem().ToUser(answer.point);
                  else
                    p = ReadPoint(answer.text, base ? from : LastPoint());
                  if (!p) return false;
                  LastPoint() = *p;
                  ToAds(*p, result);
                  return true;
                });
}

int AskReal(const ads_point base, const ACHAR* prompt, bool angle, ads_real* result) {
  const AcGePoint3d from = base ? WorldOfUser(base) : AcGePoint3d();
  return AskFor(base ? InputRequest::Point : InputRequest::Text, prompt, false,
                base ? &from : nullptr, L"\n需要数值。\n",
                [&](const InputAnswer& answer, int flags) {
                  double value = 0;
                  if (answer.kind == InputAnswer::Kind::Point) {
                    if (!base) return false;
                    const AcGeVector3d offset = CurrentUserSystem().ToUser(answer.point - from);
                    value = angle ? std::atan2(offset.y, offset.x) : offset.length();
                  } else {
                    const wchar_t* at = answer.text.c_str();
                    if (!ReadNumber(at, &value) || *at) return false;
                    if (angle) value *= std::numbers::pi / 180;
                  }
                  if (((flags & kNoZero) && value == 0) || ((flags & kNoNegative) && value < 0))
                    return false;
                  *result = value;
                  return true;
                });
}

}  // namespace

int acedInitGet(int flags, const ACHAR* keywords) {
  NextOptions() = {flags, keywords ? keywords : L""};
  return RTNORM;
}

int acedGetPoint(const ads_point base, const ACHAR* prompt, ads_point result) {
  return AskPoint(InputRequest::Point, base, prompt, result);
}
int acedGetCorner(const ads_point base, const ACHAR* prompt, ads_point result) {
  return AskPoint(InputRequest::Corner, base, prompt, result);
}

int acedGetDist(const ads_point base, const ACHAR* prompt, ads_real* result) {
  return AskReal(base, prompt, false, result);
}
int acedGetAngle(const ads_point base, const ACHAR* prompt, ads_real* result) {
  return AskReal(base, prompt, true, result);
}
int acedGetReal(const ACHAR* prompt, ads_real* result) {
  return AskReal(nullptr, prompt, false, result);
}

int acedGetInt(const ACHAR* prompt, int* result) {
  return AskFor(InputRequest::Text, prompt, false, nullptr, L"\n需要整数。\n",
                [&](const InputAnswer& answer, int flags) {
                  wchar_t* end = nullptr;
                  const long value = std::wcstol(answer.text.c_str(), &end, 10);
                  if (answer.text.empty() || *end || value < -32768 || value > 32767) return false;
                  if (((flags & kNoZero) && !value) || ((flags & kNoNegative) && value < 0))
                    return false;
                  *result = static_cast<int>(value);
                  return true;
                });
}

int acedGetString(int blanks, const ACHAR* prompt, ACHAR* result) {
  constexpr std::size_t kLongest = 132;
  NextOptions() = {};
  const InputAnswer answer =
      TheHost().engine.Ask(InputRequest::Text, prompt ? prompt : L"", blanks != 0, nullptr);
  if (answer.kind == InputAnswer::Kind::Cancelled) return RTCAN;
  std::wcscpy(result, answer.text.substr(0, kLongest).c_str());
  return RTNORM;
}

int acedGetKword(const ACHAR* prompt, ACHAR* result) {
  const int status = AskFor(InputRequest::Keyword, prompt, false, nullptr, L"\n关键字无效。\n",
                            [](const InputAnswer&, int) { return false; });
  if (status != RTKWORD) return status;
  std::wcscpy(result, LastKeyword().c_str());
  return RTNORM;
}

int acedGetInput(ACHAR* keyword) {
  if (!keyword) return RTERROR;
  std::wcscpy(keyword, LastKeyword().c_str());
  return RTNORM;
}

int acedEntSel(const ACHAR* prompt, ads_name entity, ads_point point) {
  ads_point at{};
  if (const auto given = TheHost().engine.TakeGivenObjects()) {
    if (given->empty() || acdbGetAdsName(entity, given->front()) != Acad::eOk) return RTERROR;
    if (point) ToAds(AcGePoint3d(), point);
    return RTNORM;
  }
  const SelectionPrompt selecting(TheHost().engine);
  const int status = acedGetPoint(nullptr, prompt ? prompt : L"\n选择对象: ", at);
  if (status != RTNORM) return status;
  Document* document = TheHost().documents.Current();
  AcDbEntity* hit = document ? EntityAt(*document->database(), WorldOfUser(at),
                                        6 / document->view.PixelsPerUnit())
                             : nullptr;
  if (!hit) return FailPick(PickError::kMissed);
  if (point) ToAds(FromAds(at), point);
  return acdbGetAdsName(entity, hit->objectId()) == Acad::eOk ? RTNORM : RTERROR;
}
