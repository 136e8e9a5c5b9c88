#include "tests/statusbar/win/bar_host.h"

#include "afxext.h"

#include "dbsymtb.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/selection.h"
#include "kernel/current_drawing.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"
#include "rxmfcapi.h"
#include "tests/module/win/host_process.h"

namespace {

ModalGuest* g_guest = nullptr;

struct DialogSearch {
  HWND known, found;
};

BOOL CALLBACK TakeDialog(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<DialogSearch*>(data);
  wchar_t name[16] = L"";
  ::GetClassNameW(window, name, 16);
  if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window) || window == search.known)
    return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

std::vector<MenuLine> LinesOf(HMENU popup) {
  std::vector<MenuLine> lines;
  for (int i = 0; i < ::GetMenuItemCount(popup); ++i) {
    wchar_t text[100] = L"";
    ::GetMenuStringW(popup, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
    const UINT state = ::GetMenuState(popup, static_cast<UINT>(i), MF_BYPOSITION);
    const bool separator = (state & MF_SEPARATOR) != 0;
    lines.push_back({separator ? L"" : text, separator ? 0 : ::GetMenuItemID(popup, i),
                     !separator && (state & (MF_GRAYED | MF_DISABLED)) != 0,
                     (state & MF_CHECKED) != 0});
  }
  return lines;
}

ModalGuest::ModalGuest(std::function<bool()> step)
    : m_step(std::move(step)), m_timer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer)) {
  g_guest = this;
}

ModalGuest::~ModalGuest() {
  ::KillTimer(nullptr, m_timer);
  g_guest = nullptr;
}

void ModalGuest::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  ModalGuest* guest = g_guest;
  if (guest && !guest->m_done) guest->m_done = guest->m_step();
}

HWND VisibleDialog(HWND known) {
  DialogSearch search{known, nullptr};
  ::EnumThreadWindows(::GetCurrentThreadId(), TakeDialog, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND OpenMenuWindow(HMENU* menu) {
  const HWND window = ::FindWindowW(L"#32768", nullptr);
  if (!window || !::IsWindowVisible(window)) return nullptr;
  *menu = reinterpret_cast<HMENU>(::SendMessageW(window, MN_GETHMENU, 0, 0));
  return *menu ? window : nullptr;
}

void BarTest::SetUp() {
  HostProcess::Get();
  BeginQvxEntities();
  BeginCurrentDrawing();
  NewDrawing();
  g_bDynamicCoord = g_bMakeGroup = 1;
  QvxGeLib::g_bDynInput = 1;
  QvxGeLib::g_iMaxDynDimNum = 2;
  StartJournal();
}

void BarTest::StartJournal() { m_journalStart = devhost::TheJournal().Count(); }

void BarTest::TearDown() {
  Bar().RemoveAllPanes(TRUE);
  auto& documents = devhost::TheHost().documents;
  while (documents.Current()) documents.Close(documents.Current());
  EndCurrentDrawing();
  EndQvxEntities();
  EXPECT_EQ(TDbConfig::OpenCount(), 0);
}

AcApStatusBar& BarTest::Bar() { return *acedGetApplicationStatusBar(); }
devhost::Document& BarTest::NewDrawing() { return *devhost::TheHost().documents.New(); }
devhost::Document& BarTest::Drawing() { return *devhost::TheHost().documents.Current(); }
void BarTest::BeginCommand() { Drawing().commands.push_back(L"LINE"); }
void BarTest::EndCommand() { Drawing().commands.pop_back(); }

void BarTest::SetVariable(const wchar_t* name, const wchar_t* value) {
  devhost::TheHost().variables.Set(name, value);
}

std::wstring BarTest::Variable(const wchar_t* name) {
  std::wstring value;
  devhost::TheHost().variables.Get(name, &value);
  return value;
}

void BarTest::Select(const std::vector<AcDbEntity*>& entities) {
  std::vector<AcDbObjectId> ids;
  for (AcDbEntity* entity : entities) ids.push_back(entity->objectId());
  devhost::SetPickFirst(Drawing(), ids);
}

void BarTest::AddToDrawing(AcDbEntity* entity) {
  AcDbBlockTableRecord::cast(Drawing().database()->currentSpaceId().object())
      ->appendAcDbEntity(entity);
}

double BarTest::ScaleOfDrawing() {
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, Drawing().database());
  const double scale = config->PScale();
  config->close();
  return scale;
}

std::vector<std::string> BarTest::Journal(const char* event) const {
  std::vector<std::string> texts;
  for (const devhost::JournalEntry& entry : devhost::TheJournal().Since(m_journalStart))
    if (entry.event == event) texts.push_back(entry.fields.front().get<std::string>());
  return texts;
}

bool BarTest::ViewWaitsForPaint() {
  const HWND view = acedGetAcadDwgView()->m_hWnd;
  const bool waits = ::GetUpdateRect(view, nullptr, FALSE) != FALSE;
  ::ValidateRect(view, nullptr);
  return waits;
}
