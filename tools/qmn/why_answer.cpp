#include "tools/qmn/why_answer.h"

#include <charconv>
#include <cstdlib>
#include <ostream>

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/menu_system.h"
#include "tools/qmn/dump_forms.h"
#include "tools/qmn/json_out.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr wchar_t kViewportType[] = L"VIEWPORT";
constexpr int kTypeCode = 0;
constexpr int kLayerCode = 8;

std::wstring_view View(const TWCString& text) { return {text, static_cast<size_t>(text.Length())}; }

// Converts a number of the command line to the type of its group code.
GroupValue ValueOf(int code, const std::wstring& text) {
  const std::string narrow = Utf8(text);
  switch (QvxExport::TypeOfCode(code)) {
    case RTSTR:
      return text;
    case RTREAL:
      return std::strtod(narrow.c_str(), nullptr);
    case RTSHORT:
    case RTLONG:
      return std::strtoll(narrow.c_str(), nullptr, 10);
    default:
      return {};
  }
}

SelectionDescription Describe(const WhyQuestion& question) {
  SelectionDescription selection;
  selection.SetPaperSpace(question.paper);
  for (const WhyQuestion::Part& part : question.parts) {
    const bool viewport = MatchCase(part.type) == kViewportType;
    for (int i = 0; i < part.count; ++i)
      selection.Add(part.type, part.layer,
                    viewport ? ObjectState::kViewport : ObjectState::kEntity);
  }
  selection.SetGroupReader([&question](size_t, int code) {
    const auto found = question.groups.find(code);
    return found == question.groups.end() ? GroupValue() : ValueOf(code, found->second);
  });
  return selection;
}

// The matching, one block per step.
class Walk {
 public:
  Walk(const TMenuSystem& system, const WhyQuestion& question)
      : m_system(system),
        m_question(question),
        m_selection(Describe(question)),
        m_matcher(system) {}

  const SelectionDescription& Selection() const { return m_selection; }
  const TMenuBar& Bar() const { return *m_system.At(m_block); }
  int Block() const { return m_block; }
  const MatchResult& Result() const { return m_result; }

  // False after the block that fits or after the last one.
  bool Next() {
    if (m_result.Matches() && m_block >= 0) return false;
    if (++m_block == m_system.Length()) return false;
    m_result = m_matcher.Match(m_block, m_selection, [this](auto key, std::wstring& layer) {
      return LayerOf(key, layer);
    });
    return true;
  }
  bool Found() const { return m_block >= 0 && m_result.Matches(); }

  bool LayerOf(std::wstring_view key, std::wstring& layer) const {
    const auto found = m_question.layerKeys.find(std::wstring(key));
    if (found == m_question.layerKeys.end()) return false;
    layer = found->second;
    return true;
  }

 private:
  const TMenuSystem& m_system;
  const WhyQuestion& m_question;
  const SelectionDescription m_selection;
  const BlockMatcher m_matcher;
  MatchResult m_result;
  int m_block = -1;
};

std::string ValueText(const TGroups& group) {
  char text[40];
  switch (KindOf(group)) {
    case RTSTR:
      return Utf8(group.resval.rstring ? group.resval.rstring : L"");
    case RTREAL:
      return {text, std::to_chars(text, text + sizeof text, group.resval.rreal).ptr};
    case RTSHORT:
      return std::to_string(group.resval.rint);
    case RTLONG:
      return std::to_string(group.resval.rlong);
    default:
      return "no value";
  }
}

std::string FieldName(int code) {
  if (code == kTypeCode) return "type";
  if (code == kLayerCode) return "layer";
  return "group " + std::to_string(code);
}

// "layer 0 does not fit @WALL, which is layer 墙线"
std::string GroupWords(const Walk& walk) {
  const TGroups& group = *walk.Result().group;
  const SelectionDescription& selection = walk.Selection();
  const size_t object = walk.Result().object;
  const int code = CodeOf(group);
  const std::string value = ValueText(group);
  std::string words = FieldName(code) + " ";
  if (code == kTypeCode) words += Utf8(selection.TypeOf(object)) + " ";
  if (code == kLayerCode) words += Utf8(selection.LayerOf(object)) + " ";
  words += "does not fit " + value;
  if (code != kLayerCode || !value.starts_with('@')) return words;
  std::wstring layer;
  if (walk.LayerOf(std::wstring_view(group.resval.rstring).substr(1), layer))
    return words + ", which is layer " + Utf8(layer);
  return words + ", a logical layer that is not known and counts as it is written";
}

std::string Words(const Walk& walk) {
  const std::string object = "object " + std::to_string(walk.Result().object + 1);
  switch (walk.Result().why) {
    case MatchResult::kMatches:
      return "fits";
    case MatchResult::kOtherName:
      return walk.Selection().InPaperSpace()
                 ? "its name is not LAYOUT, the block for paper space with nothing selected"
                 : "its name is not COMMON, the block for nothing selected";
    case MatchResult::kNoMask:
      return "has no mask, so that no selection gets it";
    case MatchResult::kUnreadable:
      return object + " is no entity";
    case MatchResult::kViewport:
      return object + " is a viewport, which fits no block";
    case MatchResult::kGroup:
      return object + ": " + GroupWords(walk);
  }
  return {};
}

const char* Keyword(MatchResult::Why why) {
  switch (why) {
    case MatchResult::kMatches:
      return "fits";
    case MatchResult::kOtherName:
      return "other name";
    case MatchResult::kNoMask:
      return "no mask";
    case MatchResult::kUnreadable:
      return "no entity";
    case MatchResult::kViewport:
      return "viewport";
    case MatchResult::kGroup:
      return "group";
  }
  return "";
}

void PutSelection(const WhyQuestion& question, std::ostream& out) {
  if (question.parts.empty())
    out << "nothing selected, in " << (question.paper ? "paper" : "model") << " space\n";
  for (const WhyQuestion::Part& part : question.parts)
    out << "selected: " << part.count << " x " << Utf8(part.type) << " on layer "
        << Utf8(part.layer) << "\n";
}

class JsonAnswer {
 public:
  explicit JsonAnswer(std::ostream& out) : m_json(out) {}

  void Put(Walk& walk, const WhyQuestion& question) {
    m_json.OpenObject();
    Selection(question);
    m_json.Key("blocks");
    m_json.OpenArray();
    while (walk.Next()) Block(walk);
    m_json.Close();
    m_json.Key("chosen");
    walk.Found() ? m_json.Text(View(walk.Bar().m_strName)) : m_json.Null();
    m_json.Close();
    m_json.End();
  }

 private:
  void Text(const char* key, std::wstring_view text) {
    m_json.Key(key);
    m_json.Text(text);
  }
  void Integer(const char* key, long long value) {
    m_json.Key(key);
    m_json.Integer(value);
  }

  void Selection(const WhyQuestion& question) {
    m_json.Key("selection");
    m_json.OpenArray();
    for (const WhyQuestion::Part& part : question.parts) {
      m_json.OpenObject();
      Text("type", part.type);
      Text("layer", part.layer);
      Integer("count", part.count);
      m_json.Close();
    }
    m_json.Close();
    Text("space", question.paper ? L"paper" : L"model");
  }

  void Block(const Walk& walk) {
    const MatchResult& result = walk.Result();
    m_json.OpenObject();
    Integer("index", walk.Block());
    Text("name", View(walk.Bar().m_strName));
    Text("result", Wide(Keyword(result.why)));
    if (result.why >= MatchResult::kUnreadable)
      Integer("object", static_cast<long long>(result.object));
    if (result.group) {
      Integer("code", CodeOf(*result.group));
      Text("value", Wide(ValueText(*result.group)));
    }
    Text("text", Wide(Words(walk)));
    m_json.Close();
  }

  JsonOut m_json;
};

}  // namespace

void AnswerInWords(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out) {
  PutSelection(question, out);
  Walk walk(system, question);
  while (walk.Next()) out << Utf8(View(walk.Bar().m_strName)) << ": " << Words(walk) << "\n";
  if (walk.Found())
    out << "chosen: " << Utf8(View(walk.Bar().m_strName)) << ", block " << walk.Block() + 1
        << " of " << system.Length() << "\n";
  else
    out << "chosen: none, no menu is shown\n";
}

void AnswerInJson(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out) {
  Walk walk(system, question);
  JsonAnswer(out).Put(walk, question);
}
