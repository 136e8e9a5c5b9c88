#include "kernel/entities/edit_routines.h"

#include <cmath>
#include <cwchar>
#include <memory>
#include <string>

#include "adslib.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"
#include "kernel/text_lines.h"
#include "kernel/text_place.h"
#include "kernel/tsubtext.h"

namespace {

constexpr int kLongestAnswer = 133;  // of acedGetString
constexpr double kZero = 0.0005;     // metres; rounds to 0.000

std::unique_ptr<TSubText> FragmentOf(AcDbObjectId id, int index) {
  const TAcDbObjectPtr<AcDbEntity> object(id, AcDb::kForRead);
  const TTextOwner* owner = TextOwnerOf(object.Get());
  return std::unique_ptr<TSubText>(owner ? owner->GetSubText(index) : nullptr);
}

std::wstring ElevationText(double metres) {
  if (std::fabs(metres) < kZero) return L"%%p0.000";
  wchar_t text[400];
  std::swprintf(text, 400, L"%+.3f", metres);
  return text;
}

}  // namespace

void EditTexts(AcDbObjectId object) {
  for (int i = 0;; ++i) {
    const std::unique_ptr<TSubText> text = FragmentOf(object, i);
    if (!text) return;
    const std::wstring now = TextToFile(TextToStore(text->GetText().GetString(), true));
    ACHAR answer[kLongestAnswer] = L"";
    if (acedGetString(1, (L"\n文字 <" + now + L">: ").c_str(), answer) != RTNORM) return;
    if (*answer) text->Update(TextFromFile(answer).c_str());
  }
}

void EditElevation(AcDbObjectId object) {
  const std::unique_ptr<TSubText> text = FragmentOf(object, 0);
  if (!text) return;
  const std::wstring prompt = L"\n标高 <" + std::wstring(text->GetText().GetString()) + L">: ";
  ads_real metres = 0;
  if (acedGetReal(prompt.c_str(), &metres) == RTNORM) text->Update(ElevationText(metres).c_str());
}
