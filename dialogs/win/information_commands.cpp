#include "dialogs/win/information_commands.h"

#include "afxwin.h"

#include "dialogs/win/about_dialog.h"
#include "dialogs/win/day_tip_dialog.h"
#include "ground/win/module_resources.h"
#include "ground/win/open_by_shell.h"
#include "dialogs/product_texts.h"
#include "kernel/tadsprintf.h"
#include "rxmfcapi.h"

void ShowAbout() {
  const qvx::ModuleResources resources;
  CAboutVexraDlg(acedGetAcadFrame()).DoModal();
}

void ShowCurrentTips() {
  const qvx::ModuleResources resources;
  CDayTipDlg(acedGetAcadFrame()).DoModal();
}

void ShowTipsAtStart() {
  const qvx::ModuleResources resources;
  CDayTipDlg dialog(acedGetAcadFrame());
  if (dialog.ShowsAtStart()) dialog.DoModal();
}

void OpenHelp() {
  const qvx::HelpTarget target = qvx::FindHelpFile(qvx::FindFile);
  if (!target.found)
    adsout << L"\n未找到帮助文件Vexra.chm！";
  else if (!qvx::OpenByShell(adsw_acadMainWnd(), target.path))
    adsout << L"\n帮助文件不存在，或您没有安装HTML帮助系统(安装IE 4.0或更高的版本)。";
}

void ReportBug() {
  const CString address = qvx::LoadContactAddress(qvx::FindFile);
  if (qvx::OpenByShell(nullptr, L"mailto:" + address)) return;
  adsout << L"\n需要安装配置一个发送邮件软件（如Microsoft Outlook)!您可以将问题报告发送到:"
         << address.GetString();
}
