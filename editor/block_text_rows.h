// How text of each type of object inside a block is edited.
#pragma once

namespace qvx {

enum class BlockTextAction {
  kAttributeEditor,  // of the host
  kPlainText,        // in place, without a hit test
  kOwnEdit,          // the object's own edit routine
  kOwnEditAtText,    // the same when the pick has hit text
  kInPlaceAtText,    // in place, the text that the pick has hit
  kNone,
};

class TypeTest {
 public:
  virtual ~TypeTest() = default;
  virtual bool HasName(const wchar_t* type) const = 0;  // the name in group 0, case ignored
  virtual bool Is(const wchar_t* type) const = 0;       // by the kernel's TEntitySet::Is
};

// By the first type that fits, in the order of the rows.
BlockTextAction FindBlockTextAction(const TypeTest& object);

}  // namespace qvx
