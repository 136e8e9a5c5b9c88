// Nested picking; see the header.
#include "devhost/core/selection/nested_pick.h"

#include "acedads.h"
#include "adslib.h"
#include "dbents.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/view/layer_look.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/view/shape_collector.h"
#include "devhost/core/view/shape_geometry.h"

namespace devhost {
namespace {

constexpr double kPickReach = 6;       // pixels
constexpr std::size_t kMaxDepth = 24;  // a block may refer to itself

// Draws a reference and measures the objects that it consists of. A reference draws every copy of
// its parts, and its attributes, through this interface.
class PartsNear : public AcGiWorldDraw, AcGiWorldGeometry, AcGiSubEntityTraits {
 public:
  PartsNear(const LayerStyles& looks, const AcGePoint3d& at, double reach)
      : m_looks(looks), m_at(at), m_nearest(reach) {}

  NestedHit Search(AcDbEntity& reference) {
    Enter(reference);
    return m_hit;
  }

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
  bool text(const AcGePoint3d&, const AcGeVector3d&, const AcGeVector3d&, double, double, double,
            const ACHAR*) override {
    return true;
  }
  bool pushModelTransform(const AcGeMatrix3d& matrix) override {
    m_matrices.push_back(m_matrices.back() * matrix);
    return true;
  }
  bool popModelTransform() override {
    if (m_matrices.size() > 1) m_matrices.pop_back();
    return true;
  }
  bool draw(const AcDbEntity* part) override;

  void Enter(AcDbEntity& reference) {
    m_path.push_back(&reference);
    reference.subWorldDraw(this);
    m_path.pop_back();
  }
  void Measure(AcDbEntity& part);

  const LayerStyles& m_looks;
  AcGePoint3d m_at;
  double m_nearest;
  std::vector<AcGeMatrix3d> m_matrices{AcGeMatrix3d()};
  std::vector<AcDbEntity*> m_path;  // references that are being drawn, the outermost first
  NestedHit m_hit;
};

bool PartsNear::draw(const AcDbEntity* drawn) {
  auto* part = const_cast<AcDbEntity*>(drawn);
  const auto look = m_looks.find(UpperCase(part->layer()));
  if (look != m_looks.end() && !look->second.shown) return true;
  if (!AcDbBlockReference::cast(part))
    Measure(*part);
  else if (m_path.size() < kMaxDepth)
    Enter(*part);
  return true;
}

void PartsNear::Measure(AcDbEntity& part) {
  std::vector<Shape> shapes;
  ShapeCollector collector(m_looks, 1 / m_nearest, shapes);
  static_cast<AcGiWorldDraw&>(collector).geometry().pushModelTransform(m_matrices.back());
  collector.DrawEntity(part);
  for (const Shape& shape : shapes) {
    const double distance = DistanceTo(shape, m_at);
    if (distance > m_nearest) continue;
    m_nearest = distance;
    m_hit = {&part, m_matrices.back(), {m_path.rbegin(), m_path.rend()}};
  }
}

}  // namespace

NestedHit NestedEntityAt(Document& document, const AcGePoint3d& at) {
  AcDbDatabase& database = *document.database();
  const double reach = kPickReach / document.view.PixelsPerUnit();
  AcDbEntity* found = EntityAt(database, at, reach);
  if (!found || !AcDbBlockReference::cast(found)) return {found, {}, {}};
  const LayerStyles looks = LayerStylesOf(database);
  const NestedHit inside = PartsNear(looks, at, reach).Search(*found);
  return inside.entity ? inside : NestedHit{found, {}, {}};
}

int FailPick(PickError reason) {
  TheHost().variables.Set(L"ERRNO", std::to_wstring(static_cast<int>(reason)), true);
  return RTERROR;
}

}  // namespace devhost

namespace {

using namespace devhost;

void ToAdsMatrix(const AcGeMatrix3d& matrix, ads_matrix out) {
  const ads_matrix rows = {{matrix.a, matrix.b, 0, matrix.tx},
                           {matrix.c, matrix.d, 0, matrix.ty},
                           {0, 0, 1, 0},
                           {0, 0, 0, 1}};
  for (int row = 0; row < 4; ++row)
    for (int column = 0; column < 4; ++column) out[row][column] = rows[row][column];
}

resbuf* NamesOf(const std::vector<AcDbEntity*>& entities) {
  resbuf* head = nullptr;
  for (auto at = entities.rbegin(); at != entities.rend(); ++at) {
    resbuf* name = acutNewRb(RTENAME);
    acdbGetAdsName(name->resval.rlname, (*at)->objectId());
    name->rbnext = head;
    head = name;
  }
  return head;
}

}  // namespace

int acedNEntSelP(const ACHAR* prompt, ads_name entity, ads_point point, int pointGiven,
                 ads_matrix xform, resbuf** references) {
  if (references) *references = nullptr;
  if (!entity || !point) return RTERROR;
  if (!pointGiven) {
    const SelectionPrompt selecting(TheHost().engine);
    const int status = acedGetPoint(nullptr, prompt ? prompt : L"\n选择对象: ", point);
    if (status == RTNONE) return FailPick(PickError::kNullResponse);
    if (status != RTNORM) return status;
  }
  Document* document = TheHost().documents.Current();
  const NestedHit hit = document ? NestedEntityAt(*document, WorldOfUser(point)) : NestedHit();
  if (!hit.entity || acdbGetAdsName(entity, hit.entity->objectId()) != Acad::eOk)
    return FailPick(PickError::kMissed);
  if (xform) ToAdsMatrix(hit.toWorld, xform);
  if (references) *references = NamesOf(hit.references);
  return RTNORM;
}
