// What stands behind AcDbDatabase, and the host's own way to the private parts of objects.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "dbmain.h"

// A group of a drawing file that the host does not understand and writes as it came.
struct KeptGroup {
  short code;
  std::wstring text;
};

struct AcDbDatabase::Body {
  std::vector<std::unique_ptr<AcDbObject>> objects;  // in the order in which they came
  std::unordered_map<std::uint64_t, AcDbObject*> byHandle;
  std::uint64_t nextHandle = 0x20;
  AcDbObjectId blockTable, layerTable;
  std::vector<KeptGroup> header;         // the header section: names (code 9) and what follows them
  std::vector<KeptGroup> classes;        // the section of classes
  std::vector<KeptGroup> otherTables;    // tables but those of layers and block records, each whole
  std::vector<KeptGroup> otherSections;  // sections that nobody here reads, each whole
  bool paperIsCurrent = false;
  int modified = 0;
  // Undo recording; the document sets them.
  std::function<void(AcDbObject*)> onErased, onAdded;
  std::function<void(AcDbObject*)> onChanging;  // its data may change from now on
  std::function<void(AcDbEntity*, const AcGeMatrix3d&)> onMoved;

  std::uint64_t NextHandle();
};

struct AcDbObjectAccess {
  static void Adopt(AcDbDatabase& database, AcDbObject* object, AcDbHandle wanted);  // takes it
  // Puts `fresh` in the place of a held object, under its handle and in its block; the old one
  // goes.
  static void Replace(AcDbDatabase::Body& body, std::unique_ptr<AcDbObject>& held,
                      AcDbObject* fresh);
  static void TakeXData(AcDbObject* from, AcDbObject* to) { std::swap(from->m_xdata, to->m_xdata); }
  static void CountOpen(AcDbObject* object) { ++object->m_openCount; }
  // Gives an object that is in the database another handle; one that is taken already is refused.
  static bool ChangeHandle(AcDbObject* object, AcDbHandle wanted);
  // Groups of an entity's common part that have no member, such as line weight and true colour.
  static std::vector<KeptGroup>& CommonGroups(AcDbEntity& entity);
  static const resbuf* XData(const AcDbObject& object) { return object.m_xdata; }
  static void SetXData(AcDbObject& object, const resbuf* all);  // all applications at once; copied
  static bool HasLinetype(const AcDbEntity& entity) { return entity.m_linetype != nullptr; }
  static void ClearLinetype(AcDbEntity& entity);
  static void TellChanging(AcDbObject& object);
};
