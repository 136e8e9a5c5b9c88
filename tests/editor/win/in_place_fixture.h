// The in-place editor of the real module over texts of the sample plan: opening by a double click
// or the command, typing, and what happens while a menu or a dialog is open.
#pragma once

#include "tests/module/win/module_test.h"
// after the class library
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "acdocman.h"
#include "axlock.h"
#include "dbapserv.h"
#include "dbsymtb.h"
#include "devhost/ui/messages/message_pump.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tentityset.h"
#include "kernel/tsubtext.h"
#include "rxmfcapi.h"

using Json = nlohmann::json;

// Runs functions while a menu or a dialog is open.
class ModalWatch {
 public:
  ModalWatch() {
    s_watch = this;
    m_sent = ::SetWindowsHookExW(WH_CALLWNDPROC, OnSent, nullptr, ::GetCurrentThreadId());
    m_dialogs = ::SetWindowsHookExW(WH_MSGFILTER, OnInput, nullptr, ::GetCurrentThreadId());
  }
  ~ModalWatch() {
    ::UnhookWindowsHookEx(m_dialogs);
    ::UnhookWindowsHookEx(m_sent);
    s_watch = nullptr;
  }
  ModalWatch(const ModalWatch&) = delete;
  ModalWatch& operator=(const ModalWatch&) = delete;

  std::function<void()> whenMenuIsIdle;        // all is painted and no input waits
  std::function<void(HWND)> whenDialogIsOpen;  // called once

 private:
  static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code >= 0 && s_watch && s_watch->whenMenuIsIdle && sent.message == WM_ENTERIDLE &&
        sent.wParam == MSGF_MENU)
      s_watch->whenMenuIsIdle();
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  }
  static LRESULT CALLBACK OnInput(int code, WPARAM wParam, LPARAM lParam) {
    if (code == MSGF_DIALOGBOX && s_watch && s_watch->whenDialogIsOpen) {
      const HWND dialog = ::GetAncestor(reinterpret_cast<MSG*>(lParam)->hwnd, GA_ROOT);
      std::exchange(s_watch->whenDialogIsOpen, nullptr)(dialog);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  }

  HHOOK m_sent = nullptr, m_dialogs = nullptr;
  inline static ModalWatch* s_watch = nullptr;
};

class InPlaceModule : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    HostProcess::Get().CopyProductFile(L"plan.dxf");
    HostProcess::Get().CopyProductFile(L"qvx.qmn");  // with the menus of the box
    for (const wchar_t* name : {L"qvx.dll", L"qvxwords.txt"})
      HostProcess::Get().CopyProductFile(name);
    ASSERT_TRUE(LoadModule());
    ASSERT_TRUE(acrxLoadModule(L"qvx_design.arx", true));
    m_document = devhost::TheHost().documents.Open(HostProcess::Get().Folder() + L"\\plan.dxf");
    ASSERT_NE(m_document, nullptr);
    BringUp();
    Run(L"");
    Pump();
    m_room = FindRoom();
    ASSERT_FALSE(m_room.isNull());
    m_before = Content();
  }
  void TearDown() override {
    Module::TearDown();
    acrxUnloadModule(L"qvx_annotate.arx");
    acrxUnloadModule(L"qvx_design.arx");
    for (const wchar_t* name : {L"plan.dxf", L"qvx.dll", L"qvxwords.txt", L"qvx.qmn", L"qvx.qmc"})
      HostProcess::Get().Remove(name);
  }

  static HWND View() { return acedGetAcadDwgView()->m_hWnd; }
  static Json Editor() { return Json::parse(Shell())["editor"]; }
  static Json Popup() { return Json::parse(Shell())["popup"]; }
  static bool IsOpen() { return Editor()["open"].get<bool>(); }
  static int Faults() { return Json::parse(Shell())["faults"].get<int>(); }
  static HWND Box() {
    HWND box = acedGetAcadDwgView() ? ::GetDlgItem(View(), 6000) : nullptr;
    return box ? box : ::GetDlgItem(HostProcess::Get().Frame().m_hWnd, 6000);
  }
  static RECT BoxOnScreen() {
    RECT box{};
    ::GetWindowRect(Box(), &box);
    return box;
  }
  static void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
  }
  static void Key(WPARAM key) {
    ::PostMessageW(Box(), WM_KEYDOWN, key, 1);
    Pump();
  }
  // Replaces the selection as typing does.
  static void Type(const std::wstring& text) {
    for (const wchar_t one : text) ::PostMessageW(Box(), WM_CHAR, one, 1);
    Pump();
  }
  static std::wstring BoxText() {
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(Box())) + 1, L'\0');
    text.resize(
        static_cast<size_t>(::GetWindowTextW(Box(), text.data(), static_cast<int>(text.size()))));
    return text;
  }

  static AcDbBlockTableRecord* Space() {
    return AcDbBlockTableRecord::cast(
        acdbHostApplicationServices()->workingDatabase()->currentSpaceId().object());
  }
  // The first room of the current drawing.
  static AcDbObjectId FindRoom() {
    for (const AcDbObjectId& id : Space()->entities()) {
      const TAcDbObjectPtr<AcDbEntity> entity(id, AcDb::kForRead);
      if (entity && std::wstring(TEntitySet::TypeOf(*entity.Get())) == L"QVX_SPACE") return id;
    }
    return {};
  }
  // An object of the class with that name in drawing files.
  static AcDbObjectId Add(const wchar_t* type, const std::function<void(QvxDbEntity&)>& set) {
    const AcAxDocLock lock;
    AcRxClass* made = acrxClassOfDxfName(type);
    auto* entity = made ? static_cast<QvxDbEntity*>(made->create()) : nullptr;
    if (!entity) return {};
    set(*entity);
    Space()->appendAcDbEntity(entity);
    return entity->objectId();
  }
  std::wstring RoomText() const { return static_cast<const QvxDbEntity*>(m_room.object())->label; }
  void SetRoomText(const std::wstring& text) const {
    const AcAxDocLock lock;
    const TAcDbObjectPtr<AcDbEntity> room(m_room, AcDb::kForWrite);
    static_cast<QvxDbEntity*>(room.Get())->label = text;
  }
  static std::unique_ptr<TSubText> TextOf(AcDbObjectId object, int index = 0) {
    const TAcDbObjectPtr<AcDbEntity> entity(object, AcDb::kForRead);
    const TTextOwner* owner = TextOwnerOf(entity.Get());
    return std::unique_ptr<TSubText>(owner ? owner->GetSubText(index) : nullptr);
  }
  std::wstring Content() const { return TextOf(m_room)->GetText().GetString(); }

  static void DoubleClick(const AcGePoint3d& point) {
    const ads_point at = {point.x, point.y, 0};
    CPoint pixel;
    ASSERT_TRUE(acedCoordFromWorldToPixel(2, at, pixel));
    const LPARAM place = MAKELPARAM(pixel.x, pixel.y);
    ::ClientToScreen(View(), &pixel);
    ::SetCursorPos(pixel.x, pixel.y);
    // Not posted: the system would add the position that the pointer had before.
    MSG click{View(), WM_LBUTTONDBLCLK, MK_LBUTTON, place, ::GetTickCount(), pixel};
    devhost::ThePump().Process(&click);
    Pump();
  }
  // In the middle of a text.
  static void DoubleClick(AcDbObjectId object, int index = 0) {
    AcGePoint3d lower, upper;
    const std::unique_ptr<TSubText> text = TextOf(object, index);
    ASSERT_NE(text, nullptr);
    text->GetExtent2d(lower, upper);
    DoubleClick({(lower.x + upper.x) / 2, (lower.y + upper.y) / 2, 0});
  }
  void Open() {
    DoubleClick(m_room);
    ASSERT_TRUE(IsOpen());
  }

  // A step while the menu of the box is shown: a function, a key after which the next step waits
  // until the menu is idle again, or a function that closes the menu, which is the last step.
  struct Step {
    template <class Run>
    Step(Run what) : run(std::move(what)) {}
    Step(UINT message, WPARAM key)
        : run([=] { ::PostMessageW(Box(), message, key, 1); }), isInput(true) {}
    std::function<void()> run;
    bool isInput = false;
  };
  static Step Press(WPARAM key) { return {WM_KEYDOWN, key}; }
  static Step Letter(wchar_t letter) { return {WM_CHAR, letter}; }
  static Step Closing(std::function<void()> run) {
    Step step(std::move(run));
    step.isInput = true;
    return step;
  }

  // Runs the steps. The menu is closed after the last one if that is a function.
  void ShowMenu(const std::vector<Step>& steps) {
    size_t next = 0;
    m_watch.whenMenuIsIdle = [&] {
      while (next < steps.size()) {
        const Step& step = steps[next++];
        step.run();
        if (step.isInput) return;
      }
      ::EndMenu();
    };
    Key(VK_F4);
    m_watch.whenMenuIsIdle = nullptr;
    EXPECT_EQ(next, steps.size()) << "the menu closed before";
    Pump();
  }

  // What the status line has shown since StartAnew.
  std::vector<std::string> StatusTexts() const {
    std::vector<std::string> texts;
    for (const devhost::JournalEntry& entry : devhost::TheJournal().Since(m_journalStart))
      if (entry.event == "statustext") texts.push_back(entry.fields["text"]);
    return texts;
  }

  // Lets a code path in which the module is unloaded return: its code stays in memory.
  class HeldInMemory {
   public:
    HeldInMemory() {
      wchar_t path[512] = L"";
      ::GetModuleFileNameW(::GetModuleHandleW(L"qvx_initstart.arx"), path, 512);
      m_library = ::LoadLibraryW(path);
    }
    ~HeldInMemory() { ::FreeLibrary(m_library); }
    HeldInMemory(const HeldInMemory&) = delete;
    HeldInMemory& operator=(const HeldInMemory&) = delete;

   private:
    HMODULE m_library;
  };

  AcApDocument* m_document = nullptr;
  AcDbObjectId m_room;
  std::wstring m_before;
  ModalWatch m_watch;
};
