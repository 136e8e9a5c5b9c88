// The commands; see the header.
#include "annotation_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>

#include "add_entity.h"
#include "adslib.h"
#include "annotation_entities.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbfloorrect.h"
#include "kernel/tpickentset.h"

namespace {

constexpr double kAxisTextOff = 1200, kIndexRow = 800, kIndexWidth = 8000, kPointerRadius = 400;
constexpr double kCellWidth = 3000, kCellHeight = 800, kNoteSize = 500;
constexpr int kDelay = 80;  // ms

bool TwoCorners(ads_point a, ads_point b) {
  return acedGetPoint(nullptr, L"\n第一点: ", a) == RTNORM &&
         acedGetCorner(a, L"\n对角点: ", b) == RTNORM;
}

bool TwoPoints(ads_point a, ads_point b) {
  return acedGetPoint(nullptr, L"\n起点: ", a) == RTNORM &&
         acedGetPoint(a, L"\n终点: ", b) == RTNORM;
}

std::wstring AskText(const wchar_t* prompt) {
  ACHAR text[140] = L"";
  return acedGetString(1, prompt, text) == RTNORM ? text : L"";
}

template <class Entity>
std::unique_ptr<Entity> Between(const ads_point a, const ads_point b) {
  auto entity = std::make_unique<Entity>();
  entity->start = WorldPoint(a);
  entity->end = WorldPoint(b);
  return entity;
}

bool AskCount(const wchar_t* prompt, int& count) {
  acedInitGet(6, nullptr);
  return acedGetInt(prompt, &count) != RTCAN;
}

void DrawSheet() {
  ads_point at{};
  int columns = 4, rows = 6;
  if (acedGetPoint(nullptr, L"\n表格左上角: ", at) != RTNORM) return;
  if (!AskCount(L"\n列数 <4>: ", columns) || !AskCount(L"\n行数 <6>: ", rows)) return;
  auto sheet = Between<QvxDbSheet>(at, at);
  sheet->width = kCellWidth;
  sheet->size = kCellHeight;
  sheet->kind = columns;
  sheet->flags = rows;
  AddEntity(std::move(sheet), L"SHEET", 7);
}

// Any class of the family that has texts, by its name in drawing files.
void DrawNote() {
  ads_point a{}, b{};
  const AcRxClass* cls = acrxClassOfDxfName(AskText(L"\n类型: ").c_str());
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
  note->label = AskText(L"\n文字: ");
  for (std::wstring cell; !(cell = AskText(L"\n下一段文字 <结束>: ")).empty();)
    note->cells.push_back(cell);
  AddEntity(std::move(note), L"DIM", 3);
}

void DrawFloorRect() {
  ads_point a{}, b{};
  if (!TwoCorners(a, b)) return;
  auto frame = Between<TDbFloorRect>(a, b);
  frame->label = AskText(L"\n楼层名: ");
  AddEntity(std::move(frame), L"SHEET", 3);
}

void DrawIndex() {
  ads_point at{};
  if (acedGetPoint(nullptr, L"\n目录左上角: ", at) != RTNORM) return;
  auto index = Between<QvxDbDrawingIndex>(at, at);
  index->width = kIndexWidth;
  index->size = kIndexRow;
  index->label = L"图纸目录";
  index->cells = {L"建施-01", L"建施-02", L"建施-03"};
  AddEntity(std::move(index), L"SHEET", 7);
}

void DrawPointer() {
  ads_point a{}, b{};
  if (!TwoPoints(a, b)) return;
  auto pointer = Between<QvxDbIndexPointer>(a, b);
  pointer->width = kPointerRadius;
  pointer->label = L"1";
  pointer->cells = {AskText(L"\n索引文字: ")};
  AddEntity(std::move(pointer), L"DIM", 3);
}

void DrawAxisLabel() {
  ads_point a{}, b{};
  if (!TwoPoints(a, b)) return;
  auto axis = Between<QvxDbAxisLabel>(a, b);
  axis->size = kAxisTextOff;
  axis->label = AskText(L"\n轴号: ");
  AddEntity(std::move(axis), L"AXIS", 3);
}

void DrawSlow() {
  ads_point a{}, b{};
  int delay = kDelay;
  if (!TwoCorners(a, b)) return;
  acedInitGet(4, nullptr);
  if (acedGetInt(L"\n延时毫秒 <80>: ", &delay) == RTCAN) return;
  auto slow = Between<QvxDbSlow>(a, b);
  slow->kind = delay;
  AddEntity(std::move(slow), L"0", 1);
}

// What is selected, else what the user chooses.
bool Chosen(TPickEntSet& set) { return set.Get(L"I") == RTNORM || set.Get(nullptr) == RTNORM; }

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

}  // namespace

const DesignCommand kAnnotationCommands[] = {
    {L"TSheet", DrawSheet},
    {L"TNote", DrawNote},
    {L"TFloorRect", DrawFloorRect},
    {L"TDrawingIndex", DrawIndex},
    {L"TIndexPointer", DrawPointer},
    {L"TAxisLabel", DrawAxisLabel},
    {L"TSlow", DrawSlow},
    {L"TObjEdit", EditObject, ACRX_CMD_USEPICKSET},
    {L"TGroupKey", GroupObjects, ACRX_CMD_USEPICKSET},
};
const int kAnnotationCommandCount = sizeof kAnnotationCommands / sizeof *kAnnotationCommands;
