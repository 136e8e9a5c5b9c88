// The drawing program without its windows: documents, commands, variables, modules, settings of the
// run. One object for the life of the process, reached by TheHost(); the published interface
// (platform/arx) is implemented over it. Main thread only.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "devhost/core/commands/command_engine.h"
#include "devhost/core/commands/command_stack.h"
#include "devhost/core/documents/document.h"
#include "devhost/core/documents/document_list.h"
#include "devhost/core/host/host_ui.h"
#include "devhost/core/modules/menu_groups.h"
#include "devhost/core/modules/module_list.h"
#include "devhost/core/variables/variables.h"

namespace devhost {

struct HostOptions {
  int major = 24, minor = 0;              // the release that the host says it is
  std::wstring profile;                   // CPROFILE; may be empty
  std::vector<std::wstring> supportPath;  // folders, searched in order; file names may be relative
};

class Host {
 public:
  Host();
  ~Host();

  // Before anything else. The ui and the module source outlive the host.
  void Begin(const HostOptions& options, HostUi* ui, ModuleSource* modules);
  // Closes all drawings, unloads all modules.
  void End();

  const HostOptions& Options() const { return m_options; }
  HostUi& Ui() const { return *m_ui; }

  // The file along the support path (the name itself first when it has a folder); empty: not found.
  std::wstring FindFile(const std::wstring& name) const;

  // Text for the command line, recorded as "printed".
  void Print(const std::wstring& text);
  void SetPrompt(const std::wstring& prompt);
  const std::wstring& Prompt() const { return m_prompt; }

  DocumentList documents;
  CommandStack commands;
  CommandEngine engine;
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
