// One piece of editable text inside a drawing object: the name of a room, a cell of a table. A
// fragment keeps the identifier of its object, no pointer to it: the object may change or be erased
// while the fragment exists. Fragments do not refer to one another.
#pragma once

#include <memory>

#include "afx.h"
#include "dbmain.h"
#include "kernel/kernel_export.h"
#include "kernel/tpickentset.h"

using TADSGePoint3d = AcGePoint3d;
struct QvxTextPlace;

class QVX_KERNEL TSubText {
 public:
  // `entity` is the object, or a copy of it, which is deleted with the fragment when it is `owned`.
  // Places come from the copy, and from the object without one; writing always changes the object.
  TSubText(AcDbObjectId object, AcDbEntity* entity, long index, bool owned, bool multiLine);
  virtual ~TSubText();
  TSubText(const TSubText&) = delete;
  TSubText& operator=(const TSubText&) = delete;

  // The text that SetText set, else that of the object; what it was at first when the object has no
  // such text any more. Line breaks are CR LF.
  CString GetText() const;
  void SetText(CString text);  // here only, for measuring
  // Writes into the object and repaints it. Requires a lock of the drawing; nothing happens where
  // the object cannot be written. A text that is not multi-line gets blanks for line breaks.
  void Update(CString text);
  // Corners in the space of the object of the upright box around the text; equal when there is no
  // text.
  void GetExtent2d(TADSGePoint3d& lower, TADSGePoint3d& upper) const;
  // The neighbour in a column or row, null at the end of the chain. Owned by the caller.
  TSubText* GetNext(bool vertical, bool backward) const;
  long GetIndex() const { return m_index; }  // the place of the text in its object
  void SetIndex(long index) { m_index = index; }
  AcDbObjectId GetObjectId() const { return m_object; }
  void Highlight(bool on) const;  // the whole object
  bool IsMultiLine() const { return m_multiLine; }
  int GetMenuType() const { return m_menu; }  // a QvxTextMenu

 private:
  bool FindPlace(QvxTextPlace& place) const;

  AcDbObjectId m_object;
  std::unique_ptr<AcDbEntity> m_copy;  // null when the object itself is asked
  long m_index;
  bool m_multiLine;
  int m_menu = 0;
  CString m_text;
  bool m_textIsSet = false;
};

// The text at a point of the world in one of the picked objects, the first that has one there: an
// object of the family, or plain text. Owned by the caller; null for none.
QVX_KERNEL TSubText* HitTestOnText(TPickEntSet& set, TADSGePoint3d at);
