// Copies variables between a drawing and the header section of its file.
#pragma once

namespace devhost {

class Document;

// Header names that are not variables of the host are unchanged.
void LoadHeaderVariables(Document& document);
void SaveHeaderVariables(Document& document);

}  // namespace devhost
