// TRegProperty on the Windows registry. Each call opens and closes the key; nothing is cached, so
// that the next read sees what another program wrote.
#include "afx.h"

#include <cstdlib>
#include <cwchar>
#include <vector>

#include "kernel/tregproperty.h"

namespace {

class KeyOwner {
 public:
  KeyOwner() = default;
  ~KeyOwner() {
    if (m_key) RegCloseKey(m_key);
  }
  KeyOwner(const KeyOwner&) = delete;
  KeyOwner& operator=(const KeyOwner&) = delete;
  HKEY* Out() { return &m_key; }
  operator HKEY() const { return m_key; }

 private:
  HKEY m_key = nullptr;
};

struct RawValue {
  DWORD type = REG_NONE;
  std::vector<BYTE> bytes;
};

// Two zero bytes are appended: texts in the registry need not be terminated.
bool ReadRaw(HKEY root, const wchar_t* path, const wchar_t* name, RawValue& value) {
  KeyOwner key;
  if (RegOpenKeyExW(root, path, 0, KEY_QUERY_VALUE, key.Out()) != ERROR_SUCCESS) return false;
  DWORD size = 0;
  if (RegQueryValueExW(key, name, nullptr, &value.type, nullptr, &size) != ERROR_SUCCESS)
    return false;
  value.bytes.assign(size + 2 * sizeof(wchar_t), 0);
  return RegQueryValueExW(key, name, nullptr, &value.type, value.bytes.data(), &size) ==
         ERROR_SUCCESS;
}

bool IsText(const RawValue& value) { return value.type == REG_SZ || value.type == REG_EXPAND_SZ; }

const wchar_t* TextOf(const RawValue& value) {
  return reinterpret_cast<const wchar_t*>(value.bytes.data());
}

bool WriteRaw(HKEY root, const wchar_t* path, const wchar_t* name, DWORD type, const void* data,
              std::size_t size) {
  KeyOwner key;
  if (RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, key.Out(), nullptr) !=
      ERROR_SUCCESS)
    return false;
  return RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data),
                        static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

}  // namespace

bool TRegProperty::GetValue(const wchar_t* name, int& value) const {
  RawValue raw;
  if (!ReadRaw(m_root, m_path.GetString(), name, raw)) return false;
  if (raw.type == REG_DWORD) {
    DWORD number;
    std::memcpy(&number, raw.bytes.data(), sizeof number);
    value = static_cast<int>(number);
    return true;
  }
  if (!IsText(raw)) return false;
  wchar_t* end = nullptr;
  const auto number = std::wcstol(TextOf(raw), &end, 10);
  if (end == TextOf(raw) || *end) return false;
  value = static_cast<int>(number);
  return true;
}

bool TRegProperty::GetValue(const wchar_t* name, CString& value, bool* exists) const {
  RawValue raw;
  const bool there = ReadRaw(m_root, m_path.GetString(), name, raw);
  if (exists) *exists = there;
  if (!there || !IsText(raw)) return false;
  if (raw.type == REG_EXPAND_SZ) {
    std::vector<wchar_t> expanded(ExpandEnvironmentStringsW(TextOf(raw), nullptr, 0) + 1, 0);
    ExpandEnvironmentStringsW(TextOf(raw), expanded.data(), static_cast<DWORD>(expanded.size()));
    value = expanded.data();
    return true;
  }
  value = TextOf(raw);
  return true;
}

bool TRegProperty::SetValue(const wchar_t* name, int value) {
  const DWORD number = static_cast<DWORD>(value);
  return WriteRaw(m_root, m_path.GetString(), name, REG_DWORD, &number, sizeof number);
}

bool TRegProperty::SetValue(const wchar_t* name, const wchar_t* text, bool expandable) {
  if (!text) text = L"";
  return WriteRaw(m_root, m_path.GetString(), name, expandable ? REG_EXPAND_SZ : REG_SZ, text,
                  (std::wcslen(text) + 1) * sizeof(wchar_t));
}
