#include "editor/control_toggle.h"

#include "editor/filter_host.h"
#include "frame/containers/tdualptrlist.h"

namespace qvx {

void ToggleControls(FilterHost& host) {
  const bool gripStretch = host.CurrentCommand() == L"GRIP_STRETCH";
  const std::unique_ptr<ToggleObjects> objects =
      host.ObjectsToToggle(gripStretch ? ToggleSource::kPickFirst : ToggleSource::kSelection);
  TDualPtrList<long> keys;
  for (int i = 0, count = objects->Count(); i < count; ++i) {
    const std::unique_ptr<ToggleObject> object = objects->Open(i);
    if (!object) continue;
    const long key = object->GroupKey();
    if (keys.Find(key) >= 0) continue;
    keys.Append(key);
    object->ToggleControl();
  }
}

}  // namespace qvx
