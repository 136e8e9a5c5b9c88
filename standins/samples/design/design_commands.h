// The commands that the sample module registers. Other commands of the menu are unknown to the
// host, which reports them.
#pragma once

#include "accmd.h"

struct DesignCommand {
  const wchar_t* name;
  void (*run)();
  int flags = ACRX_CMD_MODAL;
};

extern const DesignCommand kDesignCommands[];
extern const int kDesignCommandCount;
