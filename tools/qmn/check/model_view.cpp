#include "tools/qmn/check/model_view.h"

#include "tools/qmn/check/names.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"

namespace {

std::string_view BytesOf(const SourceText& source, const LintToken& token) {
  return std::string_view(source.Bytes()).substr(token.begin, token.end - token.begin);
}

void PutBlock(const SourceText& source, const LintBlock& block, std::string& out) {
  out += "***B\n";
  for (const LintLine& line : block.lines) {
    if (line.icon) out.append(BytesOf(source, *line.icon)) += ' ';
    out.append(BytesOf(source, line.line)) += '\n';
  }
}

void PutNames(const SourceText& source, const LintTree& tree, std::string& out) {
  out += "***SWITCH\n";
  for (const LintSwitch& owner : tree.switches)
    out.append("**").append(BytesOf(source, owner.name)) += " GET=g SET=s 0=i,\"\"\n";
  out += "***RESOURCE\n";
  for (const LintResource& icon : tree.resources)
    out.append(BytesOf(source, icon.name)) += "=\"\",\"\"\n";
}

struct Level {
  const TMenuBar* bar;
  int next;
  int number;
};

}  // namespace

ModelView::ModelView(const SourceText& source, const LintTree& tree)
    : m_tree(tree), m_system(std::make_unique<TMenuSystem>()) {
  std::string clean = "MENU_TITLE=\"\"\n";
  int bars = 0;
  for (const LintBlock& block : tree.blocks) {
    m_barOfBlock.push_back(block.lines.empty() ? -1 : bars++);
    if (!block.lines.empty()) PutBlock(source, block, clean);
  }
  if (!bars) return;
  PutNames(source, tree, clean);
  SilentMessages messages;
  m_isWhole = CompileSource(std::move(clean), messages, *m_system, source.Page()).accepted &&
              messages.Count() == 0;
}

std::vector<ModelLine> ModelView::LinesOf(size_t block) const {
  std::vector<ModelLine> lines;
  const int at = m_barOfBlock[block];
  if (at < 0 || !m_isWhole) return lines;
  const std::vector<LintLine>& sources = m_tree.blocks[block].lines;
  int bars = 0;
  std::vector<Level> path{{(*m_system)[at], 0, 0}};
  while (!path.empty()) {
    Level& level = path.back();
    if (level.next == level.bar->Length()) {
      path.pop_back();
      continue;
    }
    const TMenuItem* item = level.bar->At(level.next++);
    const bool isLast = level.next == level.bar->Length();
    lines.push_back({&sources[lines.size()], item, level.number, isLast});
    if (item->m_pSubMenu) path.push_back({item->m_pSubMenu, 0, ++bars});
  }
  return lines;
}
