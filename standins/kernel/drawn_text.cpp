// Texts of the host; see the header.
#include "kernel/drawn_text.h"

#include <cmath>

#include "acgi.h"
#include "dbents.h"
#include "kernel/text_lines.h"

namespace {

// Stores where an object draws its first line: the stored insertion point is another point when
// the text is aligned.
class FirstLine : public AcGiWorldDraw, AcGiWorldGeometry, AcGiSubEntityTraits {
 public:
  explicit FirstLine(QvxTextPlace& place) : m_place(place) {}

 private:
  AcGiSubEntityTraits& subEntityTraits() override { return *this; }
  AcGiWorldGeometry& geometry() override { return *this; }
  void setColor(short) override {}
  void setFilled(bool) override {}
  bool polyline(unsigned, const AcGePoint3d*) override { return true; }
  bool polygon(unsigned, const AcGePoint3d*) override { return true; }
  bool circle(const AcGePoint3d&, double, const AcGeVector3d&) override { return true; }
  bool circularArc(const AcGePoint3d&, double, const AcGeVector3d&, const AcGeVector3d&,
                   double) override {
    return true;
  }
  bool text(const AcGePoint3d& position, const AcGeVector3d&, const AcGeVector3d& direction,
            double height, double, double, const ACHAR*) override {
    if (m_found) return true;
    m_found = true;
    m_place.at = position;
    m_place.height = height;
    m_place.angle = std::atan2(direction.y, direction.x);
    return true;
  }
  bool pushModelTransform(const AcGeMatrix3d&) override { return true; }
  bool popModelTransform() override { return true; }
  bool draw(const AcDbEntity*) override { return true; }

  QvxTextPlace& m_place;
  bool m_found = false;
};

// The plain text of MTEXT: braces and codes stay, so that they are written back unchanged.
std::wstring TextOfContents(const ACHAR* contents) {
  std::wstring out;
  for (const ACHAR* at = contents; *at; ++at) {
    const bool code = *at == L'\\' && at[1];
    if (code && at[1] == L'P')
      out += L'\n';
    else if (code)
      out += {at[0], at[1]};
    else
      out += *at;
    if (code) ++at;
  }
  return out;
}

std::wstring ContentsOfText(const std::wstring& text) {
  std::wstring out;
  for (const wchar_t c : text) {
    if (c == L'\n')
      out += L"\\P";
    else
      out += c;
  }
  return out;
}

}  // namespace

bool DrawnTextOf(const AcDbEntity& entity, QvxTextPlace& place) {
  const AcDbText* text = AcDbText::cast(&entity);
  const AcDbMText* paragraph = AcDbMText::cast(&entity);
  if (!text && !paragraph) return false;
  place = QvxTextPlace();
  if (text) {
    place.text = text->textStringConst();
    place.at = text->position();
    place.height = text->height();
    place.angle = text->rotation();
  } else {
    place.text = TextOfContents(paragraph->contents());
    place.multiLine = true;
  }
  FirstLine line(place);
  entity.subWorldDraw(&line);
  return true;
}

void ChangeDrawnText(AcDbEntity& entity, const std::wstring& text) {
  if (AcDbText* line = AcDbText::cast(&entity)) line->setTextString(text.c_str());
  if (AcDbMText* paragraph = AcDbMText::cast(&entity))
    paragraph->setContents(ContentsOfText(text).c_str());
}
