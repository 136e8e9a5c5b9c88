// Commands on walls and columns.
#pragma once

void DrawWalls();
void DrawArcWall();  // as straight pieces
void LinesToWalls();
void AxesToWalls();
void OffsetWall();
void SetWallWidth();
void SetWallHeight();
void InsertColumn();
