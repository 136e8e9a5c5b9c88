// Commands that draw the annotations, edit an object and put objects into groups.
#pragma once

#include "design_commands.h"

extern const DesignCommand kAnnotationCommands[];
extern const int kAnnotationCommandCount;
