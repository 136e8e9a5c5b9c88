// The summary line.
#include <ostream>

#include "tools/qmn/check/report.h"

namespace {

Message Counted(size_t count, Phrase one, Phrase many) {
  return count == 1 ? Message(one) : many(count);
}

Message CountsOf(int errors, int warnings) {
  const Message e = Counted(static_cast<size_t>(errors), "1 error"_say, "{0} errors"_say);
  const Message w = Counted(static_cast<size_t>(warnings), "1 warning"_say, "{0} warnings"_say);
  if (!errors && !warnings) return "no findings"_say;
  if (!warnings) return e;
  return errors ? "{0}, {1}"_say(e, w) : w;
}

}  // namespace

void ReportSummary(const std::vector<FileReport>& reports, const QmnStreams& streams) {
  int errors = 0, warnings = 0, silenced = 0;
  size_t read = 0;
  for (const FileReport& report : reports) {
    errors += report.errors;
    warnings += report.warnings;
    silenced += report.silenced;
    read += report.isRead;
  }
  const Message files = Counted(read, "1 file checked"_say, "{0} files checked"_say);
  std::string line = "{0}: {1}"_say(files, CountsOf(errors, warnings)).In(streams.language);
  if (silenced) line += ", {0} silenced"_say(silenced).In(streams.language);
  if (read < reports.size())
    line += "; {0} not read"_say(reports.size() - read).In(streams.language);
  streams.out.flush();
  streams.err << line << "\n";
}
