// A host with a scripted user interface and modules that are functions. Before each test all
// drawings and modules are removed.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "aced.h"
#include "rxdlinkr.h"
#include "adslib.h"
#include "acdocman.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/host/host.h"

namespace hosttest {

class ScriptedUi : public devhost::HostUi {
 public:
  std::wstring printed, alerts;
  std::vector<std::wstring> log;             // notifications about documents and pictures
  std::deque<std::function<void()>> rounds;  // user actions, one for each round of the pump
  std::deque<devhost::Answer> answers;
  std::vector<std::wstring> questions;
  std::function<void()> onQuestion;  // what happens while a question is shown
  bool ended = false;
  int pictures = 0;  // requests to repaint a drawing
  // What the user does in the dialog for attributes; none: cancels it.
  std::function<bool(const std::wstring&, std::vector<devhost::AttributeValue>&)> editAttributes;

  void DocumentCreated(devhost::Document& d) override { log.push_back(L"created " + d.Name()); }
  void DocumentActivated(devhost::Document* d) override {
    log.push_back(d ? L"activated " + d->Name() : L"activated none");
  }
  void DocumentDestroyed(devhost::Document& d) override { log.push_back(L"destroyed " + d.Name()); }
  void DocumentTitled(devhost::Document& d) override { log.push_back(L"titled " + d.Name()); }
  void PictureChanged(devhost::Document&) override { ++pictures; }
  void SelectionChanged(devhost::Document&) override { log.push_back(L"selection"); }
  void Print(const std::wstring& text) override { printed += text; }
  void PromptChanged(const std::wstring&) override {}
  void VariableChanged(const std::wstring& name) override { log.push_back(L"var " + name); }
  void Alert(const std::wstring& text) override { alerts += text; }
  // Without an answer left, the question is cancelled.
  devhost::Answer Ask(const std::wstring& question, devhost::Choices) override {
    questions.push_back(question);
    if (onQuestion) onQuestion();
    if (answers.empty()) return devhost::Answer::Cancel;
    const devhost::Answer next = answers.front();
    answers.pop_front();
    return next;
  }
  bool EditAttributes(const std::wstring& block,
                      std::vector<devhost::AttributeValue>& values) override {
    return editAttributes && editAttributes(block, values);
  }
  // Without actions the program ends, so that a test cannot hang.
  bool PumpWhileWaiting() override {
    if (rounds.empty()) return false;
    const auto next = rounds.front();
    rounds.pop_front();
    next();
    return true;
  }
  void EndProgram() override { ended = true; }
};

class FunctionModules : public devhost::ModuleSource {
 public:
  std::map<std::wstring, devhost::ModuleEntry> entries;  // by file name
  int live = 0;

  std::unique_ptr<devhost::ModuleFile> Load(const std::wstring& path, std::wstring* why) override {
    const auto at = entries.find(std::filesystem::path(path).filename().wstring());
    if (at != entries.end()) return std::make_unique<File>(at->second, live);
    *why = L"不是模块";
    return nullptr;
  }

 private:
  class File : public devhost::ModuleFile {
   public:
    File(devhost::ModuleEntry entry, int& live) : m_entry(entry), m_live(live) { ++m_live; }
    ~File() override { --m_live; }
    devhost::ModuleEntry Entry() const override { return m_entry; }

   private:
    devhost::ModuleEntry m_entry;
    int& m_live;
  };
};

class HostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    static int number = 0;
    folder = std::filesystem::temp_directory_path() / ("qvx_hostcore_" + std::to_string(++number));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    devhost::HostOptions options;
    options.profile = L"测试";
    options.supportPath = {folder.wstring()};
    host.Begin(options, &ui, &modules);
    journalStart = devhost::TheJournal().Count();
  }
  void TearDown() override {
    host.End();
    std::filesystem::remove_all(folder);
  }

  std::wstring MakeFile(const std::string& name, const std::string& bytes) {
    std::ofstream(folder / name, std::ios::binary) << bytes;
    return (folder / name).wstring();
  }
  devhost::Document& NewDrawing() { return *host.documents.New(); }

  // Runs all waiting input, as at idle time.
  void RunAll() {
    while (host.engine.RunWaiting()) {
    }
  }
  void Send(const std::wstring& text) {
    host.documents.sendStringToExecute(host.documents.curDocument(), text.c_str(), true, false,
                                       true);
    RunAll();
  }
  void Then(std::function<void()> round) { ui.rounds.push_back(std::move(round)); }

  std::wstring Var(const std::wstring& name) {
    std::wstring value;
    return host.variables.Get(name, &value) == devhost::VarResult::Ok ? value : L"(none)";
  }
  // The entities of the current space, without erased ones.
  std::vector<AcDbEntity*> Entities() {
    std::vector<AcDbEntity*> out;
    const auto* space =
        AcDbBlockTableRecord::cast(host.documents.Current()->database()->currentSpaceId().object());
    for (AcDbObjectId id : space->entities())
      if (!id.isErased()) out.push_back(AcDbEntity::cast(id.object()));
    return out;
  }
  // Journal entries of this test as texts: event and values in order.
  std::vector<std::string> Journal(const std::string& event) {
    std::vector<std::string> out;
    for (const devhost::JournalEntry& entry : devhost::TheJournal().Since(journalStart)) {
      if (entry.event != event) continue;
      std::string text;
      for (const auto& field : entry.fields)
        text += (text.empty() ? "" : " ") +
                (field.is_string() ? field.get<std::string>() : field.dump());
      out.push_back(text);
    }
    return out;
  }

  devhost::Host& host = devhost::TheHost();
  ScriptedUi ui;
  FunctionModules modules;
  std::filesystem::path folder;
  int journalStart = 0;
};

}  // namespace hosttest
