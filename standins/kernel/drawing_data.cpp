// The data of open drawings; see the header.
#include "kernel/drawing_data.h"

#include <algorithm>
#include <map>

#include "acdocman.h"
#include "aced.h"

namespace {

constexpr std::size_t kMostTyped = 1024;  // what is typed beyond is not recorded
constexpr unsigned char kBackspace = 8, kLineFeed = 10, kEnter = 13, kEscape = 27, kDelete = 127;

// Brackets that are open at the end of the text; those in strings do not count.
int OpenBrackets(const std::string& text) {
  int open = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (quoted && text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      quoted = !quoted;
    } else if (!quoted) {
      if (text[i] == '(') ++open;
      if (text[i] == ')' && open > 0) --open;
    }
  }
  return open;
}

}  // namespace

bool TDocData::IsTypingLisp() const {
  return !m_typed.empty() && (m_typed[0] == '(' || OpenBrackets(m_typed) > 0);
}

void TDocData::OnAcadChar(char code, int repeat, int) {
  const auto character = static_cast<unsigned char>(code);
  const std::size_t times = std::max(repeat, 1);
  switch (character) {
    case kBackspace:
      m_typed.resize(m_typed.size() - std::min(times, m_typed.size()));
      return;
    case kEnter:
    case kLineFeed:
    case kEscape:
      m_typed.clear();
      return;
    case ' ':
      if (!IsTypingLisp()) {
        m_typed.clear();
        return;
      }
      break;
    default:
      if (character < ' ' || character == kDelete) return;
  }
  m_typed.append(std::min(times, kMostTyped - m_typed.size()), code);
}

void TDocData::BeginCommand(const wchar_t* name) {
  if (m_commands.empty()) m_pickFirst.GetFirst();
  m_commands.emplace_back(name ? name : L"");
}

void TDocData::EndCommand() {
  if (!m_commands.empty()) m_commands.pop_back();
}

namespace {

class CommandNames : public AcEditorReactor {
 public:
  void commandWillStart(const ACHAR* name) override {
    if (TDocData* data = GetCurDocData()) data->BeginCommand(name);
  }
  void commandEnded(const ACHAR*) override { EndCommand(); }
  void commandFailed(const ACHAR*) override { EndCommand(); }
  void commandCancelled(const ACHAR*) override { EndCommand(); }

 private:
  static void EndCommand() {
    if (TDocData* data = GetCurDocData()) data->EndCommand();
  }
};

// By document. The one asked for last is kept at hand: every message of the host asks for it.
class DataOfDrawings : public AcApDocManagerReactor {
 public:
  void Begin() {
    if (m_begun) return;
    m_begun = true;
    acDocManagerPtr()->addReactor(this);
    if (AcEditor* editor = acedEditor) editor->addReactor(&m_names);
  }
  void End() {
    if (!m_begun) return;
    m_begun = false;
    acDocManagerPtr()->removeReactor(this);
    if (AcEditor* editor = acedEditor) editor->removeReactor(&m_names);
    m_last = nullptr;
    m_data.clear();
  }

  TDocData* Current() {
    AcApDocManager* documents = m_begun ? acDocManagerPtr() : nullptr;
    AcApDocument* document = documents ? documents->curDocument() : nullptr;
    if (!document) return nullptr;
    if (!m_last || m_last->first != document) m_last = &*m_data.try_emplace(document).first;
    return &m_last->second;
  }

  // A new drawing may have the address of a closed one, whose data was made again by a call during
  // its closing.
  void documentCreated(AcApDocument* document) override { Forget(document); }
  void documentToBeDestroyed(AcApDocument* document) override { Forget(document); }

 private:
  void Forget(AcApDocument* document) {
    m_last = nullptr;
    m_data.erase(document);
  }

  bool m_begun = false;
  CommandNames m_names;
  std::map<AcApDocument*, TDocData> m_data;
  std::pair<AcApDocument* const, TDocData>* m_last = nullptr;
};

DataOfDrawings& Drawings() {
  static DataOfDrawings drawings;
  return drawings;
}

}  // namespace

void BeginDrawingData() { Drawings().Begin(); }
void EndDrawingData() { Drawings().End(); }
TDocData* GetCurDocData() { return Drawings().Current(); }

TPickEntSet& DocGetPickFirst() {
  static TPickEntSet nothing;
  TDocData* data = GetCurDocData();
  if (!data) return nothing;
  if (!*data->CurCmdName()) data->PickFirst().GetFirst();
  return data->PickFirst();
}
