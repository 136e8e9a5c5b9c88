// Texts and attributes; see dbents.h.
#include <algorithm>

#include "dbents.h"
#include "devhost/core/base/text_codes.h"
#include "devhost/core/entities/entity_io.h"

using namespace devhost;

ACRX_DXF_DEFINE_MEMBERS(AcDbText, AcDbEntity, 0, 0, 0, TEXT, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbAttribute, AcDbText, 0, 0, 0, ATTRIB, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbAttributeDefinition, AcDbText, 0, 0, 0, ATTDEF, host)
ACRX_DXF_DEFINE_MEMBERS(AcDbMText, AcDbEntity, 0, 0, 0, MTEXT, host)

namespace {

constexpr int kRight = 2, kAligned = 3, kFit = 5;  // horizontal alignments (group 72)

}  // namespace

AcDbText::AcDbText(const AcGePoint3d& at, const ACHAR* text, double height, double rotation)
    : m_at(at),
      m_alignment(at),
      m_text(text ? text : L""),
      m_height(height),
      m_rotation(rotation) {}

AcDbAttributeDefinition::AcDbAttributeDefinition(const AcGePoint3d& at, const ACHAR* text,
                                                 const ACHAR* tag, const ACHAR* prompt,
                                                 double height, double rotation)
    : AcDbText(at, text, height, rotation) {
  m_tag = tag ? tag : L"";
  m_prompt = prompt ? prompt : L"";
}

Acad::ErrorStatus AcDbAttribute::setAttributeFromBlock(const AcDbAttributeDefinition* definition,
                                                       const AcGeMatrix3d& blockTransform) {
  if (!definition) return Acad::eInvalidInput;
  CopyLook(*definition);
  m_tag = definition->tagConst();
  setLayer(definition->layer());
  setColorIndex(definition->colorIndex());
  return subTransformBy(blockTransform);
}

void AcDbText::CopyLook(const AcDbText& from) {
  m_at = from.m_at;
  m_alignment = from.m_alignment;
  m_text = from.m_text;
  m_style = from.m_style;
  m_height = from.m_height;
  m_rotation = from.m_rotation;
  m_width = from.m_width;
  m_horizontal = from.m_horizontal;
  m_vertical = from.m_vertical;
  m_flags = from.m_flags;
}

Acad::ErrorStatus AcDbText::setTextString(const ACHAR* text) {
  if (!text) return Acad::eInvalidInput;
  m_text = text;
  return Acad::eOk;
}

// A definition shows its tag, one with a constant value that; an invisible attribute shows nothing.
std::wstring AcDbText::ShownText() const {
  const auto* definition = AcDbAttributeDefinition::cast(this);
  if (AcDbAttribute::cast(this) && (m_flags & 1)) return {};
  return DisplayText(definition && !definition->isConstant() ? m_tag : m_text);
}

bool AcDbText::subWorldDraw(AcGiWorldDraw* draw) const {
  const std::wstring shown = ShownText();
  if (shown.empty() || m_height <= 0) return false;
  AcGePoint3d at = m_at;
  const AcGeVector3d along(std::cos(m_rotation), std::sin(m_rotation), 0), up(-along.y, along.x, 0);
  // Files store the lower left corner too, but some programs leave it at zero for aligned texts.
  if ((m_horizontal || m_vertical) && m_horizontal != kFit && m_horizontal != kAligned) {
    const double length = TextLength(shown) * m_height * m_width;
    const double dx = m_horizontal == 1 || m_horizontal == 4 ? -0.5
                      : m_horizontal == kRight               ? -1
                                                             : 0;
    const double dy = m_horizontal == 4 || m_vertical == 2 ? -0.5 : m_vertical == 3 ? -1 : 0;
    at = m_alignment + along * (dx * length) + up * (dy * m_height);
  }
  return draw->geometry().text(at, AcGeVector3d::kZAxis, along, m_height, m_width, 0,
                               shown.c_str());
}

// A mirrored text stays readable: it begins where its mirror image ends.
void AcDbText::Mirror(const AcGeMatrix3d& m) {
  const bool byAlignment =
      (m_horizontal || m_vertical) && m_horizontal != kAligned && m_horizontal != kFit;
  const double length = TextLength(ShownText()) * m_height * m_width;
  const AcGeVector3d along(std::cos(m_rotation), std::sin(m_rotation), 0);
  m_at = m * (byAlignment ? m_at : m_at + along * length);
  m_alignment = m * m_alignment;
  if (m_horizontal == kRight) {
    m_horizontal = 0;
    if (!m_vertical) m_at = m_alignment;
  } else if (byAlignment && m_horizontal == 0) {
    m_horizontal = kRight;
  }
  const AcGeVector3d image = m * along;
  m_rotation = std::atan2(-image.y, -image.x);
  m_height *= m.scale();
}

Acad::ErrorStatus AcDbText::subTransformBy(const AcGeMatrix3d& m) {
  if (Mirrors(m)) {
    Mirror(m);
    return Acad::eOk;
  }
  m_at = m * m_at;
  m_alignment = m * m_alignment;
  m_height *= m.scale();
  m_rotation += m.rotation();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbText::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_text = m_style = m_tag = m_prompt = L"";
  m_at = m_alignment = {};
  m_height = m_rotation = 0;
  m_width = 1;
  m_horizontal = m_vertical = m_flags = 0;
  // Of attributes, group 73 is the length of a field.
  int fieldLength = 0;
  const bool attribute = AcDbAttribute::cast(this) || AcDbAttributeDefinition::cast(this);
  const Acad::ErrorStatus status = ReadFields(filer, {{1, &m_text},
                                                      {2, &m_tag},
                                                      {3, &m_prompt},
                                                      {7, &m_style},
                                                      {10, &m_at},
                                                      {11, &m_alignment},
                                                      {40, &m_height},
                                                      {41, &m_width},
                                                      {50, &m_rotation, kDegree},
                                                      {70, &m_flags},
                                                      {72, &m_horizontal},
                                                      {73, attribute ? &fieldLength : &m_vertical},
                                                      {74, &m_vertical}});
  m_width = std::clamp(m_width, 0.01, 100.0);
  return status;
}

Acad::ErrorStatus AcDbText::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbText");
  filer->writePoint(10, m_at);
  filer->writeDouble(40, m_height);
  filer->writeString(1, m_text.c_str());
  if (m_width != 1) filer->writeDouble(41, m_width);
  if (m_rotation != 0) filer->writeDouble(50, m_rotation / kDegree);
  if (!m_style.empty()) filer->writeString(7, m_style.c_str());
  if (m_horizontal || m_vertical) {
    filer->writeInt(72, m_horizontal);
    filer->writePoint(11, m_alignment);
  }
  const bool attribute = AcDbAttribute::cast(this),
             definition = AcDbAttributeDefinition::cast(this);
  if (attribute || definition) {
    filer->writeString(100, attribute ? L"AcDbAttribute" : L"AcDbAttributeDefinition");
    if (definition) filer->writeString(3, m_prompt.c_str());
    filer->writeString(2, m_tag.c_str());
    filer->writeInt(70, m_flags);
    return m_vertical ? filer->writeInt(74, m_vertical) : Acad::eOk;
  }
  return m_vertical ? filer->writeInt(73, m_vertical) : Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setContents(const ACHAR* text) {
  if (!text) return Acad::eInvalidInput;
  m_text = text;
  return Acad::eOk;
}

bool AcDbMText::subWorldDraw(AcGiWorldDraw* draw) const {
  const std::vector<std::wstring> lines = MTextLines(m_text, m_height > 0 ? m_width / m_height : 0);
  if (lines.empty() || m_height <= 0) return false;
  const AcGeVector3d along(std::cos(m_rotation), std::sin(m_rotation), 0), up(-along.y, along.x, 0);
  const double step = m_height * 5 / 3,
               total = m_height + step * static_cast<double>(lines.size() - 1);
  const int row = (m_attachment - 1) / 3, column = (m_attachment - 1) % 3;
  const double top = row == 0 ? 0 : row == 1 ? total / 2 : total;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double length = TextLength(lines[i]) * m_height;
    const AcGePoint3d at = m_at + along * (-length * column / 2) +
                           up * (top - m_height - step * static_cast<double>(i));
    draw->geometry().text(at, AcGeVector3d::kZAxis, along, m_height, 1, 0, lines[i].c_str());
  }
  return true;
}

Acad::ErrorStatus AcDbMText::subTransformBy(const AcGeMatrix3d& m) {
  m_at = m * m_at;
  m_height *= m.scale();
  m_width *= m.scale();
  m_rotation += m.rotation();
  if (!Mirrors(m)) return Acad::eOk;
  // Stays readable, as a text does: left and right are exchanged.
  m_rotation = std::remainder(2 * m.rotation() - m_rotation + kDegree * 180, kDegree * 360);
  const int column = (m_attachment - 1) % 3;
  m_attachment += 2 - 2 * column;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  m_style = L"";
  m_rotation = 0;
  std::wstring text;  // long contents are split into groups 3, the last part is group 1
  const Acad::ErrorStatus status =
      ReadFields(filer,
                 {{7, &m_style},
                  {10, &m_at},
                  {40, &m_height},
                  {41, &m_width},
                  {50, &m_rotation, kDegree},
                  {71, &m_attachment}},
                 [&](const resbuf& item) {
                   if (item.restype == 1 || item.restype == 3) text += item.resval.rstring;
                   if (item.restype == 11)
                     m_rotation = std::atan2(item.resval.rpoint[1], item.resval.rpoint[0]);
                 });
  m_attachment = std::clamp(m_attachment, 1, 9);
  m_text = text;
  return status;
}

Acad::ErrorStatus AcDbMText::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, L"AcDbMText");
  filer->writePoint(10, m_at);
  filer->writeDouble(40, m_height);
  filer->writeDouble(41, m_width);
  filer->writeInt(71, m_attachment);
  constexpr std::size_t kPiece = 250;
  std::size_t at = 0;
  for (; m_text.size() - at > kPiece; at += kPiece)
    filer->writeString(3, m_text.substr(at, kPiece).c_str());
  filer->writeString(1, m_text.substr(at).c_str());
  if (!m_style.empty()) filer->writeString(7, m_style.c_str());
  return m_rotation != 0 ? filer->writeDouble(50, m_rotation / kDegree) : Acad::eOk;
}
