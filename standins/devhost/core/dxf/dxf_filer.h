// Reads and writes the groups of one object: what entity classes see as AcDbDxfFiler. When reading,
// shared groups (handle, owner, layer ...) have been removed before; see SplitObject.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "dbfiler.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {

class DxfInFiler : public AcDbDxfFiler {
 public:
  DxfInFiler(AcDbDatabase& database, const DxfDecoder& decoder, std::span<const DxfGroup> groups)
      : m_database(database), m_decoder(decoder), m_groups(groups) {}

  AcDbDatabase* database() const override { return &m_database; }
  // The three groups of a point are one item with the code of the first.
  Acad::ErrorStatus readItem(resbuf* item) override;
  void pushBackItem() override { m_at = m_before; }

  // The line of the first value that should be a number and is not; 0: none.
  int BadLine() const { return m_badLine; }

  Acad::ErrorStatus writeString(short, const ACHAR*) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeDouble(short, double) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeInt(short, int) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writePoint(short, const AcGePoint3d&) override { return Acad::eNotApplicable; }

 private:
  double RealOf(const DxfGroup& group);
  long long IntegerOf(const DxfGroup& group);
  void ReadPoint(const DxfGroup& first, resbuf* item);

  AcDbDatabase& m_database;
  const DxfDecoder& m_decoder;
  std::span<const DxfGroup> m_groups;
  std::size_t m_at = 0, m_before = 0;
  std::wstring m_text;  // string value of the latest item
  int m_badLine = 0;
};

// Writes groups as UTF-8 text, reals in the shortest form that reads back unchanged.
class DxfOutFiler : public AcDbDxfFiler {
 public:
  DxfOutFiler(AcDbDatabase& database, std::string& out) : m_database(database), m_out(out) {}

  AcDbDatabase* database() const override { return &m_database; }
  Acad::ErrorStatus writeString(short code, const ACHAR* value) override;
  Acad::ErrorStatus writeDouble(short code, double value) override;
  Acad::ErrorStatus writeInt(short code, int value) override;
  Acad::ErrorStatus writePoint(short code, const AcGePoint3d& value) override;
  void WriteHandle(short code, unsigned long long handle);

  Acad::ErrorStatus readItem(resbuf*) override { return Acad::eEndOfFile; }
  void pushBackItem() override {}

 private:
  void Group(short code, std::string_view value);

  AcDbDatabase& m_database;
  std::string& m_out;
};

// Adds a group of a file as DxfOutFiler writes it: decoded, in UTF-8. Numbers keep their digits.
void AppendGroup(std::string& out, const DxfGroup& group, const DxfDecoder& decoder);

// The extended data of an object, one chain an application, each for setXData.
std::vector<resbuf*> XDataChains(std::span<const DxfGroup> groups, const DxfDecoder& decoder);
void WriteXData(DxfOutFiler& filer, const resbuf* chain);

}  // namespace devhost
