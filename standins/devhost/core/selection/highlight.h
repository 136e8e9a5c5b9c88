// Which objects of a drawing are drawn highlighted. Selecting and acedRedraw set and end the same
// state of an object, so ending it on a selected object shows, as in the published interface. The
// host's own preview of the object under the pointer is drawn the same way but is a state of its
// own.
#pragma once

#include <vector>

#include "dbmain.h"

namespace devhost {

class Document;

void SetHighlight(Document& document, AcDbObjectId id, bool on);
bool IsHighlighted(const Document& document, AcDbObjectId id);           // the preview included
std::vector<AcDbObjectId> HighlightedObjects(const Document& document);  // without erased ones
void ForgetHighlights(Document& document);  // before objects are deleted

// The preview by the host: from release 16.11 on, by SELECTIONPREVIEW (1 while no command runs, 2
// while a command asks for objects). Highlights the object nearest to the point.
void PreviewAt(Document& document, const AcGePoint3d& at, double reach);
void EndPreview(Document& document);

}  // namespace devhost
