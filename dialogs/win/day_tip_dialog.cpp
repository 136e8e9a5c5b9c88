#include "dialogs/win/day_tip_dialog.h"

#include "dialogs/tip_pictures.h"
#include "ground/support_files.h"
#include "resources/resource_ids.h"

namespace {

class ModuleMessages : public qvx::TipMessages {
 public:
  CString Text(unsigned id) const override {
    CString text;
    text.LoadString(id);
    return text;
  }
  void ShowBox(unsigned id) const override { AfxMessageBox(id); }
};
const ModuleMessages kMessages;

// The path of the tip file, or null.
class TipPath {
 public:
  TipPath() : m_found(qvx::FindFile(L"qvxtips.txt", m_path)) {}
  const wchar_t* Get() const { return m_found ? static_cast<const wchar_t*>(m_path) : nullptr; }

 private:
  TWCString m_path;
  bool m_found;
};

int ScreenDotsPerInch() {
  const qvx::WindowDc screen(nullptr, ::GetDC(nullptr));
  return ::GetDeviceCaps(screen.Get(), LOGPIXELSX);
}

qvx::OwnedBitmap Stretched(const qvx::OwnedBitmap& bitmap, const CSize& size) {
  const qvx::WindowDc screen(nullptr, ::GetDC(nullptr));
  const qvx::OwnedMemoryDc from(::CreateCompatibleDC(screen.Get()));
  const qvx::OwnedMemoryDc to(::CreateCompatibleDC(screen.Get()));
  qvx::OwnedBitmap result(::CreateCompatibleBitmap(screen.Get(), size.cx, size.cy));
  BITMAP source{};
  ::GetObjectW(bitmap.Get(), sizeof source, &source);
  const qvx::SelectedObject selectedFrom(from.Get(), bitmap.Get());
  const qvx::SelectedObject selectedTo(to.Get(), result.Get());
  ::SetStretchBltMode(to.Get(), HALFTONE);
  ::SetBrushOrgEx(to.Get(), 0, 0, nullptr);
  ::StretchBlt(to.Get(), 0, 0, size.cx, size.cy, from.Get(), 0, 0, source.bmWidth, source.bmHeight,
               SRCCOPY);
  return result;
}

}  // namespace

BEGIN_MESSAGE_MAP(CDayTipDlg, GlwCAcUiDialog)
ON_BN_CLICKED(IDC_TIP_NEXT, OnNext)
ON_BN_CLICKED(IDC_TIP_PREVIOUS, OnPrevious)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CDayTipDlg::CDayTipDlg(CWnd* parent)
    : GuardedWindow(IDD_DAY_TIP, parent), TipOfTheDay(TipPath().Get(), kMessages) {}

void CDayTipDlg::DoDataExchange(CDataExchange* exchange) {
  GlwCAcUiDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_TIP_LEFT, m_picLeft);
  DDX_Control(exchange, IDC_TIP_TOP, m_picTop);
  DDX_Text(exchange, IDC_TIP_TEXT, m_strTip);
  DDX_Check(exchange, IDC_TIP_AT_START, m_bStartUp);
}

BOOL CDayTipDlg::OnInitDialog() {
  GlwCAcUiDialog::OnInitDialog();
  EnlargeText();
  if (!HasFile()) GetDlgItem(IDC_TIP_NEXT)->EnableWindow(FALSE);
  if (!CanGoBack()) GetDlgItem(IDC_TIP_PREVIOUS)->EnableWindow(FALSE);
  LoadPictures();
  return TRUE;
}

void CDayTipDlg::EnlargeText() {
  CWnd* text = GetDlgItem(IDC_TIP_TEXT);
  LOGFONT look{};
  CFont* font = text->GetFont();
  if (!font || !font->GetLogFont(&look)) return;
  look.lfHeight = static_cast<LONG>(look.lfHeight * 1.2);
  look.lfWidth = static_cast<LONG>(look.lfWidth * 1.2);
  m_font.Reset(::CreateFontIndirectW(&look));
  text->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_font.Get()), TRUE);
}

void CDayTipDlg::LoadPictures() {
  const int dots = ScreenDotsPerInch();
  ShowPicture(m_picLeft, qvx::kLeftPictureFamily, dots, m_left);
  ShowPicture(m_picTop, qvx::kTopPictureFamily, dots, m_top);
}

void CDayTipDlg::ShowPicture(CStatic& control, int family, int dotsPerInch,
                             qvx::OwnedBitmap& shown) {
  qvx::OwnedBitmap bitmap(::LoadBitmapW(
      AfxGetResourceHandle(), MAKEINTRESOURCEW(qvx::TipPictureNumber(family, dotsPerInch))));
  if (qvx::StretchesTipPicture(dotsPerInch)) {
    CRect room;
    control.GetClientRect(room);
    bitmap = Stretched(bitmap, room.Size());
  }
  control.SetBitmap(bitmap.Get());
  shown = std::move(bitmap);
}

void CDayTipDlg::OnNext() {
  UpdateData(TRUE);
  Next();
  CWnd* previous = GetDlgItem(IDC_TIP_PREVIOUS);
  if (!previous->IsWindowEnabled()) previous->EnableWindow(TRUE);
  UpdateData(FALSE);
}

// Deliberate: unlike OnNext it does not read the check box first, so a change that is not saved yet
// is undone on the screen.
void CDayTipDlg::OnPrevious() {
  if (!Previous()) return;
  if (!CanGoBack()) DisablePrevious();
  UpdateData(FALSE);
}

// A disabled button that keeps the focus takes the keyboard from the whole dialog.
void CDayTipDlg::DisablePrevious() {
  CWnd* previous = GetDlgItem(IDC_TIP_PREVIOUS);
  if (::GetFocus() == previous->m_hWnd)
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(IDC_TIP_NEXT)->m_hWnd), TRUE);
  previous->EnableWindow(FALSE);
}

// The close button: saves the check box. The system menu and Esc call OnCancel, which does not.
void CDayTipDlg::OnOK() {
  if (!UpdateData(TRUE)) return;
  KeepStartUp();
  EndDialog(IDOK);
}

HBRUSH CDayTipDlg::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
  if (control->GetDlgCtrlID() != IDC_TIP_TEXT) return GlwCAcUiDialog::OnCtlColor(dc, control, kind);
  dc->SetBkMode(TRANSPARENT);
  return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
}
