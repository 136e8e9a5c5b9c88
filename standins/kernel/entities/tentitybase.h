// What all drawing objects of the family have in common, whatever host class they derive from: the
// scale at which their annotations are made.
#pragma once

#include "kernel/kernel_export.h"
#include "rxobject.h"

class QVX_KERNEL TEntityBase {
 public:
  virtual ~TEntityBase();

  // Null for null and for objects of other makers, among them those of the family that a drawing
  // was read with while their module was not there.
  static TEntityBase* Cast(AcRxObject* object);

  // 100 means 1:100. Any finite number is kept, what is none changes nothing; one that is not above
  // 0 draws as the default does.
  double GetPScale() const { return m_pscale; }
  virtual void SetPScale(double scale);

 protected:
  // Sizes are stored as they are drawn at the default scale; this is what they are multiplied by.
  double ScaleFactor() const;

  static constexpr double kDefaultScale = 100;
  double m_pscale = kDefaultScale;
};
