// Saving drawings; see the header.
#include "devhost/core/commands/save_drawing.h"

#include <filesystem>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/header_variables.h"

namespace devhost {
namespace {

bool IsOpen(const Document& document) { return TheHost().documents.FindDocument(&document); }

void PrintLine(const std::wstring& text) { TheHost().Print(L"\n" + text + L"\n"); }

// With the extension of drawings if it has none.
std::filesystem::path FullPathOf(const std::wstring& typed) {
  std::filesystem::path path(typed);
  if (!path.has_extension()) path += L".dxf";
  std::error_code error;
  const std::filesystem::path full = std::filesystem::absolute(path, error);
  return error ? path : full.lexically_normal();
}

// Whether the user lets the drawing take this file.
bool MayTake(const Document& document, const std::filesystem::path& path) {
  const Document* other = TheHost().documents.FindByPath(path.wstring());
  if (other == &document) return true;
  if (other) {
    PrintLine(path.wstring() + L" 已作为另一个图形打开，不能覆盖。");
    return false;
  }
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return true;
  return TheHost().Ui().Ask(path.wstring() + L" 已存在。\n是否替换它?", Choices::YesNo) ==
         Answer::Yes;
}

}  // namespace

bool IsModified(const Document& document) { return document.database()->body().modified != 0; }

std::wstring ShownName(const Document& document) { return document.fileName(); }

bool SaveDrawingTo(Document& document, const std::wstring& path) {
  std::wstring why;
  SaveHeaderVariables(document);
  if (!WriteDrawing(path, *document.database(), &why)) {
    PrintLine(why);
    return false;
  }
  document.database()->body().modified = 0;
  if (!document.HasFile() || path != document.fileName())
    TheHost().documents.Rename(document, path);
  if (IsOpen(document)) TheHost().modules.SendToAll(AcRx::kSaveMsg, &document);
  return true;
}

bool SaveDrawing(Document& document) {
  return document.HasFile() ? SaveDrawingTo(document, document.fileName())
                            : SaveDrawingAs(document);
}

bool SaveDrawingAs(Document& document) {
  TheHost().documents.BringToFront(document);
  if (TheHost().documents.Current() != &document) return false;
  const std::wstring typed =
      TheHost().engine.AskForFileName(L"将 " + document.Title() + L" 另存为: ");
  if (typed.empty() || !IsOpen(document)) return false;
  const std::filesystem::path path = FullPathOf(typed);
  return MayTake(document, path) && IsOpen(document) && SaveDrawingTo(document, path.wstring());
}

}  // namespace devhost
