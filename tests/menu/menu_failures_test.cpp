// Makes every allocation and every file operation of compile, save and load fail in turn, each once
// alone and once with all that follow. After each failure: its message was shown, the old or the
// new compiled file is complete, no other file is left, nothing has leaked, and the next attempt
// succeeds.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "menu/menu_loading.h"
#include "tests/menu/memory_faults.h"
#include "tests/menu/menu_testing.h"
#ifndef _WIN32
#include "tests/menu/file_faults.h"
#endif

namespace {

const char kOldSource[] = "MENU_TITLE=\"old\"\n***O\n[o]\n***SWITCH***RESOURCE";

// Every construct once, also a text that is too long for pooled storage.
const char kNewSource[] =
    "MENU_TITLE = \"\xC6\xE6\xCE\xAC\"\n***SCREEN\n[->a]\nI [->b]^C^Cx;\n[<-<-{!=Is}{~=No}c]y "
    "\"a;b\";\n"
    "S [*SWITCH*]\n[--]\n[A label that is longer than most labels are]A_COMMAND that is longer;\n"
    "***W WALL = 0,\"QVX_WALL\",8,\"@WALL\"\n[d]\n***M K = "
    "62,3,40,1.5\n[e]\n***ToolBar\n[--]\n[f]\n"
    "***SWITCH\n**S GET=g SET=s\n0=I,\"l\"\n1=J,\"m\"\n***RESOURCE\nI=\"p\",\"q\"\nJ=\"r\",\"\"\n";

struct Shell : MenuUsers, MenuFiles, MenuPrinter, MenuBoxes {
  TMenuSystem* CurrentSystem() override { return &system; }
  void AttachScreenBar(TMenuSystem&) override {}
  void AttachToolBar(TMenuSystem& given) override {
    const int at = given.FindBarIndexNoCase(L"ToolBar");
    toolBar = at < 0 ? nullptr : given[at];
  }
  bool FindFile(const wchar_t*, wchar_t*) override { return false; }
  bool ReadMenuSetting(wchar_t*) override { return false; }
  int MenuType() override { return 0; }
  void TempFolder(wchar_t* out) override {
    memory_faults::Pause pause;
    const std::wstring folder = TempPath(L"");
    folder.copy(out, kPathUnits - 1);
    out[folder.size()] = 0;
  }
  void Print(const wchar_t* text) override {
    memory_faults::Pause pause;
    printed += Utf8(text);
  }
  void ShowMessage(const wchar_t* text) override {
    memory_faults::Pause pause;
    boxes.push_back(Utf8(text));
  }

  // Whether the block that the shell stores is in the system.
  bool HoldsALostToolBar() {
    return toolBar && std::find(system.begin(), system.end(), toolBar) == system.end();
  }

  TMenuSystem system;
  TMenuBar* toolBar = nullptr;
  std::string printed;
  std::vector<std::string> boxes;
};

struct Outcome {
  long number = 0;
  std::string thrown, printed, disk;
  std::string failed;  // which file operation
  std::vector<std::string> boxes;
  bool besideStays = false;
  bool toolBarIsLost = false;
  long lost = 0;  // blocks

  std::string Box() const { return boxes.empty() ? "" : boxes[0]; }
  bool IsSilent() const { return boxes.empty() && thrown.empty(); }
  // The user's messages without the line with the file's name.
  std::string Shown(const std::string& announced) const {
    const bool starts = printed.substr(0, announced.size()) == announced;
    return printed.substr(starts ? announced.size() : 0) + Box();
  }
  std::string Told() const { return thrown + "|" + Box() + "|" + printed + "|" + failed; }
};

enum class Job { kCompile, kSave, kLoad };

class MenuFailures : public testing::Test {
 public:
  MenuFailures() {
    Compiled before, after;
    ::Compile(kOldSource, before);
    ::Compile(kNewSource, after);
    EXPECT_EQ(after.result, 0) << after.messages.Text();
    m_old = SaveBytes(before.system);
    m_new = SaveBytes(after.system);
    WriteFile(m_source, kNewSource);
  }
  ~MenuFailures() override {
    for (const std::wstring& path : {m_source, m_target, m_target + L".new"}) DeleteFileAt(path);
  }

 protected:
  void Prepare(Job job, Shell& shell) {
    WriteFile(m_target, job == Job::kLoad ? m_new : m_old);
    DeleteFileAt(m_target + L".new");
    if (job == Job::kLoad) return;
    ASSERT_EQ(LoadBytes(shell.system, m_new), "");
    shell.AttachToolBar(shell.system);
  }

  void Do(Job job, Shell& shell) {
    if (job == Job::kSave) return shell.system.SaveCompiled(m_target.c_str(), shell);
    if (job == Job::kLoad) return shell.system.LoadCompiled(m_target.c_str(), shell);
    MenuLoading(shell, shell, shell, shell).CompileMenu(m_source.c_str());
  }

  // The name of the exception that left the engine.
  std::string Try(Job job, Shell& shell) {
    try {
      Do(job, shell);
      return "";
    } catch (CException* exception) {
      exception->Delete();
      return "CException";
    } catch (const std::bad_alloc&) {
      return "bad_alloc";
    } catch (const std::exception&) {
      return "exception";
    }
  }

  void Look(Shell& shell, Outcome& outcome) {
    outcome.printed = shell.printed;
    outcome.boxes = shell.boxes;
    outcome.disk = ReadFile(m_target);
    outcome.toolBarIsLost = shell.HoldsALostToolBar();
    outcome.besideStays = ReadFile(m_target + L".new") != "<missing>";
  }

  // What must hold after every failure.
  void ExpectNoHarm(Job job, Shell& shell, const Outcome& outcome) {
    SCOPED_TRACE("failure " + std::to_string(outcome.number) + " " + outcome.Told());
    EXPECT_TRUE(outcome.disk == m_new || (outcome.disk == m_old && job != Job::kLoad))
        << "half a file: " << outcome.disk.size() << " bytes";
    EXPECT_LE(outcome.boxes.size(), 1u);
    if (outcome.IsSilent() && outcome.printed.find("Could not") == std::string::npos) {
      EXPECT_TRUE(outcome.disk == m_new) << "a silence over an old file";
    }
    if (!outcome.boxes.empty() && job != Job::kLoad) {
      EXPECT_TRUE(outcome.disk == m_old) << "a message over a new file";
    }
    DumpTree(shell.system);
    shell.system.FindItemByCommand(L"none");
    EXPECT_FALSE(SaveBytes(shell.system).empty());
    shell.boxes.clear();
    EXPECT_EQ(Try(job, shell), "");
    EXPECT_TRUE(shell.boxes.empty());
    EXPECT_TRUE(ReadFile(m_target) == m_new);
    EXPECT_TRUE(SaveBytes(shell.system) == m_new);
  }

  // One run with the n-th allocation failing; false when there are fewer.
  bool FailAllocation(Job job, long n, memory_faults::Fails fails, Outcome& outcome) {
    outcome = {};
    outcome.number = n;
    {
      Shell shell;
      Prepare(job, shell);
      memory_faults::Begin(n, fails);
      outcome.thrown = Try(job, shell);
      memory_faults::Pause pause;
      Look(shell, outcome);
      ExpectNoHarm(job, shell, outcome);
    }
    memory_faults::End();
    outcome.lost = memory_faults::FreeLost();
    return memory_faults::HasFailed();
  }

  std::vector<Outcome> FailEachAllocation(Job job, memory_faults::Fails fails) {
    std::vector<Outcome> outcomes;
    Outcome outcome;
    FailAllocation(job, 0, fails, outcome);  // makes allocations that a process makes only once
    EXPECT_EQ(outcome.thrown + outcome.Box(), "");
    for (long n = 1; FailAllocation(job, n, fails, outcome); ++n) outcomes.push_back(outcome);
    return outcomes;
  }

  const std::wstring m_source = TempPath(L"failures.qmn");
  const std::wstring m_target = TempPath(L"failures.qmc");
  const std::string m_cannotMake = "无法创建文件" + Utf8(m_target.c_str());
  const std::string m_cannotRead = "无法读取文件" + Utf8(m_target.c_str());
  const std::string m_announced = "\n加载奇维菜单文件: " + Utf8(m_source.c_str());
  std::string m_old, m_new;
};

using Keeps = bool (*)(const Outcome&);
int CountOf(const std::vector<Outcome>& outcomes, Keeps keeps) {
  return static_cast<int>(std::count_if(outcomes.begin(), outcomes.end(), keeps));
}
bool LeftTheEngine(const Outcome& outcome) { return !outcome.thrown.empty(); }
bool LostToolBar(const Outcome& outcome) { return outcome.toolBarIsLost; }
bool LeftAFile(const Outcome& outcome) { return outcome.besideStays; }
bool LostMemory(const Outcome& outcome) { return outcome.lost != 0; }

constexpr auto kOnce = memory_faults::Fails::kOnce;
constexpr auto kFromThenOn = memory_faults::Fails::kFromThenOn;

TEST_F(MenuFailures, ALoadWithoutMemoryShowsAMessage) {
  for (auto fails : {kOnce, kFromThenOn}) {
    const auto outcomes = FailEachAllocation(Job::kLoad, fails);
    EXPECT_GT(outcomes.size(), 5u);
    EXPECT_EQ(CountOf(outcomes, LostMemory), 0);
    EXPECT_EQ(CountOf(outcomes, LeftTheEngine), 0);
    for (const Outcome& outcome : outcomes)
      EXPECT_TRUE(outcome.Box() == "CMemoryException" || outcome.Box() == m_cannotRead)
          << outcome.number << " " << outcome.Told();
  }
}

// A save that succeeds shows no message, and its file is complete.
TEST_F(MenuFailures, ASaveWithoutMemoryShowsAMessageAndLeavesOneCompleteFile) {
  for (auto fails : {kOnce, kFromThenOn}) {
    const auto outcomes = FailEachAllocation(Job::kSave, fails);
    EXPECT_GT(outcomes.size(), 5u);
    EXPECT_EQ(CountOf(outcomes, LostMemory), 0);
    EXPECT_EQ(CountOf(outcomes, LeftTheEngine), 0);
    EXPECT_EQ(CountOf(outcomes, LeftAFile), 0);
    for (const Outcome& outcome : outcomes)
      EXPECT_TRUE(outcome.IsSilent() || outcome.Box() == "CMemoryException" ||
                  outcome.Box() == m_cannotMake)
          << outcome.number << " " << outcome.Told();
  }
}

TEST_F(MenuFailures, ACompileWithoutMemoryShowsAMessageAndLeaksNothing) {
  for (auto fails : {kOnce, kFromThenOn}) {
    const auto outcomes = FailEachAllocation(Job::kCompile, fails);
    EXPECT_GT(outcomes.size(), 20u);
    EXPECT_EQ(CountOf(outcomes, LostMemory), 0);
    EXPECT_EQ(CountOf(outcomes, LeftTheEngine), 0);
    EXPECT_EQ(CountOf(outcomes, LeftAFile), 0);
    EXPECT_EQ(CountOf(outcomes, LostToolBar), 0);
    for (const Outcome& outcome : outcomes)
      EXPECT_TRUE(outcome.IsSilent() || outcome.Box() == "CMemoryException" ||
                  outcome.Box() == m_cannotMake)
          << outcome.number << " " << outcome.Told();
  }
}

// Without memory the list is unchanged or lacks the entry that was being moved.
TEST_F(MenuFailures, ARecentCommandWithoutMemoryLeaksNothing) {
  for (const wchar_t* command : {L"new and longer than a word", L"c1"}) {
    bool failed = true;
    for (long n = 1; failed; ++n) {
      auto recent = std::make_unique<TMenuStack>();
      for (const wchar_t* old : {L"c0", L"c1", L"c2", L"c3"}) recent->AddRecent(old);
      memory_faults::Begin(n);
      try {
        recent->AddRecent(command);
      } catch (const std::bad_alloc&) {
      }
      failed = memory_faults::HasFailed();
      const int length = recent->Length();
      recent.reset();
      memory_faults::End();
      EXPECT_GE(length, 3) << n;
      EXPECT_LE(length, 5) << n;
      EXPECT_EQ(memory_faults::FreeLost(), 0) << n;
    }
  }
}

// A lone surrogate can't be converted to UTF-8.
TEST_F(MenuFailures, AnInvalidPathGivesAMessage) {
  const std::wstring path = TempPath(L"missing") + L"/\xD800.qmc";
  Shell shell;
  shell.system.SaveCompiled(path.c_str(), shell);
  shell.system.LoadCompiled(path.c_str(), shell);
  ASSERT_EQ(shell.boxes.size(), 2u);
  EXPECT_EQ(shell.boxes[0].find("无法创建文件"), 0u);
  EXPECT_EQ(shell.boxes[1].find("无法读取文件"), 0u);
}

#ifndef _WIN32
class MenuFileFailures : public MenuFailures {
 protected:
  bool FailOperation(Job job, long n, file_faults::Fails fails, Outcome& outcome, int error = EIO) {
    outcome = {};
    outcome.number = n;
    const int descriptors = file_faults::OpenDescriptors();
    Shell shell;
    Prepare(job, shell);
    file_faults::Begin(n, fails, error);
    outcome.thrown = Try(job, shell);
    outcome.failed = file_faults::End();
    Look(shell, outcome);
    EXPECT_EQ(outcome.thrown, "") << outcome.failed;
    if (outcome.failed.substr(0, 6) != "remove" && fails == file_faults::Fails::kOnce) {
      EXPECT_FALSE(outcome.besideStays) << n << " " << outcome.Told();
    }
    ExpectNoHarm(job, shell, outcome);
    EXPECT_EQ(file_faults::OpenDescriptors(), descriptors) << outcome.failed;
    return !outcome.failed.empty();
  }

  // The messages for each kind of operation.
  std::map<std::string, std::set<std::string>> FailEachOperation(Job job,
                                                                 file_faults::Fails fails) {
    std::map<std::string, std::set<std::string>> told;
    Outcome outcome;
    EXPECT_FALSE(FailOperation(job, 0, fails, outcome));
    for (long n = 1; FailOperation(job, n, fails, outcome); ++n)
      told[outcome.failed].insert(outcome.Shown(m_announced));
    return told;
  }

  static std::string Joined(const std::set<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += "[" + text + "]";
    return all;
  }

  const std::string m_noSource = "\nCould not open file " + Utf8(m_source.c_str());
  const std::string m_noEcho =
      "\nCould not create temperary file " + Utf8(TempPath(L"qmn.out").c_str());
};

constexpr auto kOneOperation = file_faults::Fails::kOnce;
constexpr auto kAllFromThenOn = file_faults::Fails::kFromThenOn;

// A save does not need to know whether the target exists and how long it is.
TEST_F(MenuFileFailures, EachOperationOfASaveHasItsMessage) {
  auto told = FailEachOperation(Job::kSave, kOneOperation);
  EXPECT_EQ(Joined(told["open failures.qmc"]), "[" + m_cannotMake + "]");
  EXPECT_EQ(Joined(told["write"]), "[CFileException]");
  EXPECT_EQ(Joined(told["close"]), "[][CFileException]");
  EXPECT_EQ(Joined(told["rename failures.qmc.new"]), "[" + m_cannotMake + "]");
  EXPECT_EQ(Joined(told["open failures.qmc.new"]), "[" + m_cannotMake + "]");
}

TEST_F(MenuFileFailures, WhereNoNewFileIsPermittedTheTargetItselfIsWritten) {
  Outcome outcome;
  for (long n = 1; outcome.failed != "open failures.qmc.new"; ++n)
    ASSERT_TRUE(FailOperation(Job::kSave, n, kOneOperation, outcome, EACCES)) << n;
  EXPECT_TRUE(outcome.IsSilent()) << outcome.Told();
  EXPECT_TRUE(outcome.disk == m_new);
}

TEST_F(MenuFileFailures, EachOperationOfALoadHasItsMessage) {
  auto told = FailEachOperation(Job::kLoad, kOneOperation);
  EXPECT_EQ(Joined(told["open failures.qmc"]), "[" + m_cannotRead + "]");
  EXPECT_EQ(Joined(told["read"]), "[CFileException]");
}

// Failed writes to the echo file are ignored; failures with the source, opening the echo file, and
// the compiled file are reported.
TEST_F(MenuFileFailures, EachOperationOfACompileHasItsMessage) {
  auto told = FailEachOperation(Job::kCompile, kOneOperation);
  EXPECT_EQ(Joined(told["open failures.qmn"]), "[" + m_noSource + "]");
  EXPECT_EQ(Joined(told["read"]), "[" + m_noSource + "]");
  EXPECT_EQ(Joined(told["open qmn.out"]), "[" + m_noEcho + "]");
  EXPECT_EQ(Joined(told["open failures.qmc"]), "[" + m_cannotMake + "]");
  EXPECT_EQ(Joined(told["write"]), "[][CFileException]");
  EXPECT_EQ(Joined(told["rename failures.qmc.new"]), "[" + m_cannotMake + "]");
}

TEST_F(MenuFileFailures, ADiskThatKeepsFailingLeavesTheOldFileAndOneMessage) {
  for (Job job : {Job::kSave, Job::kCompile})
    for (const auto& [operation, texts] : FailEachOperation(job, kAllFromThenOn))
      for (const std::string& text : texts)
        EXPECT_TRUE(text == m_cannotMake || text == "CFileException" || text == m_noSource ||
                    text == m_noEcho)
            << operation << ": " << text;
}
#endif

}  // namespace
