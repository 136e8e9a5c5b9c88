// Joining groups; see the header. A point is one item here, as readers need its groups together.
#include "devhost/core/dxf/kept_groups.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>

#include "devhost/core/drawing/dxf_groups.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {
namespace {

constexpr short kMark = 100;
constexpr short kExtendedData = 1001;
constexpr short kSubEntitiesFollow = 66;  // written by the class: depends on other objects

struct Item {
  short code;
  std::string_view lines;
  std::string_view values[3];
};
using Items = std::vector<Item>;

Items ItemsOf(std::string_view text) {
  Items items;
  const std::vector<TextGroup> groups = SplitGroups(text);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    Item item{groups[i].code, groups[i].lines, {groups[i].value, {}, {}}};
    if (KindOfGroup(item.code) == GroupKind::Point)
      for (int axis = 1; axis < 3 && i + 1 < groups.size(); ++axis) {
        const TextGroup& next = groups[i + 1];
        if (next.code != item.code + axis * 10) break;
        item.values[axis] = next.value;
        item.lines = std::string_view(item.lines.data(), item.lines.size() + next.lines.size());
        ++i;
      }
    items.push_back(item);
  }
  return items;
}

// The items before and after the start of a foreign class or of an embedded object.
std::pair<Items, Items> SplitForeign(Items items) {
  const auto at = std::find_if(items.begin(), items.end(), [](const Item& item) {
    return item.code == kExtendedData || BeginsForeignGroups(item.code, item.values[0]);
  });
  Items foreign(at, items.end());
  items.erase(at, items.end());
  return {std::move(items), std::move(foreign)};
}

bool SameValue(short code, std::string_view a, std::string_view b) {
  if (a == b) return true;
  switch (KindOfGroup(code)) {
    case GroupKind::Point:
    case GroupKind::Real:
      return DxfReal(a).value_or(0) == DxfReal(b).value_or(0);
    case GroupKind::Short:
    case GroupKind::Long:
      return DxfInteger(a) && DxfInteger(a) == DxfInteger(b);
    default:
      return false;
  }
}

bool SameItem(const Item& a, const Item& b) {
  for (int axis = 0; axis < 3; ++axis)
    if (!SameValue(a.code, a.values[axis], b.values[axis])) return false;
  return true;
}

// The items of each code, in order.
class ByCode {
 public:
  explicit ByCode(const Items& items) {
    for (const Item& item : items)
      if (item.code != kMark) m_items[item.code].push_back(&item);
  }
  bool Has(short code) const { return m_items.contains(code); }
  std::size_t Count(short code) const { return Has(code) ? m_items.at(code).size() : 0; }
  const Item* At(short code, std::size_t i) const {
    return i < Count(code) ? m_items.at(code)[i] : nullptr;
  }
  bool HasCountsOf(const ByCode& other) const {
    return std::all_of(m_items.begin(), m_items.end(), [&](const auto& entry) {
      return entry.second.size() == other.Count(entry.first);
    });
  }

 private:
  std::map<short, std::vector<const Item*>> m_items;
};

bool IsMark(const Item& item, std::string_view name) {
  return item.code == kMark && TrimBlanks(item.values[0]) == name;
}

class Join {
 public:
  Join(const Items& kept, const Items& before, const Items& now)
      : m_kept(kept), m_now(now), m_keptBy(kept), m_beforeBy(before), m_nowBy(now) {}

  // With the same number of groups of each code, the groups stay where they were.
  bool KeepsOrder() const {
    return m_beforeBy.HasCountsOf(m_nowBy) && m_nowBy.HasCountsOf(m_beforeBy);
  }
  std::string InOldOrder() const;
  std::string InNewOrder() const;

 private:
  bool IsKnown(short code) const { return m_beforeBy.Has(code) || m_nowBy.Has(code); }
  bool IsChanged(short code, std::size_t i) const {
    const Item *before = m_beforeBy.At(code, i), *now = m_nowBy.At(code, i);
    return !before || !now || !SameItem(*before, *now);
  }
  // The text of the i-th group of a code that the class writes now.
  std::string_view Current(const Item& now, std::size_t i) const {
    const Item* kept = m_keptBy.At(now.code, i);
    return kept && !IsChanged(now.code, i) ? kept->lines : now.lines;
  }
  void AppendNew(std::string& out, std::string_view section) const;
  void AppendUnknown(std::string& out, std::string_view section) const;

  const Items &m_kept, &m_now;
  ByCode m_keptBy, m_beforeBy, m_nowBy;
};

// Calls `each` with every item of the section, without its mark. The section without a name
// precedes all marks.
void ForSection(const Items& items, std::string_view section,
                const std::function<void(const Item&)>& each) {
  std::string_view at;
  for (const Item& item : items)
    if (item.code == kMark)
      at = TrimBlanks(item.values[0]);
    else if (at == section)
      each(item);
}

// Changed groups of a section that were not in the file.
void Join::AppendNew(std::string& out, std::string_view section) const {
  std::map<short, std::size_t> seen;
  std::string_view at;
  for (const Item& item : m_now) {
    if (item.code == kMark) {
      at = TrimBlanks(item.values[0]);
      continue;
    }
    const std::size_t i = seen[item.code]++;
    if (at == section && i >= m_keptBy.Count(item.code) && IsChanged(item.code, i))
      out += item.lines;
  }
}

std::string Join::InOldOrder() const {
  std::string out;
  std::map<short, std::size_t> seen;
  std::string_view section;
  for (const Item& item : m_kept) {
    if (item.code == kMark) {
      AppendNew(out, section);
      section = TrimBlanks(item.values[0]);
      out += item.lines;
      continue;
    }
    const std::size_t i = seen[item.code]++;
    const Item* now = m_nowBy.At(item.code, i);
    if (!IsKnown(item.code))
      out += item.lines;
    else if (now)
      out += Current(*now, i);
  }
  AppendNew(out, section);
  // Groups of classes whose mark the file does not have.
  for (const Item& mark : m_now) {
    const std::string_view name = TrimBlanks(mark.values[0]);
    const bool missing =
        mark.code == kMark && std::none_of(m_kept.begin(), m_kept.end(),
                                           [&](const Item& item) { return IsMark(item, name); });
    std::string groups;
    if (missing) AppendNew(groups, name);
    if (!groups.empty()) (out += mark.lines) += groups;
  }
  return out;
}

// Unknown groups that belong to one vertex of a list have lost their vertex and are dropped.
void Join::AppendUnknown(std::string& out, std::string_view section) const {
  const bool list = m_keptBy.Count(10) > 1;
  ForSection(m_kept, section, [&](const Item& item) {
    if (!IsKnown(item.code) && !(list && m_keptBy.Count(item.code) > 1)) out += item.lines;
  });
}

std::string Join::InNewOrder() const {
  std::string out;
  std::map<short, std::size_t> seen;
  std::string_view section;
  for (const Item& item : m_now) {
    if (item.code == kMark) {
      AppendUnknown(out, section);
      section = TrimBlanks(item.values[0]);
      out += item.lines;
    } else {
      const std::size_t i = seen[item.code]++;
      const bool aligned = m_keptBy.Count(item.code) == m_nowBy.Count(item.code) &&
                           m_beforeBy.Count(item.code) == m_nowBy.Count(item.code);
      out += aligned ? Current(item, i) : item.lines;
    }
  }
  AppendUnknown(out, section);
  std::set<std::string_view> done;  // a mark can be repeated
  for (const Item& mark : m_now)
    if (mark.code == kMark) done.insert(TrimBlanks(mark.values[0]));
  for (const Item& mark : m_kept) {
    const std::string_view name = TrimBlanks(mark.values[0]);
    if (mark.code != kMark || !done.insert(name).second) continue;
    out += mark.lines;
    AppendUnknown(out, name);
  }
  return out;
}

// Takes the group 66 out; it is written by `now` only.
std::string_view TakeSubEntities(Items& items) {
  std::string_view lines;
  std::erase_if(items, [&](const Item& item) {
    if (item.code == kSubEntitiesFollow) lines = item.lines;
    return item.code == kSubEntitiesFollow;
  });
  return lines;
}

std::string JoinItems(Items kept, Items before, Items now) {
  auto [own, foreign] = SplitForeign(std::move(kept));
  TakeSubEntities(own);
  TakeSubEntities(before);
  const std::string_view subEntities = TakeSubEntities(now);
  const Join join(own, before, now);
  std::string out = join.KeepsOrder() ? join.InOldOrder() : join.InNewOrder();
  if (!subEntities.empty()) {
    const std::vector<TextGroup> groups = SplitGroups(out);
    const bool mark = !groups.empty() && groups[0].code == kMark;
    out.insert(mark ? groups[0].lines.size() : 0, subEntities);
  }
  for (const Item& item : foreign) out += item.lines;
  return out;
}

}  // namespace

std::vector<TextGroup> SplitGroups(std::string_view text) {
  std::vector<TextGroup> groups;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t code = text.find('\n', at);
    const std::size_t value = code == text.npos ? text.npos : text.find('\n', code + 1);
    if (value == text.npos) break;
    const auto number = DxfInteger(text.substr(at, code - at));
    groups.push_back({static_cast<short>(number.value_or(0)),
                      text.substr(code + 1, value - code - 1), text.substr(at, value + 1 - at)});
    at = value + 1;
  }
  return groups;
}

bool BeginsForeignGroups(short code, std::string_view value) {
  return code == 101 || (code == kMark && TrimBlanks(value) == "AcDbXrecord");
}

ClassText SplitClassText(std::string_view text) {
  ClassText out;
  std::vector<std::size_t> starts;  // of the own groups, then of each part
  std::size_t at = 0, sharedEnd = text.size();
  bool inBraces = false;
  for (const TextGroup& group : SplitGroups(text)) {
    const bool mark = group.code == kMark && TrimBlanks(group.value) != "AcDbEntity";
    if ((mark && starts.empty()) || group.code == 0) {
      if (starts.empty()) sharedEnd = at;
      starts.push_back(at);
    }
    const bool brace = group.code == 102 && starts.empty();
    if (brace) inBraces = TrimBlanks(group.value).starts_with("{");
    if (starts.empty()) (inBraces || brace ? out.lists : out.shared) += group.lines;
    at += group.lines.size();
  }
  out.hash = std::hash<std::string_view>()(text.substr(sharedEnd));
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
    const std::string_view piece = text.substr(starts[i], end - starts[i]);
    if (i == 0)
      out.own = piece;
    else
      out.parts.push_back(piece);
  }
  return out;
}

namespace {

bool IsSequenceEnd(std::string_view written) { return written.starts_with("0\nSEQEND\n"); }

std::string_view AfterType(std::string_view written) {
  return written.substr(SplitGroups(written)[0].lines.size());
}

}  // namespace

bool IsReadByClass(const KeptPart& vertex) {
  for (const TextGroup& group : SplitGroups(vertex.groups))
    if (group.code == 70) {
      const long long flags = DxfInteger(group.value).value_or(0);
      return !(flags & 16) && !((flags & 128) && !(flags & 64));
    }
  return true;
}

std::optional<std::string_view> PartMatch::Next(const KeptPart& part) {
  if (part.type == "SEQEND") return SequenceEnd();
  if (!IsReadByClass(part) || m_at >= m_written.size() || IsSequenceEnd(m_written[m_at]))
    return std::nullopt;
  return AfterType(m_written[m_at++]);
}

std::string_view PartMatch::Model(const KeptPart& part) {
  const auto next = Next(part);
  return next ? *next : AfterType(m_written.front());
}

std::vector<std::string_view> PartMatch::Rest() const {
  std::vector<std::string_view> rest;
  for (std::size_t i = m_at; i < m_written.size(); ++i)
    if (!IsSequenceEnd(m_written[i])) rest.push_back(AfterType(m_written[i]));
  return rest;
}

std::string_view PartMatch::SequenceEnd() const {
  return !m_written.empty() && IsSequenceEnd(m_written.back()) ? AfterType(m_written.back())
                                                               : std::string_view();
}

std::string WithMarks(std::string_view kept, std::string_view now) {
  const Items items = ItemsOf(kept), written = ItemsOf(now);
  const auto isMark = [](const Item& item) { return item.code == kMark; };
  if (std::any_of(items.begin(), items.end(), isMark)) return std::string(kept);
  std::map<short, std::size_t> sectionOf;  // by code; from 1
  std::vector<std::string> sections(1);
  std::size_t firstOfClass = 0;
  for (const Item& item : written) {
    if (isMark(item)) {
      if (!firstOfClass && !IsMark(item, "AcDbEntity")) firstOfClass = sections.size();
      sections.emplace_back(item.lines);
    } else {
      sectionOf.emplace(item.code, sections.size() - 1);
    }
  }
  for (const Item& item : items) {
    if (item.code >= 1000) {  // extended data is last
      sections.back() += item.lines;
      continue;
    }
    // Groups of all entities are where the layer is, whatever the object writes of them.
    const bool shared = item.code == 6 || item.code == 60 || item.code == 62 || item.code == 67;
    const auto layer = sectionOf.find(8);
    const auto at = shared && layer != sectionOf.end() ? layer : sectionOf.find(item.code);
    sections[at == sectionOf.end() ? firstOfClass : at->second] += item.lines;
  }
  std::string out;
  for (const std::string& section : sections) out += section;
  return out;
}

std::string JoinGroups(std::string_view kept, std::string_view before, std::string_view now) {
  return JoinItems(ItemsOf(kept), ItemsOf(before), ItemsOf(now));
}

// Codes that the object does not write now are not its own, in both lists.
std::string JoinGroups(std::string_view kept, std::string_view now) {
  Items before = SplitForeign(ItemsOf(kept)).first;
  const Items written = ItemsOf(now);
  const ByCode codes(written);
  std::erase_if(before, [&](const Item& item) { return !codes.Has(item.code); });
  return JoinItems(ItemsOf(kept), std::move(before), written);
}

}  // namespace devhost
