// The MDI windows of drawings in the host's frame: titles, activation, closing, the window menu,
// dropped files.
#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <utility>

#include "afxext.h"

#include <shellapi.h>
#include <shlobj.h>

#include "acdocman.h"
#include "axlock.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/frame/main_menu.h"
#include "devhost/ui/launch/host_app.h"
#include "devhost/ui/messages/message_pump.h"

using namespace devhost;

namespace {

class AnsweringApp : public HostApp {
 public:
  using HostApp::HostApp;
  std::deque<int> answers;  // none left: Cancel
  std::vector<std::pair<std::wstring, UINT>> boxes;

  int DoMessageBox(LPCTSTR text, UINT flags, UINT) override {
    boxes.emplace_back(text, flags);
    if (answers.empty()) return IDCANCEL;
    const int next = answers.front();
    answers.pop_front();
    return next;
  }
};

// One per program, since the host has one instance per process.
AnsweringApp& App() {
  static AnsweringApp* app = [] {
    ::AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL);
    auto* made = new AnsweringApp(L"test");
    made->InitInstance();
    TheHost().Begin({}, &TheHostUi(), nullptr);
    auto* frame = new MainFrame;  // deletes itself
    frame->CreateAndShow(L"Host");
    made->m_pMainWnd = frame;
    return made;
  }();
  return *app;
}

class DrawingWindows : public ::testing::Test {
 protected:
  void SetUp() override {
    app.answers.clear();
    app.boxes.clear();
    folder = std::filesystem::temp_directory_path() / "qvx_hostui_documents";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  void TearDown() override {
    acDocManager->enableDocumentActivation();
    while (!host.documents.All().empty()) host.documents.Close(host.documents.All().back().get());
    Settle();
    std::filesystem::remove_all(folder);
  }

  // All messages and waiting input, as the main loop does, until the program ends.
  void Settle() {
    MSG message{};
    do {
      while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
          m_quit = true;
          return;
        }
        ThePump().Process(&message);
      }
    } while (TheHostUi().RunWaiting());
  }
  bool TakeQuit() { return std::exchange(m_quit, false); }
  std::wstring MakeFile(const char* name) {
    std::ofstream(folder / name, std::ios::binary)
        << "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    return (folder / name).wstring();
  }
  void Change(Document& drawing) { drawing.database()->body().modified = 1; }
  HWND WindowOf(const Document& drawing) { return TheHostUi().ChildOf(drawing)->m_hWnd; }
  HWND ActiveWindow() {
    return reinterpret_cast<HWND>(
        ::SendMessageW(TheFrame()->m_hWndMDIClient, WM_MDIGETACTIVE, 0, 0));
  }
  std::wstring TextOf(HWND window) {
    wchar_t text[1024] = L"";
    ::GetWindowTextW(window, text, 1024);
    return text;
  }
  void MenuRow(UINT id) { ::SendMessageW(TheFrame()->m_hWnd, WM_COMMAND, id, 0); }
  RECT BoxOf(HWND window) {
    RECT box{};
    ::GetWindowRect(window, &box);
    return box;
  }

  AnsweringApp& app = App();
  Host& host = TheHost();
  std::filesystem::path folder;

 private:
  bool m_quit = false;
};

// What was active when a drawing was notified as created.
class CreatedLog : public AcApDocManagerReactor {
 public:
  CreatedLog() { acDocManager->addReactor(this); }
  ~CreatedLog() override { acDocManager->removeReactor(this); }
  std::wstring title;
  AcApDocument* current = nullptr;
  AcApDocument* created = nullptr;

  void documentCreated(AcApDocument* document) override {
    CString text;
    TheFrame()->MDIGetActive()->GetWindowText(text);
    title = static_cast<LPCTSTR>(text);
    current = acDocManager->curDocument();
    created = document;
  }
};

}  // namespace

TEST_F(DrawingWindows, TheTitleIsTheFullPathOrTheNameOfANewDrawing) {
  Document& made = *host.documents.New();
  EXPECT_EQ(TextOf(WindowOf(made)), made.Title());
  const std::wstring path = MakeFile("plan.dxf");
  Document* opened = host.documents.Open(path);
  ASSERT_NE(opened, nullptr);
  EXPECT_EQ(TextOf(WindowOf(*opened)), path);
  EXPECT_EQ(TextOf(TheFrame()->m_hWnd), L"Host - [" + path + L"]");
  const std::wstring other = (folder / "other.dxf").wstring();
  host.documents.sendStringToExecute(opened, (L"SAVEAS " + other + L"\n").c_str(), true, false,
                                     true);
  Settle();
  EXPECT_EQ(TextOf(WindowOf(*opened)), other);
  EXPECT_EQ(TextOf(TheFrame()->m_hWnd), L"Host - [" + other + L"]");
}

TEST_F(DrawingWindows, TheNewWindowIsActiveWhenTheDrawingIsNotifiedAsCreated) {
  host.documents.New();
  const std::wstring path = MakeFile("plan.dxf");
  const CreatedLog log;
  Document* opened = host.documents.Open(path);
  EXPECT_EQ(log.created, opened);
  EXPECT_EQ(log.current, opened);
  EXPECT_EQ(log.title, path);
}

TEST_F(DrawingWindows, TheCloseBoxOfAChangedDrawingAsksAndCancelKeepsIt) {
  Document& drawing = *host.documents.New();
  Change(drawing);
  ::SendMessageW(WindowOf(drawing), WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
  ASSERT_EQ(app.boxes.size(), 1u);
  EXPECT_EQ(app.boxes[0].first, L"是否将改动保存到 " + drawing.Title() + L"?");
  EXPECT_EQ(app.boxes[0].second & 0xFu, static_cast<UINT>(MB_YESNOCANCEL));
  ASSERT_EQ(acDocManager->documentCount(), 1);
  EXPECT_EQ(ActiveWindow(), WindowOf(drawing));
  app.answers = {IDNO};
  ::SendMessageW(WindowOf(drawing), WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
  EXPECT_EQ(acDocManager->documentCount(), 0);
}

TEST_F(DrawingWindows, TheCloseBoxOfABackgroundWindowClosesThatDrawing) {
  Document& back = *host.documents.New();
  Document& front = *host.documents.New();
  ::SendMessageW(WindowOf(back), WM_CLOSE, 0, 0);
  Settle();
  EXPECT_EQ(acDocManager->documentCount(), 1);
  EXPECT_EQ(host.documents.Current(), &front);
  EXPECT_EQ(ActiveWindow(), WindowOf(front));
}

TEST_F(DrawingWindows, TheCloseBoxCancelsTheWaitingCommand) {
  Document& drawing = *host.documents.New();
  host.documents.sendStringToExecute(&drawing, L"LINE\n", true, false, true);
  ::PostMessageW(WindowOf(drawing), WM_CLOSE, 0, 0);
  Settle();
  EXPECT_EQ(acDocManager->documentCount(), 0);
}

TEST_F(DrawingWindows, TheCloseBoxOfTheFrameAsksForEachChangedDrawing) {
  Document& a = *host.documents.New();
  host.documents.New();
  Document& c = *host.documents.New();
  Change(a);
  Change(c);
  app.answers = {IDNO, IDCANCEL};
  ::SendMessageW(TheFrame()->m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
  EXPECT_EQ(app.boxes.size(), 2u);
  EXPECT_FALSE(TakeQuit());
  EXPECT_EQ(acDocManager->documentCount(), 3);
  app.answers = {IDNO, IDNO};
  ::SendMessageW(TheFrame()->m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
  EXPECT_TRUE(TakeQuit());
}

TEST_F(DrawingWindows, WithoutADrawingTheCloseBoxOfTheFrameEnds) {
  ::SendMessageW(TheFrame()->m_hWnd, WM_CLOSE, 0, 0);
  Settle();
  EXPECT_TRUE(TakeQuit());
}

TEST_F(DrawingWindows, CtrlTabActivatesAnotherDrawing) {
  Document& a = *host.documents.New();
  Document& b = *host.documents.New();
  ::SendMessageW(WindowOf(b), WM_SYSCOMMAND, SC_NEXTWINDOW, 0);
  EXPECT_EQ(host.documents.Current(), &a);
  EXPECT_EQ(ActiveWindow(), WindowOf(a));
}

TEST_F(DrawingWindows, ARowOfTheWindowMenuActivatesItsDrawing) {
  Document& a = *host.documents.New();
  host.documents.New();
  MenuRow(AFX_IDM_FIRST_MDICHILD);
  EXPECT_EQ(host.documents.Current(), &a);
}

TEST_F(DrawingWindows, WhileActivationIsDisabledTheUserCannotChangeDrawings) {
  Document& a = *host.documents.New();
  Document& b = *host.documents.New();
  acDocManager->disableDocumentActivation();
  ::SendMessageW(WindowOf(b), WM_SYSCOMMAND, SC_NEXTWINDOW, 0);
  ::SendMessageW(WindowOf(b), WM_SYSCOMMAND, SC_PREVWINDOW, 0);
  MenuRow(AFX_IDM_FIRST_MDICHILD);
  EXPECT_EQ(ActiveWindow(), WindowOf(b));
  EXPECT_EQ(
      ::SendMessageW(WindowOf(a), WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(TheFrame()->m_hWnd),
                     MAKELPARAM(HTCAPTION, WM_LBUTTONDOWN)),
      MA_NOACTIVATEANDEAT);
  EXPECT_EQ(host.documents.Current(), &b);
  acDocManager->enableDocumentActivation();
  MenuRow(AFX_IDM_FIRST_MDICHILD);
  EXPECT_EQ(host.documents.Current(), &a);
}

TEST_F(DrawingWindows, AWindowThatIsActivatedWhileDisabledLosesTheActivation) {
  Document& a = *host.documents.New();
  Document& b = *host.documents.New();
  acDocManager->disableDocumentActivation();
  ::SendMessageW(TheFrame()->m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(WindowOf(a)),
                 0);
  Settle();
  EXPECT_EQ(host.documents.Current(), &b);
  EXPECT_EQ(ActiveWindow(), WindowOf(b));
}

TEST_F(DrawingWindows, TheWindowMenuTilesCascadesAndMinimizes) {
  Document& a = *host.documents.New();
  Document& b = *host.documents.New();
  MenuRow(kWindowTileVertical);
  EXPECT_FALSE(::IsZoomed(WindowOf(a)));
  EXPECT_NE(BoxOf(WindowOf(a)).left, BoxOf(WindowOf(b)).left);
  EXPECT_EQ(BoxOf(WindowOf(a)).top, BoxOf(WindowOf(b)).top);
  MenuRow(kWindowTileHorizontal);
  EXPECT_EQ(BoxOf(WindowOf(a)).left, BoxOf(WindowOf(b)).left);
  EXPECT_NE(BoxOf(WindowOf(a)).top, BoxOf(WindowOf(b)).top);
  MenuRow(kWindowCascade);
  EXPECT_NE(BoxOf(WindowOf(a)).left, BoxOf(WindowOf(b)).left);
  EXPECT_NE(BoxOf(WindowOf(a)).top, BoxOf(WindowOf(b)).top);
  MenuRow(kWindowMinimize);
  EXPECT_TRUE(::IsIconic(WindowOf(a)) || ::IsIconic(WindowOf(b)));
  MenuRow(kWindowArrange);
  EXPECT_EQ(acDocManager->documentCount(), 2);
  EXPECT_EQ(ActiveWindow(), WindowOf(*host.documents.Current()));
}

TEST_F(DrawingWindows, DroppedFilesAreOpenedInTheirOrder) {
  const std::wstring files = MakeFile("a.dxf") + L'\0' + MakeFile("b.dxf") + L'\0' + L'\0';
  const HGLOBAL drop =
      ::GlobalAlloc(GMEM_MOVEABLE, sizeof(DROPFILES) + files.size() * sizeof(wchar_t));
  auto* head = static_cast<DROPFILES*>(::GlobalLock(drop));
  *head = {sizeof(DROPFILES), {}, FALSE, TRUE};
  std::copy(files.begin(), files.end(), reinterpret_cast<wchar_t*>(head + 1));
  ::GlobalUnlock(drop);
  ::SendMessageW(TheFrame()->m_hWnd, WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
  ASSERT_EQ(acDocManager->documentCount(), 2);
  EXPECT_EQ(host.documents.All()[0]->Title(), L"a.dxf");
  EXPECT_EQ(host.documents.Current()->Title(), L"b.dxf");
  EXPECT_TRUE(::GetWindowLongW(TheFrame()->m_hWnd, GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
}
