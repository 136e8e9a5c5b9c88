#include "edited_drawing.h"

#include <memory>

#include "acdocman.h"
#include "dbapserv.h"
#include "dbsymtb.h"
#include "devhost/core/host/host.h"
#include "devhost/ui/messages/message_pump.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbentity.h"
#include "kernel/tentityset.h"
#include "kernel/tsubtext.h"
#include "rxmfcapi.h"

namespace bench {
namespace {

constexpr int kBoxId = 6000, kViewport = 2, kStartTimer = 20;

HWND View() { return acedGetAcadDwgView()->m_hWnd; }

std::unique_ptr<TSubText> TextOf(AcDbObjectId room) {
  const TAcDbObjectPtr<AcDbEntity> entity(room, AcDb::kForRead);
  const TDbEntity* owner = TDbEntity::cast(entity.Get());
  return std::unique_ptr<TSubText>(owner ? owner->GetSubText(0) : nullptr);
}

}  // namespace

bool LoadModules() {
  HostProcess& process = HostProcess::Get();
  process.Write(L"qvx.qmn", "MENU_TITLE = \"T\"\r\n***SCREEN\r\n[A]^C^CTWall;\r\n");
  process.CopyProductFile(L"plan.dxf");
  return acrxLoadModule(L"qvx_initstart.arx", true) && acrxLoadModule(L"qvx_design.arx", true);
}

void UnloadModules() {
  acrxUnloadModule(L"qvx_initstart.arx");
  auto& documents = devhost::TheHost().documents;
  while (documents.Current()) documents.Close(documents.Current());
  acrxUnloadModule(L"qvx_design.arx");
  HostProcess::Get().Remove(L"plan.dxf");
  HostProcess::Get().Remove(L"qvx.qmn");
}

void Pump() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
}

HWND Box() {
  const HWND box = ::GetDlgItem(View(), kBoxId);
  return box ? box : ::GetDlgItem(HostProcess::Get().Frame().m_hWnd, kBoxId);
}

bool OpenPlan() {
  if (!devhost::TheHost().documents.Open(HostProcess::Get().Folder() + L"\\plan.dxf")) return false;
  for (int i = 0; i < 2; ++i) HostProcess::Get().FireTimer(kStartTimer);
  Pump();
  return true;
}

void NewDrawing() {
  devhost::TheHost().documents.New();
  Pump();
}

AcDbBlockTableRecord* Space() {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  return AcDbBlockTableRecord::cast(database->currentSpaceId().object());
}

void ShowAround(double x, double y, double height) {
  devhost::TheHost().documents.Current()->view.ShowAt(x, y, height);
  ::InvalidateRect(View(), nullptr, FALSE);
  Pump();
}

AcDbObjectId FindRoom() {
  for (const AcDbObjectId& id : Space()->entities()) {
    const TAcDbObjectPtr<AcDbEntity> entity(id, AcDb::kForRead);
    if (entity && std::wstring(TEntitySet::TypeOf(*entity.Get())) == L"QVX_SPACE") return id;
  }
  return {};
}

std::wstring NameOf(AcDbObjectId room) { return TextOf(room)->GetText().GetString(); }

void Rename(AcDbObjectId room, const std::wstring& name) {
  AcApDocument* document = acDocManager->curDocument();
  acDocManager->lockDocument(document, AcAp::kWrite);
  TextOf(room)->Update(name.c_str());
  acDocManager->unlockDocument(document);
  Pump();
}

void DoubleClickOn(AcDbObjectId room) {
  AcGePoint3d lower, upper;
  TextOf(room)->GetExtent2d(lower, upper);
  const ads_point middle = {(lower.x + upper.x) / 2, (lower.y + upper.y) / 2, 0};
  CPoint pixel;
  acedCoordFromWorldToPixel(kViewport, middle, pixel);
  const LPARAM place = MAKELPARAM(pixel.x, pixel.y);
  ::ClientToScreen(View(), &pixel);
  ::SetCursorPos(pixel.x, pixel.y);
  // Not posted: the system would add the position that the pointer had before.
  MSG click{View(), WM_LBUTTONDBLCLK, MK_LBUTTON, place, ::GetTickCount(), pixel};
  devhost::ThePump().Process(&click);
}

void PressKey(WPARAM key) {
  ::PostMessageW(Box(), WM_KEYDOWN, key, 1);
  Pump();
}

void RunCommand(const std::wstring& text) {
  auto& host = devhost::TheHost();
  host.documents.sendStringToExecute(host.documents.Current(), text.c_str(), true, false, true);
  while (host.engine.RunWaiting()) {
  }
}

}  // namespace bench
