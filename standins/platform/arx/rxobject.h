// Run-time classes of the host: every object has an AcRxClass, which identifies its class across
// modules and creates entities when a drawing contains its DXF name.
#pragma once

#include "adsdef.h"

class AcRxObject;

class AcRxClass;
typedef AcRxObject* (*AcRxMakeObject)();

class AcRxObject {
 public:
  virtual ~AcRxObject() = default;
  static AcRxClass* desc();
  virtual AcRxClass* isA() const;
  bool isKindOf(const AcRxClass* base) const;
  static AcRxObject* cast(const AcRxObject* object);
};

class AcRxClass : public AcRxObject {
 public:
  AcRxClass(const ACHAR* name, AcRxClass* parent, AcRxMakeObject make, const ACHAR* dxfName);
  ~AcRxClass() override;

  static AcRxClass* desc();
  AcRxClass* isA() const override;

  const ACHAR* name() const { return m_name; }
  const ACHAR* dxfName() const { return m_dxfName; }  // null: not stored in drawings
  AcRxClass* myParent() const { return m_parent; }
  bool isDerivedFrom(const AcRxClass* base) const;  // true for the class itself
  AcRxObject* create() const { return m_make ? m_make() : nullptr; }

 private:
  const ACHAR* m_name;
  AcRxClass* m_parent;
  AcRxMakeObject m_make;
  const ACHAR* m_dxfName;
};

// Drawings can contain a class from acrxBuildClassHierarchy after its rxInit until deleteAcRxClass.
void acrxBuildClassHierarchy();
void deleteAcRxClass(AcRxClass* cls);
AcRxClass* acrxClassOfDxfName(const ACHAR* dxfName);

#define ACRX_T(text) L##text

#define ACRX_DECLARE_MEMBERS(CLASS)                                   \
 public:                                                              \
  static AcRxClass* desc();                                           \
  static AcRxClass* gpDesc;                                           \
  AcRxClass* isA() const override;                                    \
  static CLASS* cast(const AcRxObject* object) {                      \
    return object && object->isKindOf(CLASS::desc())                  \
               ? static_cast<CLASS*>(const_cast<AcRxObject*>(object)) \
               : nullptr;                                             \
  }                                                                   \
  static void rxInit()

#define ACRX_DEFINE_CLASS_(CLASS, PARENT, MAKE, DXF)                                \
  AcRxClass* CLASS::gpDesc = nullptr;                                               \
  AcRxClass* CLASS::desc() {                                                        \
    if (!gpDesc) rxInit();                                                          \
    return gpDesc;                                                                  \
  }                                                                                 \
  AcRxClass* CLASS::isA() const { return CLASS::desc(); }                           \
  void CLASS::rxInit() {                                                            \
    if (!gpDesc) gpDesc = new AcRxClass(ACRX_T(#CLASS), PARENT::desc(), MAKE, DXF); \
  }

#define ACRX_NO_CONS_DEFINE_MEMBERS(CLASS, PARENT) \
  ACRX_DEFINE_CLASS_(CLASS, PARENT, nullptr, nullptr)

// The last argument but one is the DXF name without quotes; the others describe the application.
#define ACRX_DXF_DEFINE_MEMBERS(CLASS, PARENT, DWG, MAINT, PROXY, DXFNAME, APP) \
  static AcRxObject* MakeObjectOf##CLASS() { return new CLASS(); }              \
  ACRX_DEFINE_CLASS_(CLASS, PARENT, &MakeObjectOf##CLASS, ACRX_T(#DXFNAME))
