// The menu model as a plain program would define it: standard strings and vectors, everything by
// value. The reference for bench_menu; used by the benchmarks only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace peer {

struct Group {
  int code = 0;
  int integer = 0;
  double real = 0;
  std::u16string text;
};

struct Bar;

struct Item {
  std::u16string label;
  std::u16string command;
  std::unique_ptr<Bar> subMenu;
  int switchIndex = -1;
  uint32_t flags = 0;
  std::u16string checkFn;
  std::u16string grayFn;
  std::u16string iconName;
  int iconIndex = -1;
};

struct Bar {
  std::u16string name;
  std::u16string kind;
  std::vector<Group> mask;
  std::vector<Item> items;
};

struct Resource {
  std::u16string name;
  std::u16string image;
  std::u16string image2;
};

struct State {
  int value = 0;
  std::u16string iconName;
  std::u16string label;
  int iconIndex = -1;
};

struct Switch {
  std::u16string name;
  std::u16string getFn;
  std::u16string setFn;
  std::vector<State> states;
};

struct Menu {
  uint32_t reserved1 = 0;
  uint32_t reserved2 = 0;
  std::u16string title;
  std::vector<Resource> resources;
  std::vector<Switch> switches;
  std::vector<Bar> bars;
  std::vector<std::string> messages;  // of the parse, "line: text"
};

}  // namespace peer
