// The road of an object out of and into a drawing file of the text form.
#pragma once

#include "accmd.h"
#include "gepnt3d.h"

class AcDbDatabase;

class AcDbDxfFiler {
 public:
  virtual ~AcDbDxfFiler() = default;
  virtual AcDbDatabase* database() const = 0;

  // Reading: the next group; its string lives until the next call. eEndOfFile behind the last one.
  virtual Acad::ErrorStatus readItem(resbuf* item) = 0;
  virtual void pushBackItem() = 0;

  virtual Acad::ErrorStatus writeString(short code, const ACHAR* value) = 0;
  virtual Acad::ErrorStatus writeDouble(short code, double value) = 0;
  virtual Acad::ErrorStatus writeInt(short code, int value) = 0;
  virtual Acad::ErrorStatus writePoint(short code, const AcGePoint3d& value) = 0;
};
