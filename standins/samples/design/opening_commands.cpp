#include "opening_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <map>

#include "adslib.h"
#include "annotation_entities.h"
#include "design_input.h"
#include "kernel/entities/qvx_entity.h"

namespace {

enum Kind { kDoor = 0, kWindow = 1 };
enum Flip { kAcross = 1, kAlong = 2 };
constexpr double kReach = 400;
constexpr double kColumnWidth = 2000, kRowHeight = 800;

// The wall with the nearest axis within reach, and the nearest point on it.
const QvxDbWall* WallNear(const AcGePoint3d& p, AcGePoint3d* foot) {
  const QvxDbWall* best = nullptr;
  double nearest = kReach;
  for (AcDbObjectId id : CurrentSpace()->entities()) {
    const QvxDbWall* wall = id.isErased() ? nullptr : QvxDbWall::cast(id.object());
    if (!wall) continue;
    const double length = wall->start.distanceTo(wall->end);
    if (length <= 0) continue;
    const AcGeVector3d along = (wall->end - wall->start).normal(), offset = p - wall->start;
    const double t = std::clamp(offset.x * along.x + offset.y * along.y, 0.0, length);
    const AcGePoint3d at = wall->start + along * t;
    if (p.distanceTo(at) > nearest) continue;
    nearest = p.distanceTo(at);
    best = wall;
    *foot = at;
  }
  return best;
}

void InsertOpenings(int kind, double size, const wchar_t* label, const wchar_t* prompt) {
  ads_point at{};
  while (AskPoint(prompt, at)) {
    AcGePoint3d foot = WorldPoint(at);
    const QvxDbWall* wall = WallNear(WorldPoint(at), &foot);
    if (!wall) {
      acutPrintf(L"\n附近没有墙，请在墙上点取。\n");
      continue;
    }
    auto opening = MakeAt<QvxDbOpening>(foot, wall->width, size);
    opening->angle = std::atan2(wall->end.y - wall->start.y, wall->end.x - wall->start.x);
    opening->kind = kind;
    opening->label = label;
    AddEntity(std::move(opening), L"WINDOW", 4);
  }
}

template <class Change>
void ChangeOpenings(const TPickEntSet& set, Change change) {
  const int count = ChangeEach<QvxDbOpening>(set, change);
  acutPrintf(L"\n修改了 %d 个门窗。\n", count);
  acedRedraw(nullptr, 0);
}

void FlipDoors(int flag) {
  TPickEntSet set;
  if (!Chosen(set)) return;
  ChangeOpenings(set, [flag](QvxDbOpening& door) {
    if (door.kind != kDoor) return false;
    door.flags ^= flag;
    return true;
  });
}

// M or C, the width and the usual height in units of 100 mm.
std::wstring LabelBySize(const QvxDbOpening& opening) {
  wchar_t text[40];
  std::swprintf(text, 40, L"%lc%02d%02d", opening.kind == kDoor ? L'M' : L'C',
                static_cast<int>(std::lround(opening.size / 100)), opening.kind == kDoor ? 21 : 15);
  return text;
}

// The number and width of all openings by label.
std::map<std::wstring, std::pair<int, double>> CountOpenings() {
  std::map<std::wstring, std::pair<int, double>> counts;
  for (AcDbObjectId id : CurrentSpace()->entities()) {
    const QvxDbOpening* opening = id.isErased() ? nullptr : QvxDbOpening::cast(id.object());
    if (!opening) continue;
    auto& [count, width] = counts[opening->label];
    ++count;
    width = opening->size;
  }
  return counts;
}

}  // namespace

void InsertDoors() { InsertOpenings(kDoor, 900, L"M0921", L"\n点取门的位置 <退出>: "); }
void InsertWindows() { InsertOpenings(kWindow, 1500, L"C1515", L"\n点取窗的位置 <退出>: "); }

void FlipDoorsAcross() { FlipDoors(kAcross); }
void FlipDoorsAlong() { FlipDoors(kAlong); }

void LabelOpening() {
  const AcDbObjectId id = PickObject(L"\n选择门窗: ");
  if (id.isNull()) return;
  const QvxDbOpening* opening = QvxDbOpening::cast(id.object());
  if (!opening) return static_cast<void>(acutPrintf(L"\n不是门窗。\n"));
  std::wstring label = opening->label;
  if (!AskText(L"编号", label)) return;
  if (const TAcDbObjectPtr<QvxDbOpening> changed(id, AcDb::kForWrite); changed)
    changed->label = label;
}

void LabelOpenings() {
  TPickEntSet set;
  std::wstring label;
  if (!Chosen(set) || !AskText(L"统一的编号", label) || label.empty()) return;
  ChangeOpenings(set, [&label](QvxDbOpening& opening) {
    opening.label = label;
    return true;
  });
}

void ResetOpeningLabels() {
  TPickEntSet set;
  if (!Chosen(set)) return;
  ChangeOpenings(set, [](QvxDbOpening& opening) {
    opening.label = LabelBySize(opening);
    return true;
  });
}

void DrawOpeningTable() {
  ads_point at{};
  const auto counts = CountOpenings();
  if (counts.empty()) return static_cast<void>(acutPrintf(L"\n本图没有门窗。\n"));
  if (!AskPoint(L"\n门窗表左上角: ", at)) return;
  auto table = MakeAt<QvxDbSheet>(WorldPoint(at), kColumnWidth, kRowHeight);
  table->kind = 3;
  table->flags = static_cast<int>(counts.size()) + 1;
  table->cells = {L"编号", L"宽度", L"数量"};
  for (const auto& [label, row] : counts) {
    table->cells.push_back(label);
    table->cells.push_back(std::to_wstring(std::lround(row.second)));
    table->cells.push_back(std::to_wstring(row.first));
  }
  AddEntity(std::move(table), L"SHEET", 7);
}
