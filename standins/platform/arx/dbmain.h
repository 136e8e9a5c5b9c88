// The drawing database: objects with handles, entities, the database that owns them.
//
// Every object of an open drawing is in memory, so opening one gives its pointer and counts;
// close() must follow. A handle stays with its object for life and over saving.
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

// Names an object of an open drawing; null by default. Ids of a closed drawing may not be used.
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
  Acad::ErrorStatus downgradeOpen();  // from writing to reading
  virtual Acad::ErrorStatus erase(bool erasing = true);
  bool isErased() const { return m_erased; }
  bool isReadEnabled() const { return m_openCount > 0; }

  // Extended data: -3 lists are flat here: 1001 name, then groups 1000 to 1071. The chain returned
  // is a copy and the caller's; a null name gives all applications.
  resbuf* xData(const ACHAR* application = nullptr) const;
  Acad::ErrorStatus setXData(const resbuf* data);

  // Undo reads an object's earlier groups into the object itself: what a class writes only at times
  // it sets to its default first.
  virtual Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer);
  virtual Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const;

 private:
  friend class AcDbDatabase;
  friend struct AcDbObjectAccess;  // the host's own way to handle, database and open count
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
  Acad::ErrorStatus draw();  // paints the drawing that it stands in anew

  // Common groups (layer, colour, linetype, space) go first; a class reads its own behind them.
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  friend struct AcDbObjectAccess;
  std::vector<KeptGroup>* m_commonGroups = nullptr;  // null when the file gave none
  ACHAR* m_layer = nullptr;                          // null is layer 0
  ACHAR* m_linetype = nullptr;                       // null is by layer
  short m_color = 256;
};

class AcDbBlockTable;
class AcDbLayerTable;

class AcDbDatabase {
 public:
  AcDbDatabase();
  ~AcDbDatabase();
  AcDbDatabase(const AcDbDatabase&) = delete;
  AcDbDatabase& operator=(const AcDbDatabase&) = delete;

  Acad::ErrorStatus addAcDbObject(AcDbObjectId& id, AcDbObject* object);  // takes the object
  Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, bool create, const AcDbHandle& handle) const;
  Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode) {
    return getBlockTable(table, mode);
  }
  Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode) {
    return getLayerTable(table, mode);
  }
  AcDbObjectId blockTableId() const;
  AcDbObjectId layerTableId() const;
  AcDbObjectId currentSpaceId() const;  // model or paper space, as TILEMODE and CVPORT say
  int approxNumObjects() const;

  struct Body;  // the host's own
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
