// Records the notifications about drawings as lines.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "acdocman.h"

namespace hosttest {

class ReactorLog : public AcApDocManagerReactor {
 public:
  std::vector<std::wstring> lines;
  bool removeItself = false;
  std::function<void(const std::wstring& line)> onLine;

  void documentCreateStarted(AcApDocument*) override { lines.push_back(L"create started"); }
  void documentCreated(AcApDocument* d) override { Note(L"created", d); }
  void documentToBeDestroyed(AcApDocument* d) override { Note(L"to be destroyed", d); }
  void documentDestroyed(const ACHAR* name) override {
    lines.push_back(std::wstring(L"destroyed ") + name);
  }
  void documentCreateCanceled(AcApDocument*) override { lines.push_back(L"create cancelled"); }
  void documentBecameCurrent(AcApDocument* d) override { Note(L"current", d); }
  void documentToBeActivated(AcApDocument* d) override { Note(L"to be activated", d); }
  void documentToBeDeactivated(AcApDocument* d) override { Note(L"to be deactivated", d); }
  void documentTitleUpdated(AcApDocument* d) override { Note(L"titled", d); }
  void documentActivationModified(bool enabled) override {
    lines.push_back(enabled ? L"activation on" : L"activation off");
  }
  void documentActivated(AcApDocument* d) override {
    Note(L"activated", d);
    if (removeItself) acDocManager->removeReactor(this);
  }

 private:
  void Note(const wchar_t* what, AcApDocument* d) {
    lines.push_back(std::wstring(what) + L" " + d->docTitle() + L" of " +
                    std::to_wstring(acDocManager->documentCount()));
    if (onLine) onLine(std::wstring(lines.back()));
  }
};

}  // namespace hosttest
