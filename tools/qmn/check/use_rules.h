// Icons and switches that no line and no state uses.
#pragma once

#include "tools/qmn/check/line_view.h"

class UsedNames {
 public:
  void Add(const LineView& line);
  // Call after all lines. Reports nothing for a file with errors, whose lines may be missing.
  void ReportUnused(const CheckContext& context) const;

 private:
  NameSet m_icons, m_switches;
};
