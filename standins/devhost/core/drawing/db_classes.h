// Registers the host's database classes, so that drawings find them by their DXF names.
#pragma once

class AcRxClass;

namespace devhost {

void RegisterDatabaseClasses();

// Whether a class is one of those, not a module's. Proxies, which keep all groups, are not.
bool IsHostClass(const AcRxClass& cls);

}  // namespace devhost
