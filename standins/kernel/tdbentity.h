// Interfaces for editing QVX_* objects: TDbCurveEntity of curves, TDbEntity of all others.
#pragma once

#include "adesk.h"
#include "dbmain.h"
#include "kernel/kernel_export.h"

class TSubText;

// The editable texts of an object. The caller owns the results.
class QVX_KERNEL TTextOwner {
 public:
  typedef void (*EditFunction)(AcDbObjectId object);

  virtual ~TTextOwner();
  virtual TSubText* GetSubText(int index) const = 0;  // null: no such text
  virtual TSubText* GetSubTextAt(
      const AcGePoint3d& at) const = 0;  // by the place of a text, in world
  virtual EditFunction GetEditFunction() const { return nullptr; }
};

class QVX_KERNEL TDbEntity : public TTextOwner {
 public:
  // Null for null and for objects that do not have this interface.
  static TDbEntity* cast(const AcRxObject* object);
  // Whether the command that edits objects of the family can edit this one.
  virtual Adesk::Boolean IsEditable() const = 0;
};

class QVX_KERNEL TDbCurveEntity : public TTextOwner {
 public:
  static TDbCurveEntity* cast(const AcRxObject* object);
  virtual Adesk::Boolean IsEditable() const = 0;
};
