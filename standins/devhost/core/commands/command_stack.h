// The registered commands, in groups. Names are kept in upper case and compared so.
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
  LoadedModule* module = nullptr;  // null: the host's own
};

class CommandStack : public AcEdCommandStack {
 public:
  // The latest registration wins. A leading "_" asks for the global name and a leading "." for the
  // host's own command; the caller has cut both off and tells.
  const Command* Find(const std::wstring& name, bool hostOnly) const;
  const std::vector<Command>& All() const { return m_commands; }

  Acad::ErrorStatus addCommand(const ACHAR* group, const ACHAR* globalName, const ACHAR* localName,
                               LONG flags, AcRxFunctionPtr function, AcEdUIContext* uiContext,
                               int functionCode, const AcRxResourceInstance& resource,
                               AcEdCommand** result) override;
  Acad::ErrorStatus removeCmd(const ACHAR* group, const ACHAR* globalName) override;
  Acad::ErrorStatus removeGroup(const ACHAR* group) override;
  void RemoveModule(const LoadedModule* module);
  void AddNative(const wchar_t* name, int flags,
                 AcRxFunctionPtr function);  // at start, before any module

 private:
  std::vector<Command> m_commands;
};

}  // namespace devhost
