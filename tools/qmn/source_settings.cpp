#include "tools/qmn/source_settings.h"

#include "tools/qmn/check/names.h"
#include "tools/qmn/command_list.h"
#include "tools/qmn/icon_library.h"
#include "tools/qmn/settings_file.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

// The one rule that the word names in full; kCount for none.
Rule RuleOf(const std::string& word) {
  for (const RuleInfo& info : AllRules())
    if (FoldedName(word) == FoldedName(info.code) || FoldedName(word) == info.name)
      return info.rule;
  return Rule::kCount;
}

class SettingsBuilder {
 public:
  SettingsBuilder(const std::string& folder, const QmnStreams& streams)
      : m_folder(folder), m_streams(streams) {}

  int ReadFile(FileSettings& file) {
    m_name = InFolder(m_folder, kSettingsFile);
    std::string text;
    if (m_folder.empty() || !IsFile(m_name)) return kFine;
    if (const auto trouble = ReadInput(m_name, m_streams, text))
      return ReportError(m_streams, m_name, *trouble), kFileTrouble;
    const auto error = ReadSettings(text, file);
    if (!error) return kFine;
    ReportError(m_streams, m_name + ":" + std::to_string(error->line), error->text);
    return kWrongUsage;
  }

  int Rules(const std::vector<std::string>& select, const std::vector<std::string>& ignore,
            const std::string& where, RuleSet& hidden) {
    RuleSet wanted;
    for (const std::string& word : select)
      if (!AddRules(word, wanted)) return NoRule(word, where);
    if (!select.empty()) hidden |= ~wanted;
    for (const std::string& word : ignore) {
      if (!AddRules(word, hidden)) return NoRule(word, where);
      const Rule rule = RuleOf(word);
      if (rule == Rule::kCount || IsIgnorable(rule)) continue;
      ReportError(m_streams, where,
                  "{0} is an error that the shell refuses, and can't be ignored"_say(word));
      return kWrongUsage;
    }
    return kFine;
  }

  int Icons(const std::string& file, CheckSettings& check) {
    std::string bytes;
    if (const auto trouble = ReadInput(file, m_streams, bytes))
      return ReportError(m_streams, file, *trouble), kFileTrouble;
    std::optional<NameSet> names = BitmapNames(bytes);
    if (!names) {
      ReportError(m_streams, file, "this is no icon library; expected a .dll with bitmaps"_say);
      return kFindings;
    }
    check.images = std::make_shared<const NameSet>(std::move(*names));
    return kFine;
  }

  int Commands(const std::string& file, CheckSettings& check) {
    std::string text;
    if (const auto trouble = ReadInput(file, m_streams, text))
      return ReportError(m_streams, file, *trouble), kFileTrouble;
    check.known = std::make_shared<const KnownNames>(ReadCommandList(text));
    return kFine;
  }

  const std::string& FileName() const { return m_name; }

 private:
  int NoRule(const std::string& word, const std::string& where) {
    ReportError(m_streams, where,
                "there is no rule '{0}'; 'qmn check --list-rules' lists them"_say(word));
    return kWrongUsage;
  }

  const std::string m_folder;
  const QmnStreams& m_streams;
  std::string m_name;
};

}  // namespace

int SettingsOfFolders::Read(const std::string& folder, SourceSettings& out) {
  SettingsBuilder builder(folder, m_streams);
  FileSettings file;
  int code = builder.ReadFile(file);
  if (code == kFine)
    code = builder.Rules(m_options.select.empty() ? file.select : std::vector<std::string>(),
                         file.ignore, builder.FileName(), out.check.hidden);
  if (code == kFine)
    code = builder.Rules(m_options.select, m_options.ignore, "qmn", out.check.hidden);
  out.page = m_options.page.value_or(file.page.value_or(kUsualPage));
  out.failOnWarning = m_options.failOnWarning.value_or(file.failOnWarning.value_or(false));
  if (code != kFine || m_names == NameFiles::kIgnore) return code;
  const std::string icons = m_options.icons.empty() && !file.icons.empty()
                                ? InFolder(folder, file.icons)
                                : m_options.icons;
  const std::string commands = m_options.commands.empty() && !file.commands.empty()
                                   ? InFolder(folder, file.commands)
                                   : m_options.commands;
  if (!icons.empty()) code = builder.Icons(icons, out.check);
  if (code == kFine && !commands.empty()) code = builder.Commands(commands, out.check);
  return code;
}

const SourceSettings* SettingsOfFolders::Of(const std::string& source, int& code) {
  const std::string folder = IsStandardStream(source) ? std::string() : FolderOf(source);
  const auto [at, isNew] = m_entries.try_emplace(folder);
  if (isNew) at->second.code = Read(folder, at->second.settings);
  code = at->second.code;
  return code == kFine ? &at->second.settings : nullptr;
}
