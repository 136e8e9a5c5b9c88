#include <algorithm>
#include <random>

#include "bench/hostile_files.h"
#include "bench/menu_generator.h"

namespace {

using namespace std::string_literals;

const std::string kHead = "MENU_TITLE=\"a\"\n***B\n[a]\n";
const std::string kTail = "***SWITCH\n***RESOURCE\n";
constexpr int kDamagedBytesPerMillion = 200;

// The head, as many units as fit, the tail.
std::string Filled(size_t bytes, const std::string& unit, const std::string& head = kHead,
                   const std::string& tail = kTail) {
  std::string text = head;
  text.reserve(bytes + unit.size());
  while (text.size() + tail.size() + unit.size() <= bytes) text += unit;
  return text + tail;
}

// Distinct units, generated from their number.
template <class Unit>
std::string Counted(size_t bytes, Unit unit, const std::string& head, const std::string& tail) {
  std::string text = head;
  for (int i = 0; text.size() + tail.size() < bytes; ++i) text += unit(i);
  return text + tail;
}

std::string ClosedAtOnce(size_t bytes) {
  // Half the bytes open levels; the other half closes them, 97 per line.
  std::string closing = "[";
  for (int i = 0; i < 97; ++i) closing += "<-";
  const size_t levels = bytes * 24 / 25 / 5;
  std::string text = kHead;
  for (size_t i = 0; i < levels; ++i) text += "[->\n";
  for (size_t i = 0; i < levels; i += 97) text += closing + "\n";
  return text + kTail;
}

std::string DeepAndClosed(size_t bytes) {
  const size_t levels = bytes / 8;
  std::string text = kHead;
  for (size_t i = 0; i < levels; ++i) text += "[->\n";
  for (size_t i = 0; i < levels; ++i) text += "[<-\n";
  return text + kTail;
}

std::string Sawtooth(size_t bytes) { return Filled(bytes, "[->\n[->\n[<-\n[->\n[<-\n[<-\n"); }

// Each range closes one pair too many, so the depth never ends at exactly zero.
std::string PastTheEnd(size_t bytes) { return Filled(bytes, "[->\n[<-<-\n"); }

// Spellings of one word that differ only in case.
std::string Spelling(int number) {
  std::string name(24, 'a');
  for (size_t bit = 0; bit < name.size(); ++bit)
    if (number >> bit & 1) name[bit] = 'A';
  return name;
}

const std::string kTitle = "MENU_TITLE=\"a\"\n";
const std::string kToSwitches = kHead + "***SWITCH\n";
const std::string kToResources = kHead + kTail;
const std::string kLong(196, 'x');

std::string ManyNames(size_t bytes) {
  return Counted(
      bytes, [](int i) { return "n" + std::to_string(i) + "[\n"; }, kHead, kTail);
}

std::string NoisyBlocks(size_t bytes) {
  return Filled(bytes, "***a b=0,5[\n", "MENU_TITLE=\"a\"\n");
}

}  // namespace

std::string RandomBytes(size_t bytes, unsigned seed) {
  std::mt19937 random(seed);
  std::string text(bytes, 0);
  for (char& c : text) c = static_cast<char>(random());
  return text;
}

std::string Damaged(std::string good, unsigned seed) {
  std::mt19937 random(seed);
  const size_t count = 1 + good.size() * kDamagedBytesPerMillion / 1000000;
  for (size_t i = 0; i < count && !good.empty(); ++i)
    good[random() % good.size()] = static_cast<char>(random());
  return good;
}

std::vector<HostileKind> HostileSources() {
  return {
      {"smallest lines", false, [](size_t n) { return Filled(n, "[\n"); }},
      {"smallest lines with icon", false, [](size_t n) { return Filled(n, "a[\n"); }},
      {"smallest lines with label", false, [](size_t n) { return Filled(n, "[]\n"); }},
      {"smallest commands", false, [](size_t n) { return Filled(n, "[]a\n"); }},
      {"separators", false, [](size_t n) { return Filled(n, "[--]\n"); }},
      {"lines of 199 bytes", false, [](size_t n) { return Filled(n, "[a]" + kLong + "\n"); }},
      {"carets", false, [](size_t n) { return Filled(n, "[]" + std::string(196, '^') + "\n"); }},
      {"escapes", false, [](size_t n) { return Filled(n, "[]^C^C^C^C^C^C^C\n"); }},
      {"line with 0xFF bytes", false,
       [](size_t n) { return Filled(n, "[" + std::string(197, '\xFF') + "\n"); }},
      {"double-byte lines", false,
       [](size_t n) { return Filled(n, "[\xB0\xA1\xB0\xA2\xB0\xA3\xB0\xA4]\xB0\xA5\n"); }},
      {"all conditions", false, [](size_t n) { return Filled(n, "[{~=a}{!=b}{x}{~=c}d]\n"); }},
      {"conditions alone", false, [](size_t n) { return Filled(n, "[{~=a}]\n"); }},
      {"all ->", false, [](size_t n) { return Filled(n, "[->\n"); }},
      {"all <-", false, [](size_t n) { return Filled(n, "[<-\n"); }},
      {"deep and closed", false, DeepAndClosed},
      {"deep, closed 97 a line", false, ClosedAtOnce},
      {"sawtooth", false, Sawtooth},
      {"past the end", false, PastTheEnd},
      {"smallest blocks", false, [](size_t n) { return Filled(n, "***a[\n", kTitle); }},
      {"switch lines", false, [](size_t n) { return Filled(n, "a[*SWITCH*]\n"); }},
      {"switch lines with a switch", false,
       [](size_t n) {
         return Filled(n, "a[*SWITCH*]\n", kHead,
                       "***SWITCH\n**a GET=b SET=c 0=d,\"\"\n***RESOURCE\n");
       }},
      {"switches named alike", false,
       [](size_t n) {
         return Filled(n, "**a GET=b SET=c 0=d,\"\"\n", kToSwitches, "***RESOURCE\n");
       }},
      {"states", false,
       [](size_t n) {
         return Filled(n, "0=a,\"\"\n", kToSwitches + "**a GET=b SET=c\n", "***RESOURCE\n");
       }},
      {"resources named alike", false,
       [](size_t n) { return Filled(n, "a=\"\",\"\" ", kToResources, "\n"); }},
      {"resources that differ in case", false,
       [](size_t n) {
         return Counted(
             n, [](int i) { return Spelling(i) + "=\"\",\"\" "; }, kToResources, "\n");
       }},
      {"icons that differ in case", false,
       [](size_t n) {
         return Counted(
             n, [](int i) { return Spelling(i) + "[\n"; }, kHead, kTail);
       }},
      {"different icons", false, ManyNames},
      {"different resources", false,
       [](size_t n) {
         return Counted(
             n, [](int i) { return "r" + std::to_string(i) + "=\"\",\"\"\n"; }, kToResources, "");
       }},
      {"mask of many groups", false,
       [](size_t n) { return Filled(n, ",8,\"\"", kTitle + "***A B=0,\"\"", "[\n" + kTail); }},
      {"mask of long strings", false,
       [](size_t n) {
         return Filled(n, ",8,\"" + kLong + "\"", kTitle + "***A B=0,\"\"", "[\n" + kTail);
       }},
      {"blocks with long masks", false,
       [](size_t n) {
         return Filled(n, "***a b=8,\"" + kLong + "\",8,\"" + kLong + "\"[\n", kTitle);
       }},
      {"blocks with small masks", false,
       [](size_t n) { return Filled(n, "***a b=0,\"\"[\n", kTitle); }},
      {"mask of bad groups", false,
       [](size_t n) { return Filled(n, ",0,5", kTitle + "***A B=0,5", "[\n" + kTail); }},
      {"blocks with a bad group", false, NoisyBlocks},
      {"stray bytes", false, [](size_t n) { return Filled(n, "\x80"); }},
      {"stray points", false, [](size_t n) { return Filled(n, "."); }},
      {"stray stars", false, [](size_t n) { return Filled(n, "* "); }},
      {"newlines", false, [](size_t n) { return Filled(n, "\n"); }},
      {"CR LF", false, [](size_t n) { return Filled(n, "\r\n"); }},
      {"line comments", false, [](size_t n) { return Filled(n, "//\n"); }},
      {"block comments", false, [](size_t n) { return Filled(n, "/**/"); }},
      {"one long comment", false,
       [](size_t n) { return Filled(n, "*", kHead + "/*", "*/\n" + kTail); }},
      {"one-letter identifiers", false, [](size_t n) { return Filled(n, "a "); }},
      {"one long identifier", false, [](size_t n) { return Filled(n, "a"); }},
      {"one long number", false,
       [](size_t n) { return Filled(n, "9", kTitle + "***A B=", ",5[\n" + kTail); }},
      {"one long string", false,
       [](size_t n) { return Filled(n, "a", kTitle + "***A B=0,\"", "\"[\n" + kTail); }},
      {"zero bytes", false, [](size_t n) { return Filled(n, "\0"s); }},
      {"random bytes behind a good head", false,
       [](size_t n) { return kHead + RandomBytes(n, 1) + "\n"; }},
      {"random bytes", false, [](size_t n) { return RandomBytes(n, 2) + "\n"; }},
      {"product-like menu", false,
       [](size_t n) { return GenerateMenu(static_cast<int>(n / 33), 3); }},
      {"damaged product-like menu", false,
       [](size_t n) { return Damaged(GenerateMenu(static_cast<int>(n / 33), 4), 5) + "\n"; }},
  };
}
