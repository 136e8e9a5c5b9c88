// Reads the waiting input of the current drawing and runs what it names: commands, LISP
// expressions, transparent commands inside others. While a command asks for input, the engine pumps
// messages through HostUi until text, a point or a cancel comes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/core/commands/input_queue.h"
#include "gepnt3d.h"

namespace devhost {

struct Command;
class Document;

// What a command waits for just now; the view draws a crosshair or a rubber band by it.
enum class Asking { Nothing, Point, Corner, Selection, Text, Keyword };

struct InputAnswer {
  enum class Kind { Cancelled, Enter, Text, Point } kind = Kind::Cancelled;
  std::wstring text;
  AcGePoint3d point;
};

class CommandEngine {
 public:
  // Runs one waiting command or expression of the current drawing. False: nothing could be run, and
  // until new text comes nothing will be. Called from the idle time of the message loop.
  bool RunWaiting();

  bool TextWaits() const;  // a token waits and no command is there to read it as input

  // From the windows ------------------------------------------------------------------------------
  void TypeLine(const std::wstring& line);  // a line from the command line, without its Enter
  void PressEscape();  // cancels what runs; clears the pick-first set when idle
  void GivePoint(const AcGePoint3d& point);  // a click in the view while a point is asked for

  // From the published input functions
  // -----------------------------------------------------------------
  InputAnswer Ask(Asking what, const std::wstring& prompt, bool blanksAllowed,
                  const AcGePoint3d* rubberFrom);

  Asking Waiting() const { return m_asking; }
  bool WaitsForPoint() const { return m_asking == Asking::Point || m_asking == Asking::Corner; }
  std::optional<AcGePoint3d> RubberFrom() const { return m_rubberFrom; }
  bool TextMayHoldBlanks() const { return m_asking == Asking::Text && m_blanks; }

  // True while module code runs on behalf of a document; false in the message loop, also in the one
  // that a waiting command turns.
  bool InDocumentContext() const { return m_depth > 0 && m_asking == Asking::Nothing; }
  bool CommandRuns() const { return m_depth > 0; }

  // One whole command with its input, from inside another (acedCommandS). False: no such command.
  bool RunNested(const std::wstring& name, const std::vector<std::wstring>& input);

  int CommandActive() const;           // CMDACTIVE of the current drawing
  std::wstring CommandNames() const;   // CMDNAMES
  void CancelAll(Document& document);  // everything that runs there ends as soon as it asks

 private:
  void Execute(Document& document, const std::wstring& text);
  bool ExecuteCommand(Document& document, std::wstring name, bool asTransparent);
  void Call(Document& document, const Command& command);
  void ShowPrompt();
  std::optional<InputAnswer> TakeAnswer(Document& document, bool blanksAllowed);

  int m_depth = 0;
  Asking m_asking = Asking::Nothing;
  bool m_blanks = false;
  bool m_cancelAll = false;
  std::optional<AcGePoint3d> m_rubberFrom;
  std::optional<AcGePoint3d> m_givenPoint;
  std::wstring m_question;
  bool m_cancelled = false;  // the running command was told so at its last question
};

}  // namespace devhost
