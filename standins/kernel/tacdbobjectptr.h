// An object of a drawing, open for as long as this lives. What can't be opened (erased, of another
// class, a drawing that may not be written) leaves it empty, and the caller goes on to the next.
#pragma once

#include "dbmain.h"

template <class T>
class TAcDbObjectPtr {
 public:
  TAcDbObjectPtr(AcDbObjectId id, AcDb::OpenMode mode) { acdbOpenObject(m_object, id, mode); }
  ~TAcDbObjectPtr() {
    if (m_object) m_object->close();
  }
  TAcDbObjectPtr(const TAcDbObjectPtr&) = delete;
  TAcDbObjectPtr& operator=(const TAcDbObjectPtr&) = delete;

  explicit operator bool() const { return m_object != nullptr; }
  T* operator->() const { return m_object; }
  T* Get() const { return m_object; }

 private:
  T* m_object = nullptr;
};
