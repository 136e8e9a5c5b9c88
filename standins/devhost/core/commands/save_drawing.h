// Saving drawings. A successful save clears DBMOD and sends kSaveMsg to the modules; a failed one
// prints the reason, and the drawing stays open and modified. Names are asked on the command line,
// so a command must be running.
#pragma once

#include <string>

namespace devhost {

class Document;

bool IsModified(const Document& document);
std::wstring ShownName(const Document& document);  // the full path, or the name of a new drawing

// All return false if nothing was saved. A drawing without a file is brought to the front and asked
// for a name.
bool SaveDrawing(Document& document);
bool SaveDrawingAs(Document& document);
bool SaveDrawingTo(Document& document, const std::wstring& path);

}  // namespace devhost
