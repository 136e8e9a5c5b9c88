// Text and registry forms of the settings; the table is in settings_table.cpp.
#include "kernel/settings.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <limits>

#include "kernel/globals.h"
#include "kernel/tregproperty.h"

namespace {

bool ParseInt(const wchar_t* text, long long low, long long high, long long& value) {
  wchar_t* end = nullptr;
  const bool hexadecimal = text[0] == L'0' && (text[1] == L'x' || text[1] == L'X');
  value = std::wcstoll(text, &end, hexadecimal ? 16 : 10);
  return end != text && *end == 0 && value >= low && value <= high;
}

// A greater value is not a colour but has another meaning, for example none.
constexpr int kLastColor = 0xFFFFFF;

bool IsColor(int value) { return value >= 0 && value <= kLastColor; }

bool ParseReal(const wchar_t* text, double& value) {
  wchar_t* end = nullptr;
  value = std::wcstod(text, &end);
  return end != text && *end == 0;
}

TWCString FormatReal(double value) {
  wchar_t text[40];
  for (int digits = 6; digits <= 17; ++digits) {  // the shortest that reads back
    std::swprintf(text, 40, L"%.*g", digits, value);
    if (std::wcstod(text, nullptr) == value) break;
  }
  return TWCString(text);
}

TWCString FormatInt(long long value) {
  wchar_t text[24];
  std::swprintf(text, 24, L"%lld", value);
  return TWCString(text);
}

int* IntOf(const Setting& s) { return static_cast<int*>(s.data); }
COLORREF* ColorOf(const Setting& s, int index) { return static_cast<COLORREF*>(s.data) + index; }
double* RealOf(const Setting& s) { return static_cast<double*>(s.data); }
CString* TextOf(const Setting& s) { return static_cast<CString*>(s.data); }
wchar_t* BufferOf(const Setting& s) { return static_cast<wchar_t*>(s.data); }

int Elements(const Setting& s) { return s.type == SettingType::kColor ? s.count : 1; }

bool CopyToBuffer(const Setting& s, const wchar_t* text) {
  if (std::wcslen(text) >= static_cast<std::size_t>(s.count)) return false;
  std::wcscpy(BufferOf(s), text);
  return true;
}

TWCString ElementName(const Setting& s, int index) {
  TWCString name(s.name);
  if (Elements(s) == 1) return name;
  name += L"[";
  name += FormatInt(index);
  name += L"]";
  return name;
}

TWCString HomeKey(const Setting& s) {
  if (s.home == SettingHome::kRelease) return ReleaseKey(g_dHostVersion);
  TWCString key(GetRegLocation());
  key += L"\\Settings";
  return key;
}

void ResetSetting(const Setting& s) {
  if (s.type == SettingType::kHandle) {
    *static_cast<void**>(s.data) = nullptr;
    return;
  }
  if (Elements(s) == 1) {
    SetSettingText(s, 0, s.defaultText);
    return;
  }
  const wchar_t* at = s.defaultText;
  for (int i = 0; i < s.count; ++i) {
    const std::size_t length = std::wcscspn(at, L" ");
    TWCString element;
    element.Assign(at, static_cast<int>(length));
    SetSettingText(s, i, element);
    at += length + (at[length] == L' ');
  }
}

void LoadElement(const Setting& s, int index, const TRegProperty& key) {
  const TWCString name = ElementName(s, index);
  if (s.type == SettingType::kInt || s.type == SettingType::kColor) {
    int value = 0;
    if (key.GetValue(name, value)) {
      if (s.type == SettingType::kInt)
        *IntOf(s) = value;
      else if (IsColor(value))
        *ColorOf(s, index) = static_cast<COLORREF>(value);
    }
    return;
  }
  CString value;
  if (key.GetValue(name, value)) SetSettingText(s, index, value.GetString());
}

void SaveElement(const Setting& s, int index, TRegProperty& key) {
  const TWCString name = ElementName(s, index);
  if (s.type == SettingType::kInt) {
    key.SetValue(name, *IntOf(s));
  } else if (s.type == SettingType::kColor) {
    key.SetValue(name, static_cast<int>(*ColorOf(s, index)));
  } else {
    TWCString text;
    if (SettingText(s, index, text)) key.SetValue(name, text);
  }
}

template <class Action>
void ForEachKept(SettingHome home, Action action) {
  int count = 0;
  const Setting* all = Settings(&count);
  for (const Setting* s = all; s != all + count; ++s) {
    if (s->home != home || s->type == SettingType::kHandle) continue;
    TRegProperty key(HomeKey(*s), L"");
    key.SetTopRootKey(HKEY_CURRENT_USER);
    for (int i = 0; i < Elements(*s); ++i) action(*s, i, key);
  }
}

// Splits name[index]; false for an unknown name.
const Setting* FindSetting(const wchar_t* name, int& index) {
  index = 0;
  if (!name) return nullptr;
  const std::size_t length = std::wcscspn(name, L"[");
  if (name[length]) {
    wchar_t* end = nullptr;
    index = static_cast<int>(std::wcstol(name + length + 1, &end, 10));
    if (end == name + length + 1 || end[0] != L']' || end[1]) return nullptr;
  }
  int count = 0;
  const Setting* all = Settings(&count);
  for (const Setting* s = all; s != all + count; ++s)
    if (std::wcslen(s->name) == length && !std::wcsncmp(s->name, name, length))
      return index >= 0 && index < Elements(*s) ? s : nullptr;
  return nullptr;
}

}  // namespace

bool SettingText(const Setting& s, int index, TWCString& text) {
  switch (s.type) {
    case SettingType::kInt:
      text = FormatInt(*IntOf(s));
      return true;
    case SettingType::kColor:
      text = FormatInt(*ColorOf(s, index));
      return true;
    case SettingType::kReal:
      text = FormatReal(*RealOf(s));
      return true;
    case SettingType::kText:
      text = TextOf(s)->GetString();
      return true;
    case SettingType::kBuffer:
      text = BufferOf(s);
      return true;
    case SettingType::kHandle:
      text = *static_cast<void**>(s.data) ? L"set" : L"null";
      return true;
  }
  return false;
}

bool SetSettingText(const Setting& s, int index, const wchar_t* text) {
  long long number = 0;
  switch (s.type) {
    case SettingType::kInt:
      if (!ParseInt(text, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), number))
        return false;
      *IntOf(s) = static_cast<int>(number);
      return true;
    case SettingType::kColor:
      if (!ParseInt(text, 0, kLastColor, number)) return false;
      *ColorOf(s, index) = static_cast<COLORREF>(number);
      return true;
    case SettingType::kReal:
      return ParseReal(text, *RealOf(s));
    case SettingType::kText:
      *TextOf(s) = text;
      return true;
    case SettingType::kBuffer:
      return CopyToBuffer(s, text);
    case SettingType::kHandle:
      return false;
  }
  return false;
}

TWCString ReleaseKey(double release) {
  wchar_t key[64];
  std::swprintf(key, 64, L"Software\\Quivera\\QVX\\R%.1f", release);
  return TWCString(key);
}

TWCString ProductKey(double release, int productId) {
  TWCString key = ReleaseKey(release);
  key += L"\\QVX-";
  key += FormatInt(productId);
  return key;
}

double ReleaseOfVersionText(const wchar_t* text) {
  const double release = text ? std::wcstod(text, nullptr) : 0;
  return release > 0 ? release : 0;
}

const wchar_t* GetRegLocation() {
  static TWCString location;
  location = ProductKey(g_dHostVersion, g_nProductId);
  return location;
}

void ResetSettings() {
  int count = 0;
  const Setting* all = Settings(&count);
  for (const Setting* s = all; s != all + count; ++s) ResetSetting(*s);
}

// The release's values first: the place of the user's values depends on them.
void LoadSettings() {
  const double release = g_dHostVersion;
  ResetSettings();
  if (release > 0) g_dHostVersion = release;
  ForEachKept(SettingHome::kRelease, LoadElement);
  ForEachKept(SettingHome::kUser, LoadElement);
}

void SaveGlobalToReg() {
  ForEachKept(SettingHome::kRelease, SaveElement);
  ForEachKept(SettingHome::kUser, SaveElement);
}

extern "C" int QvxSetSetting(const wchar_t* name, const wchar_t* value) {
  int index = 0;
  const Setting* setting = FindSetting(name, index);
  return setting && value && SetSettingText(*setting, index, value) ? 1 : 0;
}

extern "C" int QvxGetSetting(const wchar_t* name, wchar_t* out, int units) {
  int index = 0;
  TWCString text;
  const Setting* setting = FindSetting(name, index);
  if (!setting || units < 1 || !SettingText(*setting, index, text)) return 0;
  const int count = std::min(text.Length(), units - 1);
  std::wmemcpy(out, text, static_cast<std::size_t>(count));
  out[count] = 0;
  return 1;
}
