// Finds the block whose mask fits the selected objects. Works on a description of the selection,
// which the module fills from the host and the command line tool from its arguments; opens no
// object and reads no host variable.
//
// A selection of thousands of objects has few types and few layers, and an object fits a mask when
// its type fits and its layer does. So the description stores each type and each layer once, and
// each pattern, compiled once for a menu, is matched against them once for a selection. Only other
// groups are matched object by object.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "ground/wild_card.h"

class TMenuBar;
class TMenuSystem;
struct TGroups;

enum class ObjectState : unsigned char {
  kEntity,
  kViewport,    // an AcDbViewport, which fits no block
  kUnreadable,  // does not open as an entity
};

// The value of an object for a group code; empty when unknown, which fits no mask.
using GroupValue = std::variant<std::monostate, long long, double, std::wstring>;

// Distinct names of types or layers, in the order of first occurrence.
class SeenNames {
 public:
  struct Name {
    std::wstring text;   // as given
    std::wstring upper;  // for matching
    size_t firstObject;
    size_t hash;
  };

  // The index of the name; adds it, with `object` as its first object.
  uint32_t IndexOf(std::wstring_view text, size_t object);
  const std::vector<Name>& All() const { return m_names; }

 private:
  static constexpr uint32_t kNone = ~uint32_t{0};
  static constexpr size_t kRecent = 1024;
  uint32_t FindOrAdd(std::wstring_view text, size_t object);
  void Grow();

  std::vector<Name> m_names;
  // m_recent: the last name for each cheap hash. m_slots: all names under a good hash; the number
  // of slots is a power of two, at most half of them used.
  std::vector<uint32_t> m_recent = std::vector<uint32_t>(kRecent, kNone);
  std::vector<uint32_t> m_slots;
};

class SelectionDescription {
 public:
  // Called for groups other than type (0) and layer (8), while a block is matched.
  using GroupReader = std::function<GroupValue(size_t object, int code)>;

  // `type` is the name of the object's class in drawing files.
  void Add(std::wstring_view type, std::wstring_view layer,
           ObjectState state = ObjectState::kEntity);
  void SetGroupReader(GroupReader reader) { m_reader = std::move(reader); }
  // Used only while nothing is selected.
  void SetPaperSpace(bool inPaperSpace) { m_inPaperSpace = inPaperSpace; }

  size_t Count() const { return m_objects.size(); }
  bool InPaperSpace() const { return m_inPaperSpace; }
  const SeenNames& Types() const { return m_types; }
  const SeenNames& Layers() const { return m_layers; }
  const std::wstring& TypeOf(size_t object) const {
    return m_types.All()[m_objects[object].type].text;
  }
  const std::wstring& LayerOf(size_t object) const {
    return m_layers.All()[m_objects[object].layer].text;
  }
  // The first object that fits no mask at all (see ObjectState); Count() without one.
  size_t FirstMisfit() const { return m_misfit.object < Count() ? m_misfit.object : Count(); }
  ObjectState StateOfMisfit() const { return m_misfit.state; }
  GroupValue Group(size_t object, int code) const {
    return m_reader ? m_reader(object, code) : GroupValue();
  }

 private:
  struct Object {
    uint32_t type, layer;
  };
  struct Misfit {
    size_t object = ~size_t{0};
    ObjectState state = ObjectState::kEntity;
  };

  SeenNames m_types, m_layers;
  std::vector<Object> m_objects;
  Misfit m_misfit;
  GroupReader m_reader;
  bool m_inPaperSpace = false;
};

// Gives the layer for a logical layer key. False when there is none; the mask's value is then used
// as written.
using LayerResolver = std::function<bool(std::wstring_view key, std::wstring& layer)>;

struct MatchResult {
  enum Why {
    kMatches,
    kOtherName,   // nothing is selected, and the block is not COMMON or LAYOUT
    kNoMask,      // objects are selected, and the block has no mask
    kUnreadable,  // `object` is no entity
    kViewport,    // `object` is a viewport
    kGroup,       // `object` does not fit `group`
  };
  Why why = kMatches;
  size_t object = 0;  // the first one that does not fit
  const TGroups* group = nullptr;
  bool Matches() const { return why == kMatches; }
};

// The compiled masks of a system, which must not change while the matcher lives.
class BlockMatcher {
 public:
  explicit BlockMatcher(const TMenuSystem& system);

  // The index of the first block that fits; -1 when none does.
  int Find(const SelectionDescription& selection, const LayerResolver& layers) const;
  MatchResult Match(int block, const SelectionDescription& selection,
                    const LayerResolver& layers) const;

 private:
  // A value of type or layer, shared by all masks that have it.
  struct Pattern {
    int code;
    std::wstring text;
    WildCard wildCard;
    bool isLayerKey;
  };
  struct Group {
    const TGroups* source;
    int code;
    short kind;       // RTSHORT, RTREAL, RTSTR, RTLONG or none
    size_t pattern;   // for type or layer: index into m_patterns
    WildCard others;  // for other groups of text
  };
  using Mask = std::vector<Group>;
  class Run;

  Group Ready(const TGroups& group);
  size_t PatternOf(int code, std::wstring_view text);
  static bool Fits(const Group& group, const GroupValue& value);
  static size_t FirstMisfit(const Group& group, Run& run);
  static MatchResult MatchByName(const TMenuBar& bar, bool inPaperSpace);
  MatchResult Match(int block, Run& run) const;

  const TMenuSystem& m_system;
  std::vector<Mask> m_masks;
  std::vector<Pattern> m_patterns;
  std::map<std::pair<int, std::wstring>, size_t> m_patternIndex;
};
