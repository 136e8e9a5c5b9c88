// qmn decompile: a compiled file to source that compiles to the same bytes. The source is compiled
// in memory and compared before anything is written; what the language cannot express is reported
// with field and place.
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/decompile.h"
#include "tools/qmn/fmt_source.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"
#include "tools/qmn/silent_messages.h"

namespace {

// Refuses the other file forms: the module reads them too, but always writes this one.
void CheckForm(const std::string& bytes, TMenuSystem& system, Refusals& refusals) {
  const std::string written = SaveBytes(system);
  if (written == bytes) return;
  size_t at = 0;
  while (at < written.size() && at < bytes.size() && written[at] == bytes[at]) ++at;
  refusals.Add("file"_say,
               "byte {0}: not as the compiler writes it; qmn load IN -o OUT gives a file that "
               "is"_say(at));
}

// True when the source compiles to the expected bytes.
bool CheckSource(const std::string& source, unsigned page, const std::string& bytes,
                 TMenuSystem& wanted, Refusals& refusals) {
  TMenuSystem made;
  SilentMessages messages;
  const CompileResult result = CompileSource(source, messages, made, page);
  if (!result.accepted || messages.Count()) return false;
  if (SaveBytes(made) == bytes) return true;
  DifferencesOf(wanted, made, refusals);
  return false;
}

void ReportRefusals(const std::string& file, const Refusals& refusals, const QmnStreams& streams) {
  for (const Refusal& refusal : refusals.Shown())
    ReportError(streams, file, "{0}: {1}"_say(refusal.place, refusal.text));
  if (refusals.Count() > refusals.Shown().size())
    ReportError(streams, file,
                "and {0} more places that no source can say"_say(refusals.Count() -
                                                                 refusals.Shown().size()));
}

}  // namespace

std::string Decompile(const std::string& bytes, TMenuSystem& system, unsigned page,
                      Refusals& refusals) {
  CheckForm(bytes, system, refusals);
  std::string source = WriteSource(system, page, refusals);
  if (refusals.Any()) return {};
  source = FormatSource(Unfolded(source, LineEnds::kCrLf), page).text;
  if (CheckSource(source, page, bytes, system, refusals)) return source;
  if (!refusals.Any()) refusals.Add("file"_say, "no source gives these bytes"_say);
  return {};
}

int RunDecompile(const DecompileOptions& options, const QmnStreams& streams) {
  std::string bytes;
  const std::string out = options.out.empty() ? "-" : options.out;
  if (!options.force && !IsStandardStream(out) && IsFile(out)) {
    ReportError(streams, out, "is there already; --force overwrites it"_say);
    return kFileTrouble;
  }
  if (const auto trouble = ReadInput(options.in, streams, bytes)) {
    ReportError(streams, options.in, *trouble);
    return kFileTrouble;
  }
  TMenuSystem system;
  if (const wchar_t* exception = LoadBytes(bytes, system, options.page)) {
    ReportError(streams, options.in, Explain(exception));
    return kFindings;
  }
  Refusals refusals;
  const std::string source = Decompile(bytes, system, options.page, refusals);
  if (refusals.Any()) {
    ReportRefusals(options.in, refusals, streams);
    return kFindings;
  }
  const auto trouble = WriteOutput(out, streams, source);
  if (!trouble) return kFine;
  ReportError(streams, out, *trouble);
  return kFileTrouble;
}
