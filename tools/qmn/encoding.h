// How a menu source is encoded: the code page that the shell reads, or one of the Unicode forms in
// which editors save by default; and conversion between them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

enum class Encoding {
  kPage,          // can be read in the page
  kUtf8,          // while another code page is expected
  kUtf8WithMark,  // the same, with a byte order mark
  kUtf16Little,   // with or without a mark
  kUtf16Big,
  kNotUtf8,  // while UTF-8 is expected
};

// The encoding of a source that is to be read in `page`.
Encoding EncodingOf(std::string_view bytes, unsigned page);

// Removes the mark of UTF-8.
void RemoveUtf8Mark(std::string& bytes);

// The text in UTF-8, without a mark. `page` is used for kPage; kNotUtf8 is read in the usual page.
std::string ToUtf8(const std::string& bytes, Encoding encoding, unsigned page);

struct Encoded {
  std::string bytes;
  // Offset in the UTF-8 text of the first character that the page lacks, npos for none.
  size_t lackingAt = std::string::npos;
  std::string lacking;  // that character: "U+1F600"
};
Encoded FromUtf8(const std::string& utf8, unsigned page);
