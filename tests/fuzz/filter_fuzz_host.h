// The host and the editor of the message filter's fuzzer: the doubles of the filter's tests, with
// answers from the input and with messages that arrive during menus and during help.
#pragma once

#include <cstdint>
#include <functional>

#include "tests/editor/filter_double.h"

namespace filterfuzz {

// The input, taken from the front. Zeros follow its end.
class Input {
 public:
  explicit Input(const std::string& bytes) : m_bytes(bytes) {}

  bool IsEmpty() const { return m_at >= m_bytes.size(); }
  unsigned Byte() { return IsEmpty() ? 0 : static_cast<unsigned char>(m_bytes[m_at++]); }
  bool Flag() { return Byte() & 1; }
  bool Seldom() { return Byte() % 8 == 7; }
  std::uint32_t Word();
  LONG Pixel() { return static_cast<LONG>(Word()); }
  std::string Text(size_t most);

 private:
  std::string m_bytes;
  size_t m_at = 0;
};

// Called while a menu is open or help is being shown: the message loop runs.
enum class Loop { kMenu, kHelp };
using RunLoop = std::function<void(Loop)>;

class FuzzHost : public editortest::FilterDouble {
 public:
  FuzzHost(Input& input, editortest::Diary& diary, RunLoop runLoop)
      : FilterDouble(diary), m_input(input), m_runLoop(std::move(runLoop)) {}

  // Points may have any coordinates.
  POINT ToView(POINT screen) override;
  POINT ToScreen(POINT view) override;
  bool WorldToViewport(int number, const AcGePoint3d& world, POINT& view) override;
  bool ViewportToWorld(int number, POINT view, AcGePoint3d& world) override;

  int SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) override;
  int SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                  TPickEntSet& set) override;
  int SelectImplied(const wchar_t* types, TPickEntSet& set) override;
  void ShowHelp(qvx::HelpCall call, const wchar_t* file, const wchar_t* keyword) override;
  bool ShowContextMenu(POINT screen, bool force) override;

 private:
  int Count();  // of a selection; -1 when the host refuses

  Input& m_input;
  RunLoop m_runLoop;
};

class FuzzEdit : public editortest::EditDouble {
 public:
  FuzzEdit(editortest::Diary& diary, RunLoop runLoop)
      : EditDouble(diary), m_runLoop(std::move(runLoop)) {}

  void BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) override;
  void EndEdit(bool unhighlight) override;
  bool ShowInPlaceMenu(POINT at) override;

 private:
  RunLoop m_runLoop;
};

}  // namespace filterfuzz
