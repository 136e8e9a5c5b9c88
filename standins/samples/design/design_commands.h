// The design commands that the sample module registers, each a function without arguments as the
// command stack wants it. Rows of the menu that are not here are unknown commands, and the host
// says so.
#pragma once

struct DesignCommand {
  const wchar_t* name;
  void (*run)();
};

extern const DesignCommand kDesignCommands[];
extern const int kDesignCommandCount;
