// A second reader of the compiled file, over plain bytes and independent of the engine's, so that a
// damaged file can be shown up to the damage. A block is identified by its index, a sub-menu by its
// offset: a name that repeated all its parents would grow with the depth.
#include "tools/qmn/dump_forms.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <ostream>
#include <vector>

#include "adsdef.h"
#include "afxstr.h"
#include "kernel/qvxexport.h"
#include "kernel/twcstring.h"
#include "tools/qmn/json_out.h"
#include "tools/qmn/tool_text.h"

namespace {

struct Truncated {};

std::string Hex(size_t value) {
  char text[20];
  std::snprintf(text, sizeof text, "%08llX", static_cast<unsigned long long>(value));
  return text;
}

class FieldDump {
 public:
  FieldDump(const std::string& bytes, unsigned page, std::ostream& out)
      : m_bytes(bytes), m_page(page), m_out(out) {}

  bool Run() {
    try {
      if (!File()) return false;
    } catch (const Truncated&) {
      m_out << Hex(m_bytes.size()) << "  end of file, too early\n";
      return false;
    }
    if (m_at != m_bytes.size())
      m_out << Hex(m_at) << "  " << m_bytes.size() - m_at << " bytes behind the model\n";
    return true;
  }

 private:
  struct Place {
    std::string name;
    uint32_t next, count;
  };

  uint64_t Take(size_t width) {
    if (m_bytes.size() - m_at < width) throw Truncated{};
    uint64_t value = 0;
    for (size_t i = 0; i < width; ++i)
      value |= static_cast<uint64_t>(static_cast<unsigned char>(m_bytes[m_at + i])) << 8 * i;
    m_at += width;
    return value;
  }

  std::ostream& Line(size_t at, const std::string& name) {
    return m_out << Hex(at) << "  " << name << " = ";
  }
  uint32_t U32(const std::string& name) {
    const size_t at = m_at;
    const auto value = static_cast<uint32_t>(Take(4));
    Line(at, name) << value << "\n";
    return value;
  }
  void I32(const std::string& name) {
    const size_t at = m_at;
    const auto value = static_cast<int32_t>(Take(4));
    Line(at, name) << value << "\n";
  }
  uint16_t U16(const std::string& name) {
    const size_t at = m_at;
    const auto value = static_cast<uint16_t>(Take(2));
    Line(at, name) << value << "\n";
    return value;
  }
  void Real(const std::string& name) {
    const size_t at = m_at;
    const double value = std::bit_cast<double>(Take(8));
    Line(at, name);
    JsonOut(m_out).Real(value);
    m_out << "\n";
  }

  size_t LengthOfText() {
    const uint64_t one = Take(1);
    if (one != 0xFF) return one;
    const uint64_t two = Take(2);
    return two != 0xFFFF ? two : Take(4);
  }
  std::wstring WideText(size_t length) {
    if ((m_bytes.size() - m_at) / 2 < length) throw Truncated{};
    std::wstring units;
    while (length--) units += static_cast<wchar_t>(Take(2));
    return units;
  }
  std::wstring NarrowText(size_t length) {
    if (m_bytes.size() - m_at < length) throw Truncated{};
    const std::string narrow = m_bytes.substr(m_at, length);
    m_at += length;
    return AnsiToWide(narrow, m_page);
  }
  std::wstring String(const std::string& name) {
    const size_t at = m_at;
    const bool wide = m_bytes.compare(m_at, 3, "\xFF\xFE\xFF") == 0;
    if (wide) m_at += 3;
    const size_t length = LengthOfText();
    const std::wstring text = wide ? WideText(length) : NarrowText(length);
    Line(at, name);
    JsonOut(m_out).Text(text);
    m_out << (wide ? "\n" : " in the code page\n");
    return text;
  }

  static std::string At(const std::string& list, uint32_t index) {
    return list + "[" + std::to_string(index) + "]";
  }

  bool File() {
    const TWCString magic(String("magic").c_str());
    if (!magic.EqualsNoCase(L"Quivera Compiled Menu File")) return false;
    U32("version");
    U32("reserved[0]");
    U32("reserved[1]");
    String("title");
    const uint32_t resources = U32("resources.count");
    for (uint32_t i = 0; i < resources; ++i) Resource(At("resources", i));
    const uint32_t switches = U32("switches.count");
    for (uint32_t i = 0; i < switches; ++i) Switch(At("switches", i));
    const uint32_t bars = U32("bars.count");
    for (uint32_t i = 0; i < bars; ++i) Bar(At("bars", i));
    return true;
  }

  void Resource(const std::string& name) {
    String(name + ".name");
    String(name + ".image");
    String(name + ".image2");
  }

  void Switch(const std::string& name) {
    String(name + ".name");
    String(name + ".get");
    String(name + ".set");
    const uint32_t states = U32(name + ".states.count");
    for (uint32_t i = 0; i < states; ++i) {
      const std::string state = At(name + ".states", i);
      I32(state + ".value");
      String(state + ".icon");
      String(state + ".label");
      I32(state + ".iconIndex");
    }
  }

  uint32_t BarHead(const std::string& name) {
    String(name + ".name");
    String(name + ".kind");
    const uint32_t groups = U32(name + ".mask.count");
    for (uint32_t i = 0; i < groups; ++i) Group(At(name + ".mask", i));
    return U32(name + ".items.count");
  }

  void Group(const std::string& name) {
    switch (QvxExport::TypeOfCode(U16(name + ".code"))) {
      case RTREAL:
        return Real(name + ".value");
      case RTSHORT:
      case RTLONG:
        return I32(name + ".value");
      case RTSTR:
        String(name + ".value");
        return;
      default:
        return;
    }
  }

  void Bar(const std::string& root) {
    std::vector<Place> path;
    const uint32_t lines = BarHead(root);
    path.push_back({root, 0, lines});
    while (!path.empty()) {
      Place& place = path.back();
      if (place.next == place.count) {
        path.pop_back();
        if (!path.empty()) ItemTail(At(path.back().name + ".items", path.back().next - 1));
        continue;
      }
      const std::string item = At(place.name + ".items", place.next++);
      String(item + ".label");
      String(item + ".command");
      if (!U32(item + ".hasSubmenu")) {
        ItemTail(item);
        continue;
      }
      std::string below = "submenu@" + Hex(m_at);
      const uint32_t count = BarHead(below);
      path.push_back({std::move(below), 0, count});
    }
  }

  void ItemTail(const std::string& item) {
    I32(item + ".switch");
    U32(item + ".flags");
    String(item + ".checkFn");
    String(item + ".grayFn");
    String(item + ".iconName");
    I32(item + ".iconIndex");
  }

  const std::string& m_bytes;
  const unsigned m_page;
  std::ostream& m_out;
  size_t m_at = 0;
};

}  // namespace

bool DumpFields(const std::string& bytes, unsigned page, std::ostream& out) {
  return FieldDump(bytes, page, out).Run();
}
