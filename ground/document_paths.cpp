#include "ground/document_paths.h"

TWCString ParentFolder(const wchar_t* folder) {
  TWCString parent(folder);
  for (int i = parent.Length() - 2; i >= 0; --i) {
    if (parent[i] != L'\\') continue;
    parent.Assign(parent, i + 1);
    break;
  }
  return parent;
}

bool FindDocument(const DocumentSearch& search, const wchar_t* tail, TWCString& found,
                  TWCString& lastTried) {
  TWCString first(search.parent);
  first += tail;
  lastTried = search.setup;
  lastTried += L"\\";
  lastTried += tail;
  return search.find(first, found) || search.find(lastTried, found);
}
