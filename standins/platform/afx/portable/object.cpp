// CObject, run-time classes and assertions.
#include "afx.h"

#include <cstdio>
#include <cstdlib>

CRuntimeClass CObject::classCObject = {"CObject", int{sizeof(CObject)}, 0xFFFF, nullptr, nullptr,
                                       nullptr};

CRuntimeClass* CObject::GetThisClass() { return &classCObject; }
CRuntimeClass* CObject::GetRuntimeClass() const { return &classCObject; }
void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}
void CObject::Dump(CDumpContext&) const {}

BOOL CObject::IsKindOf(const CRuntimeClass* base) const {
  return GetRuntimeClass()->IsDerivedFrom(base);
}

BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }

CObject* CRuntimeClass::CreateObject() { return m_pfnCreateObject ? m_pfnCreateObject() : nullptr; }

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
  for (const CRuntimeClass* at = this; at;
       at = at->m_pfnGetBaseClass ? at->m_pfnGetBaseClass() : nullptr)
    if (at == base) return TRUE;
  return FALSE;
}

CObject* AfxDynamicDownCast(CRuntimeClass* wanted, CObject* object) {
  return object && object->IsKindOf(wanted) ? object : nullptr;
}

void AfxAssertFailedLine(const char* condition, const char* file, int line) {
  std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, condition);
  std::abort();
}
