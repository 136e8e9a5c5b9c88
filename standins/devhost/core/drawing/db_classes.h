// Registers the host's database classes, so that drawings find them by their DXF names.
#pragma once

namespace devhost {
void RegisterDatabaseClasses();
}
