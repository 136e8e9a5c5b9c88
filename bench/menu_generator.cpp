#include "bench/menu_generator.h"

#include <algorithm>
#include <random>
#include <string_view>
#include <vector>

#include "kernel/twcstring.h"

namespace {

constexpr int kFewestLines = 100;

// Shares of the product menu, per line.
constexpr double kResourcesPerLine = 0.197;
constexpr double kSwitchesPerLine = 0.0133;
constexpr int kLinesPerSwitch = 3;
constexpr double kScreenShare = 0.52;  // of the lines of all blocks

constexpr const char* kIconWords[] = {
    "AXIS",   "AXISARC",  "COLUMN",  "COLCORNER", "WALL",    "WALLARC", "WALLCORNER", "WALLTEE",
    "DOOR",   "WINDOW",   "BAYWIN",  "CURTAIN",   "ROOM",    "AREA",    "TILE",       "ROOF",
    "STAIR",  "HANDRAIL", "LIFT",    "BALCONY",   "TEXT",    "TABLE",   "FIND",       "DIMWALL",
    "DIMANG", "ELEV",     "SECTION", "DETAIL",    "LIBRARY", "HATCH",   "PLOTLAYOUT", "VIEWPORT",
};
constexpr const char* kVerbs[] = {"",     "Arc",  "Edit", "Add",   "Del",   "Sort", "Auto",
                                  "Line", "Flip", "Show", "Block", "Multi", "Out",  "Set"};
constexpr const char* kNouns[] = {"Axis",  "Wall", "Column", "Door",   "Window", "Room",
                                  "Stair", "Text", "Table",  "DimOff", "Layer",  "Corner",
                                  "Roof",  "Elev", "Height", "Label",  "Frame",  "Trim"};
constexpr const char* kTypes[] = {"QVX_WALL", "QVX_OPENING", "QVX_COLUMN", "QVX_SPACE",
                                  "QVX_DIM",  "QVX_TEXT",    "INSERT",     "LINE"};
constexpr const wchar_t* kWords[] = {
    L"墙体", L"轴网", L"门窗", L"柱子", L"房间", L"屋顶", L"楼梯", L"文字", L"表格", L"尺寸",
    L"符号", L"图库", L"布图", L"标注", L"编辑", L"设置", L"绘制", L"修改", L"插入", L"删除",
    L"批量", L"对齐", L"翻转", L"编号", L"检查", L"统计", L"偏移", L"裁剪", L"图层", L"高度"};

std::string Ansi(const wchar_t* text) { return TAString(text).c_str(); }

class Generator {
 public:
  Generator(int lines, uint64_t seed) : m_random(seed) {
    for (const wchar_t* word : kWords) m_words.push_back(Ansi(word));
    m_switches = std::max(1, static_cast<int>(lines * kSwitchesPerLine));
    m_icons = std::max(2, static_cast<int>(lines * kResourcesPerLine) - 2 * m_switches);
    m_bodyEnd = lines - Tail();
  }

  std::string Run() {
    Heading(Ansi(L"主菜单 "));
    Line("MENU_TITLE = \"" + Label() + "\"");
    Screen();
    Common();
    while (Left() > 0) Block();
    Switches();
    Resources();
    return std::move(m_out);
  }

 private:
  // Lines of the switch section and the resource section, including their headings.
  int Tail() const { return 5 + kLinesPerSwitch * m_switches + 5 + m_icons + 2 * m_switches; }
  int Left() const { return m_bodyEnd - m_made; }

  int Below(int count) { return static_cast<int>(m_random() % static_cast<uint64_t>(count)); }
  int Between(int low, int high) { return low + Below(high - low + 1); }
  bool OneIn(int count) { return Below(count) == 0; }
  bool Percent(int share) { return Below(100) < share; }
  template <class List>
  auto Pick(const List& list) {
    return list[static_cast<size_t>(Below(static_cast<int>(std::size(list))))];
  }

  void Line(const std::string& text) {
    m_out += text;
    m_out += '\n';
    ++m_made;
  }

  void Heading(const std::string& text) {
    Line("");
    Line("// --------------------------------------------------------------------------");
    Line("//  " + text + Label());
    Line("// --------------------------------------------------------------------------");
  }

  std::string Label() { return Pick(m_words) + Pick(m_words); }

  std::string Command() {
    if (OneIn(12)) return OneIn(2) ? "'_.ZOOM;_E;" : "_.ERASE;";
    return std::string("^C^CT") + Pick(kVerbs) + Pick(kNouns) + ";";
  }

  static std::string IconName(int index) {
    const int words = static_cast<int>(std::size(kIconWords));
    const std::string word = kIconWords[index % words];
    return index < words ? word : word + std::to_string(index / words);
  }

  static std::string Padded(std::string text, size_t width) {
    if (text.size() < width) text.append(width - text.size(), ' ');
    return text;
  }

  // A new icon while the share of used icons is below the share of written lines, else a used one.
  std::string Icon() {
    const double due = static_cast<double>(m_icons) * m_made / m_bodyEnd;
    const bool fresh = m_usedIcons == 0 || (m_usedIcons < m_icons && m_usedIcons < due);
    return IconName(fresh ? m_usedIcons++ : Below(m_usedIcons));
  }

  void Separator() { Line("[--]"); }

  void SwitchLine() { Line(Padded("SW_" + std::to_string(Below(m_switches)), 9) + " [*SWITCH*]"); }

  void Item(const std::string& before, bool mnemonic) {
    std::string label = before;
    if (OneIn(70)) label += OneIn(2) ? "{~=QvxNoDrawing}" : "{!=QvxOrthoOn}";
    label += Label();
    if (mnemonic && OneIn(3)) label += std::string("(&") + static_cast<char>('A' + Below(26)) + ")";
    if (mnemonic && OneIn(12)) label += "\tCtrl+L";
    const std::string icon = Percent(66) ? Padded(Icon(), 9) + " " : "";
    Line(icon + "[" + label + "]" + Command());
  }

  // From the "->" line to the line with "<-", including deeper sub-menus.
  void SubMenu(int depth) {
    Line("[->" + Label() + "]");
    const int count = Between(depth == 1 ? 4 : 3, depth == 1 ? 10 : 5);
    for (int i = 1; i < count && Left() > 2; ++i) {
      if (i == 3 && depth < 3 && OneIn(2) && Left() > 12) SubMenu(depth + 1);
      if (i == 3 && OneIn(2)) Separator();
      Item("", false);
    }
    Item("<-", false);
  }

  void Screen() {
    Heading("");
    Line("***SCREEN");
    const int end = m_made + static_cast<int>(Left() * kScreenShare);
    while (m_made < end) {
      SubMenu(1);
      if (OneIn(8)) Separator();
      if (OneIn(3)) SwitchLine();
    }
    Item("", false);
  }

  void Common() {
    Line("***COMMON");
    for (int i = 0; i < 12 && Left() > 1; ++i) Item("", true);
  }

  void Block() {
    if (OneIn(5) && Left() > 8) Heading("");
    if (Left() < 2) return Line("//");
    const std::string name = "MENU_" + std::to_string(++m_blocks);
    const std::string type = Pick(kTypes);
    std::string head = "***" + name;
    if (OneIn(2)) head += " " + std::string(Pick(kIconWords)) + " = 0,\"" + type + "\"";
    if (head.back() == '"' && OneIn(3)) head += ",8,\"@" + std::string(Pick(kIconWords)) + "\"";
    Line(head);
    const int count = std::min(Left(), Between(2, 7));
    for (int i = 0; i < count; ++i) {
      const bool inside = i > 0 && i + 1 < count;
      if (inside && OneIn(4)) {
        Separator();
      } else if (inside && OneIn(12)) {
        SwitchLine();
      } else if (inside && OneIn(24) && Left() > 12) {
        SubMenu(2);
      } else {
        Item("", true);
      }
      if (Left() == 0) return;
    }
  }

  void Switches() {
    Heading("");
    Line("***SWITCH");
    for (int i = 0; i < m_switches; ++i) {
      const std::string number = std::to_string(i);
      Line(Padded("**SW_" + number, 11) + " GET=QvxGet" + Padded(number, 6) + " SET=QvxToggle" +
           number);
      const std::string label = Label();
      Line("0 = STATE" + number + "_OFF, \"" + label + "  " + m_off + "\"");
      Line("1 = STATE" + number + "_ON,  \"" + label + "  " + m_on + "\"");
    }
  }

  void Resource(const std::string& name) {
    std::string help = Label() + Pick(m_words);
    if (OneIn(2)) help += Label();
    Line(Padded(name, 11) + " = \"BMP_" + name + "\",\"" + help + "\"");
  }

  void Resources() {
    Heading("");
    Line("***RESOURCE");
    for (int i = 0; i < m_icons; ++i) Resource(IconName(i));
    for (int i = 0; i < m_switches; ++i) {
      Resource("STATE" + std::to_string(i) + "_OFF");
      Resource("STATE" + std::to_string(i) + "_ON");
    }
  }

  std::mt19937_64 m_random;
  int m_switches;
  int m_icons;
  int m_bodyEnd;
  int m_made = 0;
  int m_usedIcons = 0;
  int m_blocks = 0;
  std::vector<std::string> m_words;
  const std::string m_on = Ansi(L"开");
  const std::string m_off = Ansi(L"关");
  std::string m_out;
};

void CountItem(std::string_view line, size_t bracket, MenuMix& mix) {
  ++mix.items;
  mix.bytesOfItems += line.size() + 1;
  mix.withIcon += bracket > 0;
  const std::string_view label = line.substr(bracket + 1);
  mix.separators += label.starts_with("--");
  mix.opening += label.starts_with("->");
  mix.closing += label.starts_with("<-");
  mix.switchLines += label.starts_with("*SWITCH*");
  mix.conditions += label.find("{~=") != label.npos || label.find("{!=") != label.npos;
}

void CountLine(std::string_view line, MenuMix& mix) {
  const size_t bracket = line.find('[');
  if (line.empty()) {
    ++mix.blank;
  } else if (line.starts_with("//")) {
    ++mix.comments;
  } else if (line.starts_with("***")) {
    ++mix.blocks;
    mix.masks += line.find('=') != line.npos;
  } else if (line.starts_with("**")) {
    ++mix.switches;
  } else if (bracket != line.npos) {
    CountItem(line, bracket, mix);
  } else if (line[0] >= '0' && line[0] <= '9') {
    ++mix.states;
  } else if (line.find("\",\"") != line.npos) {
    ++mix.resources;
    mix.bytesOfResources += line.size() + 1;
  }
}

}  // namespace

std::string GenerateMenu(int lines, uint64_t seed) {
  return Generator(std::max(lines, kFewestLines), seed).Run();
}

MenuMix MeasureMix(const std::string& source) {
  MenuMix mix;
  for (size_t at = 0; at < source.size();) {
    const size_t end = std::min(source.find('\n', at), source.size());
    std::string_view line = std::string_view(source).substr(at, end - at);
    if (line.ends_with('\r')) line.remove_suffix(1);
    CountLine(line, mix);
    mix.bytes += line.size() + 1;
    ++mix.lines;
    at = end + 1;
  }
  return mix;
}
