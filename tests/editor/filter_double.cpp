#include "tests/editor/filter_double.h"

#include <cmath>

#include "ground/utf8_text.h"

namespace editortest {
namespace {

constexpr double kUnitsPerPixel = 2;
constexpr double kUserShift = 1000;  // of the user's system against the world

std::string Text(double value) { return std::to_string(std::llround(value)); }
std::string Text(POINT at) { return std::to_string(at.x) + "," + std::to_string(at.y); }
std::string Text(const AcGePoint3d& at) { return Text(at.x) + "," + Text(at.y) + "," + Text(at.z); }
std::string TypesText(const wchar_t* types) { return types ? Utf8(types) : "*"; }

class ToggleDouble : public qvx::ToggleObjects {
 public:
  ToggleDouble(Diary& diary, const std::vector<GroupedObject>& objects)
      : m_diary(diary), m_objects(objects) {}

 private:
  struct Opened : qvx::ToggleObject {
    Opened(Diary& diary, long key, int index) : diary(diary), key(key), index(index) {}
    ~Opened() override { diary.Note("close " + std::to_string(index)); }
    long GroupKey() override { return key; }
    void ToggleControl() override { diary.Note("toggle " + std::to_string(index)); }
    Diary& diary;
    long key;
    int index;
  };

  int Count() override { return static_cast<int>(m_objects.size()); }
  std::unique_ptr<qvx::ToggleObject> Open(int index) override {
    const GroupedObject& object = m_objects[static_cast<size_t>(index)];
    if (!object.hasState) return nullptr;
    return std::make_unique<Opened>(m_diary, object.key, index);
  }

  Diary& m_diary;
  std::vector<GroupedObject> m_objects;
};

}  // namespace

std::string Utf8(const wchar_t* text) { return qvx::ToUtf8(text); }

int FilterDouble::Found(const std::string& entry) {
  m_diary.Note(entry);
  const auto it = found.find(entry);
  return it == found.end() ? -1 : it->second;
}
bool FilterDouble::Resize(const char* what, UINT flags, POINT view) {
  if (m_diary.isOn)
    m_diary.Note(std::string("resize ") + what + " " + std::to_string(flags) + " " + Text(view));
  return resizeTakes;
}

int FilterDouble::CommandActive() {
  Answer("CMDACTIVE?", true);
  if (nextActive.empty()) return active;
  const int next = nextActive.front();
  nextActive.erase(nextActive.begin());
  return next;
}
int FilterDouble::ShortVariable(const wchar_t* name) {
  if (m_diary.isOn) m_diary.Note(Utf8(name) + "?");
  const auto it = variables.find(name);
  return it == variables.end() ? 0 : it->second;
}
TWCString FilterDouble::CurrentCommand() {
  m_diary.Note("command?");
  return command.c_str();
}
TWCString FilterDouble::FullCommandName(const wchar_t* name) {
  return (std::wstring(L"_") + name).c_str();
}

RECT FilterDouble::ViewOnScreen() {
  m_diary.Note("rect?");
  return {origin.x, origin.y, origin.x + viewSize.cx, origin.y + viewSize.cy};
}
POINT FilterDouble::CursorPosition() {
  m_diary.Note("cursor?");
  return cursor;
}
void FilterDouble::MoveCursor(POINT screen) { m_diary.Note("move cursor " + Text(screen)); }
void FilterDouble::SendKeyToView(int key) { m_diary.Note("send key " + std::to_string(key)); }

int FilterDouble::ViewportAt(POINT view) {
  m_diary.Note("viewport at " + Text(view) + "?");
  return viewport;
}
bool FilterDouble::ViewportToWorld(int number, POINT view, AcGePoint3d& world) {
  m_diary.Note("world of " + Text(view) + " in " + std::to_string(number) + "?");
  if (canConvert) world = AcGePoint3d(view.x * kUnitsPerPixel, view.y * kUnitsPerPixel, 5);
  return canConvert;
}
AcGePoint3d FilterDouble::ViewToWorld(POINT view) {
  m_diary.Note("world of " + Text(view) + "?");
  return {view.x * kUnitsPerPixel + 1, view.y * kUnitsPerPixel + 1, 0};
}
bool FilterDouble::WorldToViewport(int number, const AcGePoint3d& world, POINT& view) {
  m_diary.Note("pixel of " + Text(world) + " in " + std::to_string(number) + "?");
  if (canConvertBack) view = {static_cast<LONG>(world.x) + 3, static_cast<LONG>(world.y) + 4};
  return canConvertBack;
}
AcGePoint3d FilterDouble::WorldToUser(const AcGePoint3d& world) {
  m_diary.Note("user of " + Text(world) + "?");
  return {world.x + kUserShift, world.y, world.z};
}
AcGeVector3d FilterDouble::UserYDirection() {
  m_diary.Note("y direction?");
  return yDirection;
}
void FilterDouble::ZoomAt(const AcGePoint3d& world, double factor) {
  m_diary.Note("zoom at " + Text(world) + " by " + Text(factor * 1000));
}

int FilterDouble::SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet&) {
  return Found("select at " + Text(user) + " " + TypesText(types));
}
int FilterDouble::SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                              TPickEntSet&) {
  return Found("fence " + Text(from) + " " + Text(to) + " " + TypesText(types));
}
int FilterDouble::SelectImplied(const wchar_t* types, TPickEntSet&) {
  return Found("selected " + TypesText(types));
}
TSubText* FilterDouble::HitTestOnText(TPickEntSet&, const AcGePoint3d& world) {
  m_diary.Note("text at " + Text(world) + "?");
  return hasText ? kText : nullptr;
}
std::unique_ptr<qvx::ToggleObjects> FilterDouble::ObjectsToToggle(qvx::ToggleSource source) {
  m_diary.Note(source == qvx::ToggleSource::kPickFirst ? "pick-first" : "selection");
  return std::make_unique<ToggleDouble>(m_diary, objects);
}

void FilterDouble::ForwardChar(char code, int repeat, int flags) {
  if (m_diary.isOn)
    m_diary.Note("char " + std::to_string(static_cast<unsigned char>(code)) + " " +
                 std::to_string(repeat) + " " + std::to_string(flags));
}
bool FilterDouble::FindFile(const wchar_t* name, TWCString& path) {
  m_diary.Note("find " + Utf8(name) + "?");
  if (!files.count(name)) return false;
  path = (std::wstring(L"C:\\s\\") + name).c_str();
  return true;
}
bool FilterDouble::FindHelpFile(TWCString& path) {
  m_diary.Note("help file?");
  path = helpFile.c_str();
  return !helpFile.empty();
}
bool FilterDouble::ReadBytes(const wchar_t* path, std::string& out) {
  m_diary.Note("read " + Utf8(path));
  out = bytes;
  return canRead;
}
void FilterDouble::ShowHelp(qvx::HelpCall call, const wchar_t* file, const wchar_t* keyword) {
  const char* names[] = {"topic", "keyword", "index"};
  m_diary.Note(std::string("help ") + names[static_cast<int>(call)] + " " + Utf8(file) + " " +
               Utf8(keyword));
}
void FilterDouble::WheelGroup(int delta, POINT screen) {
  m_diary.Note("wheel " + std::to_string(delta) + " " + Text(screen));
}
bool FilterDouble::ShowContextMenu(POINT screen, bool force) {
  m_diary.Note(std::string("menu ") + Text(screen) + (force ? " forced" : ""));
  return menuResult;
}

void EditDouble::BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) {
  const AcGePoint3d moved = toWorld * AcGePoint3d(3, 4, 5);
  isIdentity &= moved.x == 3 && moved.y == 4 && moved.z == 5;
  m_diary.Note(fragment == kText ? "begin edit" : "begin edit of something else");
}
bool EditDouble::ShowInPlaceMenu(POINT at) {
  m_diary.Note("edit menu " + Text(at));
  return true;
}

}  // namespace editortest
