#include "popup/object_match.h"

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/menu_system.h"

namespace {

constexpr int kTypeCode = 0;
constexpr int kLayerCode = 8;
constexpr wchar_t kLayerKeyMark = L'@';

size_t Mix(size_t hash, size_t value) { return (hash ^ value) * 0x9E3779B97F4A7C15u; }

// Lengths and ends: enough to tell what is selected side by side.
size_t CheapHash(std::wstring_view type, std::wstring_view layer) {
  size_t hash = type.size() * 31 + layer.size();
  if (!type.empty()) hash = Mix(hash, static_cast<size_t>(type.back()));
  if (!layer.empty()) hash = Mix(hash, static_cast<size_t>(layer.back()));
  return hash >> 20;
}

size_t GoodHash(std::wstring_view type, std::wstring_view layer) {
  const std::hash<std::wstring_view> hash;
  return Mix(hash(type), hash(layer));
}

std::wstring_view TextOf(const TGroups& group) {
  return group.resval.rstring ? std::wstring_view(group.resval.rstring) : std::wstring_view();
}

MatchResult Fail(MatchResult::Why why, size_t object, const TGroups* group = nullptr) {
  return {why, object, group};
}

}  // namespace

bool SelectionDescription::Is(uint32_t kind, std::wstring_view type, std::wstring_view layer,
                              ObjectState state) const {
  const Kind& known = m_kinds[kind];
  return known.state == state && known.layer == layer && known.type == type;
}

void SelectionDescription::Add(std::wstring_view type, std::wstring_view layer, ObjectState state) {
  uint32_t& recent = m_recent[CheapHash(type, layer) % kRecent];
  if (recent == kNone || !Is(recent, type, layer, state)) recent = FindOrAdd(type, layer, state);
  m_kindOf.push_back(recent);
}

uint32_t SelectionDescription::FindOrAdd(std::wstring_view type, std::wstring_view layer,
                                         ObjectState state) {
  const size_t hash = GoodHash(type, layer);
  const auto [begin, end] = m_index.equal_range(hash);
  for (auto at = begin; at != end; ++at)
    if (Is(at->second, type, layer, state)) return at->second;
  const auto made = static_cast<uint32_t>(m_kinds.size());
  m_kinds.push_back({std::wstring(type), std::wstring(layer), MatchCase(type), MatchCase(layer),
                     state, m_kindOf.size()});
  m_index.emplace(hash, made);
  return made;
}

BlockMatcher::BlockMatcher(const TMenuSystem& system) : m_system(system) {
  for (int i = 0; i < system.Length(); ++i) {
    Mask& mask = m_masks.emplace_back();
    for (const TGroups* at = system.At(i)->m_objectMask.Head(); at; at = at->Next())
      mask.push_back(Ready(*at));
  }
}

BlockMatcher::Group BlockMatcher::Ready(const TGroups& group) {
  const int code = static_cast<unsigned short>(group.restype);
  Group ready{&group, code, QvxExport::TypeOfCode(code)};
  if (ready.kind != RTSTR) return ready;
  ready.pattern = WildCard(TextOf(group));
  ready.isLayerKey = code == kLayerCode && TextOf(group).starts_with(kLayerKeyMark);
  return ready;
}

int BlockMatcher::Find(const SelectionDescription& selection, const LayerResolver& layers) const {
  for (int i = 0; i < m_system.Length(); ++i)
    if (Match(i, selection, layers).Matches()) return i;
  return -1;
}

MatchResult BlockMatcher::Match(int block, const SelectionDescription& selection,
                                const LayerResolver& layers) const {
  if (selection.Count() == 0) return MatchByName(*m_system.At(block), selection.InPaperSpace());
  const Mask& mask = m_masks[static_cast<size_t>(block)];
  if (mask.empty()) return Fail(MatchResult::kNoMask, 0);
  for (const SelectionDescription::Kind& kind : selection.Kinds()) {
    if (kind.state == ObjectState::kUnreadable)
      return Fail(MatchResult::kUnreadable, kind.firstObject);
    if (kind.state == ObjectState::kViewport) return Fail(MatchResult::kViewport, kind.firstObject);
  }
  for (const Group& group : mask)
    if (const MatchResult result = MatchGroup(group, selection, layers); !result.Matches())
      return result;
  return {};
}

// Masks don't count here: a block of that name is found also if it has one.
MatchResult BlockMatcher::MatchByName(const TMenuBar& bar, bool inPaperSpace) {
  if (bar.m_strName.EqualsNoCase(inPaperSpace ? L"LAYOUT" : L"COMMON")) return {};
  return Fail(MatchResult::kOtherName, 0);
}

// The layer that a key stands for is a pattern like any value of a mask: a layer named "A#1" is
// missed by its own name and "A.1" finds more than itself.
MatchResult BlockMatcher::MatchGroup(const Group& group, const SelectionDescription& selection,
                                     const LayerResolver& layers) {
  std::wstring layer;
  if (group.isLayerKey && layers && layers(TextOf(*group.source).substr(1), layer)) {
    const WildCard pattern(layer);
    for (const SelectionDescription::Kind& kind : selection.Kinds())
      if (!pattern.Matches(kind.upperLayer))
        return Fail(MatchResult::kGroup, kind.firstObject, group.source);
    return {};
  }
  if (group.code == kTypeCode || group.code == kLayerCode) {
    for (const SelectionDescription::Kind& kind : selection.Kinds())
      if (!group.pattern.Matches(group.code == kTypeCode ? kind.upperType : kind.upperLayer))
        return Fail(MatchResult::kGroup, kind.firstObject, group.source);
    return {};
  }
  for (size_t object = 0; object < selection.Count(); ++object)
    if (!Fits(group, selection.Group(object, group.code)))
      return Fail(MatchResult::kGroup, object, group.source);
  return {};
}

bool BlockMatcher::Fits(const Group& group, const GroupValue& value) {
  switch (group.kind) {
    case RTSTR:
      if (const auto* text = std::get_if<std::wstring>(&value))
        return group.pattern.Matches(MatchCase(*text));
      return false;
    case RTREAL:
      if (const auto* real = std::get_if<double>(&value))
        return *real == group.source->resval.rreal;
      return false;
    case RTSHORT:
    case RTLONG:
      if (const auto* number = std::get_if<long long>(&value))
        return *number ==
               (group.kind == RTSHORT ? group.source->resval.rint : group.source->resval.rlong);
      return false;
    default:
      return false;
  }
}
