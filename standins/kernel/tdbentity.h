// Interfaces for editing QVX_* objects: TDbCurveEntity of curves, TDbEntity of all others.
#pragma once

#include <string>
#include <vector>

#include "adesk.h"
#include "dbmain.h"
#include "kernel/kernel_export.h"

class TSubText;
struct QvxTextPlace;

// The editable texts of an object. The caller owns the results.
class QVX_KERNEL TTextOwner {
 public:
  typedef void (*EditFunction)(AcDbObjectId object);

  virtual ~TTextOwner();
  virtual TSubText* GetSubText(int index) const = 0;  // null: no such text
  virtual TSubText* GetSubTextAt(
      const AcGePoint3d& at) const = 0;  // by the place of a text, in world
  // The routine that edits the whole object; null: there is none. The object is closed.
  virtual EditFunction GetEditFunction() const { return nullptr; }

  // What a fragment needs from its object. Texts are in the order of their indices.
  virtual std::vector<QvxTextPlace> SubTexts() const = 0;
  // The object is open for writing. An index without a text does nothing.
  virtual void ChangeSubText(int index, const std::wstring& text) = 0;
  // The index of the neighbour, -1 for none. By default the texts are one chain in both directions.
  virtual int NextSubText(int index, bool vertical, bool backward) const;

 protected:
  TSubText* MakeSubText(const AcDbEntity& object, int index) const;
  TSubText* MakeSubTextAt(const AcDbEntity& object, const AcGePoint3d& at) const;
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
