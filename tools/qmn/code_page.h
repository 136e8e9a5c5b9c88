// The code pages that --codepage names: sources and the texts of old compiled files in another page
// than the system's. The engine asks a decoder for sources; compiled files get their narrow texts
// widened in front of it.
#pragma once

#include <string>

#include "menu/ansi_text.h"

constexpr unsigned kUsualPage = 936;

// One of the pages in which ASCII stands for itself, and the system has it.
bool IsKnownPage(unsigned page);
// The one that the engine reads narrow text in by itself.
unsigned EnginePage();

class PageDecoder : public NarrowDecoder {
 public:
  explicit PageDecoder(unsigned page) : m_page(page) {}
  void Decode(std::string_view narrow, TWCString& wide) override;

 private:
  const unsigned m_page;
};

// A compiled file with its texts without marker in the form that has one. Where the file is damaged
// the rest is as it was.
std::string WithWideTexts(const std::string& bytes, unsigned page);
