// The run of the in-place editor's fuzzer over one input: the editor, its doubles and the model.
#pragma once

#include <memory>
#include <set>

#include "editor/in_place_editor.h"
#include "tests/editor/edit_double.h"
#include "tests/fuzz/edit_fuzz.h"
#include "tests/fuzz/edit_fuzz_model.h"
#include "tests/fuzz/filter_fuzz_host.h"

namespace editfuzz {

class Session {
 public:
  explicit Session(const std::string& bytes);
  ~Session();
  EditFuzzRun Run();

 private:
  // Records of the stream.
  void Record();
  void Change();
  void Begin();
  void Type();
  void Select();
  void Key();
  void Arrow();
  void Drag();
  void Command();
  void Notify();
  void View();
  void Arm();

  // After an operation: the model has the expected result, unless records ran inside.
  void Check(const char* kind);
  void CheckAlways();
  void CheckOpened(const std::wstring& whole);
  void Guess();  // a box for records inside an operation; nothing is compared with it
  void Follow();
  void OnNote(const std::string& entry);
  bool Send(UINT number, WPARAM wParam = 0);
  std::unique_ptr<qvx::EditFragment> Piece(size_t object, size_t piece);
  int Position() { return m_control.text.empty() ? 0 : Below(m_control.text.size() + 1); }
  int Below(size_t count) { return static_cast<int>(m_input.Byte() % count); }
  void Close(bool commits);
  void ExpectNext(bool vertical, bool backward);

  filterfuzz::Input m_input;
  edittest::EditDiary m_diary;
  std::vector<edittest::TextObject> m_objects;
  edittest::EditHostDouble m_host{m_diary};
  edittest::ControlDouble m_control{m_diary};
  edittest::ReferenceHostDouble m_references{m_diary};
  qvx::BlockReferences m_blocks{m_references};
  std::unique_ptr<qvx::InPlaceEditor> m_editor;
  Model m_model;
  std::set<std::string> m_highlighted;
  int m_depth = 0, m_countdown = -1;
  bool m_isDisturbed = false;  // records ran inside the present operation
  bool m_isWindowLost = false, m_isComposing = false;
  int m_dropPos = 0, m_locks = 0;
  EditFuzzRun m_run;
};

}  // namespace editfuzz
