#include "tools/qmn/decompile_source.h"

#include <charconv>
#include <cmath>

#include "adsdef.h"
#include "menu/menu_model.h"
#include "menu/menu_scanner.h"
#include "tools/qmn/decompile_encoder.h"
#include "tools/qmn/decompile_line.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/tool_text.h"
#include "tools/qmn/silent_messages.h"

namespace {

constexpr int kMostGroups = 2;
constexpr int kLongestString = 197;
// More closing pairs than this exceed the length of a line in any case.
constexpr int kMostCloses = 100;

std::wstring_view View(const TWCString& text) { return {text, static_cast<size_t>(text.Length())}; }

// True when the scanner reads the whole of `bytes` as one token of that kind.
bool IsToken(int kind, const std::string& bytes, std::string_view inside) {
  SilentMessages messages;
  MenuScanner scanner(bytes, messages, nullptr, OpenComment::kStop);
  MenuToken token;
  return scanner.Next(token) == kind && token.text == inside && scanner.Next(token) == QMN_END &&
         token.begin == bytes.data() + bytes.size();
}

class SourceWriter {
 public:
  SourceWriter(TMenuSystem& system, unsigned page, Refusals& refusals)
      : m_system(system), m_encoder(page), m_refusals(refusals) {}

  std::string Run() {
    Head();
    if (m_system.Length() == 0) Refuse("file"_say, "blocks: none; a source has at least one"_say);
    for (int i = 0; i < m_system.Length(); ++i) Block(i);
    m_out += "***SWITCH\n";
    for (int i = 0; i < m_system.m_switches.Length(); ++i) Switch(i);
    m_out += "***RESOURCE\n";
    for (int i = 0; i < m_system.m_resources.Length(); ++i) Resource(i);
    return std::move(m_out);
  }

 private:
  struct Place {
    TMenuBar* bar;
    int next;
    int closes;  // sub-menus that end with the last line of this bar, including its own
  };

  void Refuse(const Message& place, Message text) { m_refusals.Add(place, std::move(text)); }

  // --- Tokens

  bool Encode(const Message& place, const Message& field, std::wstring_view text,
              std::string& bytes) {
    if (m_encoder.Append(text, bytes)) return true;
    RefuseLacking(place, field);
    return false;
  }
  void RefuseLacking(const Message& place, const Message& field) {
    Refuse(place, "{0}: {1} is not in code page {2}"_say(field, m_encoder.Lacking(),
                                                         static_cast<int>(m_encoder.Page())));
  }

  void Name(const Message& place, const Message& field, const TWCString& text) {
    std::string bytes;
    if (!Encode(place, field, View(text), bytes)) return;
    m_out += bytes;
    if (IsToken(QMN_IDENTIFIER, bytes, bytes)) return;
    const std::string shown = Utf8(View(text));
    Refuse(place, IsReserved(bytes) ? "{0}: \"{1}\" is a reserved word"_say(field, shown)
                                    : "{0}: \"{1}\" is no name"_say(field, shown));
  }

  static bool IsReserved(const std::string& bytes) {
    SilentMessages messages;
    MenuScanner scanner(bytes, messages, nullptr, OpenComment::kStop);
    MenuToken token;
    return scanner.Next(token) >= QMN_TITLE && token.text == bytes;
  }

  void String(const Message& place, const Message& field, std::wstring_view text) {
    std::string inside;
    if (!Encode(place, field, text, inside)) return;
    const std::string bytes = '"' + inside + '"';
    m_out += bytes;
    if (IsToken(QMN_STRING, bytes, inside)) return;
    if (inside.size() > kLongestString)
      return Refuse(place,
                    "{0}: {1} bytes; a string holds {2}"_say(field, inside.size(), kLongestString));
    Refuse(
        place,
        "{0}: holds a quote, a line end, a zero or a backslash that can't stand so in a string"_say(
            field));
  }

  // --- Sections

  void Head() {
    if (m_system.m_nReserved1 || m_system.m_nReserved2)
      Refuse("file"_say,
             "reserved numbers: {0} and {1}; a source makes them 0"_say(
                 std::to_string(m_system.m_nReserved1), std::to_string(m_system.m_nReserved2)));
    m_out += "MENU_TITLE = ";
    String("file"_say, "title"_say, View(m_system.m_strTitle));
    m_out += "\n";
  }

  void Block(int index) {
    TMenuBar& bar = *m_system.At(index);
    const Message place = PlaceOfBlock(m_system, index);
    m_out += "***";
    Name(place, "name"_say, bar.m_strName);
    if (!bar.m_strKind.IsEmpty()) {
      m_out += " ";
      Name(place, "kind"_say, bar.m_strKind);
    }
    Mask(place, bar);
    m_out += "\n";
    if (bar.Length() == 0) Refuse(place, "lines: none; a block has at least one"_say);
    Lines(index);
  }

  void Mask(const Message& place, const TMenuBar& bar) {
    int count = 0;
    for (const TGroups* group = bar.m_objectMask.Head(); group; group = group->Next()) ++count;
    if (bar.m_strKind.IsEmpty() != (count == 0))
      Refuse(place, count ? "mask: stands in a source only behind a kind"_say
                          : "kind: stands in a source only in front of a mask"_say);
    if (count > kMostGroups)
      return Refuse(place, "mask: {0} groups; a source keeps no more than two"_say(count));
    const char* before = " = ";
    for (const TGroups* group = bar.m_objectMask.Head(); group; group = group->Next()) {
      m_out += before + std::to_string(CodeOf(*group)) + ",";
      Value(place, *group);
      before = ",";
    }
  }

  void Value(const Message& place, const TGroups& group) {
    const Message field = "mask group {0}"_say(std::to_string(CodeOf(group)));
    switch (KindOf(group)) {
      case RTSHORT:
        // The engine truncates numbers to 16 bits, so a negative one is written
        // as its unsigned value.
        m_out += std::to_string(static_cast<unsigned short>(group.resval.rint));
        return;
      case RTREAL:
        return Real(place, field, group.resval.rreal);
      case RTSTR:
        return String(place, field, group.resval.rstring ? group.resval.rstring : L"");
      default:
        Refuse(place, "{0}: a code of a kind that a source has no value for"_say(field));
    }
  }

  void Real(const Message& place, const Message& field, double value) {
    if (std::isnan(value) || std::signbit(value))
      return Refuse(place, "{0}: a source has no negative numbers and only numbers"_say(field));
    if (std::isinf(value)) {
      m_out += "1.0e999";
      return;
    }
    char text[40];
    const char* end = std::to_chars(text, text + sizeof text, value).ptr;
    std::string digits(static_cast<const char*>(text), end);
    // A real differs from an integer by its point and at least one digit after it.
    if (digits.find('.') == std::string::npos)
      digits.insert(std::min(digits.find('e'), digits.size()), ".0");
    m_out += digits;
  }

  void Switch(int index) {
    const TMenuSwitchItem& item = *m_system.m_switches.At(index);
    const Message place = PlaceOfSwitch(m_system, index);
    m_out += "**";
    Name(place, "name"_say, item.m_strName);
    m_out += " GET=";
    Name(place, "get"_say, item.m_strGetFn);
    m_out += " SET=";
    Name(place, "set"_say, item.m_strSetFn);
    m_out += "\n";
    if (item.m_states.Length() == 0) Refuse(place, "states: none; a switch has at least one"_say);
    for (int i = 0; i < item.m_states.Length(); ++i) State(index, i, *item.m_states.At(i));
  }

  void State(int index, int number, const TSwitchStateItem& state) {
    const Message place = PlaceOfState(m_system, index, number);
    if (state.m_nValue < 0)
      Refuse(place, "value: {0}; a source has no negative numbers"_say(int{state.m_nValue}));
    m_out += std::to_string(state.m_nValue) + " = ";
    Name(place, "icon"_say, state.m_strIconName);
    m_out += ", ";
    String(place, "label"_say, View(state.m_strLabel));
    m_out += "\n";
  }

  void Resource(int index) {
    const TMenuResItem& item = *m_system.m_resources.At(index);
    const Message place = PlaceOfResource(m_system, index);
    Name(place, "name"_say, item.m_strName);
    m_out += " = ";
    String(place, "image"_say, View(item.m_strImage));
    m_out += ",";
    String(place, "image2"_say, View(item.m_strImage2));
    m_out += "\n";
  }

  // --- Lines

  void Lines(int block) {
    std::vector<Place> path{{m_system.At(block), 0, 0}};
    int number = 0;
    while (!path.empty()) {
      Place& place = path.back();
      if (place.next == place.bar->Length()) {
        path.pop_back();
        continue;
      }
      const TMenuItem& item = *place.bar->At(place.next++);
      const int closes = place.next == place.bar->Length() ? place.closes : 0;
      Line(block, number, item, closes);
      if (TMenuBar* below = item.m_pSubMenu) {
        CheckSubMenu(block, number, *below);
        path.push_back({below, 0, closes + 1});
      }
      ++number;
    }
  }

  void CheckSubMenu(int block, int line, const TMenuBar& bar) {
    if (bar.Length() == 0)
      Refuse(PlaceOfLine(m_system, block, line),
             "sub-menu: without lines; a source has no such"_say);
    if (!bar.m_strName.IsEmpty() || !bar.m_strKind.IsEmpty() || !bar.m_objectMask.IsEmpty())
      Refuse(PlaceOfLine(m_system, block, line),
             "sub-menu: with a name, kind or mask, which a source has for blocks only"_say);
  }

  void Line(int block, int number, const TMenuItem& item, int closes) {
    if (!item.m_strIconName.IsEmpty()) {
      Name(PlaceIfNeeded(block, number, item.m_strIconName), "icon name"_say, item.m_strIconName);
      m_out += " ";
    }
    std::string bytes;
    for (const LineForm form : {LineForm::kPlain, LineForm::kTight, LineForm::kUnsheltered}) {
      bytes.clear();
      if (!WriteLine(item, closes, form, bytes))
        return RefuseLacking(PlaceOfLine(m_system, block, number), "text"_say);
      if (bytes.size() <= size_t{kLongestToken}) break;
    }
    PutLine(block, number, bytes);
  }

  bool WriteLine(const TMenuItem& item, int closes, LineForm form, std::string& bytes) {
    const std::wstring label = WrittenLabel(item, std::min(closes, kMostCloses), form);
    const std::wstring command = WrittenCommand(View(item.m_strCommand), form);
    if (!m_encoder.Append(L"[" + label + L"]" + command, bytes)) return false;
    if (!item.m_strCommand.IsEmpty() && (form == LineForm::kPlain || IsEndNeeded(command)))
      bytes += ';';
    return true;
  }

  void PutLine(int block, int number, const std::string& bytes) {
    m_out += bytes;
    m_out += '\n';
    if (IsLine(bytes)) return;
    const Message place = PlaceOfLine(m_system, block, number);
    if (bytes.size() > size_t{kLongestToken})
      return Refuse(place, "text: {0} bytes; a line holds {1}"_say(bytes.size(), kLongestToken));
    Refuse(place, "text: holds a zero or, in the label, a line end"_say);
  }

  static bool IsLine(const std::string& bytes) {
    return bytes.size() <= size_t{kLongestToken} && bytes.find('\n') == std::string::npos &&
           bytes.find('\0') == std::string::npos;
  }

  // Place names are expensive to build, and most lines need none.
  Message PlaceIfNeeded(int block, int line, const TWCString& name) {
    std::string bytes;
    if (m_encoder.Append(View(name), bytes) && IsToken(QMN_IDENTIFIER, bytes, bytes))
      return std::string();
    return PlaceOfLine(m_system, block, line);
  }

  TMenuSystem& m_system;
  PageEncoder m_encoder;
  Refusals& m_refusals;
  std::string m_out;
};

Message Named(Phrase what, const TWCString& name, int index) {
  const std::string bytes = Utf8(View(name));
  return what(IsToken(QMN_IDENTIFIER, bytes, bytes) ? bytes : "#" + std::to_string(index + 1));
}

}  // namespace

Message PlaceOfBlock(const TMenuSystem& system, int block) {
  return Named("block {0}"_say, system.At(block)->m_strName, block);
}
Message PlaceOfLine(const TMenuSystem& system, int block, int line) {
  return "{0}, line {1}"_say(PlaceOfBlock(system, block), line + 1);
}
Message PlaceOfSwitch(const TMenuSystem& system, int index) {
  return Named("switch {0}"_say, system.m_switches.At(index)->m_strName, index);
}
Message PlaceOfState(const TMenuSystem& system, int index, int state) {
  return "{0}, state {1}"_say(PlaceOfSwitch(system, index), state + 1);
}
Message PlaceOfResource(const TMenuSystem& system, int index) {
  return Named("resource {0}"_say, system.m_resources.At(index)->m_strName, index);
}

std::string WriteSource(TMenuSystem& system, unsigned page, Refusals& refusals) {
  return SourceWriter(system, page, refusals).Run();
}
