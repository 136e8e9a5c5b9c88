// What is on the screen, as a picture: the whole virtual desktop as the window system composed it,
// not as windows would paint themselves if asked.
#pragma once

#include <string>

#include "devhost/play/png_image.h"

namespace devhost {

// Without points when the screen can't be read.
Picture CaptureScreen();

// Writes the picture. Gives what went wrong, or nothing.
std::string SavePng(const Picture& picture, const std::wstring& path);

}  // namespace devhost
