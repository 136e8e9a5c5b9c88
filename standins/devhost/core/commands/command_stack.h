// The registered commands, in groups. Names are stored and compared in upper case.
#pragma once

#include <string>
#include <vector>

#include "accmd.h"

namespace devhost {

struct LoadedModule;

struct Command {
  std::wstring group, globalName, localName;
  int flags = 0;
  AcRxFunctionPtr function = nullptr;
  LoadedModule* module = nullptr;  // null: a command of the host
};

class CommandStack : public AcEdCommandStack {
 public:
  // The command of the latest registration. The prefixes "_" (global name) and "." (host command)
  // have been removed by the caller; `hostOnly` is the latter.
  const Command* Find(const std::wstring& name, bool hostOnly) const;
  const std::vector<Command>& All() const { return m_commands; }

  Acad::ErrorStatus addCommand(const ACHAR* group, const ACHAR* globalName, const ACHAR* localName,
                               Adesk::Int32 flags, AcRxFunctionPtr function,
                               AcEdUIContext* uiContext, int functionCode,
                               const AcRxResourceInstance& resource, AcEdCommand** result) override;
  Acad::ErrorStatus removeCmd(const ACHAR* group, const ACHAR* globalName) override;
  Acad::ErrorStatus removeGroup(const ACHAR* group) override;
  void RemoveModule(const LoadedModule* module);
  void AddNative(const wchar_t* name, int flags,
                 AcRxFunctionPtr function);  // before any module is loaded

 private:
  std::vector<Command> m_commands;
};

}  // namespace devhost
