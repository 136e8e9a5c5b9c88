// Selection filters; see the header.
#include "devhost/core/selection/selection_filter.h"

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/dxf_groups.h"
#include "devhost/core/entities/dxf_name.h"
#include "devhost/core/selection/wild_match.h"

namespace devhost {
namespace {

std::wstring TextOf(const AcDbEntity& entity) {
  if (const auto* text = AcDbText::cast(&entity)) return text->textStringConst();
  if (const auto* text = AcDbMText::cast(&entity)) return text->contents();
  return {};
}

std::wstring BlockNameOf(const AcDbEntity& entity) {
  const auto* reference = AcDbBlockReference::cast(&entity);
  const auto* record =
      reference ? AcDbBlockTableRecord::cast(reference->blockTableRecord().object()) : nullptr;
  return record ? record->getName() : L"";
}

bool InPaper(const AcDbEntity& entity) {
  const auto* space = AcDbBlockTableRecord::cast(entity.ownerId().object());
  return space && SameName(space->getName(), ACDB_PAPER_SPACE);
}

bool PassesGroup(const AcDbEntity& entity, const resbuf& group) {
  const std::wstring wanted =
      KindOfGroup(group.restype) == GroupKind::String && group.resval.rstring ? group.resval.rstring
                                                                              : L"";
  switch (group.restype) {
    case 0:
      return WildMatch(DxfNameOf(entity), wanted);
    case 1:
      return WildMatch(TextOf(entity), wanted);
    case 2:
      return WildMatch(BlockNameOf(entity), wanted);
    case 6:
      return WildMatch(entity.linetype(), wanted);
    case 8:
      return WildMatch(entity.layer(), wanted);
    case 62:
      return entity.colorIndex() == group.resval.rint;
    case 67:
      return InPaper(entity) == (group.resval.rint != 0);
    case 410:
      return WildMatch(InPaper(entity) ? L"Layout1" : L"Model", wanted);
    default:
      return false;
  }
}

enum class Join { And, Or, Not };

bool PassesChain(const AcDbEntity& entity, const resbuf*& at, Join join, int depth) {
  bool all = true, any = false;
  for (; at; at = at->rbnext) {
    bool passes = false;
    if (at->restype == -4 && at->resval.rstring) {
      const std::wstring op = UpperCase(at->resval.rstring);
      if (op.size() > 1 && op.back() == L'>') break;
      if (depth > 30 || op.empty() || op[0] != L'<') continue;
      at = at->rbnext;
      passes = PassesChain(entity, at,
                           op == L"<OR"    ? Join::Or
                           : op == L"<NOT" ? Join::Not
                                           : Join::And,
                           depth + 1);
    } else {
      passes = PassesGroup(entity, *at);
    }
    all &= passes;
    any |= passes;
    if (!at) break;
  }
  return join == Join::And ? all : join == Join::Or ? any : !all;
}

}  // namespace

bool PassesFilter(const AcDbEntity& entity, const resbuf* filter) {
  return PassesChain(entity, filter, Join::And, 0);
}

}  // namespace devhost
