// Apart from the preview, so that rooms are tested without it.
#include "editor/editor_door.h"
#include "editor/selection_preview.h"

void ResetPreviewCounters() { qvx::ThePreview().ResetCounters(); }
