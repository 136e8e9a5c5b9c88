// The host's frame as the module changes it.
#pragma once

void SetFrameTitle(const wchar_t* title);  // from the product's title and the present text
void HideFrameCaption();
