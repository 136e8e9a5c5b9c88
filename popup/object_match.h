// Which block of the menus fits what is selected. A plain function over a description of the
// selection, which the module fills from the host and the command line tool from its arguments;
// nothing here opens an object or reads a host variable.
//
// A selection of thousands of objects has few pairs of type and layer, so the description keeps
// each pair once, and the masks, made ready once a menu, are held against the pairs. Objects are
// looked at one by one only for groups other than these two.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "popup/object_match_pattern.h"

class TMenuBar;
class TMenuSystem;
struct TGroups;

enum class ObjectState : unsigned char {
  kEntity,
  kViewport,    // an AcDbViewport, which fits no block
  kUnreadable,  // does not open as an entity
};

// What an object has for a group code; nothing when that is not known, which fits no mask.
using GroupValue = std::variant<std::monostate, long long, double, std::wstring>;

class SelectionDescription {
 public:
  struct Kind {
    std::wstring type, layer;            // as given
    std::wstring upperType, upperLayer;  // for matching
    ObjectState state;
    size_t firstObject;
  };
  // Asked for groups other than type (0) and layer (8), while a block is matched.
  using GroupReader = std::function<GroupValue(size_t object, int code)>;

  // `type` is the name that drawing files have for the class of the object.
  void Add(std::wstring_view type, std::wstring_view layer,
           ObjectState state = ObjectState::kEntity);
  void SetGroupReader(GroupReader reader) { m_reader = std::move(reader); }
  // Counts only while nothing is selected.
  void SetPaperSpace(bool inPaperSpace) { m_inPaperSpace = inPaperSpace; }

  size_t Count() const { return m_kindOf.size(); }
  bool InPaperSpace() const { return m_inPaperSpace; }
  const std::vector<Kind>& Kinds() const { return m_kinds; }
  const Kind& KindOf(size_t object) const { return m_kinds[m_kindOf[object]]; }
  GroupValue Group(size_t object, int code) const {
    return m_reader ? m_reader(object, code) : GroupValue();
  }

 private:
  static constexpr size_t kRecent = 64;
  static constexpr uint32_t kNone = ~uint32_t{0};
  bool Is(uint32_t kind, std::wstring_view type, std::wstring_view layer, ObjectState state) const;
  uint32_t FindOrAdd(std::wstring_view type, std::wstring_view layer, ObjectState state);

  std::vector<Kind> m_kinds;
  std::vector<uint32_t> m_kindOf;
  // The kind that was seen last under a cheap hash, and all of them under a good one.
  std::vector<uint32_t> m_recent = std::vector<uint32_t>(kRecent, kNone);
  std::unordered_multimap<size_t, uint32_t> m_index;
  GroupReader m_reader;
  bool m_inPaperSpace = false;
};

// The layer that a logical layer key stands for; false when there is none, and the mask's value is
// then taken as it is written.
using LayerResolver = std::function<bool(std::wstring_view key, std::wstring& layer)>;

struct MatchResult {
  enum Why {
    kMatches,
    kOtherName,   // nothing is selected, and the block is not the one for that
    kNoMask,      // something is selected, and the block is found by name only
    kUnreadable,  // `object` is no entity
    kViewport,    // `object` is a viewport
    kGroup,       // `object` does not fit `group`
  };
  Why why = kMatches;
  size_t object = 0;  // the first one that does not fit
  const TGroups* group = nullptr;
  bool Matches() const { return why == kMatches; }
};

// The masks of a system, made ready. The system stays as it is while the matcher lives.
class BlockMatcher {
 public:
  explicit BlockMatcher(const TMenuSystem& system);

  // The index of the first block that fits; -1 when none does.
  int Find(const SelectionDescription& selection, const LayerResolver& layers) const;
  MatchResult Match(int block, const SelectionDescription& selection,
                    const LayerResolver& layers) const;

 private:
  struct Group {
    const TGroups* source;
    int code;
    short kind;  // RTSHORT, RTREAL, RTSTR, RTLONG or none
    WildCard pattern{L""};
    bool isLayerKey = false;
  };
  using Mask = std::vector<Group>;

  static Group Ready(const TGroups& group);
  static bool Fits(const Group& group, const GroupValue& value);
  static MatchResult MatchByName(const TMenuBar& bar, bool inPaperSpace);
  static MatchResult MatchGroup(const Group& group, const SelectionDescription& selection,
                                const LayerResolver& layers);

  const TMenuSystem& m_system;
  std::vector<Mask> m_masks;
};
