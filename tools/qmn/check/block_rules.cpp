// Masks and names of blocks: which blocks can be chosen, and by which selection or name.
#include <cstdint>
#include <string>
#include <unordered_map>

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "tools/qmn/check/check_source.h"
#include "tools/qmn/check/mask_cover.h"
#include "tools/qmn/check/names.h"

namespace {

bool IsInPlace(const std::string& name) {
  if (name.compare(0, 7, "INPLACE") != 0) return false;
  return name.size() == 7 || (name.size() == 8 && name[7] >= '1' && name[7] <= '7');
}

Phrase KindWord(int kind) {
  switch (kind) {
    case RTSHORT:
      return "a whole number"_say;
    case RTREAL:
      return "a number with a point"_say;
    case RTSTR:
      return "a text in quotes"_say;
    default:
      return "a value that a source can't write"_say;
  }
}

int KindOfValue(const LintToken& value) {
  if (value.IsText()) return RTSTR;
  return value.kind == QMN_ICON ? RTSHORT : RTREAL;
}

class BlockRules {
 public:
  explicit BlockRules(const CheckContext& context) : m_context(context) {}

  void Run() {
    for (const LintBlock& block : m_context.tree.blocks) {
      const bool isBroken = block.isMaskBroken | !Groups(block);
      if (block.mask.size() > 2) Middle(block);
      const bool isFirst = Name(block);
      const BlockRole role = RoleOf(m_context, block);
      // SCREEN is removed from the blocks after loading; its mask is never used.
      if (role == BlockRole::kScreen && isFirst) {
        ScreenMask(block);
        continue;
      }
      if (block.mask.empty()) {
        if (role == BlockRole::kOther && !isBroken && block.name) Unreachable(block);
      } else if (!isBroken) {
        Hidden(block, role != BlockRole::kOther && isFirst);
      }
    }
  }

 private:
  // False when a group makes the engine drop all blocks of the file.
  bool Groups(const LintBlock& block) {
    bool isFine = true;
    for (const LintGroup& group : block.mask) isFine = Group(group) && isFine;
    return isFine;
  }

  bool Group(const LintGroup& group) {
    const int kind = QvxExport::TypeOfCode(group.code.number);
    const int code = group.code.number;
    const size_t begin = group.code.begin, end = group.value.end;
    if (kind != RTSHORT && kind != RTREAL && kind != RTSTR) {
      m_context.findings.Add(
          Rule::kGroupCode, begin, end,
          "group code {0} takes {1}; this group loses every block of the file"_say(code,
                                                                                   KindWord(kind)));
      return false;
    }
    if (kind != KindOfValue(group.value)) {
      m_context.findings.Add(
          Rule::kGroupKind, begin, end,
          "group code {0} takes {1}, found {2}; this group loses every block of the file"_say(
              code, KindWord(kind), m_context.Text(group.value)));
      return false;
    }
    Cut(kind, group.value);
    return true;
  }

  void Cut(int kind, const LintToken& value) {
    const auto cut = static_cast<int16_t>(value.number);
    if (kind != RTSHORT || cut == value.number) return;
    m_context.Add(Rule::kNumberRange, value,
                  "the number is cut to 16 bits and becomes {0}"_say(int{cut}));
  }

  void Middle(const LintBlock& block) {
    const LintGroup& first = block.mask[1];
    const LintGroup& last = block.mask[block.mask.size() - 2];
    m_context.findings.Add(
        Rule::kMaskMiddle, first.code.begin, last.value.end,
        "only the first and the last of the {0} groups count; {1} is lost"_say(
            block.mask.size(), m_context.source.Shown(first.code.begin, last.value.end)));
  }

  // True when it is the first block of its name.
  bool Name(const LintBlock& block) {
    if (!block.name) return false;
    const BlockRole role = RoleOf(m_context, block);
    const bool isExact = role == BlockRole::kOther || role == BlockRole::kInPlace;
    const std::string name = isExact ? NameOf(m_context.source, *block.name)
                                     : '*' + FoldedName(m_context.source, *block.name);
    const auto [first, isNew] =
        m_names.try_emplace(name, m_context.source.LineOf(block.name->begin));
    if (!isNew)
      m_context.Add(Rule::kBlockTwice, *block.name,
                    "block '{0}' is there already, on line {1}; that one is found"_say(
                        m_context.Text(*block.name), first->second));
    return isNew;
  }

  void ScreenMask(const LintBlock& block) {
    if (block.mask.empty()) return;
    m_context.findings.Add(Rule::kMaskUnused, block.mask.front().code.begin,
                           block.mask.back().value.end,
                           "SCREEN is the screen menu and is chosen by no selection; its mask has "
                           "no effect"_say);
  }

  void Unreachable(const LintBlock& block) {
    const std::string name = NameOf(m_context.source, *block.name);
    std::string capitals = name;
    for (char& c : capitals)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
    const std::string shown = m_context.Text(*block.name);
    m_context.Add(
        Rule::kBlockUnreachable, *block.name,
        IsInPlace(capitals)
            ? "nothing can choose block '{0}'; {1} is looked for in capitals"_say(shown, capitals)
            : "nothing can choose block '{0}'; it has no mask, and nothing looks for this name"_say(
                  shown));
  }

  void Hidden(const LintBlock& block, bool isFoundByName) {
    const EffectiveMask mask = MaskOf(m_context.source, block);
    const LintBlock* earlier = m_cover.Find(mask);
    if (!earlier) {
      m_cover.Add(mask, &block);
      return;
    }
    if (isFoundByName || !block.name) return;
    const Message by =
        earlier->name ? "block '{0}'"_say(m_context.Text(*earlier->name)) : Message("a block"_say);
    const size_t place = earlier->mask.front().code.begin;
    m_context.Add(
        Rule::kBlockHidden, *block.name,
        "block '{0}' is never chosen: {1} on line {2} takes every selection that fits it"_say(
            m_context.Text(*block.name), by, m_context.source.LineOf(place)));
  }

  const CheckContext& m_context;
  std::unordered_map<std::string, int> m_names;
  MaskCover m_cover;
};

}  // namespace

BlockRole RoleOf(const CheckContext& context, const LintBlock& block) {
  if (!block.name) return BlockRole::kOther;
  if (IsInPlace(NameOf(context.source, *block.name))) return BlockRole::kInPlace;
  const std::string name = FoldedName(context.source, *block.name);
  if (name == "screen") return BlockRole::kScreen;
  if (name == "toolbar") return BlockRole::kToolBar;
  return name == "common" || name == "layout" ? BlockRole::kNoSelection : BlockRole::kOther;
}

void CheckBlocks(const CheckContext& context) { BlockRules(context).Run(); }
