// Commands that draw parts of a building: rooms, stairs, balconies, floors; and frames of sheets.
#pragma once

void DrawRoom();
void MeasureRoom();
void SumRooms();
void OutlineRoom();
void DrawFloorTiles();
void DrawStair();
void DrawArcStair();
void DrawDoubleStair();
void DrawLift();
void DrawSteps();
void DrawBalcony();
void DrawSheetFrame();
