#include <algorithm>
#include <cstdint>
#include <memory>

#include "bench/bench_case.h"
#include "bench/hostile_files.h"
#include "bench/menu_generator.h"
#include "tools/qmn/model_io.h"

namespace {

using namespace std::string_literals;

constexpr uint32_t kFourBillion = 0xFFFFFFFFu;

std::string Number(uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i));
  return text;
}
std::string U32(uint32_t value) { return Number(value, 4); }
std::string U16(uint32_t value) { return Number(value, 2); }

const std::string kMark = "\xFF\xFE\xFF";
const std::string kNone = "\0"s;  // the shortest string: no marker, no character

std::string Head() {
  std::string text = kMark + "\x1A";
  for (const char c : "Quivera Compiled Menu File"s) text += {c, 0};
  return text + U32(1) + U32(0) + U32(0) + kNone;
}
std::string ToSwitches() { return Head() + U32(0); }
std::string ToBars() { return ToSwitches() + U32(0); }
std::string BarHead(uint32_t groups) { return kNone + kNone + U32(groups); }
std::string ToGroups(uint32_t groups) { return ToBars() + U32(1) + BarHead(groups); }
std::string ToLines(uint32_t lines) { return ToGroups(0) + U32(lines); }

std::string ItemTail(uint32_t switchIndex = kFourBillion) {
  return U32(switchIndex) + U32(0) + kNone + kNone + kNone + U32(0);
}
std::string Item() { return kNone + kNone + U32(0) + ItemTail(); }

// The head and as many units as fit. The head's count is not adjusted to the number of units.
std::string Filled(size_t bytes, const std::string& head, const std::string& unit) {
  std::string text = head;
  text.reserve(bytes + unit.size());
  while (text.size() + unit.size() <= bytes) text += unit;
  return text;
}

uint32_t Fitting(size_t bytes, const std::string& head, const std::string& unit) {
  return bytes > head.size() ? static_cast<uint32_t>((bytes - head.size()) / unit.size()) : 0;
}

// Replaces the four bytes at the end of `head` by the actual count.
std::string Honest(size_t bytes, std::string head, const std::string& unit,
                   const std::string& tail = "") {
  const uint32_t count = Fitting(bytes - std::min(bytes, tail.size()), head, unit);
  head.replace(head.size() - 4, 4, U32(count));
  std::string text = head;
  for (uint32_t i = 0; i < count; ++i) text += unit;
  return text + tail;
}

std::string Nested(size_t bytes, bool closed) {
  const std::string level = kNone + kNone + U32(1) + BarHead(0) + U32(1);
  std::string text = ToLines(1);
  const size_t levels = bytes / (level.size() + (closed ? ItemTail().size() : 0));
  for (size_t i = 0; i < levels; ++i) text += level;
  if (!closed) return text;
  text += Item();
  for (size_t i = 0; i < levels; ++i) text += ItemTail();
  return text;
}

// Sub-menus without lines: each allocates a bar.
std::string EmptySubMenus(size_t bytes) {
  return Honest(bytes, ToLines(0), kNone + kNone + U32(1) + BarHead(0) + U32(0) + ItemTail());
}

std::string OneSwitch(const std::string& rest) {
  return ToSwitches() + U32(1) + kNone + kNone + kNone + rest;
}

std::string OneString(size_t bytes, const std::string& length, char fill) {
  std::string text = Head() + U32(1) + length;
  return text + std::string(bytes > text.size() ? bytes - text.size() : 0, fill);
}

std::string LongLength(size_t length) {
  return "\xFF\xFF\xFF" + U32(static_cast<uint32_t>(length));
}

std::string ProductLike(size_t bytes) {
  return SaveBytes(*CompileWithEngine(GenerateMenu(static_cast<int>(bytes / 68), 6)));
}

}  // namespace

std::vector<HostileKind> HostileCompiled() {
  return {
      {"claim: resources", true,
       [](size_t n) { return Filled(n, Head() + U32(kFourBillion), kNone); }},
      {"claim: switches", true,
       [](size_t n) { return Filled(n, ToSwitches() + U32(kFourBillion), kNone); }},
      {"claim: states", true,
       [](size_t n) { return Filled(n, OneSwitch(U32(kFourBillion)), kNone); }},
      {"claim: blocks", true,
       [](size_t n) { return Filled(n, ToBars() + U32(kFourBillion), kNone); }},
      {"claim: groups without value", true,
       [](size_t n) { return Filled(n, ToGroups(kFourBillion), U16(5)); }},
      {"claim: groups, code 0", true,
       [](size_t n) { return Filled(n, ToGroups(kFourBillion), kNone); }},
      {"claim: lines", true, [](size_t n) { return Filled(n, ToLines(kFourBillion), kNone); }},
      {"claim: lines in each sub-menu", true,
       [](size_t n) {
         return Filled(n, ToLines(kFourBillion),
                       kNone + kNone + U32(1) + BarHead(0) + U32(kFourBillion));
       }},
      {"claim: characters, wide", true,
       [](size_t n) { return OneString(n, kMark + LongLength(kFourBillion), 'a'); }},
      {"claim: characters, narrow", true,
       [](size_t n) { return OneString(n, LongLength(kFourBillion), 'a'); }},
      {"claim: characters, half of them", true,
       [](size_t n) { return OneString(n, kMark + LongLength(n), 'a'); }},
      {"smallest resources", true,
       [](size_t n) { return Honest(n, Head() + U32(0), kNone + kNone + kNone); }},
      {"smallest switches", true,
       [](size_t n) { return Honest(n, ToSwitches() + U32(0), kNone + kNone + kNone + U32(0)); }},
      {"smallest states", true,
       [](size_t n) { return Honest(n, OneSwitch(U32(0)), U32(0) + kNone + kNone + U32(0)); }},
      {"smallest blocks", true,
       [](size_t n) { return Honest(n, ToBars() + U32(0), BarHead(0) + U32(0)); }},
      {"smallest lines", true, [](size_t n) { return Honest(n, ToLines(0), Item()); }},
      {"empty sub-menus", true, EmptySubMenus},
      {"groups without value", true, [](size_t n) { return Honest(n, ToGroups(0), U16(5000)); }},
      {"groups, short", true, [](size_t n) { return Honest(n, ToGroups(0), U16(62) + U32(7)); }},
      {"groups, real", true,
       [](size_t n) { return Honest(n, ToGroups(0), U16(40) + U32(7) + U32(7)); }},
      {"groups, empty string", true,
       [](size_t n) { return Honest(n, ToGroups(0), U16(8) + kNone); }},
      {"groups, one character", true,
       [](size_t n) { return Honest(n, ToGroups(0), U16(8) + "\1a"); }},
      {"strings of one character", true,
       [](size_t n) { return Honest(n, Head() + U32(0), "\1a\1b\1c"); }},
      {"strings of eight characters", true,
       [](size_t n) { return Honest(n, Head() + U32(0), "\10abcdefgh\10abcdefgh\10abcdefgh"); }},
      {"empty strings, long form", true,
       [](size_t n) {
         return Honest(n, Head() + U32(0), LongLength(0) + LongLength(0) + LongLength(0));
       }},
      {"empty strings, middle form", true,
       [](size_t n) { return Honest(n, Head() + U32(0), "\xFF\0\0\xFF\0\0\xFF\0\0"s); }},
      {"empty strings, marked", true,
       [](size_t n) {
         return Honest(n, Head() + U32(0),
                       kMark + "\0"s + kMark + "\xFF\0\0"s + kMark + LongLength(0));
       }},
      {"one narrow string", true,
       [](size_t n) { return OneString(n, LongLength(n > 200 ? n - 200 : 1), 'a'); }},
      {"one narrow string of 0xB0", true,
       [](size_t n) { return OneString(n, LongLength(n > 200 ? n - 200 : 1), '\xB0'); }},
      {"one narrow string of 0xFF", true,
       [](size_t n) { return OneString(n, LongLength(n > 200 ? n - 200 : 1), '\xFF'); }},
      {"one wide string", true,
       [](size_t n) { return OneString(n, kMark + LongLength(n > 400 ? n / 2 - 100 : 1), 'a'); }},
      {"deep, cut off", true, [](size_t n) { return Nested(n, false); }},
      {"deep and closed", true, [](size_t n) { return Nested(n, true); }},
      {"switch index past the table", true,
       [](size_t n) { return Honest(n, ToLines(0), kNone + kNone + U32(0) + ItemTail(1)); }},
      {"all zeros", true, [](size_t n) { return Filled(n, Head(), kNone); }},
      {"all 0xFF", true, [](size_t n) { return Filled(n, Head(), "\xFF"); }},
      {"random bytes behind a good head", true,
       [](size_t n) { return Head() + RandomBytes(n, 7); }},
      {"random bytes", true, [](size_t n) { return RandomBytes(n, 8); }},
      {"product-like file", true, ProductLike},
      {"damaged product-like file", true, [](size_t n) { return Damaged(ProductLike(n), 9); }},
  };
}
