// The host core without windows, for tests that use its support path, variables and printing.
#pragma once

#include <string>

#include "devhost/core/host/host.h"

class SilentUi : public devhost::HostUi {
 public:
  std::wstring printed;

  void DocumentCreated(devhost::Document&) override {}
  void DocumentActivated(devhost::Document*) override {}
  void DocumentDestroyed(devhost::Document&) override {}
  void DocumentTitled(devhost::Document&) override {}
  void PictureChanged(devhost::Document&) override {}
  void SelectionChanged(devhost::Document&) override {}
  void Print(const std::wstring& text) override { printed += text; }
  void PromptChanged(const std::wstring&) override {}
  void VariableChanged(const std::wstring&) override {}
  void Alert(const std::wstring&) override {}
  devhost::Answer Ask(const std::wstring&, devhost::Choices) override {
    return devhost::Answer::Cancel;
  }
  bool PumpWhileWaiting() override { return false; }
  void EndProgram() override {}
};
