// The common base of all drawing objects of the family, whatever host class they derive from: the
// scale of their annotations.
#pragma once

#include "gepnt3d.h"
#include "kernel/kernel_export.h"
#include "rxobject.h"

class QVX_KERNEL TEntityBase {
 public:
  virtual ~TEntityBase();

  // Null for null, for other objects, and for objects of the family that were read while their
  // module was not loaded.
  static TEntityBase* Cast(AcRxObject* object);

  // 100 means 1:100. Ignored unless finite; a value of 0 or less is drawn with the default.
  double GetPScale() const { return m_pscale; }
  virtual void SetPScale(double scale);

  // Whether the object counts as under a pointer that the host found to be on it; a class may look
  // closer. In world coordinates.
  virtual bool AcceptsPointer(const AcGePoint3d& at) const;

  // Objects with the same key are controlled together; one without a group has a key of its own.
  virtual long GroupKey() const;
  // Flips the control state of the object and of all others of its drawing with the same key. The
  // object may be open for reading; nothing happens where it cannot be written.
  virtual void ToggleCtrl();

 protected:
  // Sizes are stored for the default scale; this is the factor for drawing.
  double ScaleFactor() const;

  static constexpr double kDefaultScale = 100;
  double m_pscale = kDefaultScale;
};
