#include "tests/editor/edit_double.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ground/utf8_text.h"

namespace edittest {
namespace {

constexpr LONG kContextWidth = 8, kContextHeight = 16, kReturnWidth = 4;

std::string RangeText(qvx::TextRange range) {
  return std::to_string(range.start) + "-" + std::to_string(range.end);
}

}  // namespace

std::string Narrow(const std::wstring& text) {
  std::string out;
  for (const char unit : qvx::ToUtf8(text)) {
    if (unit == '\r')
      out += "\\r";
    else if (unit == '\n')
      out += "\\n";
    else
      out += unit;
  }
  return out;
}

std::string RectText(const RECT& r) {
  return std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) +
         "," + std::to_string(r.bottom);
}

void EditDiary::Note(const std::string& entry) {
  if (isOn) entries.push_back(entry);
  if (onNote) onNote(entry);
  const auto hook = hooks.find(entry);
  if (hook == hooks.end()) return;
  const std::function<void()> run = std::move(hook->second);
  hooks.erase(hook);
  run();
}
std::vector<std::string> EditDiary::Take() { return std::exchange(entries, {}); }

FragmentDouble::FragmentDouble(EditDiary& diary, TextObject& object, size_t index)
    : m_diary(diary), m_object(object), m_index(static_cast<long>(index)) {
  if (index < object.texts.size()) m_text = object.texts[index];
  ++object.live;
}
FragmentDouble::~FragmentDouble() {
  --m_object.live;
  m_diary.Note("delete " + Name());
}
std::string FragmentDouble::Name() const {
  return std::to_string(m_object.number) + "." + std::to_string(m_index);
}
void FragmentDouble::SetText(const std::wstring& text) {
  m_text = text;
  m_diary.Note("measured text " + Narrow(text));
}
void FragmentDouble::Update(const std::wstring& text) {
  const auto index = static_cast<size_t>(m_index);
  if (index < m_object.texts.size()) {
    if (m_object.isInSight && text.empty())
      m_object.texts.erase(m_object.texts.begin() + m_index);
    else
      m_object.texts[index] = text;
  }
  m_diary.Note("update " + Name() + " " + Narrow(text));
}
void FragmentDouble::GetExtent2d(AcGePoint3d& lower, AcGePoint3d& upper) const {
  const bool hasExtent = m_text == L"Vexra" || (m_object.hasExtent && !m_text.empty());
  lower = m_object.lower;
  upper = hasExtent ? m_object.upper : lower;
}
std::unique_ptr<qvx::EditFragment> FragmentDouble::GetNext(bool vertical, bool backward) const {
  m_diary.Note("next of " + Name() + (vertical ? " vertical" : "") + (backward ? " back" : ""));
  if (m_object.repeatsNext)
    return std::make_unique<FragmentDouble>(m_diary, m_object, static_cast<size_t>(m_index));
  const long columns = static_cast<long>(m_object.columns);
  if (vertical && !columns) return nullptr;
  const long step = (vertical ? columns : 1) * (backward ? -1 : 1);
  const long next = m_index + step;
  if (next < 0 || next >= static_cast<long>(m_object.texts.size())) return nullptr;
  return std::make_unique<FragmentDouble>(m_diary, m_object, static_cast<size_t>(next));
}
void FragmentDouble::SetIndex(long index) {
  m_diary.Note("index of " + Name() + " is " + std::to_string(index));
  m_index = index;
}
void FragmentDouble::Highlight(bool on) const {
  m_diary.Note((on ? "highlight " : "unhighlight ") + std::to_string(m_object.number));
}

std::vector<SIZE> ControlDouble::MeasureAll(const std::vector<std::wstring_view>& texts,
                                            qvx::MeasureFont font) {
  const bool isBox = font == qvx::MeasureFont::kBox;
  const LONG width = isBox ? letterWidth : kContextWidth;
  const LONG height = isBox ? letterHeight : kContextHeight;
  std::vector<SIZE> sizes;
  for (const std::wstring_view of : texts) {
    const auto returns = static_cast<LONG>(std::ranges::count(of, L'\r'));
    const LONG letters = static_cast<LONG>(of.size()) - returns;
    sizes.push_back({letters * width + returns * kReturnWidth, of.empty() ? 0 : height});
  }
  return sizes;
}
std::vector<int> ControlDouble::PrefixWidths(const std::wstring& of) {
  std::vector<int> widths;
  int width = 0;
  for (const wchar_t c : of) {
    width += static_cast<int>(c == L'\r' ? kReturnWidth : letterWidth);
    widths.push_back(width);
  }
  return widths;
}
bool ControlDouble::Create(qvx::BoxParent in) {
  exists = isShown = canCreate;
  text.clear();
  selection = {};
  isModified = false;
  box = {0, 0, 0, 0};
  caretHides = 0;
  m_diary.Note(in == qvx::BoxParent::kFrame ? "create in frame" : "create in view");
  return exists;
}
void ControlDouble::Destroy() {
  exists = isShown = false;
  m_diary.Note("destroy");
}
void ControlDouble::SetFont(int height) { m_diary.Note("font " + std::to_string(height)); }
void ControlDouble::SetText(const std::wstring& to) {
  text = to;
  selection = {};
  isModified = false;
  m_diary.Note("text " + Narrow(to));
}
void ControlDouble::SetModified(bool modified) {
  isModified = modified;
  m_diary.Note(modified ? "modified" : "unmodified");
}
void ControlDouble::Select(qvx::TextRange range) {
  selection = {std::min(range.start, TextLength()), std::min(range.end, TextLength())};
  m_diary.Note("select " + RangeText(range));
}
void ControlDouble::SelectAll() {
  selection = {0, TextLength()};
  m_diary.Note("select all");
}
int ControlDouble::LineOf(int position) {
  return static_cast<int>(std::count(text.begin(), text.begin() + position, L'\n'));
}
RECT ControlDouble::BoxOnScreen() {
  return {box.left + origin.x, box.top + origin.y, box.right + origin.x, box.bottom + origin.y};
}
POINT ControlDouble::ScreenToParent(POINT screen) {
  return {screen.x - origin.x, screen.y - origin.y};
}
void ControlDouble::Move(const RECT& to) {
  box = to;
  m_diary.Note("move " + RectText(to));
}
void ControlDouble::Show(bool show) {
  isShown = show;
  m_diary.Note(show ? "show" : "hide");
}
void ControlDouble::HideCaret() {
  ++caretHides;
  m_diary.Note("hide caret");
}
void ControlDouble::ShowCaret() {
  if (caretHides > 0) --caretHides;
  m_diary.Note("show caret");
}

// One unit is one pixel; y runs upwards in the drawing.
POINT EditHostDouble::WorldToPixel(int, const AcGePoint3d& world) const {
  return {static_cast<LONG>(std::lround(world.x)), static_cast<LONG>(400 - std::lround(world.y))};
}
bool EditHostDouble::IsInSight(AcDbObjectId object) const {
  return std::ranges::count(inSight, NumberOf(object)) != 0;
}
std::unique_ptr<qvx::DocumentLock> EditHostDouble::LockCurrentDocument() {
  if (canLock) return std::make_unique<LockDouble>(m_diary);
  m_diary.Note("no lock");
  return nullptr;
}
void EditHostDouble::PostWheelToView(WPARAM wParam, LPARAM lParam) {
  m_diary.Note("wheel " + std::to_string(wParam) + " " + std::to_string(lParam));
}
void EditHostDouble::MoveCursor(POINT screen) {
  cursor = screen;
  m_diary.Note("cursor " + std::to_string(screen.x) + "," + std::to_string(screen.y));
}
TMenuBar* EditHostDouble::FindMenu(const wchar_t* name) const {
  m_diary.Note("menu " + Narrow(name));
  const auto it = menus.find(name);
  return it == menus.end() ? nullptr
                           : reinterpret_cast<TMenuBar*>(
                                 const_cast<void*>(static_cast<const void*>(&it->second)));
}
void EditHostDouble::TrackMenu(TMenuBar&, POINT screen) {
  m_diary.Note("track " + std::to_string(screen.x) + "," + std::to_string(screen.y));
}
std::wstring EditHostDouble::TipOf(TMenuBar& menu, int id) const {
  const auto& tips = *reinterpret_cast<const std::map<int, std::wstring>*>(&menu);
  const auto it = tips.find(id);
  return it == tips.end() ? std::wstring() : it->second;
}
void EditHostDouble::ShowStatusText(const std::wstring& text) {
  m_diary.Note("status " + Narrow(text));
}
bool EditHostDouble::RunDialog(qvx::TextDialog dialog, std::wstring& result) {
  m_diary.Note(dialog == qvx::TextDialog::kWord ? "word dialog" : "character dialog");
  if (chooses) result = choice;
  return chooses;
}
void EditHostDouble::SelectOnly(AcDbObjectId object) {
  m_diary.Note("select only " + std::to_string(NumberOf(object)));
}

std::unique_ptr<qvx::DocumentLock> ReferenceHostDouble::LockCurrentDocument() {
  if (canLock) return std::make_unique<LockDouble>(m_diary);
  m_diary.Note("no lock");
  return nullptr;
}
void ReferenceHostDouble::MarkChanged(AcDbObjectId reference) {
  m_diary.Note("mark " + std::to_string(NumberOf(reference)));
}
std::optional<std::vector<AcDbObjectId>> ReferenceHostDouble::ReferencesOf(
    AcDbObjectId record) const {
  const auto it = references.find(NumberOf(record));
  if (it == references.end()) return std::nullopt;
  std::vector<AcDbObjectId> ids;
  for (const std::uintptr_t number : it->second) ids.push_back(Id(number));
  return ids;
}
void ReferenceHostDouble::MarkGraphicsModified(AcDbObjectId reference) {
  m_diary.Note("graphics of " + std::to_string(NumberOf(reference)));
}
void ReferenceHostDouble::UpdateAnonymousBlocks(AcDbObjectId record) {
  m_diary.Note("update copies of " + std::to_string(NumberOf(record)));
}

}  // namespace edittest
