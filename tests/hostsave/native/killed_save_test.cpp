// Ends a process while it saves. Whatever the moment, the file is one of the two drawings.
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <thread>

#include "../database_lines.h"
#include "../drawing_folder.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/file_replace.h"
#include "devhost/core/host/host.h"

using namespace devhost;

namespace savetest {
namespace {

constexpr int kRounds = 60;
constexpr unsigned kSeed = 20240611;

void AddLines(AcDbDatabase& database, int count, double size) {
  auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  for (int i = 0; i < count; ++i)
    space->appendAcDbEntity(new AcDbLine({size, i * 0.1, 0}, {size, 1, 0}));
}

}  // namespace

class KilledSave : public DrawingFolder {
 protected:
  void SetUp() override {
    DrawingFolder::SetUp();
    TheHost();
    AddLines(one, 400, 1);
    AddLines(two, 3000, 2);
    path = folder / "plan.dxf";
    texts[0] = DrawingText(one);
    texts[1] = DrawingText(two);
  }
  // Saves both drawings in turn until it is ended. Reports on the pipe when the first is saved.
  // With texts made before, nearly all of the time is spent on the file.
  [[noreturn]] void SaveForever(int pipe, bool onlyFile) {
    for (int i = 0;; ++i) {
      std::wstring why;
      const bool saved = onlyFile ? ReplaceFileContents(path, texts[i % 2]) == FileProblem::None
                                  : WriteDrawing(path.wstring(), i % 2 ? two : one, &why);
      if (!saved) _exit(3);
      if (i == 0 && ::write(pipe, "s", 1) != 1) _exit(4);
    }
  }
  void RunAndKillAfter(std::chrono::microseconds wait, bool onlyFile) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(ends[1], onlyFile);
    char started = 0;
    ASSERT_EQ(::read(ends[0], &started, 1), 1);
    std::this_thread::sleep_for(wait);  // the moment is the subject of the test
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the saves failed: " << WEXITSTATUS(status);
    ::close(ends[0]);
    ::close(ends[1]);
  }
  // Runs a save in another process, which `steps` end.
  void RunSteps(const FileSteps& steps) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ReplaceFileContents(path, texts[1], steps);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
  }
  // 0 or 1: the drawing that the file holds wholly; -1: neither.
  int Content() {
    const std::string bytes = Bytes(path);
    return bytes == texts[0] ? 0 : bytes == texts[1] ? 1 : -1;
  }
  std::size_t ExpectOneDrawing(AcDbDatabase& expectedOne, AcDbDatabase& expectedTwo) {
    const int content = Content();
    EXPECT_GE(content, 0) << "neither of the drawings";
    AcDbDatabase read;
    const DrawingReport report = ReadDrawing(path.wstring(), read);
    EXPECT_TRUE(report.readAnything);
    EXPECT_EQ(report.message, L"");
    AcDbDatabase& expected = content == 0 ? expectedOne : expectedTwo;
    EXPECT_EQ(Difference(TextOf(expected).objects, TextOf(read).objects), "");
    return Names().size() - 1;
  }

  AcDbDatabase one, two;
  std::string texts[2];
  fs::path path;
};

TEST_F(KilledSave, AtAnyMomentTheFileIsOneOfTheDrawings) {
  std::mt19937 random(kSeed);
  std::size_t left = 0;
  int found[2] = {0, 0};
  for (int round = 0; round < kRounds && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    RunAndKillAfter(std::chrono::microseconds(random() % 60000), round % 2 == 1);
    const std::size_t files = ExpectOneDrawing(one, two);
    EXPECT_LE(files, 1u) << "each save removes what the one before left";
    left += files;
    if (const int content = Content(); content >= 0) ++found[content];
  }
  RecordProperty("killed_in_the_middle", static_cast<int>(left));
  std::printf("killed %d times: %d and %d of the drawings, %zu temporary files left\n", kRounds,
              found[0], found[1], left);
  EXPECT_GT(left, 0u) << "no save was ended in the middle";
  std::wstring why;
  EXPECT_TRUE(WriteDrawing(path.wstring(), one, &why));
  EXPECT_EQ(Names(), std::vector<std::wstring>{L"plan.dxf"})
      << "the next save removes what is left";
}

TEST_F(KilledSave, BeforeTheNewNameTheOldDrawingIsThere) {
  std::wstring why;
  ASSERT_TRUE(WriteDrawing(path.wstring(), one, &why));
  FileSteps half = SystemFileSteps(), flush = half, rename = half;
  half.write = [](int file, std::string_view bytes) {
    SystemFileSteps().write(file, bytes.substr(0, bytes.size() / 2));
    ::kill(::getpid(), SIGKILL);
    return std::error_code();
  };
  flush.flush = [](int) {
    ::kill(::getpid(), SIGKILL);
    return std::error_code();
  };
  rename.rename = [](const fs::path&, const fs::path&) {
    ::kill(::getpid(), SIGKILL);
    return std::error_code();
  };
  for (const FileSteps& steps : {half, flush, rename}) {
    RunSteps(steps);
    EXPECT_EQ(Content(), 0);
    EXPECT_EQ(Names().size(), 2u) << "one temporary file: the one before was removed";
  }
}

TEST_F(KilledSave, AfterTheNewNameTheNewDrawingIsThere) {
  std::wstring why;
  ASSERT_TRUE(WriteDrawing(path.wstring(), one, &why));
  FileSteps steps = SystemFileSteps();
  steps.rename = [](const fs::path& from, const fs::path& to) {
    const std::error_code error = SystemFileSteps().rename(from, to);
    ::kill(::getpid(), SIGKILL);
    return error;
  };
  RunSteps(steps);
  EXPECT_EQ(Content(), 1);
  EXPECT_EQ(Names().size(), 1u);
}

TEST_F(KilledSave, ATemporaryFileInUseByAnotherProcessIsNotRemoved) {
  FileSteps steps = SystemFileSteps();
  steps.rename = [](const fs::path& from, const fs::path& to) {
    const pid_t other = ::fork();
    if (other == 0)
      _exit(ReplaceFileContents(to, "other") == FileProblem::None && fs::exists(from) ? 0 : 1);
    int status = 0;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    return SystemFileSteps().rename(from, to);
  };
  EXPECT_EQ(ReplaceFileContents(path, "ours", steps), FileProblem::None);
  EXPECT_EQ(Bytes(path), "ours");
}

// A limit of the process instead of a full disk: the system refuses the rest of the bytes.
TEST_F(KilledSave, OfTheSystemARefusedWriteIsReportedAndTheOldDrawingIsThere) {
  std::wstring why;
  ASSERT_TRUE(WriteDrawing(path.wstring(), one, &why));
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = ::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{texts[1].size() / 2, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  acdbSetDbmod(&two, 1);
  const bool saved = WriteDrawing(path.wstring(), two, &why);
  ::setrlimit(RLIMIT_FSIZE, &before);
  ::signal(SIGXFSZ, handler);
  EXPECT_FALSE(saved);
  EXPECT_EQ(why, path.wstring() + L": 磁盘已满，图形未保存");
  EXPECT_EQ(two.body().modified, 1);
  EXPECT_EQ(Content(), 0);
  EXPECT_EQ(Names().size(), 1u);
}

// The file system of the kernel refuses new files to every user; rights do not bind the root user.
TEST_F(KilledSave, OfTheSystemAFolderWithoutRightsIsReported) {
  const fs::path closed = "/sys/kernel/x.dxf";
  if (!fs::exists(closed.parent_path())) GTEST_SKIP() << "no such folder here";
  std::wstring why;
  EXPECT_FALSE(WriteDrawing(closed.wstring(), one, &why));
  EXPECT_EQ(why, closed.wstring() + L": 没有写入权限，图形未保存");
}

TEST_F(KilledSave, OfTheSystemADeviceIsNotReplaced) {
  std::wstring why;
  EXPECT_FALSE(WriteDrawing(L"/dev/full", one, &why));
  EXPECT_EQ(why, L"/dev/full: 文件名无效，图形未保存");
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(KilledSave, RightsAndLinksOfTheOldFileArePreserved) {
  std::wstring why;
  ASSERT_TRUE(WriteDrawing(path.wstring(), one, &why));
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(path, folder / "link.dxf");
  ASSERT_TRUE(WriteDrawing((folder / "link.dxf").wstring(), two, &why));
  EXPECT_EQ(Content(), 1);
  EXPECT_TRUE(fs::is_symlink(folder / "link.dxf"));
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace savetest
