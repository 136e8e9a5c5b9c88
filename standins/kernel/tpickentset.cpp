#include "kernel/tpickentset.h"

#include "adslib.h"
#include "kernel/view_pointer.h"

int TPickEntSet::Get(const wchar_t* mode, const AcGePoint3d* first, const AcGePoint3d* second,
                     const resbuf* filter) {
  Free();
  ads_point a{}, b{};
  if (first) a[0] = first->x, a[1] = first->y, a[2] = first->z;
  if (second) b[0] = second->x, b[1] = second->y, b[2] = second->z;
  const int status = acedSSGet(mode, first ? a : nullptr, second ? b : nullptr, filter, m_name);
  if (status != RTNORM) m_name[0] = m_name[1] = 0;
  return status;
}

int TPickEntSet::GetPreSel() {
  Free();
  AcGePoint3d at;
  return PointerInView(at) ? Get(nullptr, &at) : RTERROR;
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
