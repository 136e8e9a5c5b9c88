// Dynamic blocks of a drawing file; see the header.
#include "devhost/core/dxf/dynamic_marks.h"

#include <unordered_map>
#include <unordered_set>

#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"

namespace devhost {
namespace {

using Handle = unsigned long long;

constexpr std::string_view kEntry = "ACAD_ENHANCEDBLOCK", kExtension = "{ACAD_XDICTIONARY";

// What one object of the file has to do with dynamic blocks.
struct Marks {
  Handle handle = 0, dictionary = 0;  // 0: none
  bool hasEntry = false;
};

Marks MarksOf(std::span<const DxfGroup> object) {
  Marks marks;
  bool inExtension = false;
  for (const DxfGroup& group : object.subspan(1)) {
    const std::string_view value = TrimBlanks(group.value);
    if (group.code >= 1000) break;
    if (group.code == 102) inExtension = value == kExtension;
    if (group.code == 5 && !marks.handle) marks.handle = DxfHandle(value).value_or(0);
    if (group.code == 360 && inExtension) marks.dictionary = DxfHandle(value).value_or(0);
    if (group.code == 3 && value == kEntry) marks.hasEntry = true;
  }
  return marks;
}

}  // namespace

void MarkDynamicBlocks(std::span<const DxfGroup> groups, AcDbDatabase& database) {
  std::unordered_map<Handle, Handle> extensions;  // of block records, by their handles
  std::unordered_set<Handle> enhanced;            // dictionaries
  for (std::size_t at = 0, end; at < groups.size(); at = end) {
    for (end = at + 1; end < groups.size() && groups[end].code != 0;) ++end;
    const std::string_view type = TrimBlanks(groups[at].value);
    if (groups[at].code != 0 || (type != "BLOCK_RECORD" && type != "DICTIONARY")) continue;
    const Marks marks = MarksOf(groups.subspan(at, end - at));
    if (type == "BLOCK_RECORD" && marks.dictionary) extensions[marks.handle] = marks.dictionary;
    if (type == "DICTIONARY" && marks.hasEntry) enhanced.insert(marks.handle);
  }
  for (const auto& [record, dictionary] : extensions) {
    AcDbObjectId id;
    if (!enhanced.contains(dictionary) ||
        database.getAcDbObjectId(id, false, AcDbHandle(record)) != Acad::eOk)
      continue;
    if (auto* block = AcDbBlockTableRecord::cast(id.object()))
      AcDbObjectAccess::SetEnhanced(*block);
  }
}

}  // namespace devhost
