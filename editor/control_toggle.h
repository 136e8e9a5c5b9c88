// Flips the control state of objects, once for each group: a lone press of Ctrl does it.
#pragma once

#include <memory>

namespace qvx {

enum class ToggleSource {
  kSelection,  // the implied selection
  kPickFirst,  // what was selected before the running command
};

// An object of the drawing, open as long as this lives.
class ToggleObject {
 public:
  virtual ~ToggleObject() = default;
  virtual long GroupKey() = 0;  // equal for objects that flip together
  virtual void ToggleControl() = 0;
};

class ToggleObjects {
 public:
  virtual ~ToggleObjects() = default;
  virtual int Count() = 0;
  virtual std::unique_ptr<ToggleObject> Open(int index) = 0;  // null when it has no such state
};

class FilterHost;

void ToggleControls(FilterHost& host);

}  // namespace qvx
