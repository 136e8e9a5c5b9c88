// The code pages of --codepage: sources, and the texts of old compiled files, in a page other than
// the system's. For sources the engine uses a decoder; compiled files have their narrow texts
// widened before it reads them.
#pragma once

#include <string>

#include "menu/ansi_text.h"

constexpr unsigned kUsualPage = 936;

// True when the page is a superset of ASCII and installed on the system.
bool IsKnownPage(unsigned page);
// The page in which the engine reads narrow text by default.
unsigned EnginePage();

class PageDecoder : public NarrowDecoder {
 public:
  explicit PageDecoder(unsigned page) : m_page(page) {}
  void Decode(std::string_view narrow, TWCString& wide) override;

 private:
  const unsigned m_page;
};

// A copy of a compiled file in which texts without marker have the wide form. From a damaged place
// on, the bytes are unchanged.
std::string WithWideTexts(const std::string& bytes, unsigned page);
