// The published function that runs a command from inside another: acedCommandS.
#include <cstdarg>
#include <cwchar>
#include <deque>
#include <optional>
#include <string>

#include "aced.h"
#include "acedcmdnf.h"
#include "adslib.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

InputAnswer RealAnswer(double value) {
  wchar_t number[40];
  std::swprintf(number, 40, L"%.16g", value);
  return InputAnswer::OfText(number);
}

InputAnswer PointAnswer(const double* user, bool hasHeight) {
  InputAnswer answer;
  if (!user) return answer;
  const ads_point point = {user[0], user[1], hasHeight ? user[2] : 0};
  answer.kind = InputAnswer::Kind::Point;
  answer.point = WorldOfUser(point);
  return answer;
}

InputAnswer ObjectsAnswer(const std::vector<AcDbObjectId>& objects) {
  InputAnswer answer;
  answer.kind = InputAnswer::Kind::Objects;
  answer.objects = objects;
  return answer;
}

// The argument that follows a type code. Nothing: no such type, or a selection set that is gone.
std::optional<InputAnswer> Argument(int type, va_list* args) {
  switch (type) {
    case RTSTR: {
      const ACHAR* text = va_arg(*args, const ACHAR*);
      return InputAnswer::OfText(text ? text : L"");
    }
    case RTSHORT:
    case RTLONG:
      return InputAnswer::OfText(std::to_wstring(va_arg(*args, int)));
    case RTREAL:
      return RealAnswer(va_arg(*args, double));
    case RTPOINT:
    case RT3DPOINT:
      return PointAnswer(va_arg(*args, const double*), type == RT3DPOINT);
    case RTPICKS: {
      const std::vector<AcDbObjectId>* set = FindSet(va_arg(*args, const long long*));
      return set ? std::optional(ObjectsAnswer(*set)) : std::nullopt;
    }
    case RTENAME: {
      AcDbObjectId id;
      if (acdbGetObjectId(id, va_arg(*args, const long long*)) != Acad::eOk) return std::nullopt;
      return ObjectsAnswer({id});
    }
    default:
      return std::nullopt;
  }
}

}  // namespace
}  // namespace devhost

int acedCommandS(int type, ...) {
  using namespace devhost;
  va_list args;
  va_start(args, type);
  std::deque<InputAnswer> input;
  bool good = true;
  for (; good && type != RTNONE && type != 0; type = good ? va_arg(args, int) : 0) {
    std::optional<InputAnswer> answer = Argument(type, &args);
    good = answer.has_value();
    if (good) input.push_back(std::move(*answer));
  }
  va_end(args);
  if (!good || input.empty() || input.front().kind != InputAnswer::Kind::Text) return RTERROR;
  const std::wstring name = std::move(input.front().text);
  input.pop_front();
  return TheHost().engine.RunNested(name, std::move(input)) ? RTNORM : RTERROR;
}
