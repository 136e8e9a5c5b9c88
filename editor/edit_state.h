// What calls inside calls of the in-place editor share. It outlives the editor, so that a caller
// can find out that the edit or the editor is gone.
#pragma once

#include <memory>
#include <utility>

namespace qvx {

struct EditState {
  bool isAlive = true;       // the editor
  long edits = 0;            // changes whenever an edit begins or is over
  long destroyed = 0;        // changes whenever a drawing is destroyed
  bool isClosing = false;    // the box closes: nested calls do nothing
  bool isAbandoned = false;  // a nested call has cancelled the edit that closes
};

// Of the present edit.
class EditWatch {
 public:
  explicit EditWatch(std::shared_ptr<const EditState> state)
      : m_state(std::move(state)), m_edit(m_state->edits), m_destroyed(m_state->destroyed) {}
  bool IsEditorGone() const { return !m_state->isAlive; }
  bool IsGone() const { return IsEditorGone() || m_state->edits != m_edit; }
  bool HasDrawingGone() const { return m_state->destroyed != m_destroyed; }

  // Takes the steps in order while the edit lasts; false when it is gone. A step may run foreign
  // code as its last action.
  template <class... Steps>
  bool Run(Steps&&... steps) const {
    return (... && (steps(), !IsGone()));
  }

 private:
  std::shared_ptr<const EditState> m_state;
  long m_edit, m_destroyed;
};

// As long as it exists, the box closes.
class EditClosing {
 public:
  explicit EditClosing(std::shared_ptr<EditState> state) : m_state(std::move(state)) {
    m_state->isClosing = true;
    m_state->isAbandoned = false;
  }
  ~EditClosing() { m_state->isClosing = false; }
  EditClosing(const EditClosing&) = delete;
  EditClosing& operator=(const EditClosing&) = delete;
  bool IsEditorGone() const { return !m_state->isAlive; }
  // False when the editor is gone or a nested call has cancelled.
  bool MayGoOn() const { return m_state->isAlive && !m_state->isAbandoned; }

 private:
  std::shared_ptr<EditState> m_state;
};

}  // namespace qvx
