// The host's system registry: the linker that loads modules and the stack that holds commands. Each
// is looked up at every call; null when the entry is missing or of another class.
#pragma once

class AcRxDynamicLinker;
class AcEdCommandStack;

AcRxDynamicLinker* HostLinker();
AcEdCommandStack* HostCommands();
