// Expectations of play scripts; see the header.
#include "devhost/play/play_expect.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "devhost/play/state_path.h"

namespace devhost {
namespace {

constexpr std::size_t kMaxQuote = 400;  // of actual text in messages, in bytes

std::string FieldOf(const JournalEntry& entry, const char* name) {
  const auto text = entry.fields.find(name);
  return text != entry.fields.end() && text->is_string() ? text->get<std::string>() : "";
}

std::string TextOf(const JournalEntry& entry) { return FieldOf(entry, "text"); }

std::string FileNameIn(const std::string& path) {
  const std::size_t folder = path.find_last_of("\\/");
  return folder == path.npos ? path : path.substr(folder + 1);
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text.empty() ? "none" : text;
}

// The end of a long text, which usually explains a failure best.
std::string Shown(const std::string& text) {
  if (text.size() <= kMaxQuote) return QuotedForScript(text);
  std::size_t from = text.size() - kMaxQuote;
  while (from < text.size() && IsUtf8Continuation(text[from])) ++from;
  return "..." + QuotedForScript(text.substr(from));
}

std::vector<JournalEntry> EntriesOf(const Journal& journal, int from, const char* event) {
  std::vector<JournalEntry> entries = journal.Since(from);
  std::erase_if(entries, [event](const JournalEntry& entry) { return entry.event != event; });
  return entries;
}

std::string TextsOf(const std::vector<JournalEntry>& entries) {
  std::string texts;
  for (const JournalEntry& entry : entries)
    texts += (texts.empty() ? "" : ", ") + Shown(TextOf(entry));
  return texts.empty() ? "nothing" : texts;
}

// Whether both texts are numbers that differ by rounding at most.
bool SameNumber(const std::string& a, const std::string& b) {
  constexpr double kRounding = 1e-9;
  const Json first = Json::parse(a, nullptr, false), second = Json::parse(b, nullptr, false);
  if (!first.is_number() || !second.is_number()) return false;
  const double x = first.get<double>(), y = second.get<double>();
  return std::fabs(x - y) <= kRounding * std::max(std::fabs(x), std::fabs(y));
}

// Polls until `ask` is true or the time is over; returns the last result.
bool WaitFor(PlayWorld& world, const std::function<bool()>& ask) {
  const auto end = world.Now() + PlayExpectations::kTimeout;
  while (!ask()) {
    if (world.Now() >= end) return false;
    world.Pause(PlayExpectations::kPollInterval);
  }
  return true;
}

}  // namespace

PlayExpectations::PlayExpectations(const Journal& journal, PlayWorld& world)
    : m_journal(journal), m_world(world) {}

void PlayExpectations::BeginStep() {
  if (m_expecting) m_sentFrom = m_printedFrom = m_helpFrom = m_journal.Count();
  m_expecting = false;
}

std::string PlayExpectations::Check(const Step& step) {
  m_expecting = true;
  switch (step.kind) {
    case StepKind::ExpectSent:
      return Sent(step.text);
    case StepKind::ExpectNothingSent:
      return NothingSent();
    case StepKind::ExpectPrinted:
      return Printed(step.text);
    case StepKind::ExpectHelp:
      return Help(step);
    case StepKind::ExpectVar:
    case StepKind::ExpectSetting:
      return Value(step);
    case StepKind::ExpectHighlighted:
      return Highlighted(step);
    case StepKind::ExpectPointer:
      return Pointer(step);
    case StepKind::ExpectTyped:
      return Typed(step.text);
    case StepKind::ExpectTip:
      return Tip(step.text);
    case StepKind::ExpectText:
      return Text(step);
    case StepKind::ExpectState:
      return State(step);
    default:
      return "this step expects nothing";
  }
}

std::string PlayExpectations::Sent(const std::string& text) {
  std::vector<JournalEntry> came;
  const bool met = WaitFor(m_world, [&] {
    came = EntriesOf(m_journal, m_sentFrom, "sent");
    for (const JournalEntry& entry : came)
      if (TextOf(entry) == text) {
        m_sentFrom = entry.number;
        return true;
      }
    return false;
  });
  if (met) return {};
  return "expected to be sent: " + QuotedForScript(text) + "; sent: " + TextsOf(came);
}

bool PlayExpectations::WaitUntilIdle() {
  return WaitFor(m_world, [this] { return m_world.IsIdle(); });
}

// A press is sent later, by a timer. So pending timers must fire and the program become idle again.
std::string PlayExpectations::NothingSent() {
  WaitUntilIdle();
  m_world.WaitForTimers();
  const bool idle = WaitUntilIdle();
  const std::vector<JournalEntry> came = EntriesOf(m_journal, m_sentFrom, "sent");
  if (!came.empty()) return "expected nothing to be sent; sent: " + TextsOf(came);
  return idle ? "" : "expected nothing to be sent, but the program does not become idle";
}

std::string PlayExpectations::Printed(const std::string& text) {
  std::string printed;
  const bool met = WaitFor(m_world, [&] {
    printed.clear();
    for (const JournalEntry& entry : EntriesOf(m_journal, m_printedFrom, "printed")) {
      printed += TextOf(entry);
      if (printed.find(text) == printed.npos) continue;
      m_printedFrom = entry.number;
      return true;
    }
    return false;
  });
  if (met) return {};
  return "expected to be printed: " + QuotedForScript(text) + "; printed: " + Shown(printed);
}

std::string PlayExpectations::Value(const Step& step) {
  const bool setting = step.kind == StepKind::ExpectSetting;
  const std::string what = setting ? "setting" : "variable";
  std::string value;
  bool known = false;
  const auto equals = [&] {
    return value == step.value.text || (!step.value.quoted && SameNumber(value, step.value.text));
  };
  const bool met = WaitFor(m_world, [&] {
    known = setting ? m_world.Setting(step.text, &value) : m_world.Variable(step.text, &value);
    return known && equals();
  });
  if (met) return {};
  const std::string came = known ? "it is " + QuotedForScript(value) : "there is no such " + what;
  return "expected " + what + " " + step.text + " to be " + QuotedForScript(step.value.text) +
         "; " + came;
}

// Compares file names without folders, because a module passes the full path.
std::string PlayExpectations::Help(const Step& step) {
  std::string calls;
  const bool met = WaitFor(m_world, [&] {
    calls.clear();
    for (const JournalEntry& entry : EntriesOf(m_journal, m_helpFrom, "help")) {
      const std::string file = FileNameIn(FieldOf(entry, "file")),
                        keyword = FieldOf(entry, "keyword");
      const auto command = entry.fields.find("command");
      const int number = command == entry.fields.end() ? -1 : command->get<int>();
      calls += (calls.empty() ? "" : ", ") + QuotedForScript(file) + " " + std::to_string(number) +
               " " + QuotedForScript(keyword);
      if (file != step.text || number != step.number || keyword != step.value.text) continue;
      m_helpFrom = entry.number;
      return true;
    }
    return false;
  });
  if (met) return {};
  return "expected help " + QuotedForScript(step.text) + " " + std::to_string(step.number) + " " +
         QuotedForScript(step.value.text) + "; opened: " + (calls.empty() ? "nothing" : calls);
}

std::string PlayExpectations::Highlighted(const Step& step) {
  std::vector<std::string> wanted = step.handles, came;
  std::sort(wanted.begin(), wanted.end());
  const bool met = WaitFor(m_world, [&] {
    came = m_world.HighlightedHandles();
    std::sort(came.begin(), came.end());
    return came == wanted;
  });
  if (met) return {};
  return "expected to be highlighted: " + Joined(wanted) + "; highlighted: " + Joined(came);
}

std::string PlayExpectations::Pointer(const Step& step) {
  std::string problem;
  const bool met = WaitFor(m_world, [&] {
    problem = m_world.PointerAway(step.target);
    return problem.empty();
  });
  return met ? "" : "expected the pointer on the target; " + problem;
}

std::string PlayExpectations::Typed(const std::string& text) {
  std::string typed;
  const bool met = WaitFor(m_world, [&] {
    typed = m_world.TypedText();
    return typed == text;
  });
  if (met) return {};
  return "expected to be typed: " + QuotedForScript(text) + "; it is " + Shown(typed);
}

std::string PlayExpectations::Tip(const std::string& text) {
  std::string tip;
  const bool met = WaitFor(m_world, [&] {
    tip = m_world.TipText();
    return tip == text;
  });
  if (met) return {};
  return "expected the tip: " + QuotedForScript(text) + "; " +
         (tip.empty() ? "no tip is shown" : "it is " + Shown(tip));
}

std::string PlayExpectations::Text(const Step& step) {
  const std::string& handle = step.handles[0];
  std::vector<std::string> texts;
  bool known = false;
  const bool met = WaitFor(m_world, [&] {
    texts.clear();
    known = m_world.DrawnTexts(handle, &texts);
    if (step.text.empty()) return known && texts.empty();
    return std::find(texts.begin(), texts.end(), step.text) != texts.end();
  });
  if (met) return {};
  std::string drawn;
  for (const std::string& text : texts) drawn += (drawn.empty() ? "" : ", ") + Shown(text);
  if (drawn.empty()) drawn = "no text";
  return "expected " + handle + " to draw the text: " + QuotedForScript(step.text) + "; " +
         (known ? "it draws " + drawn : "the active drawing has no such object");
}

std::string PlayExpectations::State(const Step& step) {
  std::string came;
  const bool met = WaitFor(m_world, [&] {
    const Json state = Json::parse(m_world.ShellState(), nullptr, false);
    Json value;
    std::string problem = "the shell state is no JSON";
    if (state.is_discarded() || !FindInState(state, step.text, &value, &problem)) {
      came = problem;
      return false;
    }
    came = "it is " + JsonText(value);
    return ValueMatches(value, step.value);
  });
  if (met) return {};
  const std::string wanted = step.value.quoted ? QuotedForScript(step.value.text) : step.value.text;
  return "expected state " + step.text + " to be " + wanted + "; " + came;
}

}  // namespace devhost
