#include "tools/qmn/model_aloud.h"

#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_messages.h"

namespace {

bool CompileAloud(const std::string& name, std::string source, unsigned page,
                  const QmnStreams& streams, TMenuSystem& system) {
  ToolMessages messages(name, streams);
  const CompileResult result = CompileSource(std::move(source), messages, system, page);
  if (result.openCommentLine)
    ReportError(streams, name + ":" + std::to_string(result.openCommentLine), kOpenCommentText);
  return result.accepted && !messages.Count();
}

bool LoadAloud(const std::string& name, const std::string& bytes, unsigned page,
               const QmnStreams& streams, TMenuSystem& system) {
  const wchar_t* exception = LoadBytes(bytes, system, page);
  if (exception) ReportError(streams, name, Explain(exception));
  return !exception;
}

}  // namespace

bool IsCompiledMenu(const std::string& name, const std::string& bytes) {
  const std::string extension = IsStandardStream(name) ? "" : ExtensionOf(name);
  if (extension == ".qmc" || extension == ".qmn") return extension == ".qmc";
  return bytes.starts_with("\xFF\xFE\xFF") || bytes.starts_with("\x1AQuivera");
}

bool ModelOfBytes(const std::string& name, std::string bytes, unsigned page,
                  const QmnStreams& streams, TMenuSystem& system) {
  return IsCompiledMenu(name, bytes) ? LoadAloud(name, bytes, page, streams, system)
                                     : CompileAloud(name, std::move(bytes), page, streams, system);
}

int ReadModelAloud(const std::string& name, unsigned page, const QmnStreams& streams,
                   TMenuSystem& system) {
  std::string bytes;
  if (!ReadInput(name, streams, bytes)) {
    ReportError(streams, name, "can't be read");
    return kFileTrouble;
  }
  return ModelOfBytes(name, std::move(bytes), page, streams, system) ? kFine : kFindings;
}
