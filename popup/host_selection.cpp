#include "popup/host_selection.h"

#include "dbents.h"
#include "editor/editor_door.h"
#include "ground/host_variables.h"
#include "kernel/logical_layers.h"
#include "kernel/tacdbobjectptr.h"

namespace {

constexpr int kPaperSpacePort = 1;
constexpr int kSpeedMenuNeedsSelection = 2;  // of g_nSpeedMenu, from this value on

using OpenedEntity = TAcDbObjectPtr<AcDbEntity>;

GroupValue ReadGroup(const TPickEntSet& set, size_t object, int code) {
  const OpenedEntity entity(set[static_cast<int>(object)].ObjectId(), AcDb::kForRead);
  GroupValue value;
  if (entity.Get()) TEntitySet::GroupOf(*entity.Get(), code, value);
  return value;
}

}  // namespace

void ReadSelection(TPickEntSet& set) {
  set.Get(L"I");
  if (set.Length() || !IsPreviewAllowed()) return;
  TPickEntSet under;
  under.GetPreSel();
  TEntitySet& mouseOn = DocGetEntMouseOn();
  mouseOn = under[0];
  if (!mouseOn.IsEmpty()) set.Set(mouseOn);
}

SelectionDescription DescribeSelection(const TPickEntSet& set) {
  SelectionDescription selection;
  for (int i = 0, count = set.Length(); i < count; ++i) {
    const OpenedEntity entity(set[i].ObjectId(), AcDb::kForRead);
    if (!entity.Get())
      selection.Add(L"", L"", ObjectState::kUnreadable);
    else
      selection.Add(
          TEntitySet::TypeOf(*entity.Get()), entity.Get()->layer(),
          AcDbViewport::cast(entity.Get()) ? ObjectState::kViewport : ObjectState::kEntity);
  }
  selection.SetGroupReader(
      [&set](size_t object, int code) { return ReadGroup(set, object, code); });
  if (!selection.Count())
    selection.SetPaperSpace(qvx::ShortVariable(L"CVPORT").value_or(0) == kPaperSpacePort);
  return selection;
}

bool ResolveLayer(std::wstring_view key, std::wstring& layer) {
  TWCString found;
  if (!GetLayer(std::wstring(key).c_str(), found)) return false;
  layer.assign(found);
  return true;
}

int ChooseBlock(const TMenuSystem& system, const SelectionDescription& selection, int speedMenu,
                bool force) {
  if (!selection.Count() && speedMenu >= kSpeedMenuNeedsSelection && !force) return -1;
  return BlockMatcher(system).Find(selection, ResolveLayer);
}
