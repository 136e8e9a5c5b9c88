// The development host with the real module and a drawing: finds and changes texts, double clicks
// on them, types, and runs commands, as a user does. Messages are handled until none is left, so
// that everything is painted. One per program, as the host.
#pragma once

#include <string>

#include "dbmain.h"
#include "tests/module/win/host_process.h"

class AcDbBlockTableRecord;

namespace bench {

// False when the modules can't be loaded.
bool LoadModules();
void UnloadModules();

void Pump();  // until the queue is empty
HWND Box();   // null while the editor is closed

bool OpenPlan();                                     // the sample plan; false when it can't be read
void NewDrawing();                                   // empty
AcDbBlockTableRecord* Space();                       // of the current drawing
void ShowAround(double x, double y, double height);  // in the view of the current drawing

AcDbObjectId FindRoom();  // the first in the current drawing; null without one
std::wstring NameOf(AcDbObjectId room);
void Rename(AcDbObjectId room, const std::wstring& name);

// Presses twice in the middle of the text. Returns when the double click was handled; paint
// messages and the like are left in the queue.
void DoubleClickOn(AcDbObjectId room);
void PressKey(WPARAM key);
void RunCommand(const std::wstring& text);  // as typed

}  // namespace bench
