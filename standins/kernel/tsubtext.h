// One piece of editable text inside a drawing object: the name of a room, a cell of a title block.
// The text is read when the fragment is made; the object may change or go while the fragment lives.
#pragma once

#include <memory>

#include "afx.h"
#include "dbmain.h"
#include "kernel/kernel_export.h"
#include "kernel/tpickentset.h"

using TADSGePoint3d = AcGePoint3d;

class QVX_KERNEL TSubText {
 public:
  // `entity` is the object, or a copy of it, which is deleted with the fragment when it is `owned`.
  TSubText(AcDbObjectId object, AcDbEntity* entity, long index, bool owned, bool multiLine);
  virtual ~TSubText();
  TSubText(const TSubText&) = delete;
  TSubText& operator=(const TSubText&) = delete;

  CString GetText() const { return m_text; }
  void SetText(CString text) { m_text = text; }  // here only, for measuring
  // Corners in the world of the upright box around the text; equal when there is no text.
  void GetExtent2d(TADSGePoint3d& lower, TADSGePoint3d& upper) const;
  long GetIndex() const { return m_index; }  // the place of the text in its object
  void SetIndex(long index) { m_index = index; }
  AcDbObjectId GetObjectId() const { return m_object; }
  void Highlight(bool on) const;  // the whole object
  bool IsMultiLine() const { return m_multiLine; }

 private:
  AcDbObjectId m_object;
  std::unique_ptr<AcDbEntity> m_copy;  // null when the object itself is asked
  long m_index;
  bool m_multiLine;
  CString m_text;
};

// The text at a point of the world in one of the picked objects, the first that has one there: an
// object of the family, or plain text. Owned by the caller; null for none.
QVX_KERNEL TSubText* HitTestOnText(const TPickEntSet& set, const AcGePoint3d& at);
