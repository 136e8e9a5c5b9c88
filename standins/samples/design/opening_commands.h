// Commands on doors and windows.
#pragma once

void InsertDoors();
void InsertWindows();
void FlipDoorsAcross();  // to the other side of the wall
void FlipDoorsAlong();   // the hinge to the other side
void LabelOpening();
void LabelOpenings();
void ResetOpeningLabels();  // by type and size
void DrawOpeningTable();
