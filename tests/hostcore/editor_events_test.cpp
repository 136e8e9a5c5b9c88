// Reactors of the editor: what they hear of commands and expressions, and in which order.
#include "tests/hostcore/host_fixture.h"

namespace {

class Diary : public AcEditorReactor {
 public:
  explicit Diary(std::wstring prefix = L"") : m_prefix(std::move(prefix)) {
    acedEditor->addReactor(this);
  }
  ~Diary() override { acedEditor->removeReactor(this); }

  void commandWillStart(const ACHAR* name) override { Note(L"start ", name); }
  void commandEnded(const ACHAR* name) override { Note(L"end ", name); }
  void commandCancelled(const ACHAR* name) override { Note(L"cancel ", name); }
  void lispWillStart(const ACHAR* line) override { Note(L"lisp ", line); }
  void lispEnded() override { Note(L"lisp end", L""); }
  void lispCancelled() override { Note(L"lisp cancel", L""); }

  std::vector<std::wstring> notes;
  bool leaves = false;  // at the next notice

 private:
  void Note(const wchar_t* what, const ACHAR* name) {
    notes.push_back(m_prefix + what + name);
    if (leaves) acedEditor->removeReactor(this);
  }
  std::wstring m_prefix;
};

class EditorEvents : public hosttest::HostTest {};
using Notes = std::vector<std::wstring>;

TEST_F(EditorEvents, ACommandIsToldOnceAtItsStartAndOnceAtItsEnd) {
  NewDrawing();
  Diary diary;
  Send(L"line 0,0 5,5 \n");
  EXPECT_EQ((Notes{L"start LINE", L"end LINE"}), diary.notes);
}

TEST_F(EditorEvents, ACancelIsAnEndOfItsOwnKind) {
  NewDrawing();
  Diary diary;
  Send(L"line 0,0 \x1b");
  EXPECT_EQ((Notes{L"start LINE", L"cancel LINE"}), diary.notes);
}

TEST_F(EditorEvents, ATransparentCommandIsToldInsideTheOther) {
  NewDrawing();
  Diary diary;
  Send(L"line 'zoom E 0,0 5,5 \n");
  EXPECT_EQ((Notes{L"start LINE", L"start ZOOM", L"end ZOOM", L"end LINE"}), diary.notes);
}

TEST_F(EditorEvents, AnUnknownCommandIsNotTold) {
  NewDrawing();
  Diary diary;
  Send(L"nonsense ");
  EXPECT_EQ(Notes{}, diary.notes);
}

TEST_F(EditorEvents, ExpressionsAreToldWithTheirFirstLine) {
  NewDrawing();
  Diary diary;
  Send(L"(+ 1\n2)");
  Send(L"(nonsense) ");
  EXPECT_EQ((Notes{L"lisp (+ 1", L"lisp end", L"lisp (nonsense)", L"lisp cancel"}), diary.notes);
}

TEST_F(EditorEvents, AReactorMayLeaveWhileItIsTold) {
  NewDrawing();
  Diary first, second;
  first.leaves = true;
  Send(L"regen ");
  EXPECT_EQ(Notes{L"start REGEN"}, first.notes);
  EXPECT_EQ(2u, second.notes.size());
}

TEST_F(EditorEvents, AReactorThatIsAddedTwiceIsToldOnce) {
  NewDrawing();
  Diary diary;
  acedEditor->addReactor(&diary);
  acedEditor->addReactor(nullptr);
  Send(L"regen ");
  EXPECT_EQ(2u, diary.notes.size());
}

class CurrentView : public hosttest::HostTest {};

TEST_F(CurrentView, ShowsItsMiddleAtItsHeight) {
  devhost::Document& drawing = NewDrawing();
  drawing.view.Resize(800, 600);
  AcDbViewTableRecord view;
  view.setCenterPoint({1000, 2000});
  view.setHeight(300);
  EXPECT_EQ(Acad::eOk, acedSetCurrentView(&view, nullptr));
  EXPECT_DOUBLE_EQ(2, drawing.view.PixelsPerUnit());
  const AcGePoint3d middle = drawing.view.ToWorld({400, 300});
  EXPECT_DOUBLE_EQ(1000, middle.x);
  EXPECT_DOUBLE_EQ(2000, middle.y);
}

TEST_F(CurrentView, RefusesWhatIsNoView) {
  AcDbViewTableRecord view;
  AcDbViewport viewport;
  EXPECT_EQ(Acad::eNoDocument, acedSetCurrentView(&view, nullptr));
  NewDrawing();
  EXPECT_EQ(Acad::eInvalidInput, acedSetCurrentView(nullptr, nullptr));
  EXPECT_EQ(Acad::eInvalidInput, acedSetCurrentView(&view, &viewport));
  view.setHeight(0);
  EXPECT_EQ(Acad::eInvalidInput, acedSetCurrentView(&view, nullptr));
  view.setHeight(5);
  view.setCenterPoint({std::nan(""), 0});
  EXPECT_EQ(Acad::eInvalidInput, acedSetCurrentView(&view, nullptr));
}

}  // namespace
