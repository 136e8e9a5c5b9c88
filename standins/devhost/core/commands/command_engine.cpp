// The command engine; see the header.
#include "devhost/core/commands/command_engine.h"

#include <memory>

#include "devhost/core/base/journal.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/lisp/lisp_calls.h"
#include "devhost/core/selection/highlight.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

constexpr int kMaxDepth = 16;  // nested commands; a transparent command may start itself
constexpr wchar_t kIdlePrompt[] = L"命令: ";

Document* Current() { return TheHost().documents.Current(); }

LispValue ValueOf(Document& document, const std::wstring& text, std::wstring* error) {
  ++document.locks;  // an expression may change the drawing, as a command may
  LispValue value = Evaluate(document, text[0] == L'!' ? text.substr(1) : text, error);
  --document.locks;  // a locked drawing is not closed, so the reference is valid
  return value;
}

// The answer that an expression gives: a string unquoted, a list of two or three numbers as a
// point, any other value as printed.
std::wstring AnswerOf(Document& document, const std::wstring& text) {
  std::wstring error;
  const LispValue value = ValueOf(document, text, &error);
  if (value.kind == LispValue::Kind::String) return value.text;
  if (value.kind != LispValue::Kind::List || value.items.size() < 2 || value.items.size() > 3)
    return Printed(value);
  std::wstring point;
  for (const LispValue& item : value.items) point += (point.empty() ? L"" : L",") + Printed(item);
  return point;
}

}  // namespace

InputAnswer InputAnswer::OfText(std::wstring text) {
  InputAnswer answer;
  answer.kind = text.empty() ? Kind::Enter : Kind::Text;
  answer.text = std::move(text);
  return answer;
}

bool CommandEngine::HasPendingInput() const {
  const DocumentList& documents = TheHost().documents;
  return m_depth == 0 &&
         (documents.NextWithInput() || documents.HasPendingClose() || documents.MustBringBack());
}

void CommandEngine::ShowPrompt() {
  TheHost().SetPrompt(m_request == InputRequest::Nothing ? kIdlePrompt : m_requestPrompt);
}

bool CommandEngine::RunWaiting() {
  if (m_depth > 0) return false;
  EndLockSteps();
  DocumentList& documents = TheHost().documents;
  m_cancelAll = false;
  if (documents.ClosePending()) return true;
  Document* document = documents.NextWithInput();
  if (!document) return documents.BringBack();
  documents.BringToFront(*document);
  if (Current() != document) return true;  // closed or replaced by a reactor
  const InputQueue::Item item = document->input.Take(false);
  document->inputOrder = item.order;
  switch (item.kind) {
    case InputQueue::Kind::None:
      return false;
    case InputQueue::Kind::Escape:
      return true;  // no command runs: the ESC is ignored
    case InputQueue::Kind::Token:
      break;
  }
  // Enter alone repeats the last command.
  if (item.text.empty() && document->lastCommand.empty()) return true;
  Execute(*document, item.text.empty() ? document->lastCommand : item.text);
  if (TheHost().documents.Current()) ShowPrompt();
  return true;
}

void CommandEngine::Execute(Document& document, const std::wstring& text) {
  TheHost().Print(L"\n" + std::wstring(kIdlePrompt) + text + L"\n");
  if (text[0] == L'(' || text[0] == L'!') {
    std::wstring error;
    ++m_depth;
    TheHost().editor.LispWillStart(text);
    const LispValue value = ValueOf(document, text, &error);
    TheHost().editor.LispEnded(!error.empty());
    --m_depth;
    TheHost().Print(error.empty() ? Printed(value) + L"\n" : L"; 错误: " + error + L"\n");
    return;
  }
  if (!ExecuteCommand(document, text, false))
    TheHost().Print(L"未知命令“" + UpperCase(text) + L"”。按 F1 查看帮助。\n");
}

bool CommandEngine::ExecuteCommand(Document& document, std::wstring name, bool asTransparent) {
  bool hostOnly = false;
  while (!name.empty() &&
         (name[0] == L'\'' || name[0] == L'_' || name[0] == L'.' || name[0] == L'-')) {
    hostOnly |= name[0] == L'.';
    name.erase(0, 1);
  }
  const Command* found = TheHost().commands.Find(name, hostOnly);
  if (!found) {
    // A LISP function named C:NAME is also a command.
    const std::wstring function = L"C:" + UpperCase(name);
    if (!document.lispFunctions.count(function)) return false;
    ++m_depth;
    document.commands.push_back(UpperCase(name));
    TheJournal().Record("command", {{"phase", "start"}, {"name", Utf8(UpperCase(name))}});
    LispValue result;
    bool failed = false;
    TheHost().editor.LispWillStart(L"(" + function + L")");
    CallLispFunction(document, function, {}, &result, &failed);
    TheHost().editor.LispEnded(failed);
    document.commands.pop_back();
    --m_depth;
    TheJournal().Record(
        "command",
        {{"phase", "end"}, {"name", Utf8(UpperCase(name))}, {"result", failed ? "failed" : "ok"}});
    return true;
  }
  const Command command = *found;  // a command may unregister itself
  if (asTransparent && !(command.flags & ACRX_CMD_TRANSPARENT)) {
    TheHost().Print(L"** 命令不能透明使用 **\n");
    return true;
  }
  if (m_depth >= kMaxDepth) {
    TheHost().Print(L"** 命令嵌套太深 **\n");
    return true;
  }
  if (!asTransparent && !(command.flags & kNotRepeated)) document.lastCommand = command.globalName;
  Call(document, command);
  return true;
}

void CommandEngine::Call(Document& document, const Command& command) {
  const bool keepsPickSet = (command.flags & (ACRX_CMD_USEPICKSET | ACRX_CMD_TRANSPARENT)) != 0;
  const InputRequest request = std::exchange(m_request, InputRequest::Nothing);
  const std::optional<AcGePoint3d> rubber = std::exchange(m_rubberFrom, std::nullopt);
  const std::wstring prompt = m_requestPrompt;
  const bool blanks = m_blanks;
  const int objectPrompts = std::exchange(m_objectPrompts, 0);
  ++m_depth;
  const bool outerCancelled = std::exchange(m_cancelled, false);
  EndPreview(document);
  document.commands.push_back(command.globalName);
  TheHost().editor.CommandWillStart(command.globalName);
  auto recording = std::make_unique<UndoRecording>(document, command.globalName);
  TheJournal().Record("command", {{"phase", "start"}, {"name", Utf8(command.globalName)}});

  LoadedModule* before = TheHost().modules.Running();
  TheHost().modules.SetRunning(command.module);
  Document* self = &document;
  command.function();
  TheHost().modules.SetRunning(before);

  --m_depth;
  TheJournal().Record("command", {{"phase", "end"},
                                  {"name", Utf8(command.globalName)},
                                  {"result", m_cancelled ? "cancelled" : "ok"}});
  const bool cancelled = std::exchange(m_cancelled, outerCancelled);
  m_request = request;
  m_rubberFrom = rubber;
  m_requestPrompt = prompt;
  m_blanks = blanks;
  m_objectPrompts = objectPrompts;
  if (!TheHost().documents.FindDocument(self)) return;  // closed by the command
  recording.reset();
  TheHost().editor.CommandEnded(*self, command.globalName, cancelled);
  if (!self->commands.empty()) self->commands.pop_back();
  if (!keepsPickSet && !self->pickFirst.empty() && m_depth == 0) SetPickFirst(*self, {});
  TheHost().Ui().PictureChanged(*self);
}

std::optional<InputAnswer> CommandEngine::TakeAnswer(Document& document, bool blanksAllowed,
                                                     AnswerFrom from) {
  InputAnswer answer;
  if (m_cancelAll) return answer;
  if (m_givenPoint) {
    answer.kind = InputAnswer::Kind::Point;
    answer.point = *std::exchange(m_givenPoint, std::nullopt);
    return answer;
  }
  InputQueue::Item item;
  if (m_nestedInput) {
    if (m_nestedInput->empty()) return answer;
    answer = std::move(m_nestedInput->front());
    m_nestedInput->pop_front();
    if (answer.kind != InputAnswer::Kind::Text) return answer;
    item.kind = InputQueue::Kind::Token;
    item.text = answer.text;
  } else {
    item = from == AnswerFrom::AnyText ? document.input.Take(blanksAllowed)
                                       : document.input.TakeOwn(blanksAllowed, document.inputOrder);
  }
  if (item.kind == InputQueue::Kind::Escape) return answer;
  if (item.kind != InputQueue::Kind::Token) return std::nullopt;
  if (!item.text.empty() && item.text[0] == L'\'' && !blanksAllowed) {
    if (!ExecuteCommand(document, item.text, true))
      TheHost().Print(L"未知命令“" + UpperCase(item.text.substr(1)) + L"”。\n");
    if (!TheHost().documents.FindDocument(&document)) return answer;
    ShowPrompt();
    // The text after the transparent command answers the request.
    return TakeAnswer(document, blanksAllowed, from);
  }
  if (!item.text.empty() && !blanksAllowed && (item.text[0] == L'(' || item.text[0] == L'!')) {
    answer.kind = InputAnswer::Kind::Text;
    answer.text = AnswerOf(document, item.text);
    return answer;
  }
  answer.kind = item.text.empty() ? InputAnswer::Kind::Enter : InputAnswer::Kind::Text;
  answer.text = item.text;
  return answer;
}

InputAnswer CommandEngine::Ask(InputRequest what, const std::wstring& prompt, bool blanksAllowed,
                               const AcGePoint3d* rubberFrom) {
  return Ask(what, prompt, blanksAllowed, rubberFrom, AnswerFrom::AnyText);
}

std::wstring CommandEngine::AskForFileName(const std::wstring& prompt) {
  return Ask(InputRequest::Text, prompt, true, nullptr, AnswerFrom::OwnText).text;
}

InputAnswer CommandEngine::Ask(InputRequest what, const std::wstring& prompt, bool blanksAllowed,
                               const AcGePoint3d* rubberFrom, AnswerFrom from) {
  Document* document = Current();
  if (!document || m_depth == 0) return {};
  m_requestPrompt = prompt;
  m_request = what;
  m_blanks = blanksAllowed;
  m_rubberFrom = rubberFrom ? std::optional(*rubberFrom) : std::nullopt;
  m_givenPoint.reset();
  ShowPrompt();
  std::optional<InputAnswer> answer;
  while (!(answer = TakeAnswer(*document, blanksAllowed, from))) {
    if (!TheHost().Ui().PumpWhileWaiting()) m_cancelAll = true;
    if (!TheHost().documents.FindDocument(document)) return {};
  }
  m_request = InputRequest::Nothing;
  m_rubberFrom.reset();
  switch (answer->kind) {
    case InputAnswer::Kind::Cancelled:
      m_cancelled = true;
      TheHost().Print(prompt + L"*取消*\n");
      break;
    case InputAnswer::Kind::Point:
      TheHost().Print(prompt + L"\n");
      break;
    default:
      TheHost().Print(prompt + answer->text + L"\n");
      break;
  }
  return *answer;
}

void CommandEngine::Post(Document& document, const std::wstring& text) {
  document.input.Append(text, NextOrigin(true));
}

void CommandEngine::EnterLine(const std::wstring& line) {
  if (Document* document = Current()) document->input.Append(line + L"\n", NextOrigin(false));
}

void CommandEngine::PressEscape() {
  Document* document = Current();
  if (!document) return;
  // Discards the text that was entered before the key, but not the commands posted after the
  // running one.
  if (m_depth > 0) {
    document->input.ClearOwn(document->inputOrder);
    document->input.Append(L"\x1b", NextOrigin(false));
    return;
  }
  document->input.Clear();
  TheHost().Print(L"\n命令: *取消*\n");
  if (!document->pickFirst.empty()) SetPickFirst(*document, {});
}

void CommandEngine::EnterPoint(const AcGePoint3d& point) {
  if (WaitsForPoint()) m_givenPoint = point;
}

bool CommandEngine::StretchGrip(Document& document, AcDbObjectId entity, const AcGePoint3d& grip) {
  if (m_depth > 0 || !document.input.IsEmpty()) return false;
  document.hotGrip = HotGrip{entity, grip};
  document.input.Append(L"GRIP_STRETCH\n", NextOrigin(false));
  return true;
}

bool CommandEngine::EditText(Document& document, AcDbObjectId text) {
  if (m_depth > 0 || !document.input.IsEmpty()) return false;
  document.textToEdit = text;
  document.input.Append(L"TEXTEDIT\n", NextOrigin(false));
  return true;
}

bool CommandEngine::RunNested(const std::wstring& name, std::deque<InputAnswer> input) {
  Document* document = Current();
  if (!document) return false;
  std::deque<InputAnswer>* outer = std::exchange(m_nestedInput, &input);
  const bool ran = ExecuteCommand(*document, name, false);
  m_nestedInput = outer;
  return ran;
}

std::optional<std::vector<AcDbObjectId>> CommandEngine::TakeGivenObjects() {
  if (!m_nestedInput || m_nestedInput->empty() ||
      m_nestedInput->front().kind != InputAnswer::Kind::Objects)
    return std::nullopt;
  std::vector<AcDbObjectId> objects = std::move(m_nestedInput->front().objects);
  m_nestedInput->pop_front();
  return objects;
}

int CommandEngine::CommandActive() const {
  const Document* document = Current();
  if (!document || document->commands.empty()) return 0;
  // 1: an ordinary command; 2: a transparent one inside it
  return document->commands.size() > 1 ? 3 : 1;
}

std::wstring CommandEngine::CommandNames() const {
  std::wstring names;
  if (const Document* document = Current())
    for (const std::wstring& name : document->commands)
      names += (names.empty() ? L"" : L"'") + name;
  return names;
}

void CommandEngine::CancelAll(Document& document) {
  if (m_depth > 0 && !document.commands.empty()) m_cancelAll = true;
}

}  // namespace devhost
