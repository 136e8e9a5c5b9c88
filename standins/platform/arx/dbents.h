// The entities of the host. Angles are radians, lengths drawing units.
#pragma once

#include <string>
#include <vector>

#include "dbmain.h"

class AcDbCurve : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbCurve);
};

class AcDbLine : public AcDbCurve {
 public:
  ACRX_DECLARE_MEMBERS(AcDbLine);
  AcDbLine() = default;
  AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}
  AcGePoint3d startPoint() const { return m_start; }
  AcGePoint3d endPoint() const { return m_end; }
  Acad::ErrorStatus setStartPoint(const AcGePoint3d& point) {
    m_start = point;
    return Acad::eOk;
  }
  Acad::ErrorStatus setEndPoint(const AcGePoint3d& point) {
    m_end = point;
    return Acad::eOk;
  }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  AcGePoint3d m_start, m_end;
};

class AcDbCircle : public AcDbCurve {
 public:
  ACRX_DECLARE_MEMBERS(AcDbCircle);
  AcDbCircle() = default;
  AcDbCircle(const AcGePoint3d& center, double radius) : m_center(center), m_radius(radius) {}
  AcGePoint3d center() const { return m_center; }
  double radius() const { return m_radius; }
  Acad::ErrorStatus setRadius(double radius) {
    m_radius = radius;
    return Acad::eOk;
  }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  AcGePoint3d m_center;
  double m_radius = 0;
};

class AcDbArc : public AcDbCircle {
 public:
  ACRX_DECLARE_MEMBERS(AcDbArc);
  AcDbArc() = default;
  AcDbArc(const AcGePoint3d& center, double radius, double start, double end)
      : AcDbCircle(center, radius), m_from(start), m_to(end) {}
  double startAngle() const { return m_from; }
  double endAngle() const { return m_to; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  double m_from = 0, m_to = 0;
};

class AcDbEllipse : public AcDbCurve {
 public:
  ACRX_DECLARE_MEMBERS(AcDbEllipse);
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  AcGePoint3d m_center;
  AcGeVector3d m_major;
  double m_ratio = 1, m_from = 0, m_to = 0;
};

class AcDbPoint : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbPoint);
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  AcGePoint3d m_at;
};

// SOLID and 3DFACE: three or four corners.
class AcDbTrace : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbTrace);
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  virtual bool filled() const { return true; }
  AcGePoint3d m_corner[4];
};
class AcDbFace : public AcDbTrace {
 public:
  ACRX_DECLARE_MEMBERS(AcDbFace);

 protected:
  bool filled() const override { return false; }
};

struct AcDbPolylineVertex {
  AcGePoint3d point;
  double bulge = 0;
};

class AcDbPolyline : public AcDbCurve {
 public:
  ACRX_DECLARE_MEMBERS(AcDbPolyline);
  unsigned numVerts() const { return static_cast<unsigned>(m_vertices.size()); }
  Acad::ErrorStatus getPointAt(unsigned index,
                               AcGePoint3d& point) const;  // eInvalidInput: no such vertex
  Acad::ErrorStatus setPointAt(unsigned index, const AcGePoint3d& point);
  Acad::ErrorStatus addVertexAt(unsigned index, const AcGePoint3d& point, double bulge = 0);
  bool isClosed() const { return m_closed; }
  void setClosed(bool closed) { m_closed = closed; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  std::vector<AcDbPolylineVertex> m_vertices;
  bool m_closed = false;
};

// The older form, whose vertices are entities of their own in the file; read
// and written in that form.
class AcDb2dPolyline : public AcDbPolyline {
 public:
  ACRX_DECLARE_MEMBERS(AcDb2dPolyline);
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;
  bool isMesh() const { return m_mesh; }  // vertices form a mesh, whose order is not kept

 private:
  bool m_mesh = false;
  int m_flags = 0;
};

class AcDbText : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbText);
  AcDbText() = default;
  AcDbText(const AcGePoint3d& at, const ACHAR* text, double height, double rotation = 0);
  const ACHAR* textStringConst() const { return m_text.c_str(); }
  Acad::ErrorStatus setTextString(const ACHAR* text);
  AcGePoint3d position() const { return m_at; }
  double height() const { return m_height; }
  double rotation() const { return m_rotation; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  void CopyLook(const AcDbText& from);  // all but tag and prompt
  std::wstring ShownText() const;       // without codes; empty: draws nothing
  void Mirror(const AcGeMatrix3d& matrix);

  AcGePoint3d m_at, m_alignment;
  std::wstring m_text, m_style, m_tag, m_prompt;
  double m_height = 0, m_rotation = 0, m_width = 1;
  int m_horizontal = 0, m_vertical = 0, m_flags = 0;
};

// Its text string is the default value. In a reference it is visible only if it is constant.
class AcDbAttributeDefinition : public AcDbText {
 public:
  ACRX_DECLARE_MEMBERS(AcDbAttributeDefinition);
  AcDbAttributeDefinition() = default;
  AcDbAttributeDefinition(const AcGePoint3d& at, const ACHAR* text, const ACHAR* tag,
                          const ACHAR* prompt, double height, double rotation = 0);
  const ACHAR* tagConst() const { return m_tag.c_str(); }
  const ACHAR* promptConst() const { return m_prompt.c_str(); }
  bool isInvisible() const { return (m_flags & 1) != 0; }
  bool isConstant() const { return (m_flags & 2) != 0; }
};

class AcDbAttribute : public AcDbText {
 public:
  ACRX_DECLARE_MEMBERS(AcDbAttribute);
  const ACHAR* tagConst() const { return m_tag.c_str(); }
  bool isInvisible() const { return (m_flags & 1) != 0; }
  // Takes tag, default value, place and look; the transform is that of the reference.
  Acad::ErrorStatus setAttributeFromBlock(const AcDbAttributeDefinition* definition,
                                          const AcGeMatrix3d& blockTransform);
};

class AcDbMText : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbMText);
  const ACHAR* contents() const { return m_text.c_str(); }
  Acad::ErrorStatus setContents(const ACHAR* text);
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  AcGePoint3d m_at;
  std::wstring m_text, m_style;
  double m_height = 0, m_width = 0, m_rotation = 0;
  int m_attachment = 1;
};

class AcDbBlockReference : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbBlockReference);
  AcDbBlockReference() = default;
  AcDbBlockReference(const AcGePoint3d& at, AcDbObjectId blockRecord);
  AcGePoint3d position() const { return m_at; }
  double rotation() const { return m_rotation; }
  AcDbObjectId blockTableRecord() const;  // null if the drawing has no such block
  Acad::ErrorStatus setBlockTableRecord(AcDbObjectId blockRecord);  // eInvalidInput: no block
  AcGeMatrix3d blockTransform() const;
  const std::vector<AcDbObjectId>& attributes() const { return m_attributes; }
  Acad::ErrorStatus appendAttribute(AcDbAttribute* attribute);  // takes ownership
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 protected:
  std::wstring m_block;
  AcGePoint3d m_at;
  double m_sx = 1, m_sy = 1, m_sz = 1, m_rotation = 0;
  int m_columns = 1, m_rows = 1;
  double m_columnGap = 0, m_rowGap = 0;
  std::vector<AcDbObjectId> m_attributes;
};

// All kinds of dimensions. Drawn by their block, which stays where it was created and is shifted
// with the dimension. Turning or scaling fails, because no new block is created.
class AcDbDimension : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbDimension);
  // 0 rotated, 1 aligned, 2 angular, 3 diameter, 4 radius, 5 angular by three points, 6 ordinate
  int kind() const { return m_type & 7; }
  bool isAngular() const { return kind() == 2 || kind() == 5; }
  double measurement() const { return m_measurement; }
  const ACHAR* dimensionText() const { return m_text.c_str(); }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  Acad::ErrorStatus WriteKind(AcDbDxfFiler* filer) const;

  std::wstring m_block, m_text, m_style;
  AcGePoint3d m_line, m_textAt, m_first, m_second, m_third, m_arc;
  AcGeVector3d m_blockShift;
  int m_type = 0, m_attachment = 0;
  double m_measurement = 0, m_rotation = 0, m_textRotation = 0, m_leader = 0;
};

class AcDbViewport : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbViewport);
  int number() const { return m_number; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
  Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& matrix) override;
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  AcGePoint3d m_center, m_viewCenter;
  double m_width = 0, m_height = 0, m_viewHeight = 0;
  int m_number = 0, m_status = 0;
};

// An object of an unknown class: its groups are kept and written again unchanged. It draws nothing.
class AcDbProxyEntity : public AcDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(AcDbProxyEntity);
  const ACHAR* originalDxfName() const { return m_dxfName.c_str(); }
  void setOriginalDxfName(const ACHAR* name) { m_dxfName = name; }
  struct Group {
    short code;
    std::wstring text;
  };
  const std::vector<Group>& groups() const { return m_groups; }
  void addGroup(short code, const ACHAR* text) { m_groups.push_back({code, text}); }
  AcRxObject* clone() const override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;

 private:
  std::wstring m_dxfName;
  std::vector<Group> m_groups;
};
