#include "frame/settings/settings_report.h"

#include <cstdio>
#include <cstdlib>
#include <cwchar>

#include "afx.h"

#include "aced.h"
#include "adslib.h"
#include "dialogs/tip_file.h"
#include "frame/start/host_release.h"
#include "frame/settings/menu_setting.h"
#include "frame/settings/settings_index.h"
#include "ground/host_variables.h"
#include "ground/utf8_text.h"
#include "ground/product_registry.h"
#include "ground/product_section.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "kernel/settings.h"

namespace {

struct PresentValue {
  std::wstring text;
  const wchar_t* source = L"default";
};

// Line ends and other controls become blanks, so that each setting keeps to its line.
std::string LineText(std::wstring text) {
  for (wchar_t& unit : text)
    if (static_cast<unsigned>(unit) < 0x20) unit = L' ';
  return qvx::ToUtf8(text);
}

std::wstring FolderOf(const IndexRow& row) {
  if (row.folder != kProfileFolder) return row.folder;
  return static_cast<const wchar_t*>(MenuSettingFolder());
}

// The text of a registry value of either kind; false if it does not exist.
bool StoredText(const TRegProperty& key, const wchar_t* name, std::wstring& text) {
  CString string;
  int number = 0;
  if (key.GetValue(name, string))
    text = string.GetString();
  else if (key.GetValue(name, number))
    text = std::to_wstring(number);
  else
    return false;
  return true;
}

PresentValue RegistryValue(const IndexRow& row) {
  PresentValue value{row.defaultText ? row.defaultText : L""};
  const std::wstring folder = FolderOf(row);
  const TRegProperty key = row.store == IndexStore::kMachine ? qvx::MachineKey(folder.c_str())
                                                             : qvx::UserKey(folder.c_str());
  CString text;
  int number = 0;
  bool exists = false;
  if (row.type == IndexType::kText && key.GetValue(row.name, text, &exists))
    return {text.GetString(), L"registry"};
  if (row.type == IndexType::kInt && key.GetValue(row.name, number))
    return {std::to_wstring(number), L"registry"};
  key.GetValue(row.name, text, &exists);
  if (exists) value.source = L"default, the registry's value is of the wrong form";
  return value;
}

PresentValue ProductFileValue(const IndexRow& row, const qvx::ProductSection& section) {
  const wchar_t* text = section.Value(row.name);
  return text ? PresentValue{text, L"qvx.ini"} : PresentValue{row.defaultText};
}

const Setting* KernelSetting(const std::wstring& name) {
  int count = 0;
  const Setting* all = Settings(&count);
  for (const Setting* s = all; s != all + count; ++s)
    if (name == s->name) return s;
  return nullptr;
}

TRegProperty HomeOf(const Setting& setting) {
  return setting.home == SettingHome::kRelease ? qvx::ReleaseKey() : qvx::UserKey(L"Settings");
}

PresentValue GlobalValue(const IndexRow& row) {
  PresentValue value;
  const Setting* setting = KernelSetting(row.name);
  if (!setting) return value;
  const bool isArray = setting->type == SettingType::kColor && setting->count > 1;
  const TRegProperty key = HomeOf(*setting);
  bool stored = false, taken = true;
  for (int i = 0; i < (isArray ? setting->count : 1); ++i) {
    const std::wstring name =
        isArray ? std::wstring(row.name) + L"[" + std::to_wstring(i) + L"]" : row.name;
    wchar_t text[600] = L"";
    QvxGetSetting(name.c_str(), text, 600);
    value.text += (i ? L" " : L"") + std::wstring(text);
    std::wstring kept;
    if (setting->home == SettingHome::kSession || !StoredText(key, name.c_str(), kept)) continue;
    stored = true;
    taken = taken && kept.compare(0, 599, text) == 0;
  }
  if (setting->home == SettingHome::kSession) value.source = L"this run";
  if (stored) value.source = taken ? L"registry" : L"this run, the registry has another value";
  return value;
}

PresentValue HostValue(const IndexRow& row) {
  PresentValue value{row.defaultText ? row.defaultText : L""};
  if (qvx::VariableAsText(row.name, value.text)) value.source = L"host";
  return value;
}

PresentValue ValueOf(const IndexRow& row, const qvx::ProductSection& section) {
  switch (row.store) {
    case IndexStore::kMachine:
    case IndexStore::kUser:
      return RegistryValue(row);
    case IndexStore::kProductFile:
      return ProductFileValue(row, section);
    case IndexStore::kGlobal:
      return GlobalValue(row);
    case IndexStore::kHostVariable:
      return HostValue(row);
    case IndexStore::kLispSymbol:
      break;
  }
  return {L"", L"set in each drawing"};
}

const wchar_t* HeadingOf(IndexStore store) {
  switch (store) {
    case IndexStore::kMachine:
      return L"registry, machine";
    case IndexStore::kUser:
      return L"registry, user";
    case IndexStore::kProductFile:
      return L"qvx.ini, section Product";
    case IndexStore::kGlobal:
      return L"kernel globals";
    case IndexStore::kHostVariable:
      return L"host variables";
    case IndexStore::kLispSymbol:
      return L"LISP symbols";
  }
  return L"";
}

std::wstring RowLine(const IndexRow& row, const PresentValue& value) {
  std::wstring line = L"  ";
  const std::wstring folder = FolderOf(row);
  if (!folder.empty()) line += folder + L"\\";
  line += std::wstring(row.name) + L" = " + value.text + L"  [" + value.source + L"]";
  if (row.defaultText) line += std::wstring(L"  default: ") + row.defaultText;
  return line + L"  -- " + row.effect;
}

std::wstring Found(const wchar_t* name) {
  TWCString path(L"not found");
  qvx::FindFile(name, path);
  return std::wstring(path);
}

// The effect of the first-start list at the next start; reads the values as the start does.
std::wstring FirstStartLine() {
  const TRegProperty flags = qvx::MachineKey(L"InitFlag");
  const wchar_t* names[2];
  const wchar_t* decided = nullptr;
  const int count = FirstStartValueNames(g_dHostVersion, names);
  int started = 0;
  for (int i = 0; i < count; ++i)
    if (flags.GetValue(names[i], started)) decided = names[i];
  if (GetCustomFlag() & 0x08) return L"left out by bit 0x08 of g_nCustomFlag";
  if (started) return std::wstring(L"stopped by ") + decided + L" = " + std::to_wstring(started);
  return std::wstring(L"processed at the next start, ") +
         (decided ? std::wstring(decided) + L" is 0" : L"no value of this release is there");
}

std::wstring TipLine() {
  TWCString path;
  if (!qvx::FindFile(L"qvxtips.txt", path)) return L"not found";
  const FileOwner file = qvx::OpenTipFile(path);
  if (!file) return std::wstring(path) + L"  warning: it can't be opened";
  CString tip;
  const bool has = qvx::ReadNextTip(file.get(), tip) == qvx::TipFound::kYes;
  return std::wstring(path) + (has ? L"" : L"  warning: it has no tip");
}

}  // namespace

std::string SettingsReport() {
  const qvx::ProductSection section;
  std::string out;
  const auto line = [&out](const std::wstring& text) { out += LineText(text) + "\n"; };
  line(L"location: " + std::wstring(GetRegLocation()));
  line(L"product file qvx.ini: " + Found(L"qvx.ini") +
       (section.IsThere() ? L"" : L"  warning: no section Product was read"));
  line(L"first-start list dmload.rx: " + Found(L"dmload.rx") + L"; " + FirstStartLine());
  line(L"tip file qvxtips.txt: " + TipLine());
  int count = 0;
  const IndexRow* rows = SettingsIndex(&count);
  for (int i = 0; i < count; ++i) {
    if (i == 0 || rows[i].store != rows[i - 1].store) line(HeadingOf(rows[i].store));
    line(RowLine(rows[i], ValueOf(rows[i], section)));
  }
  return out;
}
