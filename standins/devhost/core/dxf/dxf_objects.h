// Objects out of a drawing file's groups: takes an object's groups apart into what all objects
// share and its own, and makes entities of them. Used by the drawing reader.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "dbmain.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {

// What was wrong with a file. Only the first problem is told in words, the others are counted.
class DxfProblems {
 public:
  void Add(int line, const wchar_t* text);
  bool IsEmpty() const { return m_count == 0; }
  std::wstring Message(const std::wstring& fileName) const;  // empty when there were none

 private:
  int m_count = 0, m_line = 0;
  std::wstring m_text;
};

struct DxfObject {
  std::string_view type;
  int line = 0;
  unsigned long long handle = 0;  // 0: the file gives none
  std::string_view layer, linetype;
  int color = 256;
  bool inPaper = false;
  std::vector<DxfGroup> common;  // shared groups that have no member of their own
  std::vector<DxfGroup> own;     // what the class reads, subclass marks included
  std::span<const DxfGroup> xdata;
};

// Colour and linetype of a layer are its own; those of an entity are shared by all classes.
enum class DxfObjectKind { Entity, Record };

// The first group is the object's group 0.
DxfObject TakeApart(std::span<const DxfGroup> groups, DxfObjectKind kind = DxfObjectKind::Entity);

class DxfObjectMaker {
 public:
  DxfObjectMaker(AcDbDatabase& database, const DxfDecoder& decoder, DxfProblems& problems)
      : m_database(database), m_decoder(decoder), m_problems(problems) {}

  // In the database, not yet in a block. Null when a number of it can't be read; that is noted.
  AcDbEntity* MakeEntity(const DxfObject& object);
  // With the shared groups set, but not in the database and without extended data. Null: no such
  // class, or it refuses; a number that is none is noted.
  std::unique_ptr<AcDbEntity> MakeKnown(const DxfObject& object);
  std::unique_ptr<AcDbEntity> MakeOpaque(const DxfObject& object);
  // Reads a table's record into an object of the host.
  void FillRecord(AcDbObject& record, const DxfObject& object);
  void FillXData(AcDbObject& to, const DxfObject& object);

 private:
  void SetShared(AcDbEntity& entity, const DxfObject& object);

  AcDbDatabase& m_database;
  const DxfDecoder& m_decoder;
  DxfProblems& m_problems;
  bool m_refused = false;  // the latest object had a number that is none
};

}  // namespace devhost
