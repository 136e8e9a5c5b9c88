// Commands on axes and their numbers.
#pragma once

void DrawAxes();
void DrawArcAxes();
void DimensionAxes();  // numbers and dimensions along a line across the axes
void SwitchAxisLinetype();
void NumberAxis();
void AddAxisNumber();
void DeleteAxisNumbers();
void SortAxisNumbers();
void ReverseAxisNumbers();
