// The parser of play scripts: one step a line. Each function begins with its grammar rule.
#include "devhost/play/play_script.h"

#include <charconv>
#include <cmath>
#include <map>

#include "devhost/core/base/utf8.h"
#include "devhost/play/state_path.h"

namespace devhost {
namespace {

constexpr int kMaxWait = 600000;       // ms; longer waits are assumed to be mistakes
constexpr int kMaxPosition = 1000000;  // of a character
constexpr int kMaxWheel = 32767;       // the delta has 16 bits
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

class StepReader {
 public:
  StepReader(const std::vector<ScriptWord>& words, int endColumn, Step* step, ScriptError* error)
      : m_words(words), m_endColumn(endColumn), m_step(step), m_error(error) {}

  bool Read();

 private:
  using Rule = bool (StepReader::*)();

  bool Fail(const std::string& message) {
    m_error->column = AtEnd() ? m_endColumn : m_words[m_at].column;
    m_error->message = message;
    return false;
  }
  bool FailBack(const std::string& message) {
    --m_at;
    return Fail(message);
  }
  bool AtEnd() const { return m_at >= m_words.size(); }
  bool Is(StepKind kind) {
    m_step->kind = kind;
    return true;
  }

  bool End() { return AtEnd() || Fail("nothing may follow here"); }

  // quoted
  bool Quoted(std::string* text, const char* what) {
    if (AtEnd() || !m_words[m_at].quoted) return Fail(std::string(what) + " in quotes is missing");
    *text = m_words[m_at++].text;
    return true;
  }

  // word
  bool Bare(std::string* text, const char* what) {
    if (AtEnd() || m_words[m_at].quoted) return Fail(std::string(what) + " is missing");
    *text = m_words[m_at++].text;
    return true;
  }

  // value: quoted | word
  bool Value(ScriptValue* value) {
    if (AtEnd()) return Fail("the value is missing");
    value->text = m_words[m_at].text;
    value->quoted = m_words[m_at++].quoted;
    return true;
  }

  bool Integer(int* number, int least, int most, const char* what) {
    std::string word;
    if (!Bare(&word, what)) return false;
    const auto [end, problem] = std::from_chars(word.data(), word.data() + word.size(), *number);
    if (problem == std::errc() && end == word.data() + word.size() && *number >= least &&
        *number <= most)
      return true;
    return FailBack(std::string(what) + " must be a whole number from " + std::to_string(least) +
                    " to " + std::to_string(most));
  }

  bool Real(double* number, const char* what) {
    std::string word;
    if (!Bare(&word, what)) return false;
    const auto [end, problem] = std::from_chars(word.data(), word.data() + word.size(), *number);
    if (problem == std::errc() && end == word.data() + word.size() && std::isfinite(*number))
      return true;
    return FailBack(std::string(what) + " must be a number");
  }

  bool Points(Target* target);
  bool Handle(std::string* handle);
  bool Part(std::string* part);
  bool ReadTarget(Target* target);
  bool Held();

  bool Wait();
  bool Expect();
  bool Dump();
  bool Select();
  bool Press();
  bool HoldButton();
  bool Button();
  bool Wheel();
  bool Drag();
  bool Handles();
  bool ExpectHelp();
  bool ExpectText();
  bool Pointer(StepKind kind) { return Is(kind) && ReadTarget(&m_step->target) && Held(); }
  bool Text(StepKind kind, const char* what) { return Is(kind) && Quoted(&m_step->text, what); }
  bool Assign(StepKind kind) {
    return Is(kind) && Bare(&m_step->text, "the name") && Value(&m_step->value);
  }

  bool Open() { return Text(StepKind::Open, "the file"); }
  bool New() { return Is(StepKind::New); }
  bool Activate() { return Text(StepKind::Activate, "the drawing's name"); }
  bool Close() { return Is(StepKind::Close); }
  bool Command() { return Text(StepKind::Command, "the text"); }
  bool Type() { return Text(StepKind::Type, "the text"); }
  bool Click();
  bool RightClick() { return Pointer(StepKind::RightClick); }
  bool MiddleClick() { return Pointer(StepKind::MiddleClick); }
  bool ButtonDown() { return Is(StepKind::ButtonDown) && Button(); }
  bool ButtonUp() { return Is(StepKind::ButtonUp) && Button(); }
  bool MiddleDrag() { return Drag() && Is(StepKind::MiddleDrag); }
  bool DoubleClick() { return Pointer(StepKind::DoubleClick); }
  bool Move() { return Is(StepKind::Move) && ReadTarget(&m_step->target); }
  bool SetVar() { return Assign(StepKind::SetVar); }
  bool Setting() { return Assign(StepKind::Setting); }
  bool Shot() { return Text(StepKind::Shot, "the file"); }
  bool Restart() { return Is(StepKind::Restart); }
  bool Quit() { return Is(StepKind::Quit); }

  static const std::map<std::string_view, Rule>& Rules();

  const std::vector<ScriptWord>& m_words;
  int m_endColumn;
  Step* m_step;
  ScriptError* m_error;
  std::size_t m_at = 0;
};

const std::map<std::string_view, StepReader::Rule>& StepReader::Rules() {
  static const std::map<std::string_view, Rule> rules = {
      {"open", &StepReader::Open},
      {"new", &StepReader::New},
      {"activate", &StepReader::Activate},
      {"close", &StepReader::Close},
      {"command", &StepReader::Command},
      {"type", &StepReader::Type},
      {"press", &StepReader::Press},
      {"click", &StepReader::Click},
      {"rightclick", &StepReader::RightClick},
      {"middleclick", &StepReader::MiddleClick},
      {"buttondown", &StepReader::ButtonDown},
      {"buttonup", &StepReader::ButtonUp},
      {"middledrag", &StepReader::MiddleDrag},
      {"doubleclick", &StepReader::DoubleClick},
      {"hold", &StepReader::HoldButton},
      {"move", &StepReader::Move},
      {"wheel", &StepReader::Wheel},
      {"drag", &StepReader::Drag},
      {"select", &StepReader::Select},
      {"setvar", &StepReader::SetVar},
      {"setting", &StepReader::Setting},
      {"wait", &StepReader::Wait},
      {"expect", &StepReader::Expect},
      {"dump", &StepReader::Dump},
      {"shot", &StepReader::Shot},
      {"restart", &StepReader::Restart},
      {"quit", &StepReader::Quit},
  };
  return rules;
}

// step: verb what-the-verb-takes
bool StepReader::Read() {
  std::string verb;
  if (!Bare(&verb, "the step")) return false;
  const auto rule = Rules().find(verb);
  if (rule == Rules().end()) return FailBack("there is no step \"" + verb + "\"");
  return (this->*rule->second)() && End();
}

// points: NUMBER NUMBER
bool StepReader::Points(Target* target) { return Real(&target->x, "x") && Real(&target->y, "y"); }

// handle: hexadecimal digits
bool StepReader::Handle(std::string* handle) {
  if (!Bare(handle, "the handle")) return false;
  for (char& c : *handle)
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  if (handle->size() <= 16 && handle->find_first_not_of("0123456789ABCDEFabcdef") == handle->npos)
    return true;
  return FailBack("a handle has up to 16 hexadecimal digits");
}

// part: left | right | empty
bool StepReader::Part(std::string* part) {
  if (!Bare(part, "left, right or empty")) return false;
  return *part == "left" || *part == "right" || *part == "empty" ||
         FailBack("the part of the strip is left, right or empty");
}

// target: row "path" | tab "name" | strip part | pane "name" | popup "label" | button "label"
//       | entity HANDLE | world X Y | view X Y | character N
bool StepReader::ReadTarget(Target* target) {
  static const std::map<std::string_view, TargetKind> kinds = {
      {"row", TargetKind::Row},       {"tab", TargetKind::Tab},
      {"pane", TargetKind::Pane},     {"popup", TargetKind::Popup},
      {"button", TargetKind::Button}, {"entity", TargetKind::Entity},
      {"world", TargetKind::World},   {"view", TargetKind::View},
      {"strip", TargetKind::Strip},   {"character", TargetKind::Character},
  };
  std::string word;
  if (!Bare(&word, "the target")) return false;
  const auto kind = kinds.find(word);
  if (kind == kinds.end()) return FailBack("there is no target \"" + word + "\"");
  target->kind = kind->second;
  switch (target->kind) {
    case TargetKind::Entity:
      return Handle(&target->text);
    case TargetKind::Strip:
      return Part(&target->text);
    case TargetKind::World:
    case TargetKind::View:
      return Points(target);
    case TargetKind::Character:
      return Integer(&target->position, 0, kMaxPosition, "the position");
    default:
      return Quoted(&target->text, "the label");
  }
}

// held: [Ctrl] [Shift], in any order
bool StepReader::Held() {
  while (!AtEnd() && !m_words[m_at].quoted) {
    const std::string& word = m_words[m_at].text;
    bool* held = word == "Ctrl" ? &m_step->ctrl : word == "Shift" ? &m_step->shift : nullptr;
    if (!held || *held) return Fail("only Ctrl and Shift may follow, each once");
    *held = true;
    ++m_at;
  }
  return true;
}

// click: target [then target] held
bool StepReader::Click() {
  if (!Is(StepKind::Click) || !ReadTarget(&m_step->target)) return false;
  if (!AtEnd() && !m_words[m_at].quoted && m_words[m_at].text == "then") {
    ++m_at;
    if (!Is(StepKind::ClickTwo) || !ReadTarget(&m_step->target2)) return false;
  }
  return Held();
}

// press: chord
bool StepReader::Press() {
  if (!Is(StepKind::Press) || !Bare(&m_step->text, "the key")) return false;
  return ParseKeyChord(m_step->text, &m_step->chord) ||
         FailBack("there is no key \"" + m_step->text + "\"");
}

// hold: MS target held
bool StepReader::HoldButton() {
  return Is(StepKind::Hold) && Integer(&m_step->number, 0, kMaxWait, "the time") &&
         ReadTarget(&m_step->target) && Held();
}

// wheel: target DELTA
bool StepReader::Wheel() {
  return Is(StepKind::Wheel) && ReadTarget(&m_step->target) &&
         Integer(&m_step->number, -kMaxWheel, kMaxWheel, "the delta");
}

// drag: target target
bool StepReader::Drag() {
  return Is(StepKind::Drag) && ReadTarget(&m_step->target) && ReadTarget(&m_step->target2) &&
         Held();
}

// button: (left | right | middle) target held
bool StepReader::Button() {
  static const std::map<std::string_view, MouseButton> buttons = {
      {"left", MouseButton::Left}, {"right", MouseButton::Right}, {"middle", MouseButton::Middle}};
  std::string word;
  if (!Bare(&word, "the button")) return false;
  const auto button = buttons.find(word);
  if (button == buttons.end()) return FailBack("the button is left, right or middle");
  m_step->button = button->second;
  return ReadTarget(&m_step->target) && Held();
}

// select: handles
bool StepReader::Select() { return Is(StepKind::Select) && Handles(); }

// handles: none | HANDLE { HANDLE }
bool StepReader::Handles() {
  if (!AtEnd() && !m_words[m_at].quoted && m_words[m_at].text == "none") {
    ++m_at;
    return true;
  }
  do {
    std::string handle;
    if (!Handle(&handle)) return false;
    m_step->handles.push_back(handle);
  } while (!AtEnd());
  return true;
}

// wait: MS | idle | menu | popup
bool StepReader::Wait() {
  const std::string word = AtEnd() ? "" : m_words[m_at].text;
  const StepKind kind = word == "idle"    ? StepKind::WaitIdle
                        : word == "menu"  ? StepKind::WaitMenu
                        : word == "popup" ? StepKind::WaitPopup
                                          : StepKind::Wait;
  Is(kind);
  if (kind == StepKind::Wait)
    return Integer(&m_step->number, 0, kMaxWait, "the time, or idle, menu, popup,");
  ++m_at;
  return true;
}

// help: "file" (topic | index | keyword) ["text"]
bool StepReader::ExpectHelp() {
  static const std::map<std::string_view, int> commands = {
      {"topic", 0}, {"index", 2}, {"keyword", 13}};  // HH_DISPLAY_TOPIC and so on
  std::string word;
  if (!Text(StepKind::ExpectHelp, "the help file") || !Bare(&word, "topic, index or keyword"))
    return false;
  const auto command = commands.find(word);
  if (command == commands.end()) return FailBack("only topic, index and keyword can be expected");
  m_step->number = command->second;
  return AtEnd() || Quoted(&m_step->value.text, "the keyword");
}

// text: HANDLE "text"
bool StepReader::ExpectText() {
  m_step->handles.emplace_back();
  return Is(StepKind::ExpectText) && Handle(&m_step->handles[0]) &&
         Quoted(&m_step->text, "the text");
}

// expect: sent "text" | nothing sent | printed "text" | typed "text" | tip "text" | help | text
//       | var NAME value | setting NAME value | highlighted handles | pointer target | state PATH
//       value
bool StepReader::Expect() {
  std::string what;
  if (!Bare(&what, "what is expected")) return false;
  if (what == "sent") return Text(StepKind::ExpectSent, "the text");
  if (what == "printed") return Text(StepKind::ExpectPrinted, "the text");
  if (what == "typed") return Text(StepKind::ExpectTyped, "the text");
  if (what == "tip") return Text(StepKind::ExpectTip, "the text");
  if (what == "help") return ExpectHelp();
  if (what == "text") return ExpectText();
  if (what == "var") return Assign(StepKind::ExpectVar);
  if (what == "setting") return Assign(StepKind::ExpectSetting);
  if (what == "highlighted") return Is(StepKind::ExpectHighlighted) && Handles();
  if (what == "pointer") return Is(StepKind::ExpectPointer) && ReadTarget(&m_step->target);
  if (what == "nothing") {
    std::string sent;
    if (!Bare(&sent, "\"sent\"")) return false;
    return Is(StepKind::ExpectNothingSent) &&
           (sent == "sent" || FailBack("only \"sent\" may follow"));
  }
  if (what != "state") return FailBack("there is nothing to expect called \"" + what + "\"");
  if (!Is(StepKind::ExpectState) || !Bare(&m_step->text, "the path")) return false;
  std::string problem;
  std::vector<PathPart> parts;
  if (!ParseStatePath(m_step->text, &parts, &problem)) return FailBack(problem);
  return Value(&m_step->value);
}

// dump: shell | windows | database
bool StepReader::Dump() {
  std::string what;
  if (!Bare(&what, "what to dump")) return false;
  if (what == "shell") return Is(StepKind::DumpShell);
  if (what == "windows") return Is(StepKind::DumpWindows);
  if (what == "database") return Is(StepKind::DumpDatabase);
  return FailBack("only shell, windows and database can be dumped");
}

std::string Trimmed(const std::string& line) {
  const std::size_t first = line.find_first_not_of(" \t");
  if (first == line.npos) return {};
  return line.substr(first, line.find_last_not_of(" \t") - first + 1);
}

bool ReadLine(const std::string& line, std::vector<Step>* steps, ScriptError* error) {
  if (Utf8(Wide(line)) != line) {
    error->column = 1;
    error->message = "the line is no UTF-8";
    return false;
  }
  std::vector<ScriptWord> words;
  if (!SplitScriptLine(line, &words, error)) return false;
  if (words.empty()) return true;
  Step step;
  step.line = error->line;
  step.source = Trimmed(line);
  if (!StepReader(words, static_cast<int>(line.size()) + 1, &step, error).Read()) return false;
  steps->push_back(std::move(step));
  return true;
}

}  // namespace

bool ParsePlayScript(std::string_view text, std::vector<Step>* steps, ScriptError* error) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  error->line = 0;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string line(text.substr(0, end));
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.pop_back();
    ++error->line;
    if (!ReadLine(line, steps, error)) return false;
  }
  return true;
}

std::vector<Step> PartOfScript(std::vector<Step> steps, int restarts) {
  auto begin = steps.begin();
  for (; restarts > 0 && begin != steps.end(); ++begin)
    if (begin->kind == StepKind::Restart) --restarts;
  steps.erase(steps.begin(), begin);
  return steps;
}

bool IsExpectation(StepKind kind) {
  return kind >= StepKind::ExpectSent && kind <= StepKind::ExpectState;
}

}  // namespace devhost
