// The host's frame as the module changes it, and the text that goes to its command line.
#pragma once

void SetFrameTitle(const wchar_t* title);  // from the product's title and the present text
void HideFrameCaption();
// To the current document, activating it and echoing; nothing happens without one.
void SendToHost(const wchar_t* text);
