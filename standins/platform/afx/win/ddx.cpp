// Dialog data exchange: values to controls and back, with the messages for invalid
// input in the user's language.
#include "afximpl.h"

#include <cerrno>
#include <climits>
#include <cwchar>

HWND CDataExchange::PrepareCtrl(int nIDC) {
  HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
  if (!control) AfxThrowNotSupportedException();  // resource and code disagree
  m_idLastControl = nIDC;
  m_bEditLastControl = FALSE;
  return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
  HWND control = PrepareCtrl(nIDC);
  m_bEditLastControl = TRUE;
  return control;
}

void CDataExchange::Fail() {
  HWND control = m_bSaveAndValidate && m_idLastControl
                     ? ::GetDlgItem(m_pDlgWnd->m_hWnd, m_idLastControl)
                     : nullptr;
  if (control) {
    ::SetFocus(control);
    if (m_bEditLastControl) ::SendMessage(control, EM_SETSEL, 0, -1);
  }
  AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
  CDataExchange exchange(this, bSaveAndValidate);
  AfxThreadState& state = AfxGetThreadState();
  HWND old = std::exchange(state.lockoutNotify, m_hWnd);  // suppress notifications
  BOOL done = FALSE;
  try {
    DoDataExchange(&exchange);
    done = TRUE;
  } catch (CUserException* e) {
    e->Delete();  // its message was shown
  } catch (CException* e) {
    AfxReportException(*e);
    e->Delete();
  }
  state.lockoutNotify = old;
  return done;
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
  if (rControl.m_hWnd) return;
  HWND control = pDX->PrepareCtrl(nIDC);
  if (!rControl.SubclassWindow(control)) AfxThrowNotSupportedException();
}

// ---- text and numbers

namespace {
CString TextOf(HWND control) {
  CString text;
  CWnd::FromHandle(control)->GetWindowText(text);
  return text;
}

void SetTextOf(HWND control, LPCTSTR text) {
  if (TextOf(control) != text) ::SetWindowText(control, text);  // keeps the caret
}

[[noreturn]] void Refuse(CDataExchange* pDX, LPCTSTR message) {
  AfxMessageBox(message, MB_OK | MB_ICONEXCLAMATION);
  pDX->Fail();
}

bool OnlyBlanks(const wchar_t* at) {
  while (*at == L' ' || *at == L'\t') ++at;
  return *at == 0;
}

// The whole text must be the number; blanks around it are ignored.
bool ParseInteger(LPCTSTR text, long long low, long long high, long long& value) {
  wchar_t* end = nullptr;
  errno = 0;
  value = std::wcstoll(text, &end, 10);
  return end != text && errno == 0 && OnlyBlanks(end) && value >= low && value <= high;
}

bool ParseReal(LPCTSTR text, double& value) {
  wchar_t* end = nullptr;
  value = std::wcstod(text, &end);
  return end != text && OnlyBlanks(end);
}

template <class Number>
void ExchangeInteger(CDataExchange* pDX, int nIDC, Number& value, long long low, long long high) {
  HWND control = pDX->PrepareEditCtrl(nIDC);
  if (!pDX->m_bSaveAndValidate) {
    wchar_t text[24];
    std::swprintf(text, 24, L"%lld", static_cast<long long>(value));
    return SetTextOf(control, text);
  }
  long long number = 0;
  if (!ParseInteger(TextOf(control), low, high, number))
    Refuse(pDX, low < 0 ? L"请输入一个整数。" : L"请输入一个正整数。");
  value = static_cast<Number>(number);
}

template <class Number>
void ExchangeReal(CDataExchange* pDX, int nIDC, Number& value, int digits) {
  HWND control = pDX->PrepareEditCtrl(nIDC);
  if (!pDX->m_bSaveAndValidate) {
    wchar_t text[40];
    std::swprintf(text, 40, L"%.*g", digits, static_cast<double>(value));
    return SetTextOf(control, text);
  }
  double number = 0;
  if (!ParseReal(TextOf(control), number)) {
    AfxMessageBox(AFX_IDP_PARSE_REAL);
    pDX->Fail();
  }
  value = static_cast<Number>(number);
}
}  // namespace

void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
  ExchangeInteger(pDX, nIDC, value, 0, UCHAR_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
  ExchangeInteger(pDX, nIDC, value, SHRT_MIN, SHRT_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
  ExchangeInteger(pDX, nIDC, value, INT_MIN, INT_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
  ExchangeInteger(pDX, nIDC, value, 0, UINT_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
  ExchangeInteger(pDX, nIDC, value, LONG_MIN, LONG_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
  ExchangeInteger(pDX, nIDC, value, 0, UINT_MAX);
}
void DDX_Text(CDataExchange* pDX, int nIDC, float& value) { ExchangeReal(pDX, nIDC, value, 6); }
void DDX_Text(CDataExchange* pDX, int nIDC, double& value) { ExchangeReal(pDX, nIDC, value, 15); }

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
  HWND control = pDX->PrepareEditCtrl(nIDC);
  if (pDX->m_bSaveAndValidate)
    value = TextOf(control);
  else
    SetTextOf(control, value);
}

// ---- buttons and lists

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (pDX->m_bSaveAndValidate) {
    value = int(::SendMessage(control, BM_GETCHECK, 0, 0));
  } else {
    if (value < 0 || value > 2) value = 0;
    ::SendMessage(control, BM_SETCHECK, WPARAM(value), 0);
  }
}

namespace {
bool IsRadio(HWND control) {
  return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}
}  // namespace

// The group runs from its first button to the next control with WS_GROUP; other controls among the
// buttons are not counted.
void DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (pDX->m_bSaveAndValidate) value = -1;
  int index = 0;
  do {
    if (IsRadio(control)) {
      if (!pDX->m_bSaveAndValidate)
        ::SendMessage(control, BM_SETCHECK, index == value, 0);
      else if (::SendMessage(control, BM_GETCHECK, 0, 0))
        value = index;
      ++index;
    }
    control = ::GetWindow(control, GW_HWNDNEXT);
  } while (control && !(::GetWindowLongPtr(control, GWL_STYLE) & WS_GROUP));
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (pDX->m_bSaveAndValidate)
    index = int(::SendMessage(control, CB_GETCURSEL, 0, 0));
  else
    ::SendMessage(control, CB_SETCURSEL, WPARAM(index), 0);
}

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (pDX->m_bSaveAndValidate)
    index = int(::SendMessage(control, LB_GETCURSEL, 0, 0));
  else
    ::SendMessage(control, LB_SETCURSEL, WPARAM(index), 0);
}

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (pDX->m_bSaveAndValidate) {
    value = TextOf(control);
    return;
  }
  LRESULT found = ::SendMessage(control, CB_SELECTSTRING, WPARAM(-1),
                                reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
  if (found == CB_ERR) ::SetWindowText(control, value);  // an editable box takes any text
}

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
  HWND control = pDX->PrepareCtrl(nIDC);
  if (!pDX->m_bSaveAndValidate) {
    ::SendMessage(control, LB_SELECTSTRING, WPARAM(-1),
                  reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    return;
  }
  value.Empty();
  LRESULT index = ::SendMessage(control, LB_GETCURSEL, 0, 0);
  if (index == LB_ERR) return;
  LRESULT length = ::SendMessage(control, LB_GETTEXTLEN, WPARAM(index), 0);
  ::SendMessage(control, LB_GETTEXT, WPARAM(index),
                reinterpret_cast<LPARAM>(value.GetBuffer(int(length) + 1)));
  value.ReleaseBuffer();
}

// ---- validation

namespace {
template <class Number>
void CheckRange(CDataExchange* pDX, Number value, Number low, Number high, LPCTSTR format) {
  if (!pDX->m_bSaveAndValidate || (value >= low && value <= high)) return;
  CString message;
  message.Format(format, low, high);
  Refuse(pDX, message);
}
}  // namespace

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
  CheckRange(pDX, value, minVal, maxVal, L"请输入一个在 %d 和 %d 之间的整数。");
}
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
  CheckRange(pDX, value, minVal, maxVal, L"请输入一个在 %u 和 %u 之间的整数。");
}
void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal) {
  CheckRange(pDX, value, minVal, maxVal, L"请输入一个在 %g 和 %g 之间的数。");
}

void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
  if (pDX->m_bSaveAndValidate && value.GetLength() > nChars) {
    CString message;
    message.Format(L"请输入不超过 %d 个字符。", nChars);
    Refuse(pDX, message);
  }
  if (!pDX->m_bSaveAndValidate && pDX->m_idLastControl && pDX->m_bEditLastControl)
    ::SendDlgItemMessage(pDX->m_pDlgWnd->m_hWnd, pDX->m_idLastControl, EM_SETLIMITTEXT,
                         WPARAM(nChars), 0);
}
