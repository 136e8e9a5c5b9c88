// Makes objects from the groups of a drawing file: separates shared groups from those of the class
// and creates the entity. Used by the drawing reader.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "dbmain.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {

// Problems of a file. The first is reported with its text, the others are counted.
class DxfProblems {
 public:
  void Add(int line, const wchar_t* text);
  bool IsEmpty() const { return m_count == 0; }
  std::wstring Message(const std::wstring& fileName) const;  // empty: no problem

 private:
  int m_count = 0, m_line = 0;
  std::wstring m_text;
};

struct DxfObject {
  std::string_view type;
  int line = 0;
  unsigned long long handle = 0;  // 0: none in the file
  std::string_view layer, linetype;
  int color = 256;
  bool inPaper = false;
  std::vector<DxfGroup> common;  // shared groups without a member
  std::vector<DxfGroup> own;     // groups of the class, with subclass marks
  std::span<const DxfGroup> xdata;
  bool hasMarks = false;  // subclass marks: releases after R12
};

// In a layer record, colour and linetype are groups of the class; in an entity they
// are shared groups.
enum class DxfObjectKind { Entity, Record };

// The first group is the object's group 0.
DxfObject SplitObject(std::span<const DxfGroup> groups, DxfObjectKind kind = DxfObjectKind::Entity);

// Adds the groups of a vertex, which begin with its type, to its polyline.
void AddVertex(DxfObject& polyline, std::span<const DxfGroup> vertex);

// An entity that is followed by its vertices, if any.
DxfObject SplitWithVertices(std::span<const DxfGroup> groups);

class DxfObjectMaker {
 public:
  DxfObjectMaker(AcDbDatabase& database, const DxfDecoder& decoder, DxfProblems& problems)
      : m_database(database), m_decoder(decoder), m_problems(problems) {}

  // An entity in the database, not yet in a block. Null if a number is invalid; the
  // problem is added.
  AcDbEntity* MakeEntity(const DxfObject& object);
  // An entity with shared groups, neither in the database nor with extended data. Null if the class
  // is unknown or rejects the groups, or if a number is invalid.
  std::unique_ptr<AcDbEntity> MakeKnown(const DxfObject& object);
  std::unique_ptr<AcDbEntity> MakeOpaque(const DxfObject& object);
  // Reads a record of a table. False if a number is invalid; the problem is added.
  bool FillRecord(AcDbObject& record, const DxfObject& object);
  void FillXData(AcDbObject& to, const DxfObject& object);

  std::string TextOf(std::span<const DxfGroup> groups) const;
  // The groups of a part: all but type, handle and owner.
  KeptPart PartOf(std::span<const DxfGroup> groups) const;
  // Keeps the groups of the file for an entity of a class of the host, with its parts.
  void Keep(AcDbEntity& entity, std::string own);
  void Keep(AcDbObject& record, const DxfObject& object);

 private:
  void SetShared(AcDbEntity& entity, const DxfObject& object);

  AcDbDatabase& m_database;
  const DxfDecoder& m_decoder;
  DxfProblems& m_problems;
  bool m_refused = false;  // the latest object had an invalid number
};

}  // namespace devhost
