// Variables in the header of a file; see the header.
#include "devhost/core/variables/header_variables.h"

#include <cwchar>

#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/space_variables.h"
#include "devhost/core/variables/variable_values.h"

namespace devhost {

void LoadHeaderVariables(Document& document) {
  const std::vector<KeptGroup>& groups = document.database()->body().header;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
    if (groups[i].code != 9 || groups[i].text.size() < 2) continue;
    const VariableInfo* info = TheHost().variables.Find(groups[i].text.substr(1));
    if (!info || !info->ofDrawing || info->readOnly || info->type == VarType::Point) continue;
    std::wstring value = groups[i + 1].text;
    if (info->type != VarType::Text) {
      wchar_t* end = nullptr;
      const double number = std::wcstod(value.c_str(), &end);
      if (end == value.c_str() || number < info->low ||
          (info->low <= info->high && number > info->high))
        continue;
      value = info->type == VarType::Short ? std::to_wstring(static_cast<int>(number))
                                           : RealText(number);
    }
    document.variables[info->name] = value;
    UpdateCurrentSpace(document, info->name);
  }
}

void SaveHeaderVariables(Document& document) {
  std::vector<KeptGroup>& groups = document.database()->body().header;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
    if (groups[i].code != 9 || groups[i].text.size() < 2) continue;
    const auto at = document.variables.find(UpperCase(groups[i].text.substr(1)));
    if (at != document.variables.end()) groups[i + 1].text = at->second;
  }
}

}  // namespace devhost
