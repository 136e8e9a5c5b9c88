// Commands that draw tables and annotations, edit an object and put objects into groups.
#pragma once

void DrawSheet();
void DrawNote();
void DrawFloorRect();
void DrawIndex();
void DrawPointer();
void DrawAxisLabel();
void DrawSlow();
void EditObject();
void GroupObjects();
