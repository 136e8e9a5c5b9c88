// The drawing program without windows: documents, commands, variables, modules, options. One object
// for the lifetime of the process; the published interface (platform/arx) is implemented with it.
// Main thread only.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/commands/command_engine.h"
#include "devhost/core/commands/command_stack.h"
#include "devhost/core/documents/document.h"
#include "devhost/core/documents/document_list.h"
#include "devhost/core/documents/editor_events.h"
#include "devhost/core/host/host_ui.h"
#include "devhost/core/modules/menu_groups.h"
#include "devhost/core/modules/module_list.h"
#include "devhost/core/variables/variables.h"

namespace devhost {

struct HostOptions {
  int major = 24, minor = 0;              // the release number of the host
  std::wstring profile;                   // CPROFILE; may be empty
  std::vector<std::wstring> supportPath;  // folders in search order; file names may be relative
};

class Host {
 public:
  Host();
  ~Host();

  // Call first. `ui` and `modules` must outlive the host.
  void Begin(const HostOptions& options, HostUi* ui, ModuleSource* modules);
  // Closes all drawings and unloads all modules.
  void End();

  const HostOptions& Options() const { return m_options; }
  HostUi& Ui() const { return *m_ui; }

  // Finds a file in the support path; a name with a folder is tried first as it is.
  // Empty: not found.
  std::wstring FindFile(const std::wstring& name) const;

  // Prints on the command line; recorded as "printed".
  void Print(const std::wstring& text);
  void SetPrompt(const std::wstring& prompt);

  DocumentList documents;
  CommandStack commands;
  CommandEngine engine;
  EditorEvents editor;
  VariableTable variables;
  ModuleList modules;
  MenuGroups menuGroups;

 private:
  HostOptions m_options;
  HostUi* m_ui;
  std::wstring m_prompt;
};

Host& TheHost();

}  // namespace devhost
