#include "symbol_commands.h"

#include <cmath>
#include <cwchar>
#include <numbers>

#include "adslib.h"
#include "design_input.h"
#include "kernel/drawing_scale.h"
#include "note_entities.h"

namespace {

constexpr wchar_t kSymbols[] = L"DIM", kTexts[] = L"TEXT";
constexpr int kSymbolColor = 3, kTextColor = 7;
constexpr double kLetters = 350, kTextWidth = 6000;

template <int Kind>
std::unique_ptr<QvxDbEntity> NoteBetween(const ads_point a, const ads_point b) {
  return MakeBetween<QvxDbNoteOf<Kind>>(WorldPoint(a), WorldPoint(b));
}

void AddSymbol(std::unique_ptr<QvxDbEntity> symbol) {
  AddEntity(std::move(symbol), kSymbols, kSymbolColor);
}

// +3.000, -0.450, and %%p0.000 for zero.
std::wstring MetresText(double metres) {
  wchar_t text[40];
  std::swprintf(text, 40, L"%+.3f", metres);
  return std::fabs(metres) < 0.0005 ? L"%%p0.000" : text;
}

std::size_t ReplaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find(from, at)) != std::wstring::npos; at += to.size()) {
    text.replace(at, from.size(), to);
    ++count;
  }
  return count;
}

// The text of an object that the host or the module has written; false for another object.
bool TextOf(const AcDbEntity& entity, std::wstring& text) {
  if (const AcDbText* plain = AcDbText::cast(&entity)) return text = plain->textStringConst(), true;
  if (const QvxDbText* own = QvxDbText::cast(&entity)) return text = own->label, true;
  return false;
}

bool WriteBack(AcDbObjectId id, const std::wstring& text) {
  const TAcDbObjectPtr<AcDbEntity> entity(id, AcDb::kForWrite);
  if (!entity) return false;
  if (AcDbText* plain = AcDbText::cast(entity.Get()))
    plain->setTextString(text.c_str());
  else if (QvxDbText* own = QvxDbText::cast(entity.Get()))
    own->label = text;
  return true;
}

}  // namespace

void WriteText() {
  ads_point at{};
  std::wstring text;
  if (!AskText(L"文字内容", text) || text.empty() || !AskPoint(L"\n插入位置: ", at)) return;
  auto label = MakeAt<QvxDbText>(WorldPoint(at), kLetters);
  label->label = text;
  AddEntity(std::move(label), kTexts, kTextColor);
}

void WriteLines() {
  ads_point at{};
  double width = kTextWidth;
  std::wstring text, line;
  if (!AskText(L"第一行文字", text) || text.empty()) return;
  for (; AskText(L"下一行文字或回车结束", line) && !line.empty(); line.clear())
    text += L"\n" + line;
  if (!line.empty() || !AskSize(L"换行的宽度", width) || !AskPoint(L"\n插入位置: ", at)) return;
  auto lines = MakeAt<QvxDbMText>(WorldPoint(at), kLetters, width);
  lines->label = text;
  AddEntity(std::move(lines), kTexts, kTextColor);
}

void ReplaceTexts() {
  std::wstring from, to;
  ACHAR typed[140] = L"";
  if (!AskText(L"查找内容", from) || from.empty()) return;
  const int status = acedGetString(1, L"\n替换为: ", typed);
  if (status != RTNORM && status != RTNONE) return;
  to = typed;
  std::size_t count = 0;
  const std::vector<AcDbObjectId> ids = CurrentSpace()->entities();
  for (AcDbObjectId id : ids) {
    std::wstring text;
    const AcDbEntity* entity = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
    if (!entity || !TextOf(*entity, text)) continue;
    const std::size_t found = ReplaceAll(text, from, to);
    if (found && WriteBack(id, text)) count += found;
  }
  acutPrintf(L"\n替换了 %d 处。\n", static_cast<int>(count));
  acedRedraw(nullptr, 0);
}

void MarkElevation() {
  ads_point at{};
  ads_real metres = 0;
  if (!AskPoint(L"\n标高点: ", at)) return;
  const int status = acedGetReal(L"\n标高（米） <0.000>: ", &metres);
  if (status != RTNORM && status != RTNONE) return;
  auto mark = NoteBetween<kElevation>(at, at);
  mark->label = MetresText(metres);
  AddSymbol(std::move(mark));
}

void DrawArrow() {
  ads_point tip{}, end{};
  std::wstring above, below;
  if (!AskPoint(L"\n箭头位置: ", tip) || !AskPoint(L"\n引线终点: ", end, tip)) return;
  if (!AskText(L"线上文字", above) || !AskText(L"线下文字", below)) return;
  auto arrow = NoteBetween<kArrow>(tip, end);
  arrow->label = above;
  if (!below.empty()) arrow->cells = {below};
  AddSymbol(std::move(arrow));
}

void DrawSectionSymbol() {
  ads_point a{}, b{};
  std::wstring number = L"1";
  if (!TwoPoints(a, b) || !AskText(L"剖切编号", number)) return;
  auto section = NoteBetween<kSectionSymbol>(a, b);
  section->label = number;
  AddSymbol(std::move(section));
}

void DrawNorthArrow() {
  ads_point at{};
  ads_real direction = std::numbers::pi / 2;
  if (!AskPoint(L"\n指北针位置: ", at)) return;
  const int status = acedGetAngle(at, L"\n正北方向 <90>: ", &direction);
  if (status != RTNORM && status != RTNONE) return;
  auto north = NoteBetween<kNorthArrow>(at, at);
  north->angle = direction - std::numbers::pi / 2;
  north->label = L"北";
  AddSymbol(std::move(north));
}

void WriteTitle() {
  ads_point at{};
  std::wstring name = L"一层平面图";
  if (!AskText(L"图名", name) || !AskPoint(L"\n图名位置: ", at)) return;
  wchar_t scale[40];
  std::swprintf(scale, 40, L"1:%g", DocGetPScale());
  auto title = NoteBetween<kDrawingName>(at, at);
  title->label = name;
  title->cells = {scale};
  AddSymbol(std::move(title));
}
