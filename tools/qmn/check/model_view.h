// The engine's model of the readable lines. After a syntax error the engine returns an empty model,
// and a bad mask drops all blocks; so the readable lines, switches and icons are written to a clean
// source without titles and masks, which is compiled. Labels, commands, sub-menus and switches are
// therefore the engine's own results, also for a file that it refuses.
#pragma once

#include <memory>
#include <vector>

#include "menu/menu_model.h"
#include "tools/qmn/check/lint_tree.h"

struct ModelLine {
  const LintLine* source;
  const TMenuItem* item;
  int bar;      // the same number for the lines of one menu, without its sub-menus
  bool isLast;  // of its menu
};

class ModelView {
 public:
  ModelView(const SourceText& source, const LintTree& tree);

  // The lines of a block in file order, sub-menus at their places.
  std::vector<ModelLine> LinesOf(size_t block) const;
  // True when there was nothing to compile or it compiled, which tests verify.
  bool IsWhole() const { return m_isWhole; }

 private:
  const LintTree& m_tree;
  std::unique_ptr<TMenuSystem> m_system;
  std::vector<int> m_barOfBlock;  // -1 for a block without lines
  bool m_isWhole = true;
};
