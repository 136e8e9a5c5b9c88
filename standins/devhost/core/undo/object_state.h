// A snapshot of an object's data, which undo restores in the same object: the groups that the class
// writes, layer, linetype and colour of an entity, extended data. Not included: whether it is
// erased, and sub-objects.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/undo/undo_filer.h"

class AcDbObject;
struct resbuf;

namespace devhost {

class ObjectState {
 public:
  explicit ObjectState(const AcDbObject& object);
  ~ObjectState();
  ObjectState(const ObjectState&) = delete;
  ObjectState& operator=(const ObjectState&) = delete;

  void Restore(AcDbObject& object) const;  // to the same object, or one of its class

 private:
  std::vector<UndoItem> m_items;
  std::wstring m_layer, m_linetype;
  bool m_hasLinetype = false;
  int m_color = 256;
  resbuf* m_xdata;
};

}  // namespace devhost
