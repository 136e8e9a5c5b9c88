// Makes the host's own database classes known, so that drawings find them by their DXF names.
#pragma once

namespace devhost {
void RegisterDatabaseClasses();
}
