// What the two commands that edit text require of the host, the kernel's drawing objects and the
// in-place editor. Objects may be erased or gone: an operation on one gives nothing then.
#pragma once

#include <functional>
#include <memory>

#include "dbmain.h"
#include "editor/edit_fragment.h"

namespace qvx {

// The two kernel classes that carry the text interface.
enum class TextCarrier { kEntity, kCurve };  // TDbEntity, TDbCurveEntity

class TextObjects {
 public:
  virtual ~TextObjects() = default;

  // The drawing has closed or the module is being unloaded: the command ends and touches nothing.
  virtual bool IsGone() const = 0;

  virtual bool IsCarrier(TextCarrier carrier, AcDbObjectId object) const = 0;
  // The text interface of a carrier; null for none.
  virtual std::unique_ptr<EditFragment> GetSubText(TextCarrier carrier, AcDbObjectId object,
                                                   long index) = 0;
  virtual std::unique_ptr<EditFragment> GetSubTextAt(TextCarrier carrier, AcDbObjectId object,
                                                     const AcGePoint3d& at) = 0;
  // The object's own edit routine; empty for none. It runs dialogs and commands.
  using EditFunction = std::function<void(AcDbObjectId)>;
  virtual EditFunction GetEditFunction(TextCarrier carrier, AcDbObjectId object) = 0;

  virtual void ClearSelection() = 0;
  virtual void BeginEdit(std::unique_ptr<EditFragment> text, const AcGeMatrix3d& toWorld) = 0;
};

}  // namespace qvx
