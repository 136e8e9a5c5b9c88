// Groups in memory; see the header.
#include "devhost/core/undo/undo_filer.h"

#include <cwchar>

#include "devhost/core/drawing/dxf_groups.h"

namespace devhost {

Acad::ErrorStatus UndoOutFiler::writeString(short code, const ACHAR* value) {
  if (!value) return Acad::eInvalidInput;
  if (code == 0) {
    m_shared = false;
    m_ended |= std::wcscmp(value, L"SEQEND") == 0;
  }
  if (m_ended) return Acad::eOk;
  if (code == 100) m_shared = std::wcscmp(value, L"AcDbEntity") == 0;
  if (!m_shared) m_items.push_back({code, value, 0});
  return Acad::eOk;
}

Acad::ErrorStatus UndoOutFiler::writeDouble(short code, double value) {
  if (!m_shared && !m_ended) m_items.push_back({code, {}, value});
  return Acad::eOk;
}

Acad::ErrorStatus UndoOutFiler::writeInt(short code, int value) { return writeDouble(code, value); }

Acad::ErrorStatus UndoOutFiler::writePoint(short code, const AcGePoint3d& value) {
  writeDouble(code, value.x);
  writeDouble(static_cast<short>(code + 10), value.y);
  return writeDouble(static_cast<short>(code + 20), value.z);
}

Acad::ErrorStatus UndoInFiler::readItem(resbuf* item) {
  if (!item) return Acad::eInvalidInput;
  m_before = m_at;
  while (m_at < m_items.size()) {
    const UndoItem& group = m_items[m_at++];
    *item = resbuf{};
    item->restype = group.code;
    switch (KindOfGroup(group.code)) {
      case GroupKind::None:
        continue;
      case GroupKind::String:
        m_text = group.text;
        item->resval.rstring = m_text.data();
        break;
      case GroupKind::Point:
        item->resval.rpoint[0] = group.number;
        for (int axis = 1;
             axis < 3 && m_at < m_items.size() && m_items[m_at].code == group.code + axis * 10;
             ++axis)
          item->resval.rpoint[axis] = m_items[m_at++].number;
        break;
      case GroupKind::Real:
        item->resval.rreal = group.number;
        break;
      case GroupKind::Short:
        item->resval.rint = static_cast<short>(group.number);
        break;
      case GroupKind::Long:
        item->resval.rlong = static_cast<Adesk::Int32>(group.number);
        break;
    }
    return Acad::eOk;
  }
  return Acad::eEndOfFile;
}

}  // namespace devhost
