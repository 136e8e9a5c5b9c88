#include "editor/win/grip_tip_wnd.h"

#include <memory>

#include "editor/grip_tip_layout.h"
#include "ground/win/menu_font.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"

namespace {

constexpr UINT kRepaintTimer = 1, kRepaintDelay = 200;
constexpr double kLastHostThatPaintsBefore = 16.1;
constexpr int kTextOffset = 4;

std::unique_ptr<CGripTipWnd> g_tip;

}  // namespace

BEGIN_MESSAGE_MAP(CGripTipWnd, CWnd)
ON_WM_PAINT()
ON_WM_TIMER()
END_MESSAGE_MAP()

BOOL CGripTipWnd::CreateTip(const wchar_t* text, CPoint at) {
  CWnd* frame = acedGetAcadFrame();
  if (!frame) return FALSE;
  LOGFONTW font{};
  if (qvx::MenuFontDescription(font)) m_font.CreateFontIndirect(&font);
  CRect client;
  frame->GetClientRect(client);
  const RECT place = qvx::PlaceGripTip(at, MeasureText(*frame, text), client.Size());
  if (!CWnd::Create(nullptr, text, WS_CHILD | WS_VISIBLE, place, frame, 0)) return FALSE;
  // Later hosts paint over it right after it opens.
  if (g_dHostVersion > kLastHostThatPaintsBefore) SetTimer(kRepaintTimer, kRepaintDelay, nullptr);
  return TRUE;
}

CSize CGripTipWnd::MeasureText(CWnd& frame, const wchar_t* text) {
  CClientDC dc(&frame);
  CFont* before = dc.SelectObject(&m_font);
  const CSize size =
      dc.GetTextExtent(text, static_cast<int>(std::char_traits<wchar_t>::length(text)));
  dc.SelectObject(before);
  return size;
}

void CGripTipWnd::OnTimer(UINT_PTR id) {
  CWnd::OnTimer(id);
  if (id != kRepaintTimer) return;
  KillTimer(kRepaintTimer);
  Invalidate();
}

void CGripTipWnd::OnPaint() {
  CPaintDC dc(this);
  CFont* before = dc.SelectObject(&m_font);
  CRect client;
  GetClientRect(client);
  CBrush ground(::GetSysColor(COLOR_INFOBK)), edge(RGB(0, 0, 0));
  dc.FillRect(client, &ground);
  dc.FrameRect(client, &edge);
  CString text;
  GetWindowText(text);
  dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
  dc.SetBkColor(::GetSysColor(COLOR_INFOBK));
  dc.TextOut(kTextOffset, kTextOffset, text, text.GetLength());
  dc.SelectObject(before);
}

void OpenGripTip(const wchar_t* text, CPoint at) {
  CloseGripTip();
  auto tip = std::make_unique<CGripTipWnd>();
  if (tip->CreateTip(text, at)) g_tip = std::move(tip);
}

void CloseGripTip() {
  if (!g_tip) return;
  const std::unique_ptr<CGripTipWnd> closing = std::move(g_tip);
  if (::IsWindow(closing->m_hWnd)) closing->DestroyWindow();
}
