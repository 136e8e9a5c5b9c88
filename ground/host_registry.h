// The host's system registry: the linker that loads modules and the stack that holds commands. Each
// is looked up anew and given only when it is what its name says.
#pragma once

class AcRxDynamicLinker;
class AcEdCommandStack;

AcRxDynamicLinker* HostLinker();
AcEdCommandStack* HostCommands();
