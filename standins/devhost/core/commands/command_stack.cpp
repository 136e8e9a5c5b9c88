// Registered commands; see the header.
#include "devhost/core/commands/command_stack.h"

#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/host/host.h"

const AcRxResourceInstance AcRxResourceInstance::empty;

namespace devhost {

const Command* CommandStack::Find(const std::wstring& name, bool hostOnly) const {
  const std::wstring wanted = UpperCase(name);
  for (auto c = m_commands.rbegin(); c != m_commands.rend(); ++c)
    if ((!hostOnly || !c->module) && (c->globalName == wanted || c->localName == wanted))
      return &*c;
  return nullptr;
}

Acad::ErrorStatus CommandStack::addCommand(const ACHAR* group, const ACHAR* globalName,
                                           const ACHAR* localName, Adesk::Int32 flags,
                                           AcRxFunctionPtr function, AcEdUIContext*, int,
                                           const AcRxResourceInstance&, AcEdCommand** result) {
  if (result) *result = nullptr;
  if (globalName) TheStartTrace().Step("addCommand", Utf8(globalName));
  if (!group || !globalName || !localName || !function) return Acad::eInvalidInput;
  const std::wstring upper = UpperCase(globalName), owner = UpperCase(group);
  for (const Command& c : m_commands)
    if (c.group == owner && c.globalName == upper) return Acad::eDuplicateKey;
  m_commands.push_back({owner, upper, UpperCase(localName), static_cast<int>(flags), function,
                        TheHost().modules.Running()});
  return Acad::eOk;
}

Acad::ErrorStatus CommandStack::removeCmd(const ACHAR* group, const ACHAR* globalName) {
  if (!group || !globalName) return Acad::eInvalidInput;
  const std::wstring owner = UpperCase(group), upper = UpperCase(globalName);
  return std::erase_if(m_commands,
                       [&](const Command& c) { return c.group == owner && c.globalName == upper; })
             ? Acad::eOk
             : Acad::eKeyNotFound;
}

Acad::ErrorStatus CommandStack::removeGroup(const ACHAR* group) {
  if (!group) return Acad::eInvalidInput;
  const std::wstring owner = UpperCase(group);
  return std::erase_if(m_commands, [&](const Command& c) { return c.group == owner; })
             ? Acad::eOk
             : Acad::eKeyNotFound;
}

void CommandStack::AddNative(const wchar_t* name, int flags, AcRxFunctionPtr function) {
  m_commands.push_back({L"HOST", name, name, flags, function, nullptr});
}

void CommandStack::RemoveModule(const LoadedModule* module) {
  std::erase_if(m_commands, [&](const Command& c) { return c.module == module; });
}

}  // namespace devhost
