#include "editor/command_help.h"

#include "editor/filter_host.h"
#include "ground/text_lines.h"
#include "kernel/qvxexport.h"

namespace qvx {

TWCString FindHelpKeyword(const std::string& map, const wchar_t* command) {
  const TUString text(map.data(), static_cast<int>(map.size()));
  for (int at = 0; at < text.Length();) {
    const TWCString line = TakeLine(text, at);
    wchar_t keyword[QvxExport::kPathUnits], name[QvxExport::kPathUnits];
    if (!QvxExport::GetStringAtIndex(line, 1, keyword)) continue;
    if (!QvxExport::GetStringAtIndex(line, 2, name)) continue;
    if (TWCString(name).EqualsNoCase(command)) return keyword;
  }
  return {};
}

bool ShowCommandHelp(FilterHost& host, const TWCString& helpFile) {
  TWCString path;
  if (!host.FindFile(L"qvxcmd.txt", path)) return false;
  const TWCString command = host.CurrentCommand();
  std::string map;
  if (!host.ReadBytes(path, map)) return false;
  const TWCString keyword = FindHelpKeyword(map, command);
  if (keyword.IsEmpty()) return false;
  host.ShowHelp(HelpCall::kTopic, helpFile, L"");
  host.ShowHelp(HelpCall::kKeywordLookup, helpFile, keyword);
  host.ShowHelp(HelpCall::kIndex, helpFile, keyword);
  return true;
}

}  // namespace qvx
