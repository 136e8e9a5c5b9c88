// qmn dump: the model of a source or a compiled file. After an error it shows what the module would
// have: nothing for a source, what was read until then for a compiled file.
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_messages.h"

namespace {

// By its name; without a telling one by its first bytes, the marker of a wide string or the length
// of the magic.
bool IsCompiled(const std::string& name, const std::string& bytes) {
  const std::string extension = IsStandardStream(name) ? "" : ExtensionOf(name);
  if (extension == ".qmc" || extension == ".qmn") return extension == ".qmc";
  return bytes.starts_with("\xFF\xFE\xFF") || bytes.starts_with("\x1AQuivera");
}

bool CompileAloud(const DumpOptions& options, std::string source, TMenuSystem& system,
                  const QmnStreams& streams) {
  ToolMessages messages(options.in, streams);
  const CompileResult result = CompileSource(std::move(source), messages, system);
  if (result.openCommentLine)
    ReportError(streams, options.in + ":" + std::to_string(result.openCommentLine),
                kOpenCommentText);
  return result.accepted && !messages.Count();
}

bool LoadAloud(const DumpOptions& options, const std::string& bytes, TMenuSystem& system,
               const QmnStreams& streams) {
  const wchar_t* exception = LoadBytes(bytes, system);
  if (exception) ReportError(streams, options.in, Explain(exception));
  return !exception;
}

void DumpModel(TMenuSystem& system, DumpForm form, std::ostream& out) {
  if (form == DumpForm::kTree)
    DumpOutline(system, out);
  else if (form == DumpForm::kJson)
    DumpJson(system, out);
  else
    DumpFields(SaveBytes(system), out);
}

}  // namespace

int RunDump(const DumpOptions& options, const QmnStreams& streams) {
  std::string bytes;
  if (!ReadInput(options.in, streams, bytes)) {
    ReportError(streams, options.in, "can't be read");
    return kFileTrouble;
  }
  TMenuSystem system;
  const bool compiled = IsCompiled(options.in, bytes);
  const bool good = compiled ? LoadAloud(options, bytes, system, streams)
                             : CompileAloud(options, bytes, system, streams);
  if (compiled && options.form == DumpForm::kBytes)
    DumpFields(bytes, streams.out);
  else
    DumpModel(system, options.form, streams.out);
  streams.out.flush();
  if (!streams.out) {
    ReportError(streams, "standard output", "can't be written");
    return kFileTrouble;
  }
  return good ? kFine : kFindings;
}
