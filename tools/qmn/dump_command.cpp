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
  if (!ReadInput(options.in, streams, bytes)) {
    ReportError(streams, options.in, "can't be read");
    return kFileTrouble;
  }
  TMenuSystem system;
  const bool good = ModelOfBytes(options.in, bytes, options.page, streams, system);
  if (IsCompiledMenu(options.in, bytes) && options.form == DumpForm::kBytes)
    DumpFields(bytes, options.page, streams.out);
  else
    DumpModel(system, options.form, streams.out);
  streams.out.flush();
  if (!streams.out) {
    ReportError(streams, "standard output", "can't be written");
    return kFileTrouble;
  }
  return good ? kFine : kFindings;
}
