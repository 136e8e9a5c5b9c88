// What the engine makes of the lines that could be read. After a syntax error the engine gives
// nothing, and a bad mask takes all blocks; so the readable lines, switches and icons are put into
// a clean source, without titles and masks, and that is compiled. Labels, commands, sub-menus and
// switches are then the engine's own word, also in a file that it refuses.
#pragma once

#include <memory>
#include <vector>

#include "menu/menu_model.h"
#include "tools/qmn/check/lint_tree.h"

struct ModelLine {
  const LintLine* source;
  const TMenuItem* item;
  int bar;      // lines of one menu, not of its sub-menus, have one number
  bool isLast;  // of its menu
};

class ModelView {
 public:
  ModelView(const SourceText& source, const LintTree& tree);

  // The lines of a block in the order of the file, sub-menus in their places.
  std::vector<ModelLine> LinesOf(size_t block) const;
  // Nothing to compile, or the engine took what it got, which tests prove.
  bool IsWhole() const { return m_isWhole; }

 private:
  const LintTree& m_tree;
  std::unique_ptr<TMenuSystem> m_system;
  std::vector<int> m_barOfBlock;  // -1 for a block without lines
  bool m_isWhole = true;
};
