#include "editor/editor_door.h"
#include "editor/selection_preview.h"

namespace qvx {

SelectionPreview& ThePreview() {
  static SelectionPreview preview;
  return preview;
}

}  // namespace qvx

void ResetPreviewCounters() { qvx::ThePreview().ResetCounters(); }
