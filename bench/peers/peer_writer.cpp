// Writes the model as a compiled file, built in memory and written with one call.
#include <cstdio>
#include <cstring>
#include <string>

#include "adsdef.h"
#include "bench/peers/peer.h"
#include "kernel/qvxexport.h"

namespace peer {
namespace {

class Writer {
 public:
  std::string Run(const Menu& menu) {
    Text(u"Quivera Compiled Menu File");
    Number<uint32_t>(1);
    Number(menu.reserved1);
    Number(menu.reserved2);
    Text(menu.title);
    List(menu.resources);
    List(menu.switches);
    List(menu.bars);
    return std::move(m_bytes);
  }

 private:
  template <class T>
  void Number(T value) {
    char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    m_bytes.append(bytes, sizeof bytes);
  }

  void Text(const std::u16string& text) {
    m_bytes.append("\xFF\xFE\xFF", 3);
    if (text.size() < 0xFF) {
      Number(static_cast<uint8_t>(text.size()));
    } else if (text.size() < 0xFFFE) {
      Number<uint8_t>(0xFF);
      Number(static_cast<uint16_t>(text.size()));
    } else {
      Number<uint8_t>(0xFF);
      Number<uint16_t>(0xFFFF);
      Number(static_cast<uint32_t>(text.size()));
    }
    m_bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * 2);
  }

  template <class T>
  void List(const std::vector<T>& list) {
    Number(static_cast<uint32_t>(list.size()));
    for (const T& element : list) Put(element);
  }

  void Put(const Resource& resource) {
    Text(resource.name);
    Text(resource.image);
    Text(resource.image2);
  }

  void Put(const Switch& owner) {
    Text(owner.name);
    Text(owner.getFn);
    Text(owner.setFn);
    List(owner.states);
  }

  void Put(const State& state) {
    Number(state.value);
    Text(state.iconName);
    Text(state.label);
    Number(state.iconIndex);
  }

  void Put(const Bar& bar) {
    Text(bar.name);
    Text(bar.kind);
    List(bar.mask);
    List(bar.items);
  }

  void Put(const Group& group) {
    Number(static_cast<uint16_t>(group.code));
    const short kind = QvxExport::TypeOfCode(group.code);
    if (kind == RTREAL) Number(group.real);
    if (kind == RTSHORT || kind == RTLONG) Number(group.integer);
    if (kind == RTSTR) Text(group.text);
  }

  void Put(const Item& item) {
    Text(item.label);
    Text(item.command);
    Number<uint32_t>(item.subMenu ? 1 : 0);
    if (item.subMenu) Put(*item.subMenu);
    Number(item.switchIndex);
    Number(item.flags);
    Text(item.checkFn);
    Text(item.grayFn);
    Text(item.iconName);
    Number(item.iconIndex);
  }

  std::string m_bytes;
};

}  // namespace

std::string Write(const Menu& menu) { return Writer().Run(menu); }

bool Save(const Menu& menu, const std::string& path) {
  const std::string bytes = Write(menu);
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace peer
