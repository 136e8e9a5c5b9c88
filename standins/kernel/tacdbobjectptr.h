// Opens an object of a drawing and closes it in the destructor. Empty when the object can't be
// opened: it is erased, of another class, or the drawing may not be written.
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
