// Reads the input queues of the drawings and runs commands, LISP expressions and transparent
// commands. Texts run in the order in which they were sent, typed or posted. The drawing of a text
// comes to the front for it; when no text is left, the one that was in front before comes back.
// While a command waits for input, the engine pumps messages through HostUi until text, a point or
// a cancel arrives.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "devhost/core/commands/input_queue.h"
#include "dbmain.h"

namespace devhost {

struct Command;
class Document;

// The kind of input for which a command waits. The view shows a crosshair or a rubber
// band for points, and turns its direction for View.
enum class InputRequest { Nothing, Point, Corner, Text, Keyword, View };

struct InputAnswer {
  // Objects answers a request to select objects; only acedCommandS gives it.
  enum class Kind { Cancelled, Enter, Text, Point, Objects } kind = Kind::Cancelled;
  std::wstring text;
  AcGePoint3d point;  // world
  std::vector<AcDbObjectId> objects;

  static InputAnswer OfText(std::wstring text);  // Enter for an empty text
};

class CommandEngine {
 public:
  // Runs one command or expression of the queues, or brings the drawing back that was in front.
  // False: nothing to do. Called from the idle time of the message loop.
  bool RunWaiting();
  // Adds text that a module or a window of the host sends to a drawing.
  void Post(Document& document, const std::wstring& text);

  bool HasPendingInput() const;  // an item is in the queue and no command will read it as input

  // Called by the windows.
  void EnterLine(const std::wstring& line);  // a line of the command line, without its Enter
  void PressEscape();  // cancels the running command; clears the pick-first set when idle
  void EnterPoint(const AcGePoint3d& point);  // a click in the view while a point is requested
  // Start GRIP_STRETCH and TEXTEDIT. False while a command runs or its input is incomplete.
  bool StretchGrip(Document& document, AcDbObjectId entity, const AcGePoint3d& grip);
  bool EditText(Document& document, AcDbObjectId text);

  // Called by the published input functions. Returns when an answer or a cancel arrives.
  InputAnswer Ask(InputRequest what, const std::wstring& prompt, bool blanksAllowed,
                  const AcGePoint3d* rubberFrom);
  // The name of a file, of any length; empty: cancelled or Enter alone. Text that was posted apart
  // from the running command is no answer: it may be the next command.
  std::wstring AskForFileName(const std::wstring& prompt);

  InputRequest Request() const { return m_request; }
  bool WaitsForPoint() const {
    return m_request == InputRequest::Point || m_request == InputRequest::Corner;
  }
  std::optional<AcGePoint3d> RubberBandStart() const { return m_rubberFrom; }
  // True while a command asks the user to select objects, see SelectionPrompt.
  bool AsksForObjects() const { return m_objectPrompts > 0 && WaitsForPoint(); }
  bool AcceptsBlanks() const { return m_request == InputRequest::Text && m_blanks; }

  // True while a command or LISP function of a drawing runs; false in the message loop, also in the
  // one of a command that waits for input.
  bool InDocumentContext() const { return m_depth > 0 && m_request == InputRequest::Nothing; }
  bool IsCommandRunning() const { return m_depth > 0; }

  // Runs a command with its input inside another, to its end (acedCommandS). Requests beyond the
  // input are cancelled. False: unknown command.
  bool RunNested(const std::wstring& name, std::deque<InputAnswer> input);
  // The objects that are the next input of a nested command; nothing if it is something else.
  std::optional<std::vector<AcDbObjectId>> TakeGivenObjects();

  int CommandActive() const;          // CMDACTIVE of the current drawing
  std::wstring CommandNames() const;  // CMDNAMES
  // everything running there is cancelled at its next input request
  void CancelAll(Document& document);

 private:
  friend class SelectionPrompt;
  void Execute(Document& document, const std::wstring& text);
  bool ExecuteCommand(Document& document, std::wstring name, bool asTransparent);
  void Call(Document& document, const Command& command);
  void ShowPrompt();
  enum class AnswerFrom { AnyText, OwnText };
  InputAnswer Ask(InputRequest what, const std::wstring& prompt, bool blanksAllowed,
                  const AcGePoint3d* rubberFrom, AnswerFrom from);
  std::optional<InputAnswer> TakeAnswer(Document& document, bool blanksAllowed, AnswerFrom from);
  InputOrigin NextOrigin(bool posted) { return {++m_lastOrder, posted}; }

  int m_depth = 0;
  long long m_lastOrder = 0;  // of input text
  InputRequest m_request = InputRequest::Nothing;
  bool m_blanks = false;
  bool m_cancelAll = false;
  std::optional<AcGePoint3d> m_rubberFrom;
  std::optional<AcGePoint3d> m_givenPoint;
  std::deque<InputAnswer>* m_nestedInput = nullptr;  // of the innermost RunNested
  std::wstring m_requestPrompt;
  int m_objectPrompts = 0;
  bool m_cancelled = false;  // the last input request of the running command was cancelled
};

// During its lifetime the points that a command asks for select objects.
class SelectionPrompt {
 public:
  explicit SelectionPrompt(CommandEngine& engine) : m_engine(engine) { ++m_engine.m_objectPrompts; }
  ~SelectionPrompt() { --m_engine.m_objectPrompts; }
  SelectionPrompt(const SelectionPrompt&) = delete;
  SelectionPrompt& operator=(const SelectionPrompt&) = delete;

 private:
  CommandEngine& m_engine;
};

}  // namespace devhost
