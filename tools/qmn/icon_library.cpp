#include "tools/qmn/icon_library.h"

#include <cstdint>

#include "tools/qmn/check/names.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr uint32_t kBitmapType = 2;  // RT_BITMAP
constexpr uint32_t kIsName = 0x80000000, kIsFolder = 0x80000000;
constexpr size_t kMostSections = 96;  // of a module that the system loads

struct Damaged {};

// Reads the module's headers and its resource folder. Every read is checked against the size.
class ModuleReader {
 public:
  explicit ModuleReader(const std::string& bytes) : m_bytes(bytes) {}

  NameSet Bitmaps() {
    FindResources();
    NameSet names;
    if (!m_base) return names;
    for (uint32_t entry = 0; entry < EntryCount(0); ++entry) {
      if (Value(EntryAt(0, entry), 4) != kBitmapType) continue;
      const uint32_t folder = Value(EntryAt(0, entry) + 4, 4);
      if (folder & kIsFolder) AddNames(folder & ~kIsFolder, names);
    }
    return names;
  }

 private:
  uint32_t Value(size_t at, size_t width) const {
    if (at > m_bytes.size() || m_bytes.size() - at < width) throw Damaged{};
    uint32_t value = 0;
    for (size_t i = 0; i < width; ++i)
      value |= static_cast<uint32_t>(static_cast<unsigned char>(m_bytes[at + i])) << 8 * i;
    return value;
  }

  // Sets m_base to the file offset of the resources; it stays 0 for a module without any.
  void FindResources() {
    constexpr uint32_t kDos = 0x5A4D, kPe = 0x4550, kWide = 0x20B;
    if (Value(0, 2) != kDos) throw Damaged{};
    const size_t header = Value(0x3C, 4);
    if (Value(header, 4) != kPe) throw Damaged{};
    const size_t sections = Value(header + 6, 2);
    const size_t optional = header + 24;
    const size_t folders = optional + (Value(optional, 2) == kWide ? 112 : 96);
    const uint32_t address = Value(folders + 16, 4);  // the third folder: resources
    const size_t table = optional + Value(header + 20, 2);
    if (sections > kMostSections) throw Damaged{};
    for (size_t i = 0; address && i < sections; ++i) {
      const size_t section = table + 40 * i;
      const uint32_t begin = Value(section + 12, 4), size = Value(section + 16, 4);
      if (address >= begin && address - begin < size)
        m_base = size_t{Value(section + 20, 4)} + (address - begin);
    }
  }

  uint32_t EntryCount(size_t folder) const {
    return Value(m_base + folder + 12, 2) + Value(m_base + folder + 14, 2);
  }
  size_t EntryAt(size_t folder, uint32_t entry) const { return m_base + folder + 16 + 8 * entry; }

  void AddNames(size_t folder, NameSet& names) const {
    for (uint32_t entry = 0; entry < EntryCount(folder); ++entry) {
      const uint32_t name = Value(EntryAt(folder, entry), 4);
      if (name & kIsName) names.insert(FoldedName(Name(m_base + (name & ~kIsName))));
    }
  }

  std::string Name(size_t at) const {
    std::wstring units;
    for (uint32_t length = Value(at, 2); length; --length)
      units += static_cast<wchar_t>(Value(at += 2, 2));
    return Utf8(units);
  }

  const std::string& m_bytes;
  size_t m_base = 0;
};

}  // namespace

std::optional<NameSet> BitmapNames(const std::string& bytes) {
  try {
    return ModuleReader(bytes).Bitmaps();
  } catch (const Damaged&) {
    return std::nullopt;
  }
}
