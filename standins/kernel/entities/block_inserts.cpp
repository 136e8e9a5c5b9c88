#include "kernel/entities/block_inserts.h"

#include "adslib.h"
#include "kernel/text_lines.h"

ACRX_DXF_DEFINE_MEMBERS(TDbBlockInsert, AcDbBlockReference, 0, 0, 0, QVX_BLOCK_INSERT, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(TDbMvInsert, TDbBlockInsert, 0, 0, 0, QVX_MVINSERT, qvx_kernal)

namespace {

constexpr wchar_t kApplication[] = L"QVX_CAPTION";
constexpr short kApplicationCode = 1001, kTextCode = 1000;
constexpr double kCaptionHeight = 250, kCaptionDrop = 400;  // mm

}  // namespace

std::wstring TDbBlockInsert::Caption() const {
  std::wstring caption;
  resbuf* chain = xData(kApplication);
  for (const resbuf* group = chain; group; group = group->rbnext)
    if (group->restype == kTextCode) caption = TextFromFile(group->resval.rstring);
  acutRelRb(chain);
  return caption;
}

void TDbBlockInsert::SetCaption(const std::wstring& caption) {
  resbuf* chain =
      acutBuildList(kApplicationCode, kApplication, kTextCode, TextToFile(caption).c_str(), RTNONE);
  setXData(chain);
  acutRelRb(chain);
}

std::vector<QvxTextPlace> TDbBlockInsert::SubTexts() const {
  QvxTextPlace place;
  place.text = Caption();
  place.at = position() + AcGeVector3d(0, -kCaptionDrop, 0);
  place.height = kCaptionHeight;
  place.menu = kSymbolText;
  return {place};
}

void TDbBlockInsert::ChangeSubText(int index, const std::wstring& text) {
  if (index == 0) SetCaption(text);
}

bool TDbBlockInsert::subWorldDraw(AcGiWorldDraw* draw) const {
  const bool drawn = AcDbBlockReference::subWorldDraw(draw);
  const std::vector<QvxTextPlace> places = SubTexts();
  DrawTexts(draw, places);
  return drawn || !places[0].text.empty();
}
