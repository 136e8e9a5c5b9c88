// qmn load: reads a compiled file into the model and writes it again. By default nothing is written
// after an error; with --as-host the tool writes the part that the module would have read by then.
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

int RefuseInput(const LoadOptions& options, const Message& why, const QmnStreams& streams) {
  if (!options.asHost) {
    ReportError(streams, options.in, why);
    return kFileTrouble;
  }
  streams.err << Utf8(L"无法读取文件") << options.in << "\n";
  return kFindings;
}

int RefuseOutput(const LoadOptions& options, const Message& why, const QmnStreams& streams) {
  if (options.asHost)
    streams.err << Utf8(L"无法创建文件") << options.out << "\n";
  else
    ReportError(streams, options.out, why);
  return kFileTrouble;
}

void ReportDamage(const LoadOptions& options, const wchar_t* exception, const QmnStreams& streams) {
  if (options.asHost)
    streams.err << Utf8(exception) << "\n";
  else
    ReportError(streams, options.in, Explain(exception));
}

}  // namespace

int RunLoad(const LoadOptions& options, const QmnStreams& streams) {
  std::string bytes;
  if (const auto why = ReadInput(options.in, streams, bytes))
    return RefuseInput(options, *why, streams);
  TMenuSystem system;
  const wchar_t* exception = LoadBytes(bytes, system, options.page);
  if (exception) ReportDamage(options, exception, streams);
  const bool writes = !options.out.empty() && (!exception || options.asHost);
  if (!writes) return exception ? kFindings : kFine;
  if (const auto why = WriteOutput(options.out, streams, SaveBytes(system)))
    return RefuseOutput(options, *why, streams);
  return exception ? kFindings : kFine;
}
