// Extended data of objects: chains that begin with the name of an application (group 1001).
#include "adslib.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/drawing/dxf_groups.h"

namespace {

resbuf* CopyChain(const resbuf* from, const std::wstring* application) {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  bool inside = application == nullptr;
  for (; from; from = from->rbnext) {
    if (application && from->restype == 1001)
      inside = from->resval.rstring && devhost::SameName(from->resval.rstring, *application);
    if (!inside) continue;
    resbuf* node = acutNewRb(from->restype);
    node->resval = from->resval;
    const bool text = from->restype == RTSTR || from->restype == -4 ||
                      devhost::KindOfGroup(from->restype) == devhost::GroupKind::String;
    if (text)
      acutNewString(from->resval.rstring ? from->resval.rstring : L"", node->resval.rstring);
    *tail = node;
    tail = &node->rbnext;
  }
  return head;
}

}  // namespace

resbuf* AcDbObject::xData(const ACHAR* application) const {
  if (!application) return CopyChain(m_xdata, nullptr);
  const std::wstring wanted = application;
  return CopyChain(m_xdata, &wanted);
}

// Replaces the data of the application that the chain names; the data of others is unchanged.
Acad::ErrorStatus AcDbObject::setXData(const resbuf* data) {
  if (!data || data->restype != 1001 || !data->resval.rstring) return Acad::eInvalidInput;
  AcDbObjectAccess::NotifyChanging(*this);
  const std::wstring application = data->resval.rstring;
  resbuf* kept = nullptr;
  resbuf** tail = &kept;
  resbuf* all = m_xdata;
  m_xdata = nullptr;
  for (bool skip = false; all;) {
    resbuf* next = all->rbnext;
    all->rbnext = nullptr;
    if (all->restype == 1001)
      skip = all->resval.rstring && devhost::SameName(all->resval.rstring, application);
    if (skip) {
      acutRelRb(all);
    } else {
      *tail = all;
      tail = &all->rbnext;
    }
    all = next;
  }
  *tail = data->rbnext ? CopyChain(data, nullptr) : nullptr;
  m_xdata = kept;
  return Acad::eOk;
}

void AcDbObjectAccess::SetXData(AcDbObject& object, const resbuf* all) {
  acutRelRb(object.m_xdata);
  object.m_xdata = CopyChain(all, nullptr);
}
