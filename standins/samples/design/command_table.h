// All commands of the product menu that no other module defines, and further commands of this one.
#pragma once

#include "accmd.h"

struct DesignCommand {
  const wchar_t* name;
  void (*run)();
  int flags = ACRX_CMD_MODAL;
};

extern const DesignCommand kDesignCommands[];
extern const int kDesignCommandCount;

// Prints that the running command belongs to a module that is not part of this package.
void TellNotInPackage();
