// A lock on a document for as long as an object lives. Code in application context needs one before
// it opens anything of a drawing for writing.
#pragma once

#include "acdocman.h"

class AcAxDocLock {
 public:
  enum DocLockType {
    kNormal = 0,
    kCurDocSwitch,
  };
  AcAxDocLock();  // the current document
  explicit AcAxDocLock(AcDbDatabase* database, DocLockType type = kNormal);
  ~AcAxDocLock();
  AcAxDocLock(const AcAxDocLock&) = delete;
  AcAxDocLock& operator=(const AcAxDocLock&) = delete;
  Acad::ErrorStatus lockStatus() const { return m_status; }
  AcApDocument* document() const { return m_document; }

 private:
  AcApDocument* m_document;
  Acad::ErrorStatus m_status;
};
