// Symbol tables: layers, blocks and viewports. Names are compared without case.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "dbmain.h"
#include "gepnt2d.h"

class AcDbSymbolTableRecord : public AcDbObject {
 public:
  ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord);
  const ACHAR* getName() const { return m_name.c_str(); }
  Acad::ErrorStatus getName(const ACHAR*& name) const {
    name = m_name.c_str();
    return Acad::eOk;
  }
  Acad::ErrorStatus setName(const ACHAR* name) {
    m_name = name;
    return Acad::eOk;
  }
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  std::wstring m_name;
};

class AcDbLayerTableRecord : public AcDbSymbolTableRecord {
 public:
  ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord);
  int colorIndex() const { return m_color < 0 ? -m_color : m_color; }
  void setColorIndex(int color) { m_color = color; }
  bool isOff() const { return m_color < 0; }
  bool isFrozen() const { return (m_flags & 1) != 0; }
  bool isLocked() const { return (m_flags & 4) != 0; }
  const ACHAR* linetype() const { return m_linetype.c_str(); }
  void setLinetype(const ACHAR* name) { m_linetype = name; }
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  int m_color = 7, m_flags = 0;
  std::wstring m_linetype = L"CONTINUOUS";
};

class AcDbSymbolTable : public AcDbObject {
 public:
  ACRX_DECLARE_MEMBERS(AcDbSymbolTable);
  Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id) const;  // eKeyNotFound
  Acad::ErrorStatus getIdAt(const ACHAR* name, AcDbObjectId& id) const { return getAt(name, id); }
  bool has(const ACHAR* name) const;
  Acad::ErrorStatus add(AcDbSymbolTableRecord* record);  // takes ownership; eDuplicateKey
  const std::vector<AcDbObjectId>& records() const { return m_records; }  // in the order added

 private:
  std::map<std::wstring, AcDbObjectId> m_byName;
  std::vector<AcDbObjectId> m_records;
};

class AcDbLayerTable : public AcDbSymbolTable {
 public:
  ACRX_DECLARE_MEMBERS(AcDbLayerTable);
};

// A tiled viewport of model space. All that are on the screen have the name "*Active". The corners
// are parts of the drawing's window, from 0,0 at the lower left to 1,1.
class AcDbViewportTableRecord : public AcDbSymbolTableRecord {
 public:
  ACRX_DECLARE_MEMBERS(AcDbViewportTableRecord);
  AcGePoint2d lowerLeftCorner() const { return m_lowerLeft; }
  void setLowerLeftCorner(const AcGePoint2d& corner) { m_lowerLeft = corner; }
  AcGePoint2d upperRightCorner() const { return m_upperRight; }
  void setUpperRightCorner(const AcGePoint2d& corner) { m_upperRight = corner; }
  Adesk::Int16 number() const { return m_number; }  // the value that CVPORT has for it
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  friend struct AcDbViewportTableAccess;
  AcGePoint2d m_lowerLeft{0, 0}, m_upperRight{1, 1};
  Adesk::Int16 m_number = 0;
};

// The record of the current viewport comes first.
class AcDbViewportTableIterator {
 public:
  explicit AcDbViewportTableIterator(const std::vector<AcDbObjectId>& ids) : m_ids(ids) {}
  bool done() const { return m_at >= m_ids.size(); }
  void step() { ++m_at; }
  Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;
  Acad::ErrorStatus getRecord(AcDbViewportTableRecord*& record, AcDb::OpenMode mode) const;

 private:
  std::vector<AcDbObjectId> m_ids;
  std::size_t m_at = 0;
};

class AcDbViewportTable : public AcDbSymbolTable {
 public:
  ACRX_DECLARE_MEMBERS(AcDbViewportTable);
  // The caller owns the iterator.
  Acad::ErrorStatus newIterator(AcDbViewportTableIterator*& iterator) const;
  Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id) const;  // the first of that name

 private:
  friend struct AcDbViewportTableAccess;
  std::vector<AcDbObjectId> m_all, m_active;  // records that are not active are used again
};

class AcDbBlockTable : public AcDbSymbolTable {
 public:
  ACRX_DECLARE_MEMBERS(AcDbBlockTable);
};

// A view of the drawing: the point in its middle and how high it is, in the display coordinates of
// the viewport that shows it.
class AcDbAbstractViewTableRecord : public AcDbSymbolTableRecord {
 public:
  ACRX_DECLARE_MEMBERS(AcDbAbstractViewTableRecord);
  AcGePoint2d centerPoint() const { return m_center; }
  void setCenterPoint(const AcGePoint2d& center) { m_center = center; }
  double height() const { return m_height; }
  void setHeight(double height) { m_height = height; }

 private:
  AcGePoint2d m_center;
  double m_height = 1;
};
class AcDbViewTableRecord : public AcDbAbstractViewTableRecord {
 public:
  ACRX_DECLARE_MEMBERS(AcDbViewTableRecord);
};

#define ACDB_MODEL_SPACE L"*Model_Space"
#define ACDB_PAPER_SPACE L"*Paper_Space"

// In drawing order, over the entities that are not erased.
class AcDbBlockTableRecordIterator {
 public:
  explicit AcDbBlockTableRecordIterator(const std::vector<AcDbObjectId>& ids) : m_ids(ids) {
    skip();
  }
  bool done() const { return m_at >= m_ids.size(); }
  void step() {
    ++m_at;
    skip();
  }
  Acad::ErrorStatus getEntityId(AcDbObjectId& id) const;
  Acad::ErrorStatus getEntity(AcDbEntity*& entity, AcDb::OpenMode mode) const;

 private:
  void skip();
  const std::vector<AcDbObjectId>& m_ids;
  std::size_t m_at = 0;
};

class AcDbBlockReference;

// Over the references to a block that are not erased, in all blocks of the drawing, in the order in
// which they were added.
class AcDbBlockReferenceIdIterator {
 public:
  explicit AcDbBlockReferenceIdIterator(std::vector<AcDbObjectId> ids) : m_ids(std::move(ids)) {
    start();
  }
  void start();
  bool done() const { return m_at >= m_ids.size(); }
  void step();
  Acad::ErrorStatus getBlockReferenceId(AcDbObjectId& id) const;
  Acad::ErrorStatus getBlockReference(AcDbBlockReference*& reference, AcDb::OpenMode mode,
                                      bool openErased = false) const;

 private:
  void skip();
  std::vector<AcDbObjectId> m_ids;
  std::size_t m_at = 0;
};

class AcDbBlockTableRecord : public AcDbSymbolTableRecord {
 public:
  ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord);
  Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);  // takes ownership
  Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
  // The caller owns the iterator.
  Acad::ErrorStatus newIterator(AcDbBlockTableRecordIterator*& iterator) const;
  Acad::ErrorStatus newBlockReferenceIdIterator(AcDbBlockReferenceIdIterator*& iterator) const;
  AcGePoint3d origin() const { return m_origin; }
  void setOrigin(const AcGePoint3d& origin) { m_origin = origin; }
  int flags() const { return m_flags; }
  void setFlags(int flags) { m_flags = flags; }
  const std::vector<AcDbObjectId>& entities() const { return m_entities; }

 private:
  friend struct AcDbObjectAccess;
  std::vector<AcDbObjectId> m_entities;
  AcGePoint3d m_origin;
  int m_flags = 0;
  bool m_enhanced = false;  // its extension dictionary in the file makes the block dynamic
};
