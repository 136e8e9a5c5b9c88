// What other rooms ask of the status bar's panes. Called by the palette, by pop-ups and by the
// reactor that follows the active drawing.
#pragma once

// A switch has changed: style and icon of all switch panes, then the bar.
void UpdateStatusPanes();

// Another drawing became active. The caller updates the bar.
void RefreshDrawingPanes();
void RefreshScaleText();

namespace qvx {

// The scale in force to HPSCALE: hatches follow the drawing scale.
void WriteHatchScale();

}  // namespace qvx
