#include "axis_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>

#include "adslib.h"
#include "dbapserv.h"
#include "dbents.h"
#include "design_input.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/entities/tdbdimension2.h"
#include "plane_shapes.h"

namespace {

constexpr wchar_t kAxes[] = L"DOTE", kNumbers[] = L"AXIS";
constexpr int kAxisColor = 1, kNumberColor = 3;
constexpr double kOver = 1500, kNumberRadius = 400, kDimensionOff = 10;
constexpr int kMostAxes = 100;

void AddAxis(const AcGePoint3d& from, const AcGePoint3d& to) {
  AddLine(from, to, kAxes, kAxisColor);
}

void AddNumber(const AcGePoint3d& at, const std::wstring& name) {
  auto number = MakeAt<QvxDbAxisNumber>(at, kNumberRadius);
  number->label = name;
  AddEntity(std::move(number), kNumbers, kNumberColor);
}

// An axis that a line crosses: how far along, where, and the end of the axis that is nearer.
struct CrossedAxis {
  double way;
  AcGePoint3d at, end;
  AcGeVector3d outwards;
};

std::vector<CrossedAxis> AxesAcross(const AcGePoint3d& a, const AcGePoint3d& b) {
  std::vector<CrossedAxis> axes;
  for (AcDbObjectId id : CurrentSpace()->entities()) {
    const AcDbLine* line = id.isErased() ? nullptr : AcDbLine::cast(id.object());
    if (!line || std::wcscmp(line->layer(), kAxes) != 0) continue;
    const auto way = Crossing(a, b, line->startPoint(), line->endPoint());
    if (!way) continue;
    const AcGePoint3d at = a + (b - a) * *way;
    const bool fromStart = at.distanceTo(line->startPoint()) < at.distanceTo(line->endPoint());
    const AcGePoint3d end = fromStart ? line->startPoint() : line->endPoint(),
                      other = fromStart ? line->endPoint() : line->startPoint();
    axes.push_back({*way, at, end, (end - other).normal()});
  }
  std::sort(axes.begin(), axes.end(),
            [](const CrossedAxis& x, const CrossedAxis& y) { return x.way < y.way; });
  return axes;
}

std::vector<QvxDbAxisNumber*> NumbersIn(const TPickEntSet& set) {
  std::vector<QvxDbAxisNumber*> numbers;
  for (int i = 0; i < set.Length(); ++i) {
    QvxDbAxisNumber* number = nullptr;
    if (acdbOpenObject(number, set[i].ObjectId(), AcDb::kForWrite) == Acad::eOk)
      numbers.push_back(number);
  }
  return numbers;
}

// From the left, or from below where they are one above another.
void SortByPlace(std::vector<QvxDbAxisNumber*>& numbers) {
  AcDbExtents box;
  for (const QvxDbAxisNumber* number : numbers) box.addPoint(number->start);
  if (!box.isValid()) return;
  const AcGeVector3d size = box.maxPoint() - box.minPoint();
  const bool upwards = size.y > size.x;
  std::stable_sort(numbers.begin(), numbers.end(),
                   [upwards](const QvxDbAxisNumber* a, const QvxDbAxisNumber* b) {
                     return upwards ? a->start.y < b->start.y : a->start.x < b->start.x;
                   });
}

void Close(const std::vector<QvxDbAxisNumber*>& numbers) {
  for (QvxDbAxisNumber* number : numbers) number->close();
  acutPrintf(L"\n共 %d 个轴号。\n", static_cast<int>(numbers.size()));
}

}  // namespace

void DrawAxes() {
  ads_point at{};
  const double bay = 3600, depth = 4200;
  int columns = 3, rows = 2;
  if (!AskCount(L"开间数", columns, kMostAxes) || !AskCount(L"进深数", rows, kMostAxes)) return;
  if (!AskPoint(L"\n插入点: ", at)) return;
  const AcGePoint3d corner = WorldPoint(at);
  const double right = corner.x + bay * columns + kOver, top = corner.y + depth * rows + kOver;
  for (int i = 0; i <= columns; ++i)
    AddAxis({corner.x + bay * i, corner.y - kOver, 0}, {corner.x + bay * i, top, 0});
  for (int i = 0; i <= rows; ++i)
    AddAxis({corner.x - kOver, corner.y + depth * i, 0}, {right, corner.y + depth * i, 0});
  acutPrintf(L"\n轴网 %d x %d。\n", columns, rows);
}

void DrawArcAxes() {
  ads_point at{};
  int bays = 4, rings = 2;
  double angle = 15, radius = 6000, depth = 4200;
  if (!AskCount(L"开间数", bays, kMostAxes) || !AskSize(L"每开间的角度", angle)) return;
  if (!AskSize(L"内弧半径", radius) || !AskCount(L"进深数", rings, kMostAxes)) return;
  if (!AskSize(L"进深", depth) || !AskPoint(L"\n圆心: ", at)) return;
  const double sweep = std::min(angle * bays, 360.0) * std::numbers::pi / 180,
               far = radius + depth * rings;
  const AcGePoint3d center = WorldPoint(at);
  for (int i = 0; i <= bays; ++i) {
    const double to = sweep * i / bays;
    AddAxis(OnCircle(center, std::max(radius - kOver, 0.0), to), OnCircle(center, far + kOver, to));
  }
  for (int i = 0; i <= rings; ++i)
    AddEntity(std::make_unique<AcDbArc>(center, radius + depth * i, 0, sweep), kAxes, kAxisColor);
  acutPrintf(L"\n弧线轴网 %d x %d。\n", bays, rings);
}

void DimensionAxes() {
  ads_point a{}, b{};
  std::wstring name = L"1";
  if (!AskPoint(L"\n横穿轴线的起点: ", a) || !AskPoint(L"\n横穿轴线的终点: ", b, a)) return;
  if (!AskText(L"起始轴号", name)) return;
  const std::vector<CrossedAxis> axes = AxesAcross(WorldPoint(a), WorldPoint(b));
  if (axes.empty()) acutPrintf(L"\n两点之间没有轴线。\n");
  for (std::size_t i = 0; i < axes.size(); ++i, name = NextAxisName(name)) {
    AddNumber(axes[i].end + axes[i].outwards * kNumberRadius, name);
    if (i == 0) continue;
    AddEntity(MakeBetween<TDbDimension2>(axes[i - 1].at, axes[i].at, 0, kDimensionOff), kNumbers,
              kNumberColor);
  }
}

void SwitchAxisLinetype() {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbLayerTable* layers = nullptr;
  AcDbObjectId id;
  if (!EnsureLayer(kAxes, kAxisColor) ||
      database->getLayerTable(layers, AcDb::kForRead) != Acad::eOk)
    return;
  const bool found = layers->getAt(kAxes, id) == Acad::eOk;
  layers->close();
  const TAcDbObjectPtr<AcDbLayerTableRecord> layer(found ? id : AcDbObjectId(), AcDb::kForWrite);
  if (!layer) return;
  const bool continuous = std::wcscmp(layer->linetype(), L"CONTINUOUS") == 0;
  layer->setLinetype(continuous ? L"DASHDOT" : L"CONTINUOUS");
  acutPrintf(continuous ? L"\n轴线改为点划线。\n" : L"\n轴线改为连续线。\n");
  acedRedraw(nullptr, 0);
}

void NumberAxis() {
  ads_point at{};
  std::wstring name = L"1";
  if (AskPoint(L"\n轴号位置: ", at) && AskText(L"轴号", name)) AddNumber(WorldPoint(at), name);
}

void AddAxisNumber() {
  ads_point at{};
  const AcDbObjectId id = PickObject(L"\n选择相邻的轴号: ");
  std::wstring name;
  if (const TAcDbObjectPtr<QvxDbAxisNumber> number(id, AcDb::kForRead); number)
    name = NextAxisName(number->label);
  else if (id.isNull())
    return;
  else
    acutPrintf(L"\n不是轴号。\n");
  if (name.empty() || !AskPoint(L"\n新轴号的位置: ", at) || !AskText(L"轴号", name)) return;
  AddNumber(WorldPoint(at), name);
}

void DeleteAxisNumbers() {
  TPickEntSet set;
  if (!Chosen(set)) return;
  const int count = ChangeEach<QvxDbAxisNumber>(
      set, [](QvxDbAxisNumber& number) { return number.erase() == Acad::eOk; });
  acutPrintf(L"\n删除了 %d 个轴号。\n", count);
}

void SortAxisNumbers() {
  TPickEntSet set;
  std::wstring name = L"1";
  if (!Chosen(set) || !AskText(L"起始轴号", name)) return;
  std::vector<QvxDbAxisNumber*> numbers = NumbersIn(set);
  SortByPlace(numbers);
  for (QvxDbAxisNumber* number : numbers) {
    number->label = name;
    name = NextAxisName(name);
  }
  Close(numbers);
}

void ReverseAxisNumbers() {
  TPickEntSet set;
  if (!Chosen(set)) return;
  std::vector<QvxDbAxisNumber*> numbers = NumbersIn(set);
  SortByPlace(numbers);
  for (std::size_t i = 0; i < numbers.size() / 2; ++i)
    std::swap(numbers[i]->label, numbers[numbers.size() - 1 - i]->label);
  Close(numbers);
}
