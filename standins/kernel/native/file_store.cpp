#include "kernel/native/file_store.h"

#include <codecvt>
#include <cstdlib>
#include <cwctype>
#include <fstream>
#include <locale>
#include <map>
#include <string>
#include <tuple>

#include "kernel/tregproperty.h"

namespace {

struct StoredValue {
  bool isText = false;
  std::wstring text;           // integers in decimal
  std::wstring keyPath, name;  // as first written, for the file
};

std::wstring Folded(const wchar_t* text) {
  std::wstring folded(text);
  for (wchar_t& unit : folded)
    unit = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(unit)));
  return folded;
}

class Store {
 public:
  Store() {
    if (const char* path = std::getenv("QVX_SETTINGS_FILE")) Use(path);
  }
  void Use(const char* path) {
    m_values.clear();
    m_path = path ? path : "";
    if (!m_path.empty()) Load();
  }
  void RefuseMachine(bool refuse) { m_refuseMachine = refuse; }

  const StoredValue* Find(HKEY root, const wchar_t* path, const wchar_t* name) const {
    const auto at = m_values.find({root == HKEY_LOCAL_MACHINE, Folded(path), Folded(name)});
    return at == m_values.end() ? nullptr : &at->second;
  }
  bool Set(HKEY root, const wchar_t* path, const wchar_t* name, bool isText, std::wstring text) {
    const bool machine = root == HKEY_LOCAL_MACHINE;
    if (machine && m_refuseMachine) return false;
    StoredValue& value = m_values[{machine, Folded(path), Folded(name)}];
    value.isText = isText;
    value.text = std::move(text);
    value.keyPath = path;
    value.name = name;
    return m_path.empty() || Save();
  }

 private:
  using Key = std::tuple<bool, std::wstring, std::wstring>;
  using Converter = std::wstring_convert<std::codecvt_utf8<wchar_t>>;

  void Load();
  bool Save() const;

  std::map<Key, StoredValue> m_values;
  std::string m_path;
  bool m_refuseMachine = false;
};

std::string Escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\')
      out += "\\\\";
    else if (c == '\t')
      out += "\\t";
    else if (c == '\n')
      out += "\\n";
    else
      out += c;
  }
  return out;
}

std::string Unescaped(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      out += text[i];
      continue;
    }
    const char c = text[++i];
    out += c == 't' ? '\t' : c == 'n' ? '\n' : c;
  }
  return out;
}

// The next tab-separated field of a line, unescaped.
std::string TakeField(std::string& line) {
  const auto tab = line.find('\t');
  const std::string field = line.substr(0, tab);
  line = tab == std::string::npos ? "" : line.substr(tab + 1);
  return Unescaped(field);
}

void Store::Load() {
  std::ifstream file(m_path, std::ios::binary);
  std::string line;
  Converter wide;
  while (std::getline(file, line)) {
    const bool machine = TakeField(line) == "machine";
    StoredValue value;
    try {
      value.keyPath = wide.from_bytes(TakeField(line));
      value.name = wide.from_bytes(TakeField(line));
      value.isText = TakeField(line) == "s";
      value.text = wide.from_bytes(TakeField(line));
    } catch (const std::range_error&) {
      continue;  // lines that are not UTF-8 are ignored
    }
    m_values[{machine, Folded(value.keyPath.c_str()), Folded(value.name.c_str())}] = value;
  }
}

bool Store::Save() const {
  std::ofstream file(m_path, std::ios::binary | std::ios::trunc);
  Converter wide;
  for (const auto& [key, value] : m_values)
    file << (std::get<0>(key) ? "machine" : "user") << '\t' << Escaped(wide.to_bytes(value.keyPath))
         << '\t' << Escaped(wide.to_bytes(value.name)) << '\t' << (value.isText ? 's' : 'i') << '\t'
         << Escaped(wide.to_bytes(value.text)) << '\n';
  return static_cast<bool>(file.flush());
}

Store& TheStore() {
  static Store store;
  return store;
}

}  // namespace

void UseSettingsFile(const char* path) { TheStore().Use(path); }
void RefuseSettingsWrites(bool machineRoot) { TheStore().RefuseMachine(machineRoot); }

bool TRegProperty::GetValue(const wchar_t* name, int& value) const {
  const StoredValue* stored = TheStore().Find(m_root, m_path.GetString(), name);
  if (!stored) return false;
  wchar_t* end = nullptr;
  const long long number = std::wcstoll(stored->text.c_str(), &end, 10);
  if (end == stored->text.c_str() || *end) return false;
  value = static_cast<int>(number);
  return true;
}

bool TRegProperty::GetValue(const wchar_t* name, CString& value, bool* exists) const {
  const StoredValue* stored = TheStore().Find(m_root, m_path.GetString(), name);
  if (exists) *exists = stored != nullptr;
  if (!stored || !stored->isText) return false;
  value = stored->text.c_str();
  return true;
}

bool TRegProperty::SetValue(const wchar_t* name, int value) {
  return TheStore().Set(m_root, m_path.GetString(), name, false, std::to_wstring(value));
}

bool TRegProperty::SetValue(const wchar_t* name, const wchar_t* text, bool) {
  return TheStore().Set(m_root, m_path.GetString(), name, true, text ? text : L"");
}
