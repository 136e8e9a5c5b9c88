// The table of key names. A modifier may also be the key itself.
#include "devhost/play/key_names.h"

#include <cctype>

namespace devhost {
namespace {

struct NamedKey {
  const char* name;
  int key;
  bool extended;
};

constexpr NamedKey kKeys[] = {
    {"backspace", 0x08, false},   {"tab", 0x09, false},       {"return", 0x0D, false},
    {"enter", 0x0D, false},       {"shift", 0x10, false},     {"ctrl", 0x11, false},
    {"alt", 0x12, false},         {"pause", 0x13, false},     {"capslock", 0x14, false},
    {"escape", 0x1B, false},      {"esc", 0x1B, false},       {"space", 0x20, false},
    {"pageup", 0x21, true},       {"pagedown", 0x22, true},   {"end", 0x23, true},
    {"home", 0x24, true},         {"left", 0x25, true},       {"up", 0x26, true},
    {"right", 0x27, true},        {"down", 0x28, true},       {"insert", 0x2D, true},
    {"delete", 0x2E, true},       {"del", 0x2E, true},        {"apps", 0x5D, true},
    {"multiply", 0x6A, false},    {"add", 0x6B, false},       {"subtract", 0x6D, false},
    {"divide", 0x6F, true},       {"semicolon", 0xBA, false}, {"plus", 0xBB, false},
    {"equals", 0xBB, false},      {"comma", 0xBC, false},     {"minus", 0xBD, false},
    {"period", 0xBE, false},      {"slash", 0xBF, false},     {"backquote", 0xC0, false},
    {"leftbracket", 0xDB, false}, {"backslash", 0xDC, false}, {"rightbracket", 0xDD, false},
    {"quote", 0xDE, false},
};
constexpr int kFirstFunctionKey = 0x70;
constexpr int kFunctionKeys = 24;
constexpr int kFirstNumpadKey = 0x60;

std::string Lowered(const std::string& text) {
  std::string lower;
  for (const char c : text) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

// The number of a name such as f12 or numpad3, or -1.
int Numbered(const std::string& name, const std::string& prefix) {
  if (name.size() <= prefix.size() || name.size() > prefix.size() + 2) return -1;
  if (name.compare(0, prefix.size(), prefix) != 0) return -1;
  int number = 0;
  for (const char c : name.substr(prefix.size())) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

bool FindKey(const std::string& name, KeyChord* chord) {
  if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0]))) {
    chord->key = std::toupper(static_cast<unsigned char>(name[0]));
    return true;
  }
  if (const int f = Numbered(name, "f"); f >= 1 && f <= kFunctionKeys) {
    chord->key = kFirstFunctionKey + f - 1;
    return true;
  }
  if (const int n = Numbered(name, "numpad"); n >= 0 && n <= 9) {
    chord->key = kFirstNumpadKey + n;
    return true;
  }
  for (const NamedKey& key : kKeys)
    if (name == key.name) {
      chord->key = key.key;
      chord->extended = key.extended;
      return true;
    }
  return false;
}

bool* Modifier(const std::string& name, KeyChord* chord) {
  if (name == "ctrl") return &chord->ctrl;
  if (name == "shift") return &chord->shift;
  if (name == "alt") return &chord->alt;
  return nullptr;
}

}  // namespace

bool ParseKeyChord(const std::string& text, KeyChord* chord) {
  *chord = KeyChord();
  std::string rest = Lowered(text);
  for (std::size_t plus; (plus = rest.find('+')) != std::string::npos; rest.erase(0, plus + 1)) {
    bool* held = Modifier(rest.substr(0, plus), chord);
    if (!held || *held) return false;
    *held = true;
  }
  return FindKey(rest, chord);
}

}  // namespace devhost
