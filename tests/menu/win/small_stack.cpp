// OnSmallStack by the system's threads.
#include "afx.h"

#include "tests/menu/menu_testing.h"

void OnSmallStack(void (*work)()) {
  HANDLE thread = CreateThread(
      nullptr, kSmallStack,
      [](void* argument) -> DWORD {
        reinterpret_cast<void (*)()>(argument)();
        return 0;
      },
      reinterpret_cast<void*>(work), STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}
