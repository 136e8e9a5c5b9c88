#include "tools/qmn/model_aloud.h"

#include <utility>

#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

int ModelOfSource(const std::string& name, std::string bytes, const SourceOptions& options,
                  const QmnStreams& streams, TMenuSystem& system) {
  SettingsOfFolders folders(options, streams);
  MenuSource source;
  const int code = UseMenuSource(name, std::move(bytes), folders, streams, source);
  if (code != kFine) return code;
  const bool isFine = ReportErrorsOf(source, false, streams);
  SilentMessages messages;
  if (isFine) return CompileAloud(source, streams, system) ? kFine : kFindings;
  CompileSource(source.bytes, messages, system, source.settings.page);
  return kFindings;
}

}  // namespace

bool IsCompiledMenu(const std::string& name, const std::string& bytes) {
  const std::string extension = IsStandardStream(name) ? "" : ExtensionOf(name);
  if (extension == ".qmc" || extension == ".qmn") return extension == ".qmc";
  return bytes.starts_with("\xFF\xFE\xFF") || bytes.starts_with("\x1AQuivera");
}

bool CompileAloud(const MenuSource& source, const QmnStreams& streams, TMenuSystem& system) {
  SilentMessages messages;
  const CompileResult result = CompileSource(source.bytes, messages, system, source.settings.page);
  if (result.accepted && !messages.Count()) return true;
  ReportError(streams, source.name,
              "the shell refuses this source; 'qmn compile --as-host' shows its messages"_say);
  return false;
}

int ModelOfBytes(const std::string& name, std::string bytes, const SourceOptions& options,
                 const QmnStreams& streams, TMenuSystem& system) {
  if (!IsCompiledMenu(name, bytes))
    return ModelOfSource(name, std::move(bytes), options, streams, system);
  const wchar_t* exception = LoadBytes(bytes, system, options.page.value_or(kUsualPage));
  if (!exception) return kFine;
  ReportError(streams, name, Explain(exception));
  return kFindings;
}

int ReadModelAloud(const std::string& name, const SourceOptions& options, const QmnStreams& streams,
                   TMenuSystem& system) {
  std::string bytes;
  if (const auto trouble = ReadInput(name, streams, bytes)) {
    ReportError(streams, name, *trouble);
    return kFileTrouble;
  }
  return ModelOfBytes(name, std::move(bytes), options, streams, system);
}
