// Reads a compiled file into the model: the whole file into memory, every text copied, every length
// checked. Texts without the wide marker are not supported, since no writer here makes them.
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

#include "adsdef.h"
#include "bench/peers/peer.h"
#include "kernel/qvxexport.h"

namespace peer {
namespace {

struct BadFile : std::runtime_error {
  BadFile() : std::runtime_error("not a compiled menu file") {}
};

class Reader {
 public:
  explicit Reader(const std::vector<char>& bytes)
      : m_at(bytes.data()), m_end(bytes.data() + bytes.size()) {}

  void Run(Menu& menu) {
    std::u16string magic;
    Get(magic);
    if (magic != u"Quivera Compiled Menu File") throw BadFile();
    Number<uint32_t>();
    menu.reserved1 = Number<uint32_t>();
    menu.reserved2 = Number<uint32_t>();
    Get(menu.title);
    List(menu.resources, 3 * kSmallestText);
    List(menu.switches, 3 * kSmallestText + 4);
    m_switches = static_cast<int>(menu.switches.size());
    List(menu.bars, 2 * kSmallestText + 8);
  }

 private:
  static constexpr size_t kSmallestText = 4;

  const char* Take(size_t count) {
    if (static_cast<size_t>(m_end - m_at) < count) throw BadFile();
    const char* begin = m_at;
    m_at += count;
    return begin;
  }

  template <class T>
  T Number() {
    T value;
    std::memcpy(&value, Take(sizeof value), sizeof value);
    return value;
  }

  void Get(std::u16string& text) {
    if (std::memcmp(Take(3), "\xFF\xFE\xFF", 3) != 0) throw BadFile();
    uint32_t length = Number<uint8_t>();
    if (length == 0xFF) length = Number<uint16_t>();
    if (length == 0xFFFF) length = Number<uint32_t>();
    const char* units = Take(size_t{length} * 2);
    text.resize(length);
    std::memcpy(text.data(), units, size_t{length} * 2);
  }

  template <class T>
  void List(std::vector<T>& list, size_t smallest) {
    const uint32_t count = Number<uint32_t>();
    if (count > static_cast<size_t>(m_end - m_at) / smallest) throw BadFile();
    list.resize(count);
    for (T& element : list) Get(element);
  }

  void Get(Resource& resource) {
    Get(resource.name);
    Get(resource.image);
    Get(resource.image2);
  }

  void Get(Switch& owner) {
    Get(owner.name);
    Get(owner.getFn);
    Get(owner.setFn);
    List(owner.states, 2 * kSmallestText + 8);
  }

  void Get(State& state) {
    state.value = Number<int32_t>();
    Get(state.iconName);
    Get(state.label);
    state.iconIndex = Number<int32_t>();
  }

  void Get(Bar& bar) {
    Get(bar.name);
    Get(bar.kind);
    List(bar.mask, 2);
    List(bar.items, 5 * kSmallestText + 16);
  }

  void Get(Group& group) {
    group.code = Number<uint16_t>();
    const short kind = QvxExport::TypeOfCode(group.code);
    if (kind == RTREAL) group.real = Number<double>();
    if (kind == RTSHORT) group.integer = static_cast<int16_t>(Number<int32_t>());
    if (kind == RTLONG) group.integer = Number<int32_t>();
    if (kind == RTSTR) Get(group.text);
  }

  void Get(Item& item) {
    Get(item.label);
    Get(item.command);
    if (Number<uint32_t>() != 0) {
      item.subMenu = std::make_unique<Bar>();
      Get(*item.subMenu);
    }
    item.switchIndex = Number<int32_t>();
    if (item.switchIndex >= m_switches) throw BadFile();
    item.flags = Number<uint32_t>();
    Get(item.checkFn);
    Get(item.grayFn);
    Get(item.iconName);
    item.iconIndex = Number<int32_t>();
  }

  const char* m_at;
  const char* m_end;
  int m_switches = 0;
};

bool ReadFile(const std::string& path, std::vector<char>& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return false;
  std::fseek(file, 0, SEEK_END);
  bytes.resize(static_cast<size_t>(std::ftell(file)));
  std::rewind(file);
  const bool read = std::fread(bytes.data(), 1, bytes.size(), file) == bytes.size();
  std::fclose(file);
  return read;
}

}  // namespace

bool Load(const std::string& path, Menu& menu) {
  std::vector<char> bytes;
  if (!ReadFile(path, bytes)) return false;
  try {
    Reader(bytes).Run(menu);
    return true;
  } catch (const BadFile&) {
    return false;
  }
}

}  // namespace peer
