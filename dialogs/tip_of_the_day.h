// The tip of the day without its window: the tip shown, the position of the next one, and the key
// "Tips" below the product's own, which keeps both between two runs. The dialog derives from it,
// reads from it what to show and enable, and passes it the user's actions.
#pragma once

#include "afx.h"
#include "kernel/native_file.h"

namespace qvx {

constexpr unsigned kNoTipFileText = 40009;
constexpr unsigned kTipFileErrorText = 40010;

// Texts from the module's resources, and its message box; they need the window system.
class TipMessages {
 public:
  virtual ~TipMessages() = default;
  virtual CString Text(unsigned id) const = 0;
  virtual void ShowBox(unsigned id) const = 0;
};

class TipOfTheDay {
 public:
  // A null path: the file was not found. `messages` is not owned and must outlive this object.
  TipOfTheDay(const wchar_t* path, const TipMessages& messages);
  // Saves the position after the last tip shown, where the next run begins.
  ~TipOfTheDay();
  TipOfTheDay(const TipOfTheDay&) = delete;
  TipOfTheDay& operator=(const TipOfTheDay&) = delete;

  bool ShowsAtStart() const { return m_bStartUp != 0; }
  bool HasFile() const { return m_pTipFile != nullptr; }
  // False only if the tip shown begins at offset 0: below a comment line the user can go back from
  // the first tip too, which shows it again.
  bool CanGoBack() const { return m_nOffset != 0; }

  void Next();
  bool Previous();  // false: nothing changed, nothing to repaint
  void KeepStartUp() const;

 protected:
  FileOwner m_pTipFile;
  int m_nOffset = 0;
  CString m_strTip;
  int m_bStartUp = 1;

 private:
  void LoadSettings();
  void Restamp();

  const TipMessages& m_messages;
};

}  // namespace qvx
