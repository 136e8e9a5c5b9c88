#include "tests/fuzz/filter_fuzz_host.h"

namespace filterfuzz {
namespace {

// Wraps like the window system's coordinates do.
LONG Sum(LONG a, LONG b) {
  return static_cast<LONG>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace

std::uint32_t Input::Word() {
  std::uint32_t word = 0;
  for (int i = 0; i < 4; ++i) word = word << 8 | Byte();
  return word;
}

std::string Input::Text(size_t most) {
  const std::string text = IsEmpty() ? std::string() : m_bytes.substr(m_at, most);
  m_at += text.size();
  return text;
}

POINT FuzzHost::ToView(POINT screen) {
  return {Sum(screen.x, -origin.x), Sum(screen.y, -origin.y)};
}
POINT FuzzHost::ToScreen(POINT view) { return {Sum(view.x, origin.x), Sum(view.y, origin.y)}; }

bool FuzzHost::WorldToViewport(int number, const AcGePoint3d&, POINT& view) {
  POINT bounded{};
  const bool converted = FilterDouble::WorldToViewport(number, {}, bounded);
  if (converted) view = {m_input.Pixel(), m_input.Pixel()};
  return converted;
}

bool FuzzHost::ViewportToWorld(int number, POINT view, AcGePoint3d& world) {
  canConvert = !m_input.Seldom();
  return FilterDouble::ViewportToWorld(number, view, world);
}

int FuzzHost::Count() {
  constexpr int kCounts[] = {-1, 0, 0, 1, 1, 2, 99, 100};
  return kCounts[m_input.Byte() % std::size(kCounts)];
}
int FuzzHost::SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) {
  FilterDouble::SelectAt(user, types, set);
  return Count();
}
int FuzzHost::SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                          TPickEntSet& set) {
  FilterDouble::SelectFence(from, to, types, set);
  return Count();
}
int FuzzHost::SelectImplied(const wchar_t* types, TPickEntSet& set) {
  FilterDouble::SelectImplied(types, set);
  return Count();
}

void FuzzHost::ShowHelp(qvx::HelpCall call, const wchar_t* file, const wchar_t* keyword) {
  FilterDouble::ShowHelp(call, file, keyword);
  m_runLoop(Loop::kHelp);
}
bool FuzzHost::ShowContextMenu(POINT screen, bool force) {
  FilterDouble::ShowContextMenu(screen, force);
  m_runLoop(Loop::kMenu);
  return m_input.Flag();
}

void FuzzEdit::BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) {
  EditDouble::BeginEdit(fragment, toWorld);
  isVisible = true;
}
void FuzzEdit::EndEdit(bool unhighlight) {
  EditDouble::EndEdit(unhighlight);
  isVisible = false;
}
bool FuzzEdit::ShowInPlaceMenu(POINT at) {
  EditDouble::ShowInPlaceMenu(at);
  m_runLoop(Loop::kMenu);
  return true;
}

}  // namespace filterfuzz
