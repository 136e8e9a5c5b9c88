// The user coordinate systems of a drawing in the header section: $UCSORG, $UCSXDIR, $UCSYDIR, and
// the same of the sheet with the prefix $P.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/core/drawing/database_body.h"

namespace devhost {

// Reads the systems from `body.header`. Axes that are not perpendicular are made so; a system whose
// axes give no plane is that of the world.
void ReadHeaderSystems(AcDbDatabase::Body& body);

// The number that group `code` of the header variable has; none: another variable or group.
std::optional<double> SystemNumber(const AcDbDatabase::Body& body, const std::wstring& variable,
                                   short code);

// The variables that the header lacks: none if both systems are that of the world.
std::vector<std::wstring> MissingSystemVariables(const AcDbDatabase::Body& body);

}  // namespace devhost
