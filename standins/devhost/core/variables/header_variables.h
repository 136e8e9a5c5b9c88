// Variables of a drawing and the header section of its file.
#pragma once

namespace devhost {

class Document;

// Between the variables of a drawing and the header that its file has; names that the host does not
// know stay in the header as they came.
void LoadHeaderVariables(Document& document);
void SaveHeaderVariables(Document& document);

}  // namespace devhost
