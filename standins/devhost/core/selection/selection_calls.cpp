// The published functions for selections.
#include <algorithm>
#include <optional>

#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"
#include "devhost/core/selection/selection.h"
#include "devhost/core/selection/selection_filter.h"
#include "devhost/core/view/scene.h"

using namespace devhost;

namespace {

std::vector<AcDbObjectId> AllOf(Document& document) {
  std::vector<AcDbObjectId> ids;
  AcDbBlockTable* table = nullptr;
  if (document.database()->getBlockTable(table, AcDb::kForRead) != Acad::eOk) return ids;
  for (const wchar_t* space : {ACDB_MODEL_SPACE, ACDB_PAPER_SPACE}) {
    AcDbObjectId id;
    if (table->getAt(space, id) != Acad::eOk) continue;
    for (AcDbObjectId e : AcDbBlockTableRecord::cast(id.object())->entities())
      if (!e.isErased()) ids.push_back(e);
  }
  table->close();
  return ids;
}

std::vector<AcDbEntity*> EntitiesWith(const std::vector<AcDbObjectId>& ids) {
  std::vector<AcDbEntity*> entities;
  for (AcDbObjectId id : ids)
    if (AcDbEntity* e = id.isErased() ? nullptr : AcDbEntity::cast(id.object()))
      entities.push_back(e);
  return entities;
}

void AddAll(std::vector<AcDbObjectId>& set, const std::vector<AcDbEntity*>& found,
            const resbuf* filter) {
  for (AcDbEntity* e : found)
    if (PassesFilter(*e, filter) && std::find(set.begin(), set.end(), e->objectId()) == set.end())
      set.push_back(e->objectId());
}

// The nearest entity that passes the filter; nearer ones that do not are ignored.
AcDbEntity* EntityNear(Document& document, const AcGePoint3d& at, const resbuf* filter) {
  constexpr double kPickReach = 6;  // pixels
  return EntityAt(*document.database(), at, kPickReach / document.view.PixelsPerUnit(),
                  [filter](const AcDbEntity& e) { return PassesFilter(e, filter); });
}

AcGePoint3d PointOf(const double* p) { return WorldOfUser(p); }

std::vector<AcGePoint3d> PointsOf(const resbuf* list) {
  std::vector<AcGePoint3d> points;
  for (; list; list = list->rbnext)
    if (list->restype == RT3DPOINT || list->restype == RTPOINT)
      points.push_back(PointOf(list->resval.rpoint));
  return points;
}

// Prompts for objects until Enter. A click picks one; "ALL", "Previous" and "Last" add those; a
// click on empty space begins a box.
int AskForObjects(Document& document, const resbuf* filter, std::vector<AcDbObjectId>& set) {
  const SelectionPrompt prompt(TheHost().engine);
  for (;;) {
    if (const auto given = TheHost().engine.TakeGivenObjects()) {
      AddAll(set, EntitiesWith(*given), filter);
      continue;
    }
    acedInitGet(0, L"ALL Previous Last");
    ads_point at{};
    const int status = acedGetPoint(nullptr, L"\n选择对象: ", at);
    if (status == RTCAN) return RTCAN;
    if (status == RTNONE) return RTNORM;
    if (status == RTKWORD) {
      ACHAR word[40];
      acedGetInput(word);
      std::vector<AcDbObjectId> source =
          word[0] == L'P' ? document.previousSelection : AllOf(document);
      if (word[0] == L'L' && !source.empty()) source = {source.back()};
      AddAll(set, EntitiesWith(source), filter);
    } else if (AcDbEntity* hit = EntityNear(document, PointOf(at), filter)) {
      AddAll(set, {hit}, filter);
    } else {
      ads_point other{};
      const int second = acedGetCorner(at, L"\n指定对角点: ", other);
      if (second == RTCAN) return RTCAN;
      if (second == RTNORM)
        AddAll(set,
               EntitiesIn(*document.database(), PointOf(at), PointOf(other),
                          PointOf(other).x < PointOf(at).x),
               filter);
    }
    TheHost().Print(L"找到 " + std::to_wstring(set.size()) + L" 个\n");
  }
}

// The objects of the modes of acedSSGet that name a selection; nothing for an unknown mode.
std::optional<std::vector<AcDbObjectId>> SourceOf(Document& document, const std::wstring& mode) {
  if (mode.empty() || mode == L"I") return document.pickFirst;
  if (mode == L"P") return document.previousSelection;
  if (mode != L"L" && mode != L"X" && mode != L"A") return std::nullopt;
  std::vector<AcDbObjectId> all = AllOf(document);
  if (mode == L"L" && !all.empty()) all = {all.back()};
  return all;
}

std::wstring ModeName(const ACHAR* mode) {
  std::wstring name = mode ? UpperCase(mode) : L"";
  if (name.size() == 2 && name[0] == L'_') name.erase(0, 1);
  return name;
}

// A program that asks what is at a place selects nothing for the user: "Previous" stays.
bool IsHitTest(const std::wstring& mode, const void* first) {
  return mode == L"F" || (mode.empty() && first);
}

// Collects the objects of one call of acedSSGet. RTERROR for an unknown mode or missing points.
int Select(Document& document, const std::wstring& mode, const void* first, const void* second,
           const resbuf* filter, std::vector<AcDbObjectId>& ids) {
  const auto* a = static_cast<const double*>(first);
  const auto* b = static_cast<const double*>(second);
  AcDbDatabase& database = *document.database();
  const auto given = mode.empty() && !a ? TheHost().engine.TakeGivenObjects() : std::nullopt;
  if (given) {
    AddAll(ids, EntitiesWith(*given), filter);
    return AskForObjects(document, filter, ids);
  }
  if (mode.empty() && a) {
    if (AcDbEntity* hit = EntityNear(document, PointOf(a), filter)) ids = {hit->objectId()};
  } else if (mode.empty() && document.pickFirst.empty()) {
    return AskForObjects(document, filter, ids);
  } else if ((mode == L"C" || mode == L"W") && a && b) {
    AddAll(ids, EntitiesIn(database, PointOf(a), PointOf(b), mode == L"C"), filter);
  } else if (mode == L"F") {
    const std::vector<AcGePoint3d> fence = PointsOf(static_cast<const resbuf*>(first));
    if (fence.size() < 2) return RTERROR;
    AddAll(ids, EntitiesOnFence(database, fence), filter);
  } else if (const auto source = SourceOf(document, mode)) {
    for (AcDbObjectId id : *source) {
      const AcDbEntity* e = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
      if (e && PassesFilter(*e, filter)) ids.push_back(id);
    }
  } else {
    return RTERROR;
  }
  return RTNORM;
}

}  // namespace

int acedSSGet(const ACHAR* mode, const void* first, const void* second, const resbuf* filter,
              ads_name set) {
  Document* document = TheHost().documents.FindDocument(TheHost().documents.curDocument());
  if (!document || !set) return RTERROR;
  const std::wstring how = ModeName(mode);
  std::vector<AcDbObjectId> ids;
  const int status = Select(*document, how, first, second, filter, ids);
  if (status != RTNORM) return status;
  if (ids.empty()) return RTERROR;
  if (!IsHitTest(how, first)) document->previousSelection = ids;
  CreateSet(std::move(ids), set);
  return RTNORM;
}

int acedSSFree(const ads_name set) { return FreeSet(set) ? RTNORM : RTERROR; }

int acedSSLength(const ads_name set, int* length) {
  const auto* ids = FindSet(set);
  if (!ids || !length) return RTERROR;
  *length = static_cast<int>(ids->size());
  return RTNORM;
}

int acedSSName(const ads_name set, int index, ads_name entity) {
  const auto* ids = FindSet(set);
  if (!ids || index < 0 || index >= static_cast<int>(ids->size())) return RTERROR;
  return acdbGetAdsName(entity, (*ids)[index]) == Acad::eOk ? RTNORM : RTERROR;
}

int acedSSAdd(const ads_name entity, const ads_name set, ads_name result) {
  AcDbObjectId id;
  if (entity && acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  if (!set || !FindSet(set)) {
    CreateSet(id.isNull() ? std::vector<AcDbObjectId>() : std::vector<AcDbObjectId>{id}, result);
    return RTNORM;
  }
  auto* ids = FindSet(set);
  if (!id.isNull() && std::find(ids->begin(), ids->end(), id) == ids->end()) ids->push_back(id);
  if (result) {
    result[0] = set[0];
    result[1] = set[1];
  }
  return RTNORM;
}

int acedSSDel(const ads_name entity, const ads_name set) {
  AcDbObjectId id;
  auto* ids = FindSet(set);
  if (!ids || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return std::erase(*ids, id) ? RTNORM : RTERROR;
}

int acedSSMemb(const ads_name entity, const ads_name set) {
  AcDbObjectId id;
  const auto* ids = FindSet(set);
  if (!ids || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return std::find(ids->begin(), ids->end(), id) != ids->end() ? RTNORM : RTERROR;
}

int acedSSGetFirst(resbuf** grips, resbuf** pickFirst) {
  Document* document = TheHost().documents.FindDocument(TheHost().documents.curDocument());
  if (grips) *grips = nullptr;
  if (pickFirst) *pickFirst = nullptr;
  if (!document) return RTERROR;
  if (document->pickFirst.empty()) return RTNORM;
  for (resbuf** out : {grips, pickFirst}) {
    if (!out) continue;
    *out = acutNewRb(RTPICKS);
    CreateSet(document->pickFirst, (*out)->resval.rlname);
  }
  return RTNORM;
}

int acedSSSetFirst(const ads_name pickFirst, const ads_name) {
  Document* document = TheHost().documents.FindDocument(TheHost().documents.curDocument());
  if (!document) return RTERROR;
  const auto* ids = pickFirst ? FindSet(pickFirst) : nullptr;
  SetPickFirst(*document, ids ? *ids : std::vector<AcDbObjectId>());
  return RTNORM;
}
