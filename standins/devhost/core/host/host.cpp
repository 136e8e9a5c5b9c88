// The drawing program without its windows; see the header.
#include "devhost/core/host/host.h"

#include "devhost/core/base/journal.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/drawing/db_classes.h"
#include "devhost/core/host/file_search.h"

namespace devhost {
namespace {

// Used without windows: output is discarded, input is cancelled.
class NullUi : public HostUi {
  void DocumentCreated(Document&) override {}
  void DocumentActivated(Document*) override {}
  void DocumentDestroyed(Document&) override {}
  void DocumentTitled(Document&) override {}
  void PictureChanged(Document&) override {}
  void SelectionChanged(Document&) override {}
  void Print(const std::wstring&) override {}
  void PromptChanged(const std::wstring&) override {}
  void VariableChanged(const std::wstring&) override {}
  void Alert(const std::wstring&) override {}
  Answer Ask(const std::wstring&, Choices) override { return Answer::Cancel; }
  bool PumpWhileWaiting() override { return false; }
  void EndProgram() override {}
};
NullUi nullUi;

}  // namespace

Host::Host() : m_ui(&nullUi) {
  RegisterDatabaseClasses();
  RegisterNativeCommands(commands);
}

Host::~Host() = default;

void Host::Begin(const HostOptions& options, HostUi* ui, ModuleSource* source) {
  m_options = options;
  m_ui = ui ? ui : &nullUi;
  modules.SetSource(source);
}

void Host::End() {
  documents.enableDocumentActivation();  // a module may have left it disabled
  while (!documents.All().empty()) {
    Document& last = *documents.All().back();
    last.commands.clear();
    last.locks = 0;
    documents.Close(&last);
  }
  modules.UnloadAll();
  menuGroups.Clear();
  m_ui = &nullUi;
  modules.SetSource(nullptr);
}

std::wstring Host::FindFile(const std::wstring& name) const {
  return FindFileIn(m_options.supportPath, name);
}

void Host::Print(const std::wstring& text) {
  TheJournal().Record("printed", {{"text", Utf8(text)}});
  m_ui->Print(text);
}

void Host::SetPrompt(const std::wstring& prompt) {
  if (prompt == m_prompt) return;
  m_prompt = prompt;
  TheJournal().Record("prompt", {{"text", Utf8(prompt)}});
  m_ui->PromptChanged(prompt);
}

Host& TheHost() {
  // Never deleted: static objects of modules may still call it at exit.
  static Host* host = new Host;
  return *host;
}

}  // namespace devhost
