// WBLOCK: writes the whole current drawing to another file. The drawing keeps its name and stays
// modified if it was. Blocks and selected objects are not offered.
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/header_variables.h"

namespace devhost {
namespace {

// Not acedGetString, which truncates at 132 characters.
std::wstring AskText(const wchar_t* prompt) {
  const InputAnswer answer = TheHost().engine.Ask(InputRequest::Text, prompt, true, nullptr);
  return answer.kind == InputAnswer::Kind::Cancelled ? L"" : answer.text;
}

void WriteBlock() {
  Document& document = *TheHost().documents.Current();
  const std::wstring path = AskText(L"输入输出文件名: ");
  if (path.empty()) return;
  if (AskText(L"输入块名或 [*(整个图形)]: ") != L"*") {
    TheHost().Print(L"\n只能输出整个图形，请输入 *。\n");
    return;
  }
  const auto modified = document.database()->body().modified;
  std::wstring why;
  SaveHeaderVariables(document);
  if (!WriteDrawing(path, *document.database(), &why)) TheHost().Print(L"\n" + why + L"\n");
  document.database()->body().modified = modified;
}

constexpr NativeCommand kExport[] = {{L"WBLOCK", 0, WriteBlock}};

}  // namespace

std::span<const NativeCommand> ExportCommands() { return kExport; }

}  // namespace devhost
