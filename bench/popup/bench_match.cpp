// Measures the choice among 200 blocks for 10,000 selected objects against one pass over the same
// objects that only reads type and layer, in one run. Goal: at most three times the pass, for host
// objects as at a right click. Also measures the matching alone, over texts in memory, against a
// pass that only reads each character.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/selection.h"
#include "menu/menu_model.h"
#include "popup/host_selection.h"
#include "tests/doubles/silent_ui.h"

namespace {

constexpr int kObjects = 10000, kBlocks = 200, kRounds = 31;
constexpr double kGoal = 3;
constexpr int kMostLayers = 500;  // limit of the goal; ratios beyond it are only printed

struct Object {
  std::wstring type, layer;
};

double Now() {
  return std::chrono::duration<double, std::milli>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

std::vector<Object> MakeObjects(int layers) {
  std::mt19937 random(7);
  const wchar_t* types[] = {L"QVX_WALL", L"QVX_OPENING", L"QVX_COLUMN", L"LINE", L"LWPOLYLINE",
                            L"INSERT",   L"TEXT",        L"MTEXT",      L"ARC",  L"CIRCLE"};
  std::vector<Object> objects(kObjects);
  for (Object& object : objects) {
    object.type = types[random() % 10];
    object.layer = L"A-LAYER-" + std::to_wstring(random() % static_cast<unsigned>(layers));
  }
  return objects;
}

// Masks typical for menus: a type, often a layer, some wild cards. Only the last one fits all
// objects, so every mask is tried.
void FillMenu(TMenuSystem& system) {
  for (int i = 0; i < kBlocks; ++i) {
    auto* bar = new TMenuBar;
    bar->m_objectMask.AppendString(0, i + 1 == kBlocks ? L"*" : i % 2 ? L"QVX_*" : L"CIRCLE,ARC");
    if (i % 3 == 0 && i + 1 < kBlocks)
      bar->m_objectMask.AppendString(8, (L"@KEY" + std::to_wstring(i)).c_str());
    if (i % 3 == 1) bar->m_objectMask.AppendString(8, L"*");
    system.Append(bar);
  }
}

// The minimum work for any reader of a selection: read both texts of each object once.
size_t ReadOnly(const std::vector<Object>& objects) {
  size_t units = 0;
  for (const Object& object : objects) {
    for (const wchar_t unit : object.type) units += static_cast<size_t>(unit);
    for (const wchar_t unit : object.layer) units += static_cast<size_t>(unit);
  }
  return units;
}

size_t ReadOnly(const TPickEntSet& set) {
  size_t units = 0;
  for (int i = 0, count = set.Length(); i < count; ++i) {
    AcDbEntity* entity = nullptr;
    if (acdbOpenObject(entity, set[i].ObjectId(), AcDb::kForRead) != Acad::eOk) continue;
    units += std::wcslen(TEntitySet::TypeOf(*entity)) + std::wcslen(entity->layer());
    entity->close();
  }
  return units;
}

bool LayerOfKey(std::wstring_view key, std::wstring& layer) {
  layer = L"A-LAYER-" + std::wstring(key.substr(3));
  return true;
}

int Choose(const TMenuSystem& system, const std::vector<Object>& objects) {
  SelectionDescription selection;
  for (const Object& object : objects) selection.Add(object.type, object.layer);
  return BlockMatcher(system).Find(selection, LayerOfKey);
}

int Choose(const TMenuSystem& system, const TPickEntSet& set) {
  return BlockMatcher(system).Find(DescribeSelection(set), LayerOfKey);
}

// Makes lines on the layers of the objects and selects all of them in a drawing of the host.
void SelectLines(const std::vector<Object>& objects) {
  devhost::Document& drawing = *devhost::TheHost().documents.New();
  auto* space = AcDbBlockTableRecord::cast(drawing.database()->currentSpaceId().object());
  std::vector<AcDbObjectId> ids;
  for (const Object& object : objects) {
    auto* line = new AcDbLine({0, 0, 0}, {1, 1, 0});
    line->setLayer(object.layer.c_str());
    AcDbObjectId id;
    space->appendAcDbEntity(id, line);
    line->close();
    ids.push_back(id);
  }
  devhost::SetPickFirst(drawing, std::move(ids));
}

template <class Work>
double Median(Work work) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    const double start = Now();
    work();
    times.push_back(Now() - start);
  }
  std::sort(times.begin(), times.end());
  return times[kRounds / 2];
}

// Returns the ratio; infinite when the choice is wrong.
template <class Objects>
double Report(const char* what, const TMenuSystem& system, const Objects& objects, int layers) {
  volatile size_t keep = 0;
  if (Choose(system, objects) != kBlocks - 1) return 1e9;
  const double pass = Median([&] { keep = ReadOnly(objects); });
  const double match = Median([&] { keep = static_cast<size_t>(Choose(system, objects)); });
  std::printf("%-15s %d blocks, %d objects, %4d layers: pass %.3f ms, match %.3f ms, ratio %.2f\n",
              what, kBlocks, kObjects, layers, pass, match, match / pass);
  return match / pass;
}

}  // namespace

int main() {
  TMenuSystem system;
  FillMenu(system);
  SilentUi ui;
  devhost::TheHost().Begin({}, &ui, nullptr);
  bool reached = true;
  for (const int layers : {20, 500, 5000}) {
    const std::vector<Object> objects = MakeObjects(layers);
    Report("texts", system, objects, layers);
    SelectLines(objects);
    TPickEntSet set;
    set.Get(L"I");
    const double ratio = Report("host's objects", system, set, layers);
    reached &= layers > kMostLayers || ratio <= kGoal;
  }
  devhost::TheHost().End();
  return reached ? 0 : 1;
}
