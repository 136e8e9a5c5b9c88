// Iterates over the lines of all blocks, and the rules about a whole menu or block.
#include "tools/qmn/check/line_rules.h"

#include <map>
#include <utility>

#include "tools/qmn/check/names.h"
#include "tools/qmn/check/use_rules.h"

namespace {

// Finds the blocks of the screen menu and the tool bar: the first of each name.
class FirstBlocks {
 public:
  bool IsFirst(BlockRole role) {
    bool& seen = role == BlockRole::kScreen ? m_screen : m_toolBar;
    return !std::exchange(seen, true);
  }

 private:
  bool m_screen = false;
  bool m_toolBar = false;
};

char32_t UpperOf(char32_t c) { return c >= U'a' && c <= U'z' ? c - 32 : c; }

// A mnemonic matches '&' and its letter anywhere in a label.
class Mnemonics {
 public:
  void Check(const LineView& line) {
    if (line.Item().IsSeparator()) return;
    const std::u32string_view label = line.Label();
    for (size_t i = 0; i + 1 < label.size(); ++i) {
      if (label[i] != U'&' || label[i + 1] == U'&' || label[i + 1] == U' ') continue;
      Check(line, i, UpperOf(label[i + 1]));
    }
  }

 private:
  void Check(const LineView& line, size_t at, char32_t key) {
    const size_t place = line.Source().line.begin;
    const auto [first, isNew] = m_first.try_emplace({line.Model().bar, key}, place);
    if (isNew || first->second == place) return;
    line.AddInLabel(
        Rule::kMnemonicTwice, at, at + 2,
        "this mnemonic belongs to line {0} of the same pop-up already; the key picks that one"_say(
            line.Context().source.LineOf(first->second)));
  }

  std::map<std::pair<int, char32_t>, size_t> m_first;
};

void CheckLine(const LineView& line) {
  if (!line.HasBracket()) {
    if (line.IsWhole())
      line.AddLabel(Rule::kNoBracket,
                    "the line has no ']'; its label and its command are both empty"_say);
    return;
  }
  CheckLabel(line);
  CheckConditions(line);
  CheckIconName(line);
  if (line.IsWhole()) CheckCommand(line);
}

void CheckToolBarEnd(const std::vector<LineView>& lines) {
  for (const LineView& line : lines)
    if (line.Model().bar == 0 && line.Model().isLast && line.Item().IsSeparator())
      line.AddLabel(Rule::kToolBarSeparator,
                    "a separator at the end of ToolBar has no line to change places with"_say);
}

}  // namespace

void CheckMenuLines(const CheckContext& context) {
  const ModelView view(context.source, context.tree);
  FirstBlocks first;
  UsedNames used;
  for (size_t i = 0; i < context.tree.blocks.size(); ++i) {
    const LintBlock& block = context.tree.blocks[i];
    const BlockRole role = RoleOf(context, block);
    const bool isScreen = role == BlockRole::kScreen && first.IsFirst(role);
    const std::vector<ModelLine> models = view.LinesOf(i);
    std::vector<LineView> lines;
    lines.reserve(models.size());
    for (const ModelLine& model : models)
      lines.emplace_back(context, model, !isScreen, role == BlockRole::kInPlace);
    CheckArrows(context, lines);
    Mnemonics mnemonics;
    for (const LineView& line : lines) {
      CheckLine(line);
      used.Add(line);
      if (!isScreen) mnemonics.Check(line);
    }
    const bool isToolBar = role == BlockRole::kToolBar && first.IsFirst(role);
    CheckMenus(lines, isToolBar);
    if (isToolBar) CheckToolBarEnd(lines);
  }
  used.ReportUnused(context);
}
