// The options of all subcommands, filled by the command line.
#pragma once

#include "tools/qmn/commands.h"

struct Options {
  CompileOptions compile;
  LoadOptions load;
  DumpOptions dump;
  CheckOptions check;
  FmtOptions fmt;
  DecompileOptions decompile;
  WhyOptions why;
  WhichOptions which;
  ExplainOptions explain;
  std::string helpOn;  // the command of `qmn help COMMAND`
  bool json = false, tree = false, bytes = false;
};
