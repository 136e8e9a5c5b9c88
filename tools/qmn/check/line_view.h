// One menu line for its rules: its characters with their positions, and the compiled line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/qmn/check/check_source.h"
#include "tools/qmn/check/model_view.h"

class LineView {
 public:
  static constexpr size_t kNone = std::u32string_view::npos;

  LineView(const CheckContext& context, const ModelLine& model, bool isPopUp, bool isInPlace);

  const TMenuItem& Item() const { return *m_model.item; }
  const ModelLine& Model() const { return m_model; }
  const LintLine& Source() const { return *m_model.source; }
  bool IsPopUp() const { return m_isPopUp; }
  bool IsInPlace() const { return m_isInPlace; }
  // False for an over-long or unterminated line, which has been reported.
  bool IsWhole() const { return Source().line.kind == QMN_MENU_ITEM; }

  bool HasBracket() const { return m_close != kNone; }
  std::u32string_view Label() const { return Part(1, HasBracket() ? m_close : 1); }
  // Without trailing blanks and tabs.
  std::u32string_view Command() const { return Part(m_command, m_commandEnd); }
  bool SendsCommand() const;

  // Positions in the label and in the command.
  void AddInLabel(Rule rule, size_t first, size_t last, Message text) const;
  void AddInCommand(Rule rule, size_t first, size_t last, Message text) const;
  void AddLabel(Rule rule, Message text) const;  // the whole label with its brackets
  void AddIcon(Rule rule, Message text) const { m_context.Add(rule, *Source().icon, text); }

  const CheckContext& Context() const { return m_context; }

 private:
  std::u32string_view Part(size_t first, size_t last) const {
    return std::u32string_view(m_characters).substr(first, last - first);
  }
  void Decode();

  const CheckContext& m_context;
  const ModelLine& m_model;
  bool m_isPopUp;
  bool m_isInPlace;
  std::u32string m_characters;
  std::vector<size_t> m_offsets;  // one more entry than characters
  size_t m_close = kNone;
  size_t m_command = 0, m_commandEnd = 0;
};

inline std::wstring_view TextOf(const TWCString& text) {
  return {text, static_cast<size_t>(text.Length())};
}

// True when the compiled label begins with an arrow, which is reported as such.
bool KeepsArrow(const TMenuItem& item);

std::string Utf8Of(std::u32string_view text);

enum class Arrow { kNone, kOpening, kClosing };
Arrow ArrowOf(std::u32string_view label);
// Counts leading "<-" pairs.
int PairsOf(std::u32string_view label);
