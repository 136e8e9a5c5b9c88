#include "popup/object_match.h"

#include <algorithm>

#include "afx.h"

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/menu_system.h"

namespace {

constexpr int kTypeCode = 0;
constexpr int kLayerCode = 8;
constexpr wchar_t kLayerKeyMark = L'@';

// From length and last characters: names in one drawing differ mostly at the end.
size_t CheapHash(std::wstring_view text) {
  size_t hash = text.size();
  const std::wstring_view end = text.substr(text.size() - std::min<size_t>(text.size(), 4));
  for (const wchar_t unit : end) hash = hash * 11 + static_cast<size_t>(unit);
  return hash;
}

std::wstring_view TextOf(const TGroups& group) {
  return group.resval.rstring ? std::wstring_view(group.resval.rstring) : std::wstring_view();
}

MatchResult Fail(MatchResult::Why why, size_t object, const TGroups* group = nullptr) {
  return {why, object, group};
}

}  // namespace

uint32_t SeenNames::IndexOf(std::wstring_view text, size_t object) {
  uint32_t& recent = m_recent[CheapHash(text) % kRecent];
  if (recent == kNone || m_names[recent].text != text) recent = FindOrAdd(text, object);
  return recent;
}

uint32_t SeenNames::FindOrAdd(std::wstring_view text, size_t object) {
  if (2 * m_names.size() >= m_slots.size()) Grow();
  const size_t hash = std::hash<std::wstring_view>()(text);
  size_t slot = hash & (m_slots.size() - 1);
  for (; m_slots[slot] != kNone; slot = (slot + 1) & (m_slots.size() - 1))
    if (const Name& name = m_names[m_slots[slot]]; name.hash == hash && name.text == text)
      return m_slots[slot];
  m_slots[slot] = static_cast<uint32_t>(m_names.size());
  m_names.push_back({std::wstring(text), MatchCase(text), object, hash});
  return m_slots[slot];
}

void SeenNames::Grow() {
  m_slots.assign(std::max<size_t>(16, 2 * m_slots.size()), kNone);
  for (size_t i = 0; i < m_names.size(); ++i) {
    size_t slot = m_names[i].hash & (m_slots.size() - 1);
    while (m_slots[slot] != kNone) slot = (slot + 1) & (m_slots.size() - 1);
    m_slots[slot] = static_cast<uint32_t>(i);
  }
}

void SelectionDescription::Add(std::wstring_view type, std::wstring_view layer, ObjectState state) {
  const size_t object = m_objects.size();
  if (state != ObjectState::kEntity && object < m_misfit.object) m_misfit = {object, state};
  m_objects.push_back({m_types.IndexOf(type, object), m_layers.IndexOf(layer, object)});
}

// Matches one selection. Each pattern is matched at most once, when a mask first needs it.
class BlockMatcher::Run {
 public:
  Run(const BlockMatcher& matcher, const SelectionDescription& selection,
      const LayerResolver& layers)
      : m_matcher(matcher),
        m_selection(selection),
        m_layers(layers),
        m_misfits(matcher.m_patterns.size(), kUnknown) {}

  const SelectionDescription& Selection() const { return m_selection; }

  // The first object that does not fit the pattern; Count() when all do.
  size_t Misfit(size_t pattern) {
    if (m_misfits[pattern] == kUnknown) m_misfits[pattern] = Try(m_matcher.m_patterns[pattern]);
    return m_misfits[pattern];
  }

 private:
  static constexpr size_t kUnknown = ~size_t{0};

  // Deliberate: the layer found for a key is itself used as a pattern. A layer named "A#1" is
  // therefore not matched by its own name, and "A.1" matches other layers too.
  size_t Try(const Pattern& pattern) const {
    std::wstring layer;
    if (pattern.isLayerKey && m_layers &&
        m_layers(std::wstring_view(pattern.text).substr(1), layer))
      return FirstMisfit(WildCard(layer), m_selection.Layers());
    return FirstMisfit(pattern.wildCard,
                       pattern.code == kTypeCode ? m_selection.Types() : m_selection.Layers());
  }
  size_t FirstMisfit(const WildCard& wildCard, const SeenNames& names) const {
    for (const SeenNames::Name& name : names.All())
      if (!wildCard.Matches(name.upper)) return name.firstObject;
    return m_selection.Count();
  }

  const BlockMatcher& m_matcher;
  const SelectionDescription& m_selection;
  const LayerResolver& m_layers;
  std::vector<size_t> m_misfits;
};

BlockMatcher::BlockMatcher(const TMenuSystem& system) : m_system(system) {
  for (int i = 0; i < system.Length(); ++i) {
    Mask& mask = m_masks.emplace_back();
    for (const TGroups* at = system.At(i)->m_objectMask.Head(); at; at = at->Next())
      mask.push_back(Ready(*at));
  }
}

BlockMatcher::Group BlockMatcher::Ready(const TGroups& group) {
  const int code = static_cast<unsigned short>(group.restype);
  const short kind = QvxExport::TypeOfCode(code);
  if (code == kTypeCode || code == kLayerCode)
    return {&group, code, kind, PatternOf(code, TextOf(group)), WildCard(L"")};
  return {&group, code, kind, 0, WildCard(kind == RTSTR ? TextOf(group) : L"")};
}

size_t BlockMatcher::PatternOf(int code, std::wstring_view text) {
  const auto [at, isNew] =
      m_patternIndex.try_emplace({code, std::wstring(text)}, m_patterns.size());
  if (isNew)
    m_patterns.push_back({code, std::wstring(text), WildCard(text),
                          code == kLayerCode && text.starts_with(kLayerKeyMark)});
  return at->second;
}

int BlockMatcher::Find(const SelectionDescription& selection, const LayerResolver& layers) const {
  Run run(*this, selection, layers);
  for (int i = 0; i < m_system.Length(); ++i)
    if (Match(i, run).Matches()) return i;
  return -1;
}

MatchResult BlockMatcher::Match(int block, const SelectionDescription& selection,
                                const LayerResolver& layers) const {
  Run run(*this, selection, layers);
  return Match(block, run);
}

MatchResult BlockMatcher::Match(int block, Run& run) const {
  const SelectionDescription& selection = run.Selection();
  if (selection.Count() == 0) return MatchByName(*m_system.At(block), selection.InPaperSpace());
  const Mask& mask = m_masks[static_cast<size_t>(block)];
  if (mask.empty()) return Fail(MatchResult::kNoMask, 0);
  if (const size_t misfit = selection.FirstMisfit(); misfit < selection.Count())
    return Fail(selection.StateOfMisfit() == ObjectState::kViewport ? MatchResult::kViewport
                                                                    : MatchResult::kUnreadable,
                misfit);
  for (const Group& group : mask)
    if (const size_t misfit = FirstMisfit(group, run); misfit < selection.Count())
      return Fail(MatchResult::kGroup, misfit, group.source);
  return {};
}

// Masks are ignored: a block of that name is found even if it has one.
MatchResult BlockMatcher::MatchByName(const TMenuBar& bar, bool inPaperSpace) {
  if (bar.m_strName.EqualsNoCase(inPaperSpace ? L"LAYOUT" : L"COMMON")) return {};
  return Fail(MatchResult::kOtherName, 0);
}

size_t BlockMatcher::FirstMisfit(const Group& group, Run& run) {
  if (group.code == kTypeCode || group.code == kLayerCode) return run.Misfit(group.pattern);
  const SelectionDescription& selection = run.Selection();
  size_t object = 0;
  while (object < selection.Count() && Fits(group, selection.Group(object, group.code))) ++object;
  return object;
}

bool BlockMatcher::Fits(const Group& group, const GroupValue& value) {
  switch (group.kind) {
    case RTSTR:
      if (const auto* text = std::get_if<std::wstring>(&value))
        return group.others.Matches(MatchCase(*text));
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
