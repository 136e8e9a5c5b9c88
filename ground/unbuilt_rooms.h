// Steps of the module whose room is not built. Each function only counts its calls in the list
// below, which QvxDescribeShell reports ("unbuilt"), and is removed from this file when its room
// has it.
#pragma once

struct UnbuiltStep {
  const char* name;  // as a user or a sibling module knows it
  const char* room;  // the folder that will hold it
  int calls;         // since the module was loaded
};

const UnbuiltStep* UnbuiltSteps(int* count);

namespace unbuilt {

// Commands and LISP functions.
void InPlaceEdit();
void TextEditInBlock();

}  // namespace unbuilt
