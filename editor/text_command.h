// The command TInPlaceEdit: opens the first piece of text of a picked object in the in-place
// editor.
#pragma once

#include "editor/text_objects.h"

namespace qvx {

class TextCommandHost : public TextObjects {
 public:
  // RTNORM or the code of a pick without an object. Messages are handled meanwhile.
  virtual int PickOne(const wchar_t* prompt, const wchar_t* types, AcDbObjectId& object) = 0;
};

void EditPickedText(TextCommandHost& host);

}  // namespace qvx
