// qmn dump: the model of a source or a compiled file. After an error it shows the model that the
// module would have: empty for a source, the part read before the error for a compiled file.
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/model_aloud.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

void DumpModel(TMenuSystem& system, DumpForm form, std::ostream& out) {
  if (form == DumpForm::kTree)
    DumpOutline(system, out);
  else if (form == DumpForm::kJson)
    DumpJson(system, out);
  else
    DumpFields(SaveBytes(system), kUsualPage, out);
}

}  // namespace

int RunDump(const DumpOptions& options, const QmnStreams& streams) {
  std::string bytes;
  if (const auto trouble = ReadInput(options.in, streams, bytes)) {
    ReportError(streams, options.in, *trouble);
    return kFileTrouble;
  }
  TMenuSystem system;
  const int code = ModelOfBytes(options.in, bytes, options.source, streams, system);
  if (code > kFindings) return code;
  if (IsCompiledMenu(options.in, bytes) && options.form == DumpForm::kBytes)
    DumpFields(bytes, options.source.page.value_or(kUsualPage), streams.out);
  else
    DumpModel(system, options.form, streams.out);
  streams.out.flush();
  if (!streams.out) {
    ReportError(streams, "-", "can't be written: {0}"_say("standard output failed"_say));
    return kFileTrouble;
  }
  return code;
}
