// The commands that the sample module registers. Other commands of the menu are unknown to the
// host, which reports them.
#pragma once

struct DesignCommand {
  const wchar_t* name;
  void (*run)();
};

extern const DesignCommand kDesignCommands[];
extern const int kDesignCommandCount;
