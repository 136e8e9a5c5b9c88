// Commands on layers and blocks, and on settings of the drawing.
#pragma once

void SetLayer();  // makes it if it is missing
void MoveBlocksToLayer();
void InsertLibraryBlock();
void ToggleOrtho();
