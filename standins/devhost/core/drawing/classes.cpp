// Run-time classes; see rxobject.h.
#include <map>
#include <string>

#include "devhost/core/base/text_case.h"
#include "rxobject.h"

namespace {

// Classes by DXF name. A module's classes are added by their constructors and removed by
// deleteAcRxClass, before the module is unloaded.
std::map<std::wstring, AcRxClass*>& ByDxfName() {
  static auto* classes = new std::map<std::wstring, AcRxClass*>;
  return *classes;
}

}  // namespace

AcRxClass::AcRxClass(const ACHAR* name, AcRxClass* parent, AcRxMakeObject make,
                     const ACHAR* dxfName)
    : m_name(name), m_parent(parent), m_make(make), m_dxfName(dxfName) {
  if (dxfName && make) ByDxfName()[devhost::UpperCase(dxfName)] = this;
}

AcRxClass::~AcRxClass() {
  if (!m_dxfName) return;
  const auto at = ByDxfName().find(devhost::UpperCase(m_dxfName));
  if (at != ByDxfName().end() && at->second == this) ByDxfName().erase(at);
}

bool AcRxClass::isDerivedFrom(const AcRxClass* base) const {
  for (const AcRxClass* c = this; c; c = c->m_parent)
    if (c == base) return true;
  return false;
}

AcRxClass* AcRxObject::desc() {
  static AcRxClass* cls = new AcRxClass(L"AcRxObject", nullptr, nullptr, nullptr);
  return cls;
}
AcRxClass* AcRxObject::isA() const { return desc(); }
bool AcRxObject::isKindOf(const AcRxClass* base) const { return isA()->isDerivedFrom(base); }
AcRxObject* AcRxObject::cast(const AcRxObject* object) { return const_cast<AcRxObject*>(object); }

AcRxClass* AcRxClass::desc() {
  static AcRxClass* cls = new AcRxClass(L"AcRxClass", AcRxObject::desc(), nullptr, nullptr);
  return cls;
}
AcRxClass* AcRxClass::isA() const { return desc(); }

AcRxClass* acrxClassOfDxfName(const ACHAR* dxfName) {
  const auto at = ByDxfName().find(devhost::UpperCase(dxfName ? dxfName : L""));
  return at == ByDxfName().end() ? nullptr : at->second;
}
