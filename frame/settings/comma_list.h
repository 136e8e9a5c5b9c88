// Lists as text: every entry is followed by a comma, the last one too. Form of the recent files and
// recent commands in the settings.
#pragma once

#include "kernel/twcstring.h"

// Pieces in text order, empty ones included. Text after the last comma is no entry: a truncated
// text loses its last piece.
void SplitCommaList(const wchar_t* text, TWCStringList& pieces);

void AppendToCommaList(TWCString& text, const wchar_t* piece);
