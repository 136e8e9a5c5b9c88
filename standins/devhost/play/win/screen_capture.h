// The screen as a picture: the whole virtual desktop as the window system displays it.
#pragma once

#include <string>

#include "devhost/play/png_image.h"

namespace devhost {

// Empty if the screen cannot be read.
Picture CaptureScreen();

// Writes a PNG file. Returns the error, or nothing.
std::string SavePng(const Picture& picture, const std::wstring& path);

}  // namespace devhost
