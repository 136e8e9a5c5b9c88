// One piece of text of a drawing object as the in-place editor uses it: the name of a room, a cell
// of a table. Implemented over the kernel's TSubText, whose operations have the same names. The
// owner deletes it; no fragment may outlive the kernel. Update, GetNext, Highlight and the
// destructor may run foreign code.
#pragma once

#include <memory>
#include <string>

#include "dbmain.h"
#include "gepnt3d.h"

namespace qvx {

class EditFragment {
 public:
  virtual ~EditFragment() = default;

  virtual std::wstring GetText() const = 0;
  // Changes the text in the fragment only, for measuring.
  virtual void SetText(const std::wstring& text) = 0;
  // Writes the text to the object; requires the document lock.
  virtual void Update(const std::wstring& text) = 0;
  // Lower left and upper right corner of the text in its own space.
  virtual void GetExtent2d(AcGePoint3d& lower, AcGePoint3d& upper) const = 0;
  // The neighbour, which does not refer to this fragment; null at the end of the chain.
  virtual std::unique_ptr<EditFragment> GetNext(bool vertical, bool backward) const = 0;
  virtual long GetIndex() const = 0;  // the place of the text in its object
  virtual void SetIndex(long index) = 0;
  virtual AcDbObjectId GetObjectId() const = 0;
  virtual void Highlight(bool on) const = 0;  // the whole object
  virtual bool IsMultiLine() const = 0;
  virtual int GetMenuType() const = 0;  // see MenuNameOf
};

}  // namespace qvx
