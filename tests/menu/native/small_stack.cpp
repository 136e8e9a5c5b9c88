// OnSmallStack by POSIX threads.
#include <pthread.h>

#include "tests/menu/menu_testing.h"

void OnSmallStack(void (*work)()) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, kSmallStack);
  pthread_t thread;
  pthread_create(
      &thread, &attributes,
      [](void* argument) -> void* {
        reinterpret_cast<void (*)()>(argument)();
        return nullptr;
      },
      reinterpret_cast<void*>(work));
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}
