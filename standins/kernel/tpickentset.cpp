#include "kernel/tpickentset.h"

#include "adslib.h"
#include "kernel/coordinates.h"
#include "kernel/entities/tentitybase.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/view_pointer.h"

namespace {

// The host takes the points of a fence as a list.
bool IsFence(const wchar_t* mode) { return mode && mode[0] == L'F' && !mode[1]; }

bool AcceptsPointer(const TEntitySet& entity, const AcGePoint3d& world) {
  const TAcDbObjectPtr<AcDbEntity> object(entity.ObjectId(), AcDb::kForRead);
  const TEntityBase* base = TEntityBase::Cast(object.Get());
  return !base || base->AcceptsPointer(world);
}

}  // namespace

TPickEntSet& TPickEntSet::operator=(const TPickEntSet& other) {
  if (this == &other) return *this;
  Free();
  m_mode = kOwned;
  const int length = other.Length();
  for (int i = 0; i < length; ++i) {
    const TEntitySet entity = other[i];
    ads_name grown{};
    if (acedSSAdd(entity.Name(), HasSet() ? m_name : nullptr, grown) != RTNORM) continue;
    m_name[0] = grown[0], m_name[1] = grown[1];
  }
  return *this;
}

int TPickEntSet::Get(const wchar_t* mode, const AcGePoint3d* first, const AcGePoint3d* second,
                     const resbuf* filter) {
  Free();
  ads_point a{}, b{};
  if (first) a[0] = first->x, a[1] = first->y, a[2] = first->z;
  if (second) b[0] = second->x, b[1] = second->y, b[2] = second->z;
  int status = RTERROR;
  if (IsFence(mode) && first && second) {
    resbuf* points = acutBuildList(RT3DPOINT, a, RT3DPOINT, b, RTNONE);
    status = acedSSGet(mode, points, nullptr, filter, m_name);
    acutRelRb(points);
  } else {
    status = acedSSGet(mode, first ? a : nullptr, second ? b : nullptr, filter, m_name);
  }
  if (status != RTNORM) m_name[0] = m_name[1] = 0;
  return status;
}

int TPickEntSet::GetFirst() {
  Free();
  resbuf *grips = nullptr, *picked = nullptr;
  const int status = acedSSGetFirst(&grips, &picked);
  for (resbuf* list : {picked, grips}) {
    if (list && list->restype == RTPICKS) {
      const ads_name& set = list->resval.rlname;
      if (status == RTNORM && !HasSet()) {
        m_mode = kOwned;
        m_name[0] = set[0], m_name[1] = set[1];
      } else {
        acedSSFree(set);
      }
    }
    acutRelRb(list);
  }
  return HasSet() ? RTNORM : RTERROR;
}

int TPickEntSet::GetPreSel() {
  Free();
  AcGePoint3d world;
  if (!PointerInView(world)) return RTERROR;
  // Selections take points of the user's system.
  const AcGePoint3d user = Converted(world, CoordinateSystem::World, CoordinateSystem::User);
  const int status = Get(nullptr, &user);
  if (status == RTNORM && !AcceptsPointer((*this)[0], world)) {
    Free();
    return RTERROR;
  }
  return status;
}

void TPickEntSet::Set(const TEntitySet& entity) {
  Free();
  if (!entity.IsEmpty() && acedSSAdd(entity.Name(), nullptr, m_name) != RTNORM)
    m_name[0] = m_name[1] = 0;
}

int TPickEntSet::Length() const {
  int length = 0;
  return HasSet() && acedSSLength(m_name, &length) == RTNORM ? length : 0;
}

TEntitySet TPickEntSet::operator[](int index) const {
  ads_name entity{};
  if (!HasSet() || acedSSName(m_name, index, entity) != RTNORM) return TEntitySet();
  return TEntitySet(entity);
}

bool TPickEntSet::IsInclude(const TEntitySet& entity) const {
  return HasSet() && !entity.IsEmpty() && acedSSMemb(entity.Name(), m_name) == RTNORM;
}

void TPickEntSet::Free() {
  if (HasSet() && (m_mode & kOwned)) acedSSFree(m_name);
  m_name[0] = m_name[1] = 0;
}
