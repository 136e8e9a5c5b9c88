// What a screen reader calls the text in the box of the in-place editor: the kind of the object
// that the text belongs to.
#pragma once

#include <string>

namespace qvx {

// By the name that drawing files have for the object's class, case ignored. An unknown name is part
// of the result; an empty one gives the word for any text.
std::wstring KindOfText(const std::wstring& type);

}  // namespace qvx
