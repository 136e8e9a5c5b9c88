// Commands that write texts, dimensions and symbols.
#pragma once

void WriteText();
void WriteLines();
void ReplaceTexts();
void Dimension();
void DimensionPoints();
void DimensionWall();          // its thickness
void DimensionWallOpenings();  // the openings along it
void DimensionRadius();
void AngularDimension();
void MarkElevation();
void DrawArrow();
void DrawSectionSymbol();
void DrawNorthArrow();
void WriteTitle();
