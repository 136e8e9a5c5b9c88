#include "tests/fuzz/round_trip_fuzz.h"

#include <cstdlib>
#include <vector>

#include "menu/menu_scanner.h"
#include "tools/qmn/decompile.h"
#include "tools/qmn/fmt_source.h"
#include "tools/qmn/fmt_tokens.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"

namespace {

constexpr unsigned kPage = 936;
// The refusal without a place. It must never be given.
constexpr char kNoWay[] = "no source gives these bytes";

void Promise(bool kept) {
  if (!kept) std::abort();
}

bool CompilesClean(const std::string& source, TMenuSystem& system) {
  SilentMessages messages;
  return CompileSource(source, messages, system).accepted && messages.Count() == 0;
}

std::string Recompiled(const std::string& source) {
  TMenuSystem system;
  Promise(CompilesClean(source, system));
  return SaveBytes(system);
}

// What was compiled from a source must always decompile.
void WayBack(TMenuSystem& system, const std::string& bytes, bool fromSource) {
  Refusals refusals;
  const std::string source = Decompile(bytes, system, kPage, refusals);
  Promise(source.empty() == refusals.Any());
  if (refusals.Any()) return Promise(!fromSource && refusals.Shown()[0].text.English() != kNoWay);
  Promise(Recompiled(source) == bytes);
}

std::vector<std::string> CommentsOf(const std::string& source) {
  std::string folded = source;
  FoldLineEnds(folded);
  std::vector<std::string> comments;
  for (const SourceComment& comment : TokenizeSource(folded).comments)
    comments.emplace_back(comment.text);
  return comments;
}

void Layout(const std::string& source, const std::string& bytes) {
  const FormattedSource once = FormatSource(source, kPage);
  if (once.strayLine) return;
  Promise(Recompiled(once.text) == bytes);
  Promise(FormatSource(once.text, kPage).text == once.text);
  Promise(CommentsOf(once.text) == CommentsOf(source));
}

}  // namespace

void FuzzMenuRoundTrip(const std::string& bytes) {
  TMenuSystem compiled;
  if (!LoadBytes(bytes, compiled)) return WayBack(compiled, bytes, false);
  TMenuSystem system;
  if (!CompilesClean(bytes, system)) return;
  const std::string made = SaveBytes(system);
  WayBack(system, made, true);
  Layout(bytes, made);
}
