// The play driver's thread; see the header.
#include "devhost/play/play_driver.h"

#include <atomic>
#include <cstdio>
#include <thread>

#include "afx.h"
#include "devhost/core/base/journal.h"
#include "devhost/play/win/driver_world.h"
#include "devhost/play/win/message_probe.h"
#include "devhost/play/win/watchdog.h"

namespace devhost {
namespace {

constexpr ULONGLONG kMaxScript = 16 * 1024 * 1024;
constexpr std::chrono::milliseconds kExitTimeout{10000};

bool ReadWhole(const std::wstring& path, std::string* text, std::string* problem) {
  try {
    CFile file(path.c_str(), CFile::modeRead);
    if (file.GetLength() > kMaxScript) {
      *problem = "the script is larger than 16 MB";
      return false;
    }
    text->resize(static_cast<std::size_t>(file.GetLength()));
    text->resize(file.Read(text->data(), static_cast<UINT>(text->size())));
    return true;
  } catch (CFileException* exception) {
    *problem = "the script can't be opened, error " + std::to_string(exception->m_lOsError);
    exception->Delete();
    return false;
  }
}

void PrintError(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
  std::fflush(stderr);
}

}  // namespace

struct PlayDriver::Running {
  std::string file;
  std::vector<Step> steps;
  std::optional<double> longestWait;
  std::unique_ptr<DriverWorld> world;
  std::thread thread;
  std::atomic<bool> wantsRestart{false};

  void Play(UiPort& port) {
    world->BringToFront();
    PlayRunner runner(file, std::move(steps), TheJournal(), *world);
    int exitCode;
    {
      const PlayWatchdog watchdog(runner, world->Frame());
      MessageProbe probe([&](const auto& work) { return port.OnMainThread(work); },
                         [&] { return runner.StepNumber(); });
      exitCode = runner.Play();
      if (!ReportLongestWait(runner, probe.Stop()) && exitCode == 0) exitCode = 1;
    }
    wantsRestart = runner.EndedInRestart();
    world->CloseMenus();
    port.OnMainThread([&] { port.Quit(exitCode); });
    WaitForExit();
  }

  // Prints the longest wait. False if it exceeds the limit of the play.
  bool ReportLongestWait(const PlayRunner& runner, const LongestWait& longest) const {
    const bool good = !longestWait || longest.time <= std::chrono::duration<double>(*longestWait);
    PrintError(LongestWaitText(file, longest.time, runner.Line(longest.step)) +
               (good ? "" : ", which is longer than the play allows"));
    return good;
  }

  // The program stops the world when it ends. If it does not, it is terminated, so that its caller
  // does not wait forever.
  void WaitForExit() {
    world->Pause(kExitTimeout);
    if (world->IsStopped()) return;
    PrintError(file + ": the program was asked to end 10 s ago and has not; it is ended by force");
    TerminateProcess(GetCurrentProcess(), 1);
  }
};

PlayDriver::PlayDriver() = default;

PlayDriver::~PlayDriver() {
  if (!m_running || !m_running->thread.joinable()) return;
  m_running->world->Stop();
  m_running->thread.join();
}

bool PlayDriver::Load(const PlayOptions& options) {
  auto running = std::make_unique<Running>();
  running->file = Utf8(options.script);
  running->longestWait = options.longestWait;
  std::string text, problem;
  if (!ReadWhole(options.script, &text, &problem)) {
    PrintError(running->file + ": error: " + problem);
    return false;
  }
  ScriptError error;
  if (!ParsePlayScript(text, &running->steps, &error)) {
    PrintError(ScriptErrorText(running->file, error));
    return false;
  }
  running->steps = PartOfScript(std::move(running->steps), options.restarts);
  m_running = std::move(running);
  return true;
}

bool PlayDriver::WantsRestart() const { return m_running && m_running->wantsRestart; }

void PlayDriver::Start(UiPort& port) {
  if (!m_running || m_running->thread.joinable()) return;
  m_running->world = std::make_unique<DriverWorld>(port);
  m_running->thread = std::thread([running = m_running.get(), &port] { running->Play(port); });
}

}  // namespace devhost
