// The drawing view's calls to the core; see the header.
#include "devhost/ui/view/view_model.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "devhost/core/view/grid.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/highlight.h"
#include "devhost/core/selection/selection.h"
#include "devhost/ui/painting/scene_painter.h"
#include "devhost/ui/view/pick_logic.h"
#include "devhost/ui/view/viewport_paint.h"

namespace devhost {
namespace {

constexpr size_t kMaxGrippedEntities = 100;  // entities; if more are selected, no grips are shown
constexpr size_t kMaxCorners = 8;            // of one line; above it, only both ends and the middle

void AddGrips(const std::vector<AcGePoint3d>& points, std::vector<AcGePoint3d>* out) {
  if (points.size() <= kMaxCorners) {
    out->insert(out->end(), points.begin(), points.end());
  } else {
    for (size_t i : {size_t{0}, points.size() / 2, points.size() - 1}) out->push_back(points[i]);
  }
}

AcDbEntity* EntityOfHandle(Document& document, const std::string& handle) {
  const AcDbHandle value(std::strtoull(handle.c_str(), nullptr, 16));
  AcDbObjectId id;
  if (document.database()->getAcDbObjectId(id, false, value) != Acad::eOk || id.isErased())
    return nullptr;
  return AcDbEntity::cast(id.object());
}

}  // namespace

void ViewModel::Resize(int width, int height) { m_document.viewports.Resize(width, height); }

void ViewModel::ZoomAt(POINT pixel, double factor) {
  if (ViewTransform* view = m_document.viewports.ViewOf(ViewportAt(pixel)))
    view->ZoomAt(pixel, factor);
}

void ViewModel::ZoomExtents() { m_document.view.ZoomTo(ExtentsOf(*m_document.database())); }

void ViewModel::PanBy(int viewport, int dx, int dy) {
  if (ViewTransform* view = m_document.viewports.ViewOf(viewport)) view->PanBy(dx, dy);
}

void ViewModel::OrbitBy(int dx, int dy) { m_document.view.OrbitBy(dx, dy); }

bool ViewModel::IsInCurrent(POINT pixel) const {
  return ViewportAt(pixel) == m_document.viewports.CurrentNumber();
}

bool ViewModel::MakeCurrentAt(POINT pixel) {
  const int viewport = ViewportAt(pixel);
  if (viewport == 0 || IsInCurrent(pixel)) return false;
  TheHost().variables.Set(L"CVPORT", std::to_wstring(viewport));
  return true;
}

// Arcs are approximated for a scale; a much larger or smaller scale needs new shapes.
void ViewModel::BuildShapes() {
  double scale = 0;  // the finest
  for (const ViewportOnScreen& viewport : m_document.viewports.OnScreen())
    scale = std::max(scale, m_document.viewports.ViewOf(viewport.number)->PixelsPerUnit());
  if (!m_shapesStale && scale < m_shapesScale * 2 && scale > m_shapesScale / 4) return;
  m_shapes = BuildScene(*m_document.database(), scale);
  m_shapesScale = scale;
  m_shapesStale = false;
}

void ViewModel::PaintGrid(HDC dc, const ViewTransform& view) const {
  if (VariableText(L"GRIDMODE") != L"1") return;
  const std::wstring unit = VariableText(L"GRIDUNIT");
  wchar_t* end = nullptr;
  const double dx = std::wcstod(unit.c_str(), &end), dy = *end ? std::wcstod(end + 1, &end) : dx;
  PaintGridDots(dc, GridDots(view, System(), dx, dy));
}

std::wstring ViewModel::VariableText(const wchar_t* name) const {
  const auto at = m_document.variables.find(name);
  return at == m_document.variables.end() ? TheHost().variables.Find(name)->initial : at->second;
}

UserSystem ViewModel::System() const {
  const AcDbDatabase& database = *m_document.database();
  return {database.ucsorg(), database.ucsxdir(), database.ucsydir()};
}

void ViewModel::PaintScene(HDC dc) {
  BuildShapes();
  const bool highlight = IsHighlightInScene();
  ForEachViewport(dc, m_document.viewports, [&](const ViewTransform& view) {
    PaintGrid(dc, view);
    ScenePainter painter(dc, view.Pixels(), view);
    for (const Shape& shape : m_shapes)
      painter.Paint(
          shape, highlight && shape.entity && IsHighlighted(m_document, shape.entity->objectId()));
  });
  PaintViewportBorders(dc, m_document.viewports.OnScreen());
}

bool ViewModel::IsHighlightInScene() const {
  return m_document.highlighted.size() > kMaxGrippedEntities;
}

bool ViewModel::HighlightChanged() {
  m_highlightStale = true;
  const bool before = std::exchange(m_highlightInScene, IsHighlightInScene());
  return before || m_highlightInScene;
}

void ViewModel::PaintHighlights(HDC dc) {
  if (IsHighlightInScene()) return;
  const double scale = m_document.view.PixelsPerUnit();
  if (m_highlightStale || m_highlightScale != scale) {
    m_highlight.clear();
    const AcDbObjectId space = m_document.database()->currentSpaceId();
    for (AcDbObjectId id : HighlightedObjects(m_document)) {
      AcDbEntity* entity = AcDbEntity::cast(id.object());
      if (!entity || entity->ownerId() != space) continue;
      for (Shape& shape : ShapesOf(*entity, scale)) m_highlight.push_back(std::move(shape));
    }
    m_highlightScale = scale;
    m_highlightStale = false;
  }
  if (m_highlight.empty()) return;
  ForEachViewport(dc, m_document.viewports, [&](const ViewTransform& view) {
    ScenePainter painter(dc, view.Pixels(), view);
    for (const Shape& shape : m_highlight) painter.Paint(shape, true);
  });
}

std::optional<POINT> ViewModel::PixelOf(double x, double y) const {
  return m_document.view.ToPixel({x, y, 0});
}

std::optional<POINT> ViewModel::PixelOnEntity(const std::string& handle) const {
  AcDbEntity* entity = EntityOfHandle(m_document, handle);
  AcGePoint3d at;
  if (!entity || !PointOn(*entity, &at)) return std::nullopt;
  return m_document.view.ToPixel(at);
}

bool ViewModel::DrawnTexts(const std::string& handle, std::vector<std::wstring>* texts) const {
  AcDbEntity* entity = EntityOfHandle(m_document, handle);
  if (!entity) return false;
  for (Shape& shape : ShapesOf(*entity, 1))
    if (shape.kind == Shape::Kind::Text && !shape.text.empty())
      texts->push_back(std::move(shape.text));
  return true;
}

std::wstring ViewModel::CoordinatesAt(POINT pixel) const {
  const AcGePoint3d at = System().ToUser(m_document.view.ToWorld(pixel));
  wchar_t text[96];
  std::swprintf(text, 96, L"%.4f, %.4f, %.4f", at.x, at.y, at.z + 0.0);
  return text;
}

AxisMark ViewModel::Axes() const {
  const ViewTransform& view = m_document.view;
  auto direction = [&](const AcGeVector3d& axis) {
    const AcGeVector3d &right = view.Right(), &up = view.Up();
    return AxisMark::Direction{axis.x * right.x + axis.y * right.y + axis.z * right.z,
                               -(axis.x * up.x + axis.y * up.y + axis.z * up.z)};
  };
  const UserSystem system = System();
  return {view.ToPixel(system.origin), direction(system.x), direction(system.y)};
}

void ViewModel::ToggleGrid() {
  const bool on = VariableText(L"GRIDMODE") != L"1";
  TheHost().variables.Set(L"GRIDMODE", on ? L"1" : L"0");
  TheHost().Print(on ? L"<Grid on>" : L"<Grid off>");
}

bool ViewModel::WaitsForView() const { return TheHost().engine.Request() == InputRequest::View; }

bool ViewModel::WaitsForPoint() const { return TheHost().engine.WaitsForPoint(); }

bool ViewModel::WaitsForCorner() const {
  return TheHost().engine.Request() == InputRequest::Corner;
}

bool ViewModel::CommandIsActive() const { return TheHost().engine.IsCommandRunning(); }

std::optional<POINT> ViewModel::RubberBandStart() const {
  const std::optional<AcGePoint3d> from = TheHost().engine.RubberBandStart();
  if (!from || !WaitsForPoint()) return std::nullopt;
  return m_document.view.ToPixel(*from);
}

void ViewModel::EnterPoint(POINT pixel) {
  TheHost().engine.EnterPoint(m_document.view.ToWorld(pixel));
}

std::vector<ViewModel::Grip> ViewModel::GripPlaces() const {
  std::vector<Grip> grips;
  if (m_document.pickFirst.size() > kMaxGrippedEntities) return grips;
  for (const AcDbObjectId& id : m_document.pickFirst) {
    AcDbEntity* entity = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
    if (!entity) continue;
    std::vector<AcGePoint3d> points;
    const std::vector<Shape> shapes = ShapesOf(*entity, m_document.view.PixelsPerUnit());
    for (size_t i = 0; i < shapes.size() && i < kMaxCorners; ++i)
      AddGrips(shapes[i].points, &points);
    for (const AcGePoint3d& point : points) grips.push_back({entity, point});
  }
  return grips;
}

std::vector<POINT> ViewModel::Grips() const {
  std::vector<POINT> pixels;
  for (const Grip& grip : GripPlaces()) pixels.push_back(m_document.view.ToPixel(grip.at));
  return pixels;
}

bool ViewModel::PressGrip(POINT pixel) {
  const std::vector<POINT> spots = Grips();
  const int grip = NearestSpot(spots.data(), static_cast<int>(spots.size()), pixel, kGripHalf);
  if (grip < 0) return false;
  const Grip pressed = GripPlaces()[static_cast<size_t>(grip)];
  return TheHost().engine.StretchGrip(m_document, pressed.entity->objectId(), pressed.at);
}

AcDbEntity* ViewModel::EntityUnder(POINT pixel) const {
  return EntityAt(*m_document.database(), m_document.view.ToWorld(pixel),
                  kPickBox / m_document.view.PixelsPerUnit());
}

bool ViewModel::EditTextAt(POINT pixel) {
  const AcDbEntity* entity =
      CommandIsActive() || !IsInCurrent(pixel) ? nullptr : EntityUnder(pixel);
  return entity && IsPlainText(*entity) &&
         TheHost().engine.EditText(m_document, entity->objectId());
}

void ViewModel::PreviewAt(POINT pixel) {
  if (!IsInCurrent(pixel)) return EndPreview();
  devhost::PreviewAt(m_document, m_document.view.ToWorld(pixel),
                     kPickBox / m_document.view.PixelsPerUnit());
}

void ViewModel::EndPreview() { devhost::EndPreview(m_document); }

bool ViewModel::IsPicked(const AcDbObject* entity) const {
  return std::any_of(m_document.pickFirst.begin(), m_document.pickFirst.end(),
                     [entity](const AcDbObjectId& id) { return id.object() == entity; });
}

bool ViewModel::PickAt(POINT pixel, bool remove) {
  AcDbEntity* entity = EntityUnder(pixel);
  if (!entity) return false;
  TakePicked({entity}, remove);
  return true;
}

void ViewModel::PickIn(const RECT& box, bool crossing, bool remove) {
  const AcGePoint3d a = m_document.view.ToWorld({box.left, box.top});
  const AcGePoint3d b = m_document.view.ToWorld({box.right, box.bottom});
  TakePicked(EntitiesIn(*m_document.database(), a, b, crossing), remove);
}

// Adds the entities to the pick-first set, or removes them.
void ViewModel::TakePicked(const std::vector<AcDbEntity*>& entities, bool remove) {
  std::vector<AcDbObjectId> picked = m_document.pickFirst;
  for (AcDbEntity* entity : entities) {
    const bool there = IsPicked(entity);
    if (remove && there) std::erase(picked, entity->objectId());
    if (!remove && !there) picked.push_back(entity->objectId());
  }
  SetPickFirst(m_document, std::move(picked));
}

}  // namespace devhost
