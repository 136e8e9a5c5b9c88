// Paths of the tutorial, the questions and the clips: text functions over the program folder and
// the folder that the product was set up from.
#pragma once

#include "ground/support_files.h"

// The folder above `folder` ("C:\QVX\Sys\" gives "C:\QVX\"); the text itself when there is none.
TWCString ParentFolder(const wchar_t* folder);

// Sets `found` to the first of `parent + tail` and `setup + "\" + tail` that `find` finds; false
// when neither exists. `lastTried` gets the second path, for a message.
struct DocumentSearch {
  TWCString parent;  // ends in a backslash
  TWCString setup;
  qvx::FindFileFunction find;
};
bool FindDocument(const DocumentSearch& search, const wchar_t* tail, TWCString& found,
                  TWCString& lastTried);
