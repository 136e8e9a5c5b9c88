// User coordinate systems in the header section; see the header.
#include "devhost/core/dxf/header_systems.h"

#include <algorithm>
#include <cwchar>

#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

constexpr const wchar_t* kVariables[] = {L"$UCSORG",  L"$UCSXDIR",  L"$UCSYDIR",
                                         L"$PUCSORG", L"$PUCSXDIR", L"$PUCSYDIR"};
constexpr std::size_t kOfOneSystem = 3;

using Numbers = double[3];

void ReadNumbers(const std::vector<KeptGroup>& header, const std::wstring& variable, Numbers& out) {
  std::wstring name;
  for (const KeptGroup& group : header) {
    if (group.code == 9) name = group.text;
    const int at = group.code / 10 - 1;
    if (group.code % 10 == 0 && at >= 0 && at < 3 && SameName(name, variable))
      out[at] = std::wcstod(group.text.c_str(), nullptr);
  }
}

UserSystem ReadSystem(const std::vector<KeptGroup>& header, std::size_t first) {
  Numbers origin = {0, 0, 0}, x = {1, 0, 0}, y = {0, 1, 0};
  ReadNumbers(header, kVariables[first], origin);
  ReadNumbers(header, kVariables[first + 1], x);
  ReadNumbers(header, kVariables[first + 2], y);
  const AcGePoint3d at(origin[0], origin[1], origin[2]);
  UserSystem system;
  // The axes are tested at the world's origin: added to a far away one they would lose digits.
  if (!std::isfinite((at - AcGePoint3d()).length()) ||
      !SystemOfThreePoints({}, {x[0], x[1], x[2]}, {y[0], y[1], y[2]}, &system))
    return UserSystem();
  system.origin = at;
  return system;
}

}  // namespace

void ReadHeaderSystems(AcDbDatabase::Body& body) {
  body.modelSystem = ReadSystem(body.header, 0);
  body.paperSystem = ReadSystem(body.header, kOfOneSystem);
}

std::optional<double> SystemNumber(const AcDbDatabase::Body& body, const std::wstring& variable,
                                   short code) {
  if (code != 10 && code != 20 && code != 30) return std::nullopt;
  for (std::size_t i = 0; i < std::size(kVariables); ++i) {
    if (!SameName(variable, kVariables[i])) continue;
    const UserSystem& system = i < kOfOneSystem ? body.modelSystem : body.paperSystem;
    const AcGeVector3d values[] = {system.origin - AcGePoint3d(), system.x, system.y};
    const AcGeVector3d& value = values[i % kOfOneSystem];
    return code == 10 ? value.x : code == 20 ? value.y : value.z;
  }
  return std::nullopt;
}

std::vector<std::wstring> MissingSystemVariables(const AcDbDatabase::Body& body) {
  std::vector<std::wstring> missing;
  if (body.modelSystem.IsWorld() && body.paperSystem.IsWorld()) return missing;
  for (const wchar_t* variable : kVariables)
    if (std::none_of(body.header.begin(), body.header.end(), [variable](const KeptGroup& group) {
          return group.code == 9 && SameName(group.text, variable);
        }))
      missing.emplace_back(variable);
  return missing;
}

}  // namespace devhost
