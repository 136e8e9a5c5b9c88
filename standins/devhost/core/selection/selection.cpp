// Selection sets and the pick-first set; see the header.
#include "devhost/core/selection/selection.h"

#include <map>

#include "devhost/core/host/host.h"

namespace devhost {
namespace {

std::map<long long, std::vector<AcDbObjectId>>& AllSets() {
  static std::map<long long, std::vector<AcDbObjectId>> sets;
  return sets;
}

}  // namespace

void SetPickFirst(Document& document, std::vector<AcDbObjectId> ids) {
  for (AcDbObjectId id : document.pickFirst) document.highlighted.erase(id.object());
  for (AcDbObjectId id : ids) document.highlighted.insert(id.object());
  document.pickFirst = std::move(ids);
  TheHost().Ui().SelectionChanged(document);
}

std::vector<AcDbObjectId>* FindSet(const ads_name name) {
  const auto at = name ? AllSets().find(name[0]) : AllSets().end();
  return at == AllSets().end() ? nullptr : &at->second;
}

void CreateSet(std::vector<AcDbObjectId> ids, ads_name name) {
  static long long next = 0;
  name[0] = ++next;
  name[1] = 0;
  AllSets()[next] = std::move(ids);
}

bool FreeSet(const ads_name name) { return name && AllSets().erase(name[0]) > 0; }

}  // namespace devhost
