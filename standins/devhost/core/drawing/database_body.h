// The private parts of AcDbDatabase and of objects, for the host's own code.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "dbmain.h"
#include "devhost/core/base/user_system.h"

// A group of a drawing file that the host does not interpret and writes back unchanged.
struct KeptGroup {
  short code;
  std::wstring text;
};

// What the file had for an object whose class the host interprets. Groups are in the text form of
// the format, one line for the code and one for the value, in UTF-8.
struct KeptObject {
  std::string lists;          // of a record: lists in braces (group 102)
  std::string own;            // of the class, with subclass marks
  std::size_t asWritten = 0;  // of an entity: hash of the groups that its class wrote after reading
};

// A part of an object that is an object of its own only in the file: VERTEX, SEQEND, BLOCK, ENDBLK.
struct KeptPart {
  std::uint64_t handle = 0;  // 0: gets one when it is written
  std::string type;          // empty: the part is not from a file
  std::string groups;        // all but handle and owner
};

// Is notified of changes of a database's objects, before or after the change; an object that is
// open for writing may change further.
class DatabaseWatcher {
 public:
  virtual ~DatabaseWatcher() = default;
  virtual void OnChange(AcDbObject& object) = 0;  // added, opened to write, moved, erased, restored
  virtual void OnReplace() = 0;  // an object was exchanged for another; stored pointers are invalid
};

// Bits of DBMOD. Windows and views (8 and 16) are not stored in files, so their changes do not
// count.
constexpr int kObjectsModified = 1, kVariablesModified = 4;

struct AcDbDatabase::Body {
  std::vector<std::unique_ptr<AcDbObject>> objects;  // in the order of insertion
  std::unordered_map<std::uint64_t, AcDbObject*> byHandle;
  std::uint64_t nextHandle = 0x20;
  AcDbObjectId blockTable, layerTable;
  AcDbObjectId viewportTable;      // null until it is asked for
  std::vector<KeptGroup> header;   // the header section: names (code 9) and their values
  std::vector<KeptGroup> classes;  // the CLASSES section
  // The tables in the order of the file; of layers and block records only what precedes the
  // records.
  std::vector<KeptGroup> otherTables;
  std::vector<KeptGroup> otherSections;  // sections that the host does not read, complete
  std::unordered_map<std::uint64_t, KeptObject> kept;              // by the object's handle
  std::unordered_map<std::uint64_t, std::vector<KeptPart>> parts;  // by the owner's handle
  std::map<std::wstring, std::uint64_t> addedHandles;  // of tables and records that the writer adds
  bool paperIsCurrent = false;
  devhost::UserSystem modelSystem, paperSystem;
  int modified = 0;  // DBMOD
  // Callbacks for undo recording, set by the document.
  std::function<void(AcDbObject*)> onErased, onAdded;
  std::function<void(AcDbObject*)> onChanging;  // before its data changes
  std::function<void(AcDbEntity*, const AcGeMatrix3d&)> onMoved;
  std::unique_ptr<DatabaseWatcher> watcher;  // null until the first hit test

  devhost::UserSystem& CurrentSystem() { return paperIsCurrent ? paperSystem : modelSystem; }
  std::uint64_t NextHandle();
  std::uint64_t AddedHandle(const std::wstring& what);     // the same for the same thing
  KeptPart& Part(std::uint64_t owner, std::size_t index);  // with a handle
};

class AcDbBlockTableRecord;
class AcDbViewportTableRecord;

struct AcDbViewportTableAccess {
  static void SetCount(AcDbViewportTable& table, std::size_t count);  // of active records
  static std::size_t Count(const AcDbViewportTable& table);
  static AcDbViewportTableRecord& At(const AcDbViewportTable& table, std::size_t i);
  static void SetNumber(AcDbViewportTableRecord& record, int number);
};

struct AcDbObjectAccess {
  static void AddObject(AcDbDatabase& database, AcDbObject* object,
                        AcDbHandle wanted);  // owns it from now on
  // Replaces a held object by `fresh`, with the same handle and place in its block. Deletes
  // the old object.
  static void Replace(AcDbDatabase::Body& body, std::unique_ptr<AcDbObject>& held,
                      AcDbObject* fresh);
  static void SwapXData(AcDbObject* from, AcDbObject* to) { std::swap(from->m_xdata, to->m_xdata); }
  static void CountOpen(AcDbObject* object) { ++object->m_openCount; }
  // Changes the handle of an object in the database. False if the handle is taken.
  static bool ChangeHandle(AcDbObject* object, AcDbHandle wanted);
  // Shared groups of an entity that have no member, such as line weight and true colour.
  static std::vector<KeptGroup>& CommonGroups(AcDbEntity& entity);
  static const resbuf* XData(const AcDbObject& object) { return object.m_xdata; }
  // Replaces all applications; copies the chain.
  static void SetXData(AcDbObject& object, const resbuf* all);
  static bool HasLinetype(const AcDbEntity& entity) { return entity.m_linetype != nullptr; }
  static void ClearLinetype(AcDbEntity& entity);
  static void NotifyChanging(AcDbObject& object);
  static void NotifyWatcher(AcDbObject& object);
  // Whether the file of the drawing marks the block as dynamic.
  static bool IsEnhanced(const AcDbBlockTableRecord& block);
  static void SetEnhanced(AcDbBlockTableRecord& block);
};
