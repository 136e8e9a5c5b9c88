#include "frame/settings/comma_list.h"

#include <cwchar>

void SplitCommaList(const wchar_t* text, TWCStringList& pieces) {
  while (const wchar_t* comma = std::wcschr(text, L',')) {
    TWCString piece;
    piece.Assign(text, static_cast<int>(comma - text));
    pieces.Add(piece);
    text = comma + 1;
  }
}

void AppendToCommaList(TWCString& text, const wchar_t* piece) {
  text += piece;
  text += L",";
}
