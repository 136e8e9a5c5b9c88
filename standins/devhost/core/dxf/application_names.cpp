// Collecting application names; see the header.
#include "devhost/core/dxf/application_names.h"

#include <algorithm>
#include <set>

#include "adslib.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

constexpr short kApplication = 1001;

// Collects names in order, without duplicates.
class Names {
 public:
  void Add(const std::wstring& name) {
    if (!name.empty() && m_seen.insert(UpperCase(name)).second) m_names.push_back(name);
  }
  void AddFrom(const std::vector<KeptGroup>& groups) {
    for (const KeptGroup& group : groups)
      if (group.code == kApplication) Add(group.text);
  }
  std::vector<std::wstring> Take() { return std::move(m_names); }

 private:
  std::set<std::wstring> m_seen;
  std::vector<std::wstring> m_names;
};

}  // namespace

std::vector<std::wstring> ApplicationsInUse(const AcDbDatabase::Body& body) {
  Names names;
  for (const auto& object : body.objects) {
    if (object->isErased()) continue;
    for (const resbuf* data = AcDbObjectAccess::XData(*object); data; data = data->rbnext)
      if (data->restype == kApplication && data->resval.rstring) names.Add(data->resval.rstring);
  }
  names.AddFrom(body.otherTables);
  names.AddFrom(body.otherSections);
  return names.Take();
}

bool HasTable(const std::vector<KeptGroup>& tables, const std::wstring& name) {
  for (std::size_t i = 0; i + 1 < tables.size(); ++i)
    if (tables[i].code == 0 && tables[i].text == L"TABLE" && SameName(tables[i + 1].text, name))
      return true;
  return false;
}

std::vector<std::wstring> MissingNames(const std::vector<KeptGroup>& tables,
                                       const std::vector<std::wstring>& names) {
  std::set<std::wstring> known;
  std::wstring record;
  for (const KeptGroup& group : tables) {
    if (group.code == 0) record = group.text;
    if (group.code == 2 && SameName(record, L"APPID")) known.insert(UpperCase(group.text));
  }
  std::vector<std::wstring> missing;
  std::copy_if(names.begin(), names.end(), std::back_inserter(missing),
               [&](const std::wstring& name) { return !known.contains(UpperCase(name)); });
  return missing;
}

}  // namespace devhost
