// Registers run-time classes of drawing objects with the host, and removes them.
#pragma once

#include "rxobject.h"

// After the last one, acrxBuildClassHierarchy has to be called.
template <class... Class>
void RegisterClasses() {
  (Class::rxInit(), ...);
}

// In the given order, derived classes first. A class that is not registered is passed over.
template <class... Class>
void RemoveClasses() {
  const auto remove = [](AcRxClass*& description) {
    if (description) deleteAcRxClass(description);
    description = nullptr;
  };
  (remove(Class::gpDesc), ...);
}
