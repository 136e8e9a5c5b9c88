// Reads and writes objects as groups of the text form of drawing files.
#pragma once

#include "accmd.h"
#include "gepnt3d.h"

class AcDbDatabase;

class AcDbDxfFiler {
 public:
  virtual ~AcDbDxfFiler() = default;
  virtual AcDbDatabase* database() const = 0;

  // Reads the next group; its string is valid until the next call. eEndOfFile after the last one.
  virtual Acad::ErrorStatus readItem(resbuf* item) = 0;
  virtual void pushBackItem() = 0;

  virtual Acad::ErrorStatus writeString(short code, const ACHAR* value) = 0;
  virtual Acad::ErrorStatus writeDouble(short code, double value) = 0;
  virtual Acad::ErrorStatus writeInt(short code, int value) = 0;
  virtual Acad::ErrorStatus writePoint(short code, const AcGePoint3d& value) = 0;
};
