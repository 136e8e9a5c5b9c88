// The module towards the host's linker: the kernel, and the module's own registration.
#pragma once

void LoadKernel();
void UnloadKernel();
// `packet` is what the host gave with the load message.
void UnlockModule(void* packet);
void RegisterMdiAware(void* packet);
