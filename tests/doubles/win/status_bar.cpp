// The status bar's door, and the preview's, noted in TheRooms.
#include "editor/editor_door.h"
#include "statusbar/status_bar_door.h"
#include "tests/doubles/win/rooms.h"

RoomsDouble& TheRooms() {
  static auto* rooms = new RoomsDouble;  // outlives every window
  return *rooms;
}

void UpdateStatusPanes() {
  ++TheRooms().panesUpdated;
  if (TheRooms().onPanes) TheRooms().onPanes();
}
void RefreshDrawingPanes() { TheRooms().order += 'b'; }
void RefreshScaleText() { TheRooms().order += 'c'; }
void qvx::WriteHatchScale() { TheRooms().order += 'a'; }
void ResetPreviewCounters() { TheRooms().order += 'd'; }
