// The drawing database: objects with handles, entities, the database that owns them.
//
// Every object of an open drawing is in memory; opening one returns its pointer and
// increments its open count, and close() must follow. An object keeps its handle for its
// lifetime and in saved files.
#pragma once

#include <cstdint>
#include <vector>

#include "accmd.h"
#include "acgi.h"
#include "dbfiler.h"

class AcDbDatabase;
class AcDbObject;
class AcDbEntity;
struct KeptGroup;

class AcDbHandle {
 public:
  constexpr AcDbHandle() = default;
  constexpr explicit AcDbHandle(std::uint64_t value) : m_value(value) {}
  bool isNull() const { return m_value == 0; }
  std::uint64_t value() const { return m_value; }
  bool getIntoAsciiBuffer(ACHAR* buffer) const;  // upper case hexadecimal; 17 characters

 private:
  std::uint64_t m_value = 0;
};

// Identifies an object of an open drawing; null by default. Invalid after the drawing is closed.
class AcDbObjectId {
 public:
  constexpr AcDbObjectId() = default;
  constexpr explicit AcDbObjectId(AcDbObject* object) : m_object(object) {}
  bool isNull() const { return !m_object; }
  void setNull() { m_object = nullptr; }
  bool isErased() const;
  AcDbHandle handle() const;
  AcDbDatabase* database() const;
  AcDbObject* object() const { return m_object; }
  bool operator==(const AcDbObjectId& o) const { return m_object == o.m_object; }
  bool operator!=(const AcDbObjectId& o) const { return m_object != o.m_object; }
  static const AcDbObjectId kNull;

 private:
  AcDbObject* m_object = nullptr;
};
inline constexpr AcDbObjectId AcDbObjectId::kNull{};

namespace AcDb {
enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };
}

class AcDbObject : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcDbObject);
  AcDbObject() = default;
  ~AcDbObject() override;
  AcDbObject(const AcDbObject&) = delete;
  AcDbObject& operator=(const AcDbObject&) = delete;

  AcDbObjectId objectId() const { return AcDbObjectId(const_cast<AcDbObject*>(this)); }
  AcDbHandle handle() const { return m_handle; }
  AcDbDatabase* database() const { return m_database; }
  AcDbObjectId ownerId() const { return m_owner; }
  void setOwnerId(AcDbObjectId owner) { m_owner = owner; }

  Acad::ErrorStatus close();
  Acad::ErrorStatus upgradeOpen();
  Acad::ErrorStatus downgradeOpen();  // from write to read
  virtual Acad::ErrorStatus erase(bool erasing = true);
  bool isErased() const { return m_erased; }
  bool isReadEnabled() const { return m_openCount > 0; }
  // Call on an object that is open for writing, without changing it: records it for undo
  // (`autoUndo`) and marks the drawing as modified.
  void assertWriteEnabled(bool autoUndo = true, bool recordModified = true);
  // A copy outside of the drawing, with extended data, without sub-objects. The caller owns it.
  // Null for a class without a constructor for drawings.
  virtual AcRxObject* clone() const;

  // Extended data. -3 lists are flat here: 1001 name, then groups 1000 to 1071. The returned chain
  // is a copy, owned by the caller; a null name returns the data of all applications.
  resbuf* xData(const ACHAR* application = nullptr) const;
  Acad::ErrorStatus setXData(const resbuf* data);

  // Undo reads an object's earlier groups into the object itself: a class must first set to their
  // defaults the members that it does not always write.
  virtual Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer);
  virtual Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const;

 private:
  friend class AcDbDatabase;
  friend struct AcDbObjectAccess;  // gives the host access to handle, database and open count
  AcDbHandle m_handle;
  AcDbDatabase* m_database = nullptr;
  AcDbObjectId m_owner;
  resbuf* m_xdata = nullptr;
  int m_openCount = 0;
  bool m_erased = false;
};

class AcDbEntity : public AcDbObject {
 public:
  ACRX_DECLARE_MEMBERS(AcDbEntity);
  ~AcDbEntity() override;
  const ACHAR* layer() const;
  Acad::ErrorStatus setLayer(const ACHAR* name);
  const ACHAR* linetype() const;
  Acad::ErrorStatus setLinetype(const ACHAR* name);
  int colorIndex() const { return m_color; }
  Acad::ErrorStatus setColorIndex(int color) {
    m_color = static_cast<short>(color);
    return Acad::eOk;
  }
  AcDbObjectId blockId() const { return ownerId(); }

  Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const;  // eNullExtents: draws nothing
  virtual bool subWorldDraw(AcGiWorldDraw* draw) const;          // false: nothing to draw
  virtual Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix);
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix);
  Acad::ErrorStatus draw();  // repaints the drawing that contains it
  // True: measures the entity again and repaints its drawing.
  void recordGraphicsModified(bool setModified = true);

  // Common groups (layer, colour, linetype, space) come first; a class reads its own after them.
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  friend struct AcDbObjectAccess;
  std::vector<KeptGroup>* m_commonGroups = nullptr;  // null: none in the file
  ACHAR* m_layer = nullptr;                          // null is layer 0
  ACHAR* m_linetype = nullptr;                       // null is by layer
  short m_color = 256;
};

class AcDbBlockTable;
class AcDbLayerTable;
class AcDbViewportTable;

class AcDbDatabase {
 public:
  AcDbDatabase();
  ~AcDbDatabase();
  AcDbDatabase(const AcDbDatabase&) = delete;
  AcDbDatabase& operator=(const AcDbDatabase&) = delete;

  Acad::ErrorStatus addAcDbObject(AcDbObjectId& id, AcDbObject* object);  // takes ownership
  Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, bool create, const AcDbHandle& handle) const;
  Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode) {
    return getBlockTable(table, mode);
  }
  Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode) {
    return getLayerTable(table, mode);
  }
  // Its records are those of the last acedVports2VportTableRecords.
  Acad::ErrorStatus getViewportTable(AcDbViewportTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbViewportTable*& table, AcDb::OpenMode mode) {
    return getViewportTable(table, mode);
  }
  AcDbObjectId blockTableId() const;
  AcDbObjectId layerTableId() const;
  AcDbObjectId currentSpaceId() const;  // model or paper space, by TILEMODE and CVPORT
  int approxNumObjects() const;
  // The user coordinate system of the current space, in world coordinates.
  AcGePoint3d ucsorg() const;
  AcGeVector3d ucsxdir() const;
  AcGeVector3d ucsydir() const;

  struct Body;  // private to the host
  Body& body() const { return *m_body; }

 private:
  Body* m_body;
};

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                 bool openErased = false) {
  AcDbObject* any = nullptr;
  object = nullptr;
  const Acad::ErrorStatus status = acdbOpenAcDbObject(any, id, mode, openErased);
  if (status != Acad::eOk) return status;
  object = T::cast(any);
  if (object) return Acad::eOk;
  any->close();
  return Acad::eWrongObjectType;
}
Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name);
Acad::ErrorStatus acdbGetAdsName(ads_name name, AcDbObjectId id);
Acad::ErrorStatus acdbSetDbmod(AcDbDatabase* database, int flags);
