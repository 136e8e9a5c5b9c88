// The data of one object at one time, so that undo can put it back into the same object: what the
// class writes to a drawing file, layer, linetype and colour of an entity, and extended data.
// Whether it is erased and which parts it owns is not among it.
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

  void PutBack(AcDbObject& object) const;  // the same object, or one of its class

 private:
  std::vector<UndoItem> m_items;
  std::wstring m_layer, m_linetype;
  bool m_hasLinetype = false;
  int m_color = 256;
  resbuf* m_xdata;
};

}  // namespace devhost
