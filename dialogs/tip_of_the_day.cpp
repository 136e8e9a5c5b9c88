#include "dialogs/tip_of_the_day.h"

#include "dialogs/tip_file.h"
#include "ground/product_registry.h"

namespace qvx {

namespace {

TRegProperty TipKey() { return UserKey(L"Tips"); }

}  // namespace

TipOfTheDay::TipOfTheDay(const wchar_t* path, const TipMessages& messages) : m_messages(messages) {
  if (path) m_pTipFile = OpenTipFile(path);
  if (!m_pTipFile) {
    m_strTip = messages.Text(kNoTipFileText);
    return;
  }
  LoadSettings();
  Restamp();
  if (SeekTip(m_pTipFile.get(), m_nOffset))
    Next();
  else
    messages.ShowBox(kTipFileErrorText);
}

TipOfTheDay::~TipOfTheDay() {
  if (m_pTipFile) TipKey().SetValue(L"Indicator", static_cast<int>(std::ftell(m_pTipFile.get())));
}

void TipOfTheDay::LoadSettings() {
  const TRegProperty key = TipKey();
  key.GetValue(L"StartUp", m_bStartUp);
  key.GetValue(L"Indicator", m_nOffset);
}

// The position is valid only for the file it was saved for: after a change the first tip is next.
void TipOfTheDay::Restamp() {
  TRegProperty key = TipKey();
  const CString stamp = TipFileStamp(m_pTipFile.get());
  CString kept;
  key.GetValue(L"TimeStamp", kept);
  if (kept == stamp) return;
  m_nOffset = 0;
  key.SetValue(L"TimeStamp", stamp.GetString());
}

void TipOfTheDay::Next() {
  if (m_pTipFile && ReadNextTip(m_pTipFile.get(), m_strTip) == TipFound::kSeekFailed)
    m_messages.ShowBox(kTipFileErrorText);
}

bool TipOfTheDay::Previous() {
  if (!m_pTipFile) return false;
  std::FILE* file = m_pTipFile.get();
  if (!FindTipBefore(file, static_cast<int>(std::ftell(file)), m_nOffset) ||
      !SeekTip(file, m_nOffset)) {
    m_messages.ShowBox(kTipFileErrorText);
    return false;
  }
  Next();
  return true;
}

void TipOfTheDay::KeepStartUp() const { TipKey().SetValue(L"StartUp", m_bStartUp); }

}  // namespace qvx
