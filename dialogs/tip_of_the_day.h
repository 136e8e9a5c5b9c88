// The tip of the day without its window: which tip is shown, where the next one lies, and what of
// it is kept between two runs in the key "Tips" below the product's own. The dialog derives from
// it; it asks this what to show and enable and tells it what was pressed.
#pragma once

#include "afx.h"
#include "kernel/native_file.h"

namespace qvx {

constexpr unsigned kNoTipFileText = 40009;
constexpr unsigned kTipFileErrorText = 40010;

// The texts of the module and its message box, which need a window system.
class TipMessages {
 public:
  virtual ~TipMessages() = default;
  virtual CString Text(unsigned id) const = 0;
  virtual void ShowBox(unsigned id) const = 0;
};

class TipOfTheDay {
 public:
  // A null path: the file was not found. The messages stay the caller's and live longer than this.
  TipOfTheDay(const wchar_t* path, const TipMessages& messages);
  // Keeps the file's position, so that the next showing begins behind the last tip shown.
  ~TipOfTheDay();
  TipOfTheDay(const TipOfTheDay&) = delete;
  TipOfTheDay& operator=(const TipOfTheDay&) = delete;

  bool ShowsAtStart() const { return m_bStartUp != 0; }
  bool HasFile() const { return m_pTipFile != nullptr; }
  // False only where the tip shown lies at the very start of the file: below a comment line the
  // first tip can be asked for again.
  bool CanGoBack() const { return m_nOffset != 0; }

  void Next();
  bool Previous();  // false: there was nothing to do, and nothing to show anew
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
