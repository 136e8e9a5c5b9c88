// Selection; see the header.
#include "devhost/core/selection/selection.h"

#include <algorithm>
#include <cwctype>
#include <map>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/dxf_groups.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

bool InClass(const std::wstring& cls, wchar_t c) {
  const bool negated = !cls.empty() && cls[0] == L'~';
  bool in = false;
  for (std::size_t i = negated ? 1 : 0; i < cls.size(); ++i) {
    if (i + 2 < cls.size() && cls[i + 1] == L'-') {
      in |= cls[i] <= c && c <= cls[i + 2];
      i += 2;
    } else {
      in |= cls[i] == c;
    }
  }
  return in != negated;
}

// One pattern against the whole text. Only `*` needs to go back, and only to the latest one.
bool MatchOne(const std::wstring& text, const std::wstring& p) {
  std::size_t t = 0, i = 0, starAt = std::wstring::npos, starText = 0;
  auto single = [&](std::size_t& next) {
    const wchar_t c = text[t];
    next = i + 1;
    switch (p[i]) {
      case L'?':
        return true;
      case L'#':
        return std::iswdigit(static_cast<wint_t>(c)) != 0;
      case L'@':
        return std::iswalpha(static_cast<wint_t>(c)) != 0;
      case L'.':
        return std::iswalnum(static_cast<wint_t>(c)) == 0;
      case L'`':
        if (i + 1 < p.size()) {
          next = i + 2;
          return p[i + 1] == c;
        }
        return c == L'`';
      case L'[': {
        const std::size_t close = p.find(L']', i + 1);
        if (close == std::wstring::npos) return c == L'[';
        next = close + 1;
        return InClass(p.substr(i + 1, close - i - 1), c);
      }
      default:
        return p[i] == c;
    }
  };
  while (t < text.size()) {
    std::size_t next = 0;
    if (i < p.size() && p[i] == L'*') {
      starAt = i++;
      starText = t;
    } else if (i < p.size() && single(next)) {
      i = next;
      ++t;
    } else if (starAt != std::wstring::npos) {
      i = starAt + 1;
      t = ++starText;
    } else {
      return false;
    }
  }
  while (i < p.size() && p[i] == L'*') ++i;
  return i == p.size();
}

std::wstring TextOf(const AcDbEntity& entity) {
  if (const auto* text = AcDbText::cast(&entity)) return text->textStringConst();
  if (const auto* text = AcDbMText::cast(&entity)) return text->contents();
  return {};
}

std::wstring BlockNameOf(const AcDbEntity& entity) {
  const auto* reference = AcDbBlockReference::cast(&entity);
  const auto* record =
      reference ? AcDbBlockTableRecord::cast(reference->blockTableRecord().object()) : nullptr;
  return record ? record->getName() : L"";
}

bool InPaper(const AcDbEntity& entity) {
  const auto* space = AcDbBlockTableRecord::cast(entity.ownerId().object());
  return space && SameName(space->getName(), ACDB_PAPER_SPACE);
}

bool PassesOne(const AcDbEntity& entity, const resbuf& group) {
  const std::wstring wanted =
      KindOfGroup(group.restype) == GroupKind::String && group.resval.rstring ? group.resval.rstring
                                                                              : L"";
  switch (group.restype) {
    case 0:
      return WildMatch(DxfNameOf(entity), wanted);
    case 1:
      return WildMatch(TextOf(entity), wanted);
    case 2:
      return WildMatch(BlockNameOf(entity), wanted);
    case 6:
      return WildMatch(entity.linetype(), wanted);
    case 8:
      return WildMatch(entity.layer(), wanted);
    case 62:
      return entity.colorIndex() == group.resval.rint;
    case 67:
      return InPaper(entity) == (group.resval.rint != 0);
    case 410:
      return WildMatch(InPaper(entity) ? L"Layout1" : L"Model", wanted);
    default:
      return false;
  }
}

enum class Join { And, Or, Not };

bool PassesGroup(const AcDbEntity& entity, const resbuf*& at, Join join, int depth) {
  bool all = true, any = false;
  for (; at; at = at->rbnext) {
    bool passes = false;
    if (at->restype == -4 && at->resval.rstring) {
      const std::wstring op = UpperCase(at->resval.rstring);
      if (op.size() > 1 && op.back() == L'>') break;
      if (depth > 30 || op.empty() || op[0] != L'<') continue;
      at = at->rbnext;
      passes = PassesGroup(entity, at,
                           op == L"<OR"    ? Join::Or
                           : op == L"<NOT" ? Join::Not
                                           : Join::And,
                           depth + 1);
    } else {
      passes = PassesOne(entity, *at);
    }
    all &= passes;
    any |= passes;
    if (!at) break;
  }
  return join == Join::And ? all : join == Join::Or ? any : !all;
}

std::map<long long, std::vector<AcDbObjectId>>& AllSets() {
  static std::map<long long, std::vector<AcDbObjectId>> sets;
  return sets;
}

}  // namespace

bool WildMatch(const std::wstring& text, const std::wstring& patterns) {
  const std::wstring upper = UpperCase(text);
  std::size_t at = 0;
  for (;;) {
    std::size_t end = at;
    bool inClass = false;
    while (end < patterns.size() && (inClass || patterns[end] != L',')) {
      if (patterns[end] == L'`' && end + 1 < patterns.size())
        ++end;
      else if (patterns[end] == L'[')
        inClass = patterns.find(L']', end) != std::wstring::npos;
      else if (patterns[end] == L']')
        inClass = false;
      ++end;
    }
    std::wstring one = UpperCase(patterns.substr(at, end - at));
    const bool negated = !one.empty() && one[0] == L'~';
    if (negated) one.erase(0, 1);
    if (MatchOne(upper, one) != negated) return true;
    if (end >= patterns.size()) return false;
    at = end + 1;
  }
}

bool PassesFilter(const AcDbEntity& entity, const resbuf* filter) {
  return PassesGroup(entity, filter, Join::And, 0);
}

const ACHAR* DxfNameOf(const AcDbEntity& entity) {
  if (const auto* proxy = AcDbProxyEntity::cast(&entity)) return proxy->originalDxfName();
  const ACHAR* name = entity.isA()->dxfName();
  return name ? name : L"";
}

void SetPickFirst(Document& document, std::vector<AcDbObjectId> ids) {
  document.pickFirst = std::move(ids);
  TheHost().Ui().SelectionChanged(document);
}

std::vector<AcDbObjectId>* SetOf(const ads_name name) {
  const auto at = name ? AllSets().find(name[0]) : AllSets().end();
  return at == AllSets().end() ? nullptr : &at->second;
}

void NewSet(std::vector<AcDbObjectId> ids, ads_name name) {
  static long long next = 0;
  name[0] = ++next;
  name[1] = 0;
  AllSets()[next] = std::move(ids);
}

bool ForgetSet(const ads_name name) { return name && AllSets().erase(name[0]) > 0; }

}  // namespace devhost

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

void AddAll(std::vector<AcDbObjectId>& set, const std::vector<AcDbEntity*>& found,
            const resbuf* filter) {
  for (AcDbEntity* e : found)
    if (PassesFilter(*e, filter) && std::find(set.begin(), set.end(), e->objectId()) == set.end())
      set.push_back(e->objectId());
}

constexpr double kPickReach = 6;  // pixels

// Asks for objects until Enter: a click takes one, "ALL" everything, "P" the previous ones, "L" the
// latest, and a click beside all of them begins a box.
int AskForObjects(Document& document, const resbuf* filter, std::vector<AcDbObjectId>& set) {
  for (;;) {
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
      std::vector<AcDbEntity*> found;
      for (AcDbObjectId id : source)
        if (AcDbEntity* e = AcDbEntity::cast(id.object())) found.push_back(e);
      AddAll(set, found, filter);
    } else if (AcDbEntity* hit = EntityAt(*document.database(), {at[0], at[1], 0},
                                          kPickReach / document.view.PixelsPerUnit())) {
      AddAll(set, {hit}, filter);
    } else {
      ads_point other{};
      const int second = acedGetCorner(at, L"\n指定对角点: ", other);
      if (second == RTCAN) return RTCAN;
      if (second == RTNORM)
        AddAll(set,
               EntitiesIn(*document.database(), {at[0], at[1], 0}, {other[0], other[1], 0},
                          other[0] < at[0]),
               filter);
    }
    TheHost().Print(L"找到 " + std::to_wstring(set.size()) + L" 个\n");
  }
}

}  // namespace

int acedSSGet(const ACHAR* mode, const void* first, const void* second, const resbuf* filter,
              ads_name set) {
  Document* document = TheHost().documents.Known(TheHost().documents.curDocument());
  if (!document || !set) return RTERROR;
  const std::wstring how = mode ? UpperCase(mode) : L"";
  std::vector<AcDbObjectId> ids, source;
  if (how.empty() && first) {
    const double* at = static_cast<const double*>(first);
    if (AcDbEntity* hit = EntityAt(*document->database(), {at[0], at[1], 0},
                                   kPickReach / document->view.PixelsPerUnit()))
      AddAll(ids, {hit}, filter);
  } else if (how.empty()) {
    source = document->pickFirst;
    if (source.empty()) {
      const int status = AskForObjects(*document, filter, ids);
      if (status != RTNORM) return status;
    }
  } else if (how == L"I" || how == L"_I") {
    source = document->pickFirst;
  } else if (how == L"P" || how == L"_P") {
    source = document->previousSelection;
  } else if (how == L"L" || how == L"_L") {
    source = AllOf(*document);
    if (!source.empty()) source = {source.back()};
  } else if (how == L"X" || how == L"_X" || how == L"A" || how == L"_A") {
    source = AllOf(*document);
  } else if ((how == L"C" || how == L"_C" || how == L"W" || how == L"_W") && first && second) {
    const double* a = static_cast<const double*>(first);
    const double* b = static_cast<const double*>(second);
    AddAll(ids,
           EntitiesIn(*document->database(), {a[0], a[1], 0}, {b[0], b[1], 0}, how.back() == L'C'),
           filter);
  } else {
    return RTERROR;
  }
  for (AcDbObjectId id : source) {
    const AcDbEntity* e = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
    if (e && PassesFilter(*e, filter)) ids.push_back(id);
  }
  if (ids.empty()) return RTERROR;
  document->previousSelection = ids;
  NewSet(std::move(ids), set);
  return RTNORM;
}

int acutWcMatch(const ACHAR* text, const ACHAR* patterns) {
  return text && patterns && WildMatch(text, patterns) ? RTNORM : RTERROR;
}

int acedSSFree(const ads_name set) { return ForgetSet(set) ? RTNORM : RTERROR; }

int acedSSLength(const ads_name set, int* length) {
  const auto* ids = SetOf(set);
  if (!ids || !length) return RTERROR;
  *length = static_cast<int>(ids->size());
  return RTNORM;
}

int acedSSName(const ads_name set, int index, ads_name entity) {
  const auto* ids = SetOf(set);
  if (!ids || index < 0 || index >= static_cast<int>(ids->size())) return RTERROR;
  return acdbGetAdsName(entity, (*ids)[index]) == Acad::eOk ? RTNORM : RTERROR;
}

int acedSSAdd(const ads_name entity, const ads_name set, ads_name result) {
  AcDbObjectId id;
  if (entity && acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  if (!set || !SetOf(set)) {
    NewSet(id.isNull() ? std::vector<AcDbObjectId>() : std::vector<AcDbObjectId>{id}, result);
    return RTNORM;
  }
  auto* ids = SetOf(set);
  if (!id.isNull() && std::find(ids->begin(), ids->end(), id) == ids->end()) ids->push_back(id);
  if (result) {
    result[0] = set[0];
    result[1] = set[1];
  }
  return RTNORM;
}

int acedSSDel(const ads_name entity, const ads_name set) {
  AcDbObjectId id;
  auto* ids = SetOf(set);
  if (!ids || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return std::erase(*ids, id) ? RTNORM : RTERROR;
}

int acedSSMemb(const ads_name entity, const ads_name set) {
  AcDbObjectId id;
  const auto* ids = SetOf(set);
  if (!ids || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return std::find(ids->begin(), ids->end(), id) != ids->end() ? RTNORM : RTERROR;
}

int acedSSGetFirst(resbuf** grips, resbuf** pickFirst) {
  Document* document = TheHost().documents.Known(TheHost().documents.curDocument());
  if (grips) *grips = nullptr;
  if (pickFirst) *pickFirst = nullptr;
  if (!document || document->pickFirst.empty()) return RTERROR;
  for (resbuf** out : {grips, pickFirst}) {
    if (!out) continue;
    *out = acutNewRb(RTPICKS);
    NewSet(document->pickFirst, (*out)->resval.rlname);
  }
  return RTNORM;
}

int acedSSSetFirst(const ads_name pickFirst, const ads_name) {
  Document* document = TheHost().documents.Known(TheHost().documents.curDocument());
  if (!document) return RTERROR;
  const auto* ids = pickFirst ? SetOf(pickFirst) : nullptr;
  SetPickFirst(*document, ids ? *ids : std::vector<AcDbObjectId>());
  return RTNORM;
}
