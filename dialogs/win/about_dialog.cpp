#include "dialogs/win/about_dialog.h"

#include "ground/win/module_resources.h"
#include "resources/resource_ids.h"

namespace {

// The file's first icon; null without one.
HICON FirstIcon(const wchar_t* file) {
  if (!*file) return nullptr;
  const HICON icon = ::ExtractIconW(qvx::ThisModule(), file, 0);
  const auto notAnIconFile = reinterpret_cast<HICON>(1);
  return icon == notAnIconFile ? nullptr : icon;
}

}  // namespace

CAboutVexraDlg::CAboutVexraDlg(CWnd* parent) : GuardedWindow(IDD_ABOUT, parent) {
  const qvx::AboutTexts texts = qvx::LoadAboutTexts(qvx::FindFile);
  m_strName = texts.name;
  m_strGroup = texts.group;
  m_strVersion = texts.version;
  m_strSubVer = texts.subVersion;
  m_strMail = texts.mail;
  m_hIcon.Reset(FirstIcon(texts.iconFile));
}

void CAboutVexraDlg::DoDataExchange(CDataExchange* exchange) {
  GlwCAcUiDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_ABOUT_ICON, m_icon);
  DDX_Control(exchange, IDC_ABOUT_WEB, m_linkWeb);
  DDX_Control(exchange, IDC_ABOUT_MAIL, m_linkMail);
  DDX_Text(exchange, IDC_ABOUT_NAME, m_strName);
  DDX_Text(exchange, IDC_ABOUT_GROUP, m_strGroup);
  DDX_Text(exchange, IDC_ABOUT_VERSION, m_strVersion);
  DDX_Text(exchange, IDC_ABOUT_SUBVERSION, m_strSubVer);
  DDX_Text(exchange, IDC_ABOUT_MAIL, m_strMail);
}

BOOL CAboutVexraDlg::OnInitDialog() {
  GlwCAcUiDialog::OnInitDialog();
  const qvx::OwnedIcon before(m_icon.SetIcon(m_hIcon.Get()));
  m_linkMail.SetURL(L"mailto:" + m_strMail);
  m_linkWeb.SetUnderAndOver(1);
  m_linkMail.SetUnderAndOver(1);
  return TRUE;
}
