// Texts that keep a list: every entry is followed by a comma, the last one too. That is how recent
// files and recent commands lie in the settings.
#pragma once

#include "kernel/twcstring.h"

// Pieces in text order, empty ones included. What stands behind the last comma is no entry: a text
// that was cut short loses its last piece.
void SplitCommaList(const wchar_t* text, TWCStringList& pieces);

void AppendToCommaList(TWCString& text, const wchar_t* piece);
