// Writes the groups of an object to memory and reads them back, numbers in binary. The shared part
// (subclass mark AcDbEntity) is skipped, as the drawing reader does. A point is two or three
// numbers, as in a file.
#pragma once

#include <string>
#include <vector>

#include "dbfiler.h"

namespace devhost {

struct UndoItem {
  short code;
  std::wstring text;
  double number;
};

class UndoOutFiler : public AcDbDxfFiler {
 public:
  UndoOutFiler(AcDbDatabase* database, std::vector<UndoItem>& items)
      : m_database(database), m_items(items) {}

  AcDbDatabase* database() const override { return m_database; }
  Acad::ErrorStatus writeString(short code, const ACHAR* value) override;
  Acad::ErrorStatus writeDouble(short code, double value) override;
  Acad::ErrorStatus writeInt(short code, int value) override;
  Acad::ErrorStatus writePoint(short code, const AcGePoint3d& value) override;
  Acad::ErrorStatus readItem(resbuf*) override { return Acad::eEndOfFile; }
  void pushBackItem() override {}

 private:
  AcDbDatabase* m_database;
  std::vector<UndoItem>& m_items;
  bool m_shared = false;
  bool m_ended = false;  // after SEQEND, which readers never see
};

class UndoInFiler : public AcDbDxfFiler {
 public:
  UndoInFiler(AcDbDatabase* database, const std::vector<UndoItem>& items)
      : m_database(database), m_items(items) {}

  AcDbDatabase* database() const override { return m_database; }
  Acad::ErrorStatus readItem(resbuf* item) override;
  void pushBackItem() override { m_at = m_before; }
  Acad::ErrorStatus writeString(short, const ACHAR*) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeDouble(short, double) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeInt(short, int) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writePoint(short, const AcGePoint3d&) override { return Acad::eNotApplicable; }

 private:
  AcDbDatabase* m_database;
  const std::vector<UndoItem>& m_items;
  std::size_t m_at = 0, m_before = 0;
  std::wstring m_text;  // string value of the latest item
};

}  // namespace devhost
