// qmn compile: source to compiled file. By default nothing is written after an error;
// with --as-host the tool prints and writes what the module would, including the empty
// model after an error.
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/host_messages.h"
#include "tools/qmn/menu_source.h"
#include "tools/qmn/model_aloud.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

std::string OutputOf(const CompileOptions& options) {
  if (!options.out.empty()) return options.out;
  return IsStandardStream(options.in) ? options.in : WithExtension(options.in, ".qmc");
}

// The module would loop forever on such a file, so there is no result to reproduce.
int RefuseOpenComment(const CompileOptions& options, int line, const QmnStreams& streams) {
  streams.err << "\n";
  ReportError(streams, options.in + ":" + std::to_string(line),
              "the comment that begins here never ends"_say);
  return kFindings;
}

int CompileAsTool(const CompileOptions& options, const QmnStreams& streams) {
  SettingsOfFolders folders(options.source, streams,
                            options.warnings ? NameFiles::kRead : NameFiles::kIgnore);
  MenuSource source;
  if (const int code = ReadMenuSource(options.in, folders, streams, source); code != kFine)
    return code;
  if (!ReportErrorsOf(source, options.warnings, streams)) return kFindings;
  TMenuSystem system;
  if (!CompileAloud(source, streams, system)) return kFindings;
  const std::string out = OutputOf(options);
  const auto trouble = WriteOutput(out, streams, SaveBytes(system));
  if (!trouble) return kFine;
  ReportError(streams, out, *trouble);
  return kFileTrouble;
}

// Command line messages are printed as the module prints them, each preceded by its newline; a
// message box becomes one line.
int CompileAsHost(const CompileOptions& options, const QmnStreams& streams) {
  std::string source;
  if (ReadInput(options.in, streams, source)) {
    streams.err << "\nCould not open file " << options.in;
    return kFileTrouble;
  }
  SettingsOfFolders folders(options.source, streams);
  int code = kFine;
  const SourceSettings* settings = folders.Of(options.in, code);
  if (!settings) return code;
  streams.err << Utf8(L"\n加载奇维菜单文件: ") << options.in;
  TMenuSystem system;
  HostMessages messages(streams);
  const CompileResult result = CompileSource(std::move(source), messages, system, settings->page);
  if (result.openCommentLine) return RefuseOpenComment(options, result.openCommentLine, streams);
  const std::string out = OutputOf(options);
  if (WriteOutput(out, streams, SaveBytes(system))) {
    streams.err << "\n" << Utf8(L"无法创建文件") << out << "\n";
    return kFileTrouble;
  }
  return result.accepted && !messages.Count() ? kFine : kFindings;
}

}  // namespace

int RunCompile(const CompileOptions& options, const QmnStreams& streams) {
  if (IsSameFile(options.in, OutputOf(options))) {
    ReportError(streams, options.in, "is input and output at once; name another file with -o"_say);
    return kWrongUsage;
  }
  return options.asHost ? CompileAsHost(options, streams) : CompileAsTool(options, streams);
}
