// Actions of menu rows, keys and play scripts on the host core: drawings, variables, selection.
// Main thread only.
#pragma once

#include <string>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class Document;

// Prints the reason of a failure on the command line.
bool OpenDrawingFile(const std::wstring& path);
Document* MakeNewDrawing();
bool ActivateDrawingNamed(const std::wstring& name);  // file name without extension, case ignored
void CloseActiveDrawing();                            // discards changes without a question
// Cancels what runs in the current drawing and runs this command of the host. Without a drawing
// only QUIT does something.
void RunHostCommand(const std::wstring& name);
void RunHostCommand(Document& document, const std::wstring& name);

bool SelectByHandles(const std::vector<std::string>& handles);
bool SetVariableText(const std::wstring& name, const std::wstring& value);
bool GetVariableText(const std::wstring& name, std::wstring* value);

std::vector<std::string> HighlightedHandles();  // of the active drawing
void ShowHostHelp();  // F1: prints and records which command help was asked for

std::string DescribeActiveDatabase();  // JSON

}  // namespace devhost
