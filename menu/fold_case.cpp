#include "menu/fold_case.h"

#include "kernel/twcstring.h"

namespace {

bool IsBetween(unsigned unit, unsigned first, unsigned last) {
  return unit >= first && unit <= last;
}

// Latin, Greek, Cyrillic and full-width Latin letters: those of the code pages in use.
wchar_t FoldBeyondAscii(wchar_t unit) {
  const auto u = static_cast<unsigned>(unit);
  if (IsBetween(u, 0xC0, 0xDE) && u != 0xD7) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x391, 0x3A9) && u != 0x3A2) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x410, 0x42F)) return static_cast<wchar_t>(u + 0x20);
  if (IsBetween(u, 0x400, 0x40F)) return static_cast<wchar_t>(u + 0x50);
  if (IsBetween(u, 0xFF21, 0xFF3A)) return static_cast<wchar_t>(u + 0x20);
  return unit;
}

}  // namespace

wchar_t FoldCase(wchar_t unit) {
  if (unit >= L'A' && unit <= L'Z') return static_cast<wchar_t>(unit + 0x20);
  return unit < 0x80 ? unit : FoldBeyondAscii(unit);
}

bool EqualNamesNoCase(const TWCString& a, std::wstring_view b) {
  if (static_cast<size_t>(a.Length()) != b.size()) return false;
  const wchar_t* text = a;
  for (size_t i = 0; i < b.size(); ++i)
    if (text[i] != b[i] && FoldCase(text[i]) != FoldCase(b[i])) return false;
  return true;
}
