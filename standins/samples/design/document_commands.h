// Commands for drawings and symbols: TSymbol, TDocSwitch.
#pragma once

#include "design_commands.h"

extern const DesignCommand kDocumentCommands[];
extern const int kDocumentCommandCount;
