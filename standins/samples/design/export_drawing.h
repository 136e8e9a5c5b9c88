// TSaveAs: exports the whole current drawing to a file of another name. The drawing keeps its own.
#pragma once

void ExportDrawing();
