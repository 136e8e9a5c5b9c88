// Storing shapes; see the header.
#include "devhost/core/view/shape_collector.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>

#include "devhost/core/base/text_case.h"
#include "devhost/core/base/text_codes.h"

namespace devhost {
namespace {

constexpr int kMaxBlockDepth = 24;           // a block may refer to itself
constexpr std::size_t kMaxShapes = 2000000;  // nested arrays of small blocks multiply

}  // namespace

void ShapeCollector::DrawEntity(AcDbEntity& entity) {
  m_entity = &entity;
  Draw(entity);
}

void ShapeCollector::Draw(const AcDbEntity& entity) {
  const auto at = m_looks.find(UpperCase(entity.layer()));
  const LayerStyle look = at == m_looks.end() ? LayerStyle() : at->second;
  if (!look.shown) return;
  const Frame before = m_frame;
  const int own = entity.colorIndex();
  const bool onZero = m_depth > 0 && !std::wcscmp(entity.layer(), L"0");
  // Inside a block, layer 0 and colour "by block" take the style of the reference.
  m_layerColor = onZero ? before.color : look.color;
  m_blockColor = before.color;
  m_frame.color = own == 256 ? m_layerColor : own == 0 ? before.color : own;
  m_frame.dashed = onZero ? before.dashed : look.dashed;
  m_frame.filled = false;
  entity.subWorldDraw(this);
  m_frame = before;
}

void ShapeCollector::setColor(short index) {
  m_frame.color = index == 256 ? m_layerColor : index == 0 ? m_blockColor : index;
}

bool ShapeCollector::IsFull() const { return m_out.size() >= kMaxShapes; }

bool ShapeCollector::Add(Shape::Kind kind, unsigned count, const AcGePoint3d* points) {
  if (IsFull() || count == 0) return false;
  Shape shape;
  shape.kind = kind;
  shape.color = m_frame.color;
  shape.dashed = m_frame.dashed;
  shape.entity = m_entity;
  shape.points.reserve(count);
  for (unsigned i = 0; i < count; ++i) shape.points.push_back(Matrix() * points[i]);
  m_out.push_back(std::move(shape));
  return true;
}

bool ShapeCollector::polyline(unsigned count, const AcGePoint3d* points) {
  return Add(Shape::Kind::Polyline, count, points);
}

bool ShapeCollector::polygon(unsigned count, const AcGePoint3d* points) {
  return Add(Shape::Kind::Polygon, count, points);
}

bool ShapeCollector::circle(const AcGePoint3d& center, double radius, const AcGeVector3d& normal) {
  return circularArc(center, radius, normal, AcGeVector3d::kXAxis, 2 * std::numbers::pi);
}

bool ShapeCollector::circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d&,
                                 const AcGeVector3d& start, double sweep) {
  if (!(radius > 0) || !std::isfinite(radius) || !std::isfinite(sweep)) return false;
  const double seen = std::min(radius * Matrix().scale() * m_pixels, 1e6);
  const int whole = std::clamp(static_cast<int>(std::sqrt(seen) * 5), 12, 360);
  const int steps =
      std::max(2, static_cast<int>(whole * std::fabs(sweep) / (2 * std::numbers::pi)) + 1);
  const double from = std::atan2(start.y, start.x);
  std::vector<AcGePoint3d> points;
  for (int i = 0; i <= steps; ++i) {
    const double t = from + sweep * i / steps;
    points.emplace_back(center.x + radius * std::cos(t), center.y + radius * std::sin(t), 0);
  }
  return polyline(static_cast<unsigned>(points.size()), points.data());
}

bool ShapeCollector::text(const AcGePoint3d& position, const AcGeVector3d&,
                          const AcGeVector3d& direction, double height, double width, double,
                          const ACHAR* text) {
  if (IsFull() || !(height > 0)) return false;
  Shape shape;
  shape.kind = Shape::Kind::Text;
  shape.color = m_frame.color;
  shape.entity = m_entity;
  const AcGeMatrix3d& matrix = Matrix();
  const AcGeVector3d unit = direction.normal();
  AcGeVector3d along = matrix * unit;
  AcGePoint3d at = matrix * position;
  const double length = along.length(), area = matrix.scale() * matrix.scale();
  if (!(length > 0) || !(area > 0)) return false;
  // In a mirror, a text begins at its other end: turned by half, its top is on the same side again.
  if (matrix.a * matrix.d < matrix.b * matrix.c) {
    at = at + along * (TextLength(text) * height * width);
    along = -along;
  }
  // The scales may differ: the height is measured across the direction of the text.
  shape.points = {at};
  shape.text = text;
  shape.height = height * area / length;
  shape.rotation = std::atan2(along.y, along.x);
  shape.widthFactor = width * length * length / area;
  m_out.push_back(std::move(shape));
  return true;
}

bool ShapeCollector::pushModelTransform(const AcGeMatrix3d& matrix) {
  m_matrices.push_back(Matrix() * matrix);
  return true;
}

bool ShapeCollector::popModelTransform() {
  if (m_matrices.size() > 1) m_matrices.pop_back();
  return true;
}

bool ShapeCollector::draw(const AcDbEntity* part) {
  if (!part || IsFull()) return false;
  if (m_depth >= kMaxBlockDepth) return false;
  ++m_depth;
  Draw(*part);
  --m_depth;
  return true;
}

}  // namespace devhost
