// Compares the index of settings with the sources of the rooms in both directions, with the
// kernel's table, and with the values after a fresh start.
#include "frame/settings/settings_index.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "frame/start/first_start.h"
#include "frame/start/host_release.h"
#include "kernel/globals.h"
#include "kernel/settings.h"
#include "kernel/tregproperty.h"
#include "screenmenu/palette_settings.h"

namespace {

namespace fs = std::filesystem;

std::vector<IndexRow> Rows() {
  int count = 0;
  const IndexRow* all = SettingsIndex(&count);
  return {all, all + count};
}

std::string Bytes(const wchar_t* text) {
  std::string out;
  for (; *text; ++text) {
    const unsigned c = static_cast<unsigned>(*text);
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 63));
      out += static_cast<char>(0x80 | (c & 63));
    }
  }
  return out;
}

std::set<std::string> Words(const wchar_t* text) {
  std::istringstream in(Bytes(text));
  return {std::istream_iterator<std::string>(in), {}};
}

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The names used by each room, from calls that access a store and from names of exported data.
using NamesByRoom = std::map<std::string, std::set<std::string>>;

// The names declared in the kernel's header.
const std::set<std::string>& ExportedGlobals() {
  static const std::set<std::string> names = [] {
    std::set<std::string> found;
    std::istringstream lines(
        ReadFile(fs::path(QVX_SOURCE_DIR) / "standins" / "kernel" / "globals.h"));
    for (std::string line; std::getline(lines, line);) {
      const size_t at = line.find(" g_") != line.npos ? line.find(" g_") : line.find("*g_");
      if (at == line.npos || line.find("//") < at || line.find(';') == line.npos) continue;
      found.insert(line.substr(at + 1, line.find_first_of("[;", at) - at - 1));
    }
    return found;
  }();
  return names;
}

// Collects the string literal of each call of this name, as first or second argument.
void CollectCall(const std::string& text, const std::string& call, std::set<std::string>& names) {
  const std::string identifier = "_0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (size_t at = text.find(call); at != text.npos; at = text.find(call, at + 1)) {
    size_t next = text.find_first_not_of(" \r\n", at + call.size());
    if (next != text.npos && text.compare(next, 2, "L\"") != 0) {
      next = text.find_first_not_of(identifier, next);
      next = text.find_first_not_of("(, \r\n", next);
    }
    if (next == text.npos || text.compare(next, 2, "L\"") != 0) continue;
    names.insert(text.substr(next + 2, text.find('"', next + 2) - next - 2));
  }
}

bool HasWord(const std::string& text, const std::string& word) {
  const auto isPart = [](char c) {
    return c == '_' || std::isalnum(static_cast<unsigned char>(c));
  };
  for (size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1))
    if ((at == 0 || !isPart(text[at - 1])) && !isPart(text[at + word.size()])) return true;
  return false;
}

void CollectFile(const std::string& text, std::set<std::string>& names) {
  for (const char* call :
       {"GetValue(", "SetValue(", "ScreenMenuSetting(", "acedGetVar(", "acedPutSym(",
        "GetIniBuferValueByKey(", "ValueOf(", "product.Value(", "ShortVariable(", "PointVariableX(",
        "TextVariable(", "SetRealVariable(", "TextOf(product, ", "TPushAcadVar<int, 0> "})
    CollectCall(text, call, names);
  const std::string flag = "L\"InitStart";  // the release selects the name
  for (size_t at = text.find(flag); at != text.npos; at = text.find(flag, at + 1))
    names.insert(text.substr(at + 2, text.find('"', at + 2) - at - 2));
  for (const std::string& global : ExportedGlobals())
    if (HasWord(text, global)) names.insert(global);
  if (HasWord(text, "GetCustomFlag")) names.insert("g_nCustomFlag");
}

NamesByRoom NamesInSources() {
  NamesByRoom found;
  for (const char* room : {"frame", "menu", "screenmenu", "popup", "doctabs", "statusbar", "editor",
                           "dialogs", "ground", "standins/kernel"}) {
    const fs::path folder = fs::path(QVX_SOURCE_DIR) / room;
    if (!fs::exists(folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const std::string name = entry.path().filename().string();
      const std::string extension = entry.path().extension().string();
      if ((extension != ".cpp" && extension != ".h") || name.starts_with("settings_")) continue;
      CollectFile(ReadFile(entry.path()), found[folder.filename().string()]);
    }
  }
  return found;
}

const IndexRow& RowOf(const std::wstring& name) {
  int count = 0;
  const IndexRow* all = SettingsIndex(&count);
  for (int i = 0; i < count; ++i)
    if (name == all[i].name) return all[i];
  ADD_FAILURE() << "no row " << Bytes(name.c_str());
  return all[0];
}

IndexType TypeOf(SettingType type) {
  switch (type) {
    case SettingType::kInt:
      return IndexType::kInt;
    case SettingType::kColor:
      return IndexType::kColor;
    case SettingType::kReal:
      return IndexType::kReal;
    case SettingType::kHandle:
      return IndexType::kHandle;
    default:
      return IndexType::kText;
  }
}

}  // namespace

TEST(SettingsIndex, EveryRowIsCompleteAndUnique) {
  std::set<std::wstring> places;
  for (const IndexRow& row : Rows()) {
    const std::wstring place =
        std::to_wstring(static_cast<int>(row.store)) + row.folder + L"|" + row.name;
    EXPECT_TRUE(places.insert(place).second) << Bytes(row.name);
    EXPECT_FALSE(Words(row.rooms).empty()) << Bytes(row.name);
    EXPECT_GT(std::wstring(row.effect).size(), 5u) << Bytes(row.name);
    const bool keyed = row.store == IndexStore::kMachine || row.store == IndexStore::kUser;
    EXPECT_TRUE(keyed || !*row.folder) << Bytes(row.name);
  }
}

TEST(SettingsIndex, EverythingThatTheSourcesReadOrWriteHasARowThatNamesTheRoom) {
  std::map<std::string, std::set<std::string>> roomsOf;
  for (const IndexRow& row : Rows()) roomsOf[Bytes(row.name)].merge(Words(row.rooms));
  EXPECT_EQ(ExportedGlobals().size(), 37u);
  const NamesByRoom sources = NamesInSources();
  ASSERT_GT(sources.at("screenmenu").size(), 10u) << "the sources were not found";
  for (const auto& [room, names] : sources) {
    for (const std::string& name : names) {
      const auto row = roomsOf.find(name);
      if (row == roomsOf.end()) {
        ADD_FAILURE() << room << " uses " << name << ", which the index lacks";
      } else if (room != "kernel") {  // the kernel keeps them all
        EXPECT_TRUE(row->second.count(room)) << room << " is no room of " << name;
      }
    }
  }
}

TEST(SettingsIndex, EveryRowIsUsedByEachOfItsRooms) {
  const NamesByRoom sources = NamesInSources();
  for (const IndexRow& row : Rows()) {
    for (const std::string& room : Words(row.rooms)) {
      const auto names = sources.find(room);
      EXPECT_TRUE(names != sources.end() && names->second.count(Bytes(row.name)))
          << room << " doesn't use " << Bytes(row.name);
    }
  }
}

TEST(SettingsIndex, GlobalsAreThoseOfTheKernelWithItsTypesDefaultsAndMeanings) {
  int count = 0, globals = 0;
  const Setting* kernel = Settings(&count);
  for (const IndexRow& row : Rows()) globals += row.store == IndexStore::kGlobal;
  EXPECT_EQ(globals, count);
  for (const Setting* s = kernel; s != kernel + count; ++s) {
    const IndexRow& row = RowOf(s->name);
    EXPECT_EQ(row.store, IndexStore::kGlobal);
    EXPECT_EQ(row.type, TypeOf(s->type)) << Bytes(s->name);
    EXPECT_STREQ(row.defaultText, s->defaultText) << Bytes(s->name);
    EXPECT_STREQ(row.effect, s->meaning) << Bytes(s->name);
  }
}

TEST(SettingsIndex, AFreshStartHasTheDefaultsOfTheGlobals) {
  LoadSettings();
  g_dHostVersion = 94.1;  // a release that does not exist
  LoadSettings();
  int count = 0;
  const Setting* kernel = Settings(&count);
  for (const Setting* s = kernel; s != kernel + count; ++s) {
    const std::wstring name = s->name;
    if (name == L"g_dHostVersion" || s->type == SettingType::kHandle) continue;
    std::wistringstream elements(s->defaultText);
    std::wstring element = s->defaultText;
    for (int i = 0; i < (s->type == SettingType::kColor ? s->count : 1); ++i) {
      if (s->type == SettingType::kColor) {
        elements >> element;
        element = std::to_wstring(std::stol(element, nullptr, 16));
      }
      const std::wstring which = s->type == SettingType::kColor && s->count > 1
                                     ? name + L"[" + std::to_wstring(i) + L"]"
                                     : name;
      wchar_t text[600] = L"";
      EXPECT_EQ(QvxGetSetting(which.c_str(), text, 600), 1);
      EXPECT_EQ(text, element) << Bytes(which.c_str());
    }
  }
}

TEST(SettingsIndex, AFreshStartHasTheDefaultsOfTheScreenMenusValues) {
  g_dHostVersion = 94.1;
  qvx::PaletteSettings settings;
  settings.limitHeight = g_bLimitHeight;
  settings.defaultOpenFirst = g_bDefaultOpenFirst;
  settings.scrollBar = g_bScrollBar;
  qvx::LoadPaletteSettings(settings);
  const std::pair<const wchar_t*, int> values[] = {
      {L"Alignment", settings.alignment},     {L"SizeX", settings.sizeX},
      {L"LimitHeight", settings.limitHeight}, {L"DefaultOpenFirst", settings.defaultOpenFirst},
      {L"ScrollBar", settings.scrollBar},     {L"ActiveSubMenu", qvx::LoadActiveSubMenu()},
  };
  for (const auto& [name, value] : values)
    EXPECT_EQ(std::to_wstring(value), RowOf(name).defaultText) << Bytes(name);
}

TEST(SettingsIndex, HasEveryFirstStartValueThatAReleaseReads) {
  std::set<std::wstring> asked, listed;
  for (double release = 15.0; release < 25.0; release += 0.05) {
    const wchar_t* names[2];
    const int count = FirstStartValueNames(release, names);
    asked.insert(names, names + count);
  }
  for (const IndexRow& row : Rows())
    if (!std::wstring(row.folder).compare(L"InitFlag")) listed.insert(row.name);
  EXPECT_EQ(asked, listed);
  EXPECT_EQ(asked.size(), 12u);
}
