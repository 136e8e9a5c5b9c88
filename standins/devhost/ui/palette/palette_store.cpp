// Palette states in the registry; see the header.
#include "devhost/ui/palette/palette_store.h"

#include <objbase.h>

namespace devhost {
namespace {

CString& StoreKey() {
  static CString key = L"Software\\DevHost\\Palettes";
  return key;
}

CString KeyOf(const CLSID& tool) {
  wchar_t text[40] = L"";
  ::StringFromGUID2(tool, text, 40);
  return StoreKey() + L"\\" + text;
}

class Key {
 public:
  explicit Key(HKEY key) : m_key(key) {}
  ~Key() {
    if (m_key) ::RegCloseKey(m_key);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  explicit operator bool() const { return m_key != nullptr; }

  bool Read(LPCWSTR name, LONG* number) const {
    DWORD value = 0, size = sizeof value, type = 0;
    if (::RegQueryValueExW(m_key, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size) ||
        type != REG_DWORD)
      return false;
    *number = LONG(value);
    return true;
  }
  void Write(LPCWSTR name, LONG number) const {
    const DWORD value = DWORD(number);
    ::RegSetValueExW(m_key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                     sizeof value);
  }

 private:
  HKEY m_key;
};

HKEY Open(const CString& path) {
  HKEY key = nullptr;
  ::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key);
  return key;
}

HKEY Make(const CString& path) {
  HKEY key = nullptr;
  ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
  return key;
}

}  // namespace

void SetPaletteStoreKey(const CString& key) { StoreKey() = key; }
const CString& PaletteStoreKey() { return StoreKey(); }

PaletteState LoadPaletteState(const CLSID& tool) {
  PaletteState state;
  const Key key(Open(KeyOf(tool)));
  LONG floating = 0;
  if (!key || !key.Read(L"Floating", &floating)) return state;
  state.known =
      key.Read(L"Left", &state.frame.left) && key.Read(L"Top", &state.frame.top) &&
      key.Read(L"Right", &state.frame.right) && key.Read(L"Bottom", &state.frame.bottom) &&
      key.Read(L"DockedWidth", &state.docked.cx) && key.Read(L"DockedHeight", &state.docked.cy);
  state.floating = floating != 0;
  return state;
}

void SavePaletteState(const CLSID& tool, const PaletteState& state) {
  const Key key(Make(KeyOf(tool)));
  if (!key) return;  // the state is lost without a message
  key.Write(L"Floating", state.floating);
  key.Write(L"Left", state.frame.left);
  key.Write(L"Top", state.frame.top);
  key.Write(L"Right", state.frame.right);
  key.Write(L"Bottom", state.frame.bottom);
  key.Write(L"DockedWidth", state.docked.cx);
  key.Write(L"DockedHeight", state.docked.cy);
}

}  // namespace devhost
