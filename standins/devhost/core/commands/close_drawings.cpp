// Closing by the user; see the header.
#include "devhost/core/commands/close_drawings.h"

#include <vector>

#include "devhost/core/commands/save_drawing.h"
#include "devhost/core/host/host.h"

namespace devhost {
namespace {

// A question runs messages: a drawing may be closed when it returns.
bool IsOpen(Document* document) { return TheHost().documents.FindDocument(document); }

std::vector<Document*> AllDrawings() {
  std::vector<Document*> all;
  for (const auto& document : TheHost().documents.All()) all.push_back(document.get());
  return all;
}

Answer AskAboutChanges(const Document& document) {
  if (!IsModified(document)) return Answer::No;
  return TheHost().Ui().Ask(L"是否将改动保存到 " + ShownName(document) + L"?",
                            Choices::YesNoCancel);
}

// The command that closes its own drawing does not delay the closing; an enclosing one does.
void EndOwnCommand(Document& document) {
  if (document.commands.size() == 1) document.commands.clear();
}

}  // namespace

bool CloseAsUser(Document& document) {
  const Answer answer = AskAboutChanges(document);
  if (!IsOpen(&document)) return true;
  if (answer == Answer::Cancel) return false;
  if (answer == Answer::Yes && !SaveDrawing(document)) return !IsOpen(&document);
  if (!IsOpen(&document)) return true;
  EndOwnCommand(document);
  TheHost().documents.Close(&document);
  return true;
}

bool CloseAllAsUser() {
  for (Document* document : AllDrawings())
    if (IsOpen(document) && !CloseAsUser(*document)) return false;
  return true;
}

bool MayQuit() {
  std::vector<Document*> toSave;
  for (Document* document : AllDrawings()) {
    if (!IsOpen(document)) continue;
    const Answer answer = AskAboutChanges(*document);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) toSave.push_back(document);
  }
  for (Document* document : toSave)
    if (IsOpen(document) && !SaveDrawing(*document) && IsOpen(document)) return false;
  return true;
}

}  // namespace devhost
