// One piece of editable text inside a drawing object: a name of a room, a cell of a sheet's title
// block. It names its object, and reads the text at the time it was made; the object may change or
// go while it lives.
#pragma once

#include "afx.h"
#include "dbmain.h"
#include "kernel/kernel_export.h"
#include "kernel/tpickentset.h"

using TADSGePoint3d = AcGePoint3d;

class QVX_KERNEL TSubText {
 public:
  // `entity`: the object, or a copy of it that is deleted with this when `owned`; read here.
  TSubText(AcDbObjectId object, AcDbEntity* entity, long index, bool owned, bool multiLine);
  virtual ~TSubText();
  TSubText(const TSubText&) = delete;
  TSubText& operator=(const TSubText&) = delete;

  CString GetText() const { return m_text; }
  void SetText(CString text) { m_text = text; }  // here only, for measuring
  // Lower left and upper right corner in the world; equal for a text that draws nothing.
  void GetExtent2d(TADSGePoint3d& lower, TADSGePoint3d& upper) const;
  long GetIndex() const { return m_index; }  // the place of the text in its object
  void SetIndex(long index) { m_index = index; }
  AcDbObjectId GetObjectId() const { return m_object; }
  void Highlight(bool on) const;  // the whole object
  bool IsMultiLine() const { return m_multiLine; }
  int GetMenuType() const;  // which pop-up menu belongs to it: 1 to 7, 0 for the general one

 private:
  AcDbObjectId m_object;
  AcDbEntity* m_entity;
  long m_index;
  bool m_owned, m_multiLine;
  CString m_text;
};

// The text at a point of the world in one of the picked objects, the first that has one there: an
// object of the family, or plain text. Owned by the caller; null for none.
QVX_KERNEL TSubText* HitTestOnText(const TPickEntSet& set, const AcGePoint3d& at);
