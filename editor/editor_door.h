// The message filter, the selection preview and the in-place text editor as other rooms use them.
// No window header.
#pragma once

#include <string>

// Registers the message filter with the host, or removes it.
void InitMessageFilter(bool add);
// The help file named in the product file, for help on the running command.
void SetCommandHelpFile(const wchar_t* name);

// Commits the text that is edited, if any: the module is about to be unloaded.
void CommitInPlaceEdit();
// The commands TInPlaceEdit and TTextEditInBlock.
void RunInPlaceEdit();
void RunTextEditInBlock();
// The editor's section of the shell state: JSON.
std::string DescribeInPlaceEdit();

// Timer of the context window that runs the preview step; pointer moves restart it.
constexpr int kPreviewTimer = 50;
// To be called when it fires: the context window has stopped it.
void StepSelectionPreview();
// For another drawing, which is not charged with the slow hit tests of this one.
void ResetPreviewCounters();
// Whether the object under the pointer counts for a right click.
bool IsPreviewAllowed();
