// Whether the preview may highlight and remember the object under the pointer.
#pragma once

namespace qvx {

constexpr double kFirstHostWithPreview = 16.11;

struct PreviewState {
  double hostVersion = 0;
  bool isEnabled = false;       // the user's setting
  int hostVariable = 0;         // SELECTIONPREVIEW; only of hosts with their own preview
  bool isOffInDrawing = false;  // setting of the drawing
};
// Requires the user's setting. Hosts with a preview of their own need SELECTIONPREVIEW; in earlier
// ones the drawing can turn preview off.
bool IsPreviewAllowed(const PreviewState& state);

// The current drawing's setting; false when it keeps none.
bool IsPreviewOffInDrawing();
// Sets it, if the drawing may be written and keeps settings.
void TurnPreviewOffInDrawing();

}  // namespace qvx
