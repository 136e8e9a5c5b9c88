// The commands; see the header.
#include "annotation_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>

#include "adslib.h"
#include "annotation_entities.h"
#include "design_input.h"
#include "kernel/tdbfloorrect.h"

namespace {

constexpr double kAxisTextOff = 1200, kIndexRow = 800, kIndexWidth = 8000, kPointerRadius = 400;
constexpr double kCellWidth = 3000, kCellHeight = 800, kNoteSize = 500;
constexpr int kDelay = 80;  // ms
constexpr int kMostRows = 100;

std::wstring TypedText(const wchar_t* prompt) {
  ACHAR text[140] = L"";
  return acedGetString(1, prompt, text) == RTNORM ? text : L"";
}

}  // namespace

void DrawSheet() {
  ads_point at{};
  int columns = 4, rows = 6;
  if (acedGetPoint(nullptr, L"\n表格左上角: ", at) != RTNORM) return;
  if (!AskCount(L"列数", columns, kMostRows) || !AskCount(L"行数", rows, kMostRows)) return;
  auto sheet = MakeBetween<QvxDbSheet>(WorldPoint(at), WorldPoint(at));
  sheet->width = kCellWidth;
  sheet->size = kCellHeight;
  sheet->kind = columns;
  sheet->flags = rows;
  AddEntity(std::move(sheet), L"SHEET", 7);
}

// Any class of the family that has texts, by its name in drawing files.
void DrawNote() {
  ads_point a{}, b{};
  const AcRxClass* cls = acrxClassOfDxfName(TypedText(L"\n类型: ").c_str());
  std::unique_ptr<AcRxObject> made(cls ? cls->create() : nullptr);
  if (!QvxDbEntity::cast(made.get())) {
    acutPrintf(L"\n没有这种类型。\n");
    return;
  }
  if (!TwoPoints(a, b)) return;
  std::unique_ptr<QvxDbEntity> note(QvxDbEntity::cast(made.release()));
  note->start = WorldPoint(a);
  note->end = WorldPoint(b);
  note->outline = {note->start, {note->end.x, note->start.y, 0}, note->end};
  note->width = kNoteSize;
  note->size = std::max(kNoteSize, std::fabs(note->end.x - note->start.x));
  note->label = TypedText(L"\n文字: ");
  for (std::wstring cell; !(cell = TypedText(L"\n下一段文字 <结束>: ")).empty();)
    note->cells.push_back(cell);
  AddEntity(std::move(note), L"DIM", 3);
}

void DrawFloorRect() {
  ads_point a{}, b{};
  std::wstring name;
  if (!TwoCorners(a, b) || !AskText(L"楼层名", name)) return;
  auto frame = MakeBetween<TDbFloorRect>(WorldPoint(a), WorldPoint(b));
  frame->label = name;
  AddEntity(std::move(frame), L"SHEET", 3);
}

void DrawIndex() {
  ads_point at{};
  if (acedGetPoint(nullptr, L"\n目录左上角: ", at) != RTNORM) return;
  auto index = MakeBetween<QvxDbDrawingIndex>(WorldPoint(at), WorldPoint(at));
  index->width = kIndexWidth;
  index->size = kIndexRow;
  index->label = L"图纸目录";
  index->cells = {L"建施-01", L"建施-02", L"建施-03"};
  AddEntity(std::move(index), L"SHEET", 7);
}

void DrawPointer() {
  ads_point a{}, b{};
  std::wstring text;
  if (!TwoPoints(a, b) || !AskText(L"索引文字", text)) return;
  auto pointer = MakeBetween<QvxDbIndexPointer>(WorldPoint(a), WorldPoint(b));
  pointer->width = kPointerRadius;
  pointer->label = L"1";
  pointer->cells = {text};
  AddEntity(std::move(pointer), L"DIM", 3);
}

void DrawAxisLabel() {
  ads_point a{}, b{};
  std::wstring name;
  if (!TwoPoints(a, b) || !AskText(L"轴号", name)) return;
  auto axis = MakeBetween<QvxDbAxisLabel>(WorldPoint(a), WorldPoint(b));
  axis->size = kAxisTextOff;
  axis->label = name;
  AddEntity(std::move(axis), L"AXIS", 3);
}

void DrawSlow() {
  ads_point a{}, b{};
  int delay = kDelay;
  if (!TwoCorners(a, b)) return;
  acedInitGet(4, nullptr);
  if (acedGetInt(L"\n延时毫秒 <80>: ", &delay) == RTCAN) return;
  auto slow = MakeBetween<QvxDbSlow>(WorldPoint(a), WorldPoint(b));
  slow->kind = delay;
  AddEntity(std::move(slow), L"0", 1);
}

void EditObject() {
  TPickEntSet set;
  if (!Chosen(set)) return;
  for (int i = 0; i < set.Length(); ++i) {
    const TAcDbObjectPtr<AcDbEntity> entity(set[i].ObjectId(), AcDb::kForRead);
    ACHAR handle[17] = L"";
    if (!entity) continue;
    entity->handle().getIntoAsciiBuffer(handle);
    acutPrintf(L"\n编辑 %ls %ls\n", TEntitySet::TypeOf(*entity.Get()), handle);
  }
}

void GroupObjects() {
  TPickEntSet set;
  int key = 0;
  if (!Chosen(set)) return;
  acedInitGet(4, nullptr);
  if (acedGetInt(L"\n组号 <0>: ", &key) == RTCAN) return;
  for (int i = 0; i < set.Length(); ++i) {
    const TAcDbObjectPtr<QvxDbEntity> entity(set[i].ObjectId(), AcDb::kForWrite);
    if (entity) entity->group = key;
  }
  acutPrintf(L"\n%d 个对象归入组 %d。\n", set.Length(), key);
}
