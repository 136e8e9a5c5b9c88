// Changes to the host's frame window.
#pragma once

class CWnd;

CWnd* HostFrame();  // null when no frame is up

void SetFrameTitle(const wchar_t* title);  // from the product's title and the present text
void HideFrameCaption();
