#include "editor/win/live_edit_host.h"

#include "acdocman.h"
#include "adslib.h"
#include "editor/kernel_fragment.h"
#include "ground/command_line.h"
#include "ground/host_variables.h"
#include "kernel/entities/tdbinsight.h"
#include "kernel/qvxexport.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tpickentset.h"
#include "menu/menu_in_force.h"
#include "rxmfcapi.h"

namespace {

constexpr wchar_t kDialogModule[] = L"qvx_annotate.arx";
constexpr int kLibraryKind = 1;

using GetSpecialCharFunction = bool (*)(CWnd* parent, CString& result);
using GetWordFromLibFunction = bool (*)(CWnd* parent, CString& result, int kind);

// Null when the module is not loaded or has no such function.
template <class Function>
Function DialogFunction(const char* name) {
  const HMODULE module = ::GetModuleHandleW(kDialogModule);
  if (!module) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

GetSpecialCharFunction SpecialCharDialog() {
  return DialogFunction<GetSpecialCharFunction>("GetSpecialChar");
}

GetWordFromLibFunction WordDialog() {
  return DialogFunction<GetWordFromLibFunction>("GetWordFromLib");
}

}  // namespace

AcApDocument* LiveEditHost::CurrentDocument() const {
  return acDocManager ? acDocManager->curDocument() : nullptr;
}

bool LiveEditHost::HasView() const { return acedGetAcadDwgView() != nullptr; }

int LiveEditHost::CurrentViewport() const { return qvx::ShortVariable(L"CVPORT").value_or(0); }

double LiveEditHost::ScreenWidth() const { return qvx::PointVariableX(L"SCREENSIZE").value_or(0); }

POINT LiveEditHost::WorldToPixel(int viewport, const AcGePoint3d& world) const {
  const ads_point point = {world.x, world.y, world.z};
  CPoint pixel(0, 0);
  acedCoordFromWorldToPixel(viewport, point, pixel);
  return pixel;
}

POINT LiveEditHost::ViewToFrame(POINT view) const {
  if (const CWnd* window = acedGetAcadDwgView()) window->ClientToScreen(&view);
  if (const CWnd* frame = acedGetAcadFrame()) frame->ScreenToClient(&view);
  return view;
}

bool LiveEditHost::IsInSight(AcDbObjectId object) const {
  const TAcDbObjectPtr<AcDbEntity> entity(object, AcDb::kForRead);
  return entity && entity->isKindOf(TDbInSight::desc());
}

std::unique_ptr<qvx::DocumentLock> LiveEditHost::LockCurrentDocument() {
  return qvx::LockCurrentForWrite();
}

void LiveEditHost::PostWheelToView(WPARAM wParam, LPARAM lParam) {
  if (CWnd* view = acedGetAcadDwgView()) view->PostMessage(WM_MOUSEWHEEL, wParam, lParam);
}

POINT LiveEditHost::CursorPosition() const {
  POINT at{};
  ::GetCursorPos(&at);
  return at;
}

void LiveEditHost::MoveCursor(POINT screen) { ::SetCursorPos(screen.x, screen.y); }

void LiveEditHost::SetTextCursor() { ::SetCursor(::LoadCursorW(nullptr, IDC_IBEAM)); }

bool LiveEditHost::IsCtrlDown() const { return ::GetKeyState(VK_CONTROL) < 0; }

TMenuBar* LiveEditHost::FindMenu(const wchar_t* name) const {
  TMenuSystem* system = LoadedMenu();
  return system ? system->FindBar(name) : nullptr;
}

void LiveEditHost::TrackMenu(TMenuBar& menu, POINT screen) {
  m_menu = MenuLines().watch;
  m_popup.Track(menu, screen, m_editor);
}

std::wstring LiveEditHost::TipOf(TMenuBar& menu, int id) const {
  if (IsMenuGone()) return {};
  const TMenuItem* line = menu.FindItemById(id);
  qvx::LineSources sources = MenuLines();
  sources.hasIcons = true;  // unlike other pop-ups, this one has tips without the icon library
  const wchar_t* tip = line ? qvx::HelpOfLine(*line, sources) : nullptr;
  return tip ? tip : L"";
}

void LiveEditHost::ShowStatusText(const std::wstring& text) {
  if (CMDIFrameWnd* frame = acedGetAcadFrame()) frame->SetMessageText(text.c_str());
}

void LiveEditHost::RestoreStatusText() { acedRestoreStatusBar(); }

bool LiveEditHost::HasDialog(qvx::TextDialog dialog) const {
  return dialog == qvx::TextDialog::kWord ? WordDialog() != nullptr
                                          : SpecialCharDialog() != nullptr;
}

bool LiveEditHost::RunDialog(qvx::TextDialog dialog, std::wstring& choice) {
  CString result;
  bool isChosen = false;
  if (dialog == qvx::TextDialog::kWord) {
    if (const auto run = WordDialog()) isChosen = run(&m_editor, result, kLibraryKind);
  } else if (const auto run = SpecialCharDialog()) {
    isChosen = run(&m_editor, result);
  }
  choice = result.GetString();
  return isChosen;
}

void LiveEditHost::SelectOnly(AcDbObjectId object) {
  ads_name name;
  if (acdbGetAdsName(name, object) != Acad::eOk) return;
  TPickEntSet set(TPickEntSet::kOwned);
  set.Set(TEntitySet(name));
  acedSSSetFirst(set.Name(), set.Name());
}

std::wstring LiveEditHost::FullCommandName(const wchar_t* name) const {
  const TWCString full = QvxExport::GetFullCmdName(name);
  return static_cast<const wchar_t*>(full);
}

std::wstring LiveEditHost::TypeOf(AcDbObjectId object) {
  ads_name name;
  wchar_t type[TEntitySet::kDataUnits] = {};
  if (!object.isErased() && acdbGetAdsName(name, object) == Acad::eOk)
    TEntitySet(name).GetData(0, type);
  return type;
}

void LiveEditHost::Post(const std::wstring& text) { qvx::SendToHost(text.c_str()); }
