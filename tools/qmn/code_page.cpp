#include "tools/qmn/code_page.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "adsdef.h"
#include "afxstr.h"
#include "kernel/qvxexport.h"

namespace {

constexpr unsigned kPages[] = {874,  932,  936,  949,  950,  1250, 1251, 1252,
                               1253, 1254, 1255, 1256, 1257, 1258, 65001};
constexpr char kWideMark[] = "\xFF\xFE\xFF";

struct Truncated {};

// Walks the fields of a compiled file and copies them, with narrow texts in wide form.
class TextWidener {
 public:
  TextWidener(const std::string& bytes, unsigned page) : m_bytes(bytes), m_page(page) {}

  std::string Run() {
    try {
      File();
    } catch (const Truncated&) {
    }
    return m_out.append(m_bytes, m_copied);
  }

 private:
  uint32_t Take(size_t width) {
    Require(width);
    uint32_t value = 0;
    for (size_t i = 0; i < width; ++i)
      value |= static_cast<uint32_t>(static_cast<unsigned char>(m_bytes[m_at + i])) << 8 * i;
    m_at += width;
    return value;
  }
  void Require(size_t count) const {
    if (m_bytes.size() - m_at < count) throw Truncated{};
  }
  void Skip(size_t count) {
    Require(count);
    m_at += count;
  }

  size_t Length() {
    const uint32_t one = Take(1);
    if (one != 0xFF) return one;
    const uint32_t two = Take(2);
    return two != 0xFFFF ? two : Take(4);
  }

  void Text() {
    const size_t begin = m_at;
    if (m_bytes.compare(m_at, 3, kWideMark) == 0) {
      m_at += 3;
      const size_t units = Length();
      if ((m_bytes.size() - m_at) / 2 < units) throw Truncated{};
      return Skip(2 * units);
    }
    const size_t length = Length();
    Skip(length);
    m_out.append(m_bytes, m_copied, begin - m_copied);
    m_copied = m_at;
    PutWide(AnsiToWide({m_bytes.data() + m_at - length, length}, m_page));
  }
  void Texts(int count) {
    for (; count; --count) Text();
  }

  // Any length form is valid: the reader accepts all of them.
  void PutWide(const std::wstring& units) {
    m_out += kWideMark;
    m_out += "\xFF\xFF\xFF";
    for (int i = 0; i < 4; ++i) m_out += static_cast<char>(units.size() >> 8 * i);
    for (const wchar_t unit : units) {
      m_out += static_cast<char>(unit & 0xFF);
      m_out += static_cast<char>(unit >> 8 & 0xFF);
    }
  }

  void File() {
    Text();
    Skip(12);
    Text();
    for (uint32_t left = Take(4); left; --left) Texts(3);
    for (uint32_t left = Take(4); left; --left) {
      Texts(3);
      for (uint32_t states = Take(4); states; --states) {
        Skip(4);
        Texts(2);
        Skip(4);
      }
    }
    for (uint32_t left = Take(4); left; --left) Bar();
  }

  uint32_t BarHead() {
    Texts(2);
    for (uint32_t left = Take(4); left; --left) Group();
    return Take(4);
  }

  void Group() {
    switch (QvxExport::TypeOfCode(static_cast<int>(Take(2)))) {
      case RTREAL:
        return Skip(8);
      case RTSHORT:
      case RTLONG:
        return Skip(4);
      case RTSTR:
        return Text();
      default:
        return;
    }
  }

  void ItemTail() {
    Skip(8);
    Texts(3);
    Skip(4);
  }

  void Bar() {
    std::vector<uint32_t> left{BarHead()};
    while (!left.empty()) {
      if (left.back() == 0) {
        left.pop_back();
        if (!left.empty()) ItemTail();
        continue;
      }
      --left.back();
      Texts(2);
      if (Take(4))
        left.push_back(BarHead());
      else
        ItemTail();
    }
  }

  const std::string& m_bytes;
  const unsigned m_page;
  std::string m_out;
  size_t m_at = 0, m_copied = 0;
};

}  // namespace

bool IsKnownPage(unsigned page) {
  if (std::find(std::begin(kPages), std::end(kPages), page) == std::end(kPages)) return false;
  // With a page that the system lacks, the result is empty. Each page of the table has this pair of
  // bytes, as one character or as two.
  const std::wstring wide = AnsiToWide("\xC4\xA3", page);
  return !wide.empty() && std::count(wide.begin(), wide.end(), wchar_t{0xFFFD}) == 0;
}

void PageDecoder::Decode(std::string_view narrow, TWCString& wide) {
  const std::wstring units = AnsiToWide(narrow, m_page);
  wide.Assign(units.data(), static_cast<int>(units.size()));
}

std::string WithWideTexts(const std::string& bytes, unsigned page) {
  return TextWidener(bytes, page).Run();
}
