// What is left on the disk when a save fails. Failures that cannot be produced everywhere are
// injected as the error of one step; those of the system itself are marked "of the system".
#include "devhost/core/dxf/file_replace.h"

#include <set>

#include "adslib.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "drawing_folder.h"

using namespace devhost;

namespace savetest {
namespace {

// The system's text of other builds is limited to what their language settings offer.
#ifdef _WIN32
constexpr wchar_t kName[] = L"图.dxf";
#else
constexpr wchar_t kName[] = L"plan.dxf";
#endif

std::error_code Error(std::errc error) { return std::make_error_code(error); }

std::error_code WriteHalf(int file, std::string_view bytes) {
  EXPECT_FALSE(SystemFileSteps().write(file, bytes.substr(0, bytes.size() / 2)));
  return Error(std::errc::no_space_on_device);
}

}  // namespace

class FileReplace : public DrawingFolder {
 protected:
  void SetUp() override {
    DrawingFolder::SetUp();
    path = folder / kName;
    Write(path, "old");
  }
  void ExpectUnchanged() {
    EXPECT_EQ(Bytes(path), "old");
    EXPECT_EQ(Names(), std::vector<std::wstring>{path.filename().wstring()});
  }
  std::wstring Reason(const fs::path& target) {
    AcDbDatabase database;
    acdbSetDbmod(&database, 1);
    std::wstring why;
    EXPECT_FALSE(WriteDrawing(target.wstring(), database, &why));
    EXPECT_EQ(database.body().modified, 1) << "still marked as changed";
    EXPECT_EQ(why.substr(0, target.wstring().size() + 2), target.wstring() + L": ");
    return why.substr(target.wstring().size() + 2);
  }
  fs::path path;
};

TEST_F(FileReplace, TheNewContentsReplaceTheOldOnes) {
  EXPECT_EQ(ReplaceFileContents(path, "new"), FileProblem::None);
  EXPECT_EQ(Bytes(path), "new");
  EXPECT_EQ(Names().size(), 1u);
}

TEST_F(FileReplace, AMissingFileIsCreated) {
  EXPECT_EQ(ReplaceFileContents(folder / "b.dxf", "new"), FileProblem::None);
  EXPECT_EQ(Bytes(folder / "b.dxf"), "new");
}

TEST_F(FileReplace, AFullDiskWhileWritingLeavesTheOldFile) {
  FileSteps steps = SystemFileSteps();
  steps.write = WriteHalf;
  EXPECT_EQ(ReplaceFileContents(path, "new contents", steps), FileProblem::DiskFull);
  ExpectUnchanged();
}

TEST_F(FileReplace, AFullDiskFoundByTheFlushLeavesTheOldFile) {
  FileSteps steps = SystemFileSteps();
  steps.flush = [](int) { return Error(std::errc::no_space_on_device); };
  EXPECT_EQ(ReplaceFileContents(path, "new", steps), FileProblem::DiskFull);
  ExpectUnchanged();
}

TEST_F(FileReplace, ADiskErrorLeavesTheOldFile) {
  FileSteps steps = SystemFileSteps();
  steps.flush = [](int) { return Error(std::errc::io_error); };
  EXPECT_EQ(ReplaceFileContents(path, "new", steps), FileProblem::Other);
  ExpectUnchanged();
}

TEST_F(FileReplace, ABusyTargetIsReportedAsInUse) {
  FileSteps steps = SystemFileSteps();
  steps.rename = [](const fs::path&, const fs::path&) {
    return std::error_code(
#ifdef _WIN32
        32, std::system_category()  // sharing violation
#else
        EBUSY, std::generic_category()
#endif
    );
  };
  EXPECT_EQ(ReplaceFileContents(path, "new", steps), FileProblem::InUse);
  ExpectUnchanged();
}

// Windows refuses to rename over an open file as if rights were missing.
TEST_F(FileReplace, AWritableTargetThatCannotBeReplacedIsInUse) {
  FileSteps steps = SystemFileSteps();
  steps.rename = [](const fs::path&, const fs::path&) {
    return Error(std::errc::permission_denied);
  };
  EXPECT_EQ(ReplaceFileContents(path, "new", steps), FileProblem::InUse);
  ExpectUnchanged();
  EXPECT_EQ(ReplaceFileContents(folder / "b.dxf", "new", steps), FileProblem::NoRights);
  ExpectUnchanged();
}

TEST_F(FileReplace, OfTheSystemAMissingFolderIsReported) {
  EXPECT_EQ(Reason(folder / "none" / "x.dxf"), L"文件夹不存在，图形未保存");
  EXPECT_EQ(Reason(path / "x.dxf"), L"文件夹不存在，图形未保存") << "a file is no folder";
  ExpectUnchanged();
}

TEST_F(FileReplace, OfTheSystemAFolderWithTheNameIsReported) {
  fs::create_directories(folder / "taken.dxf" / "inside");
  EXPECT_EQ(Reason(folder / "taken.dxf"), L"这是一个文件夹，图形未保存");
  EXPECT_TRUE(fs::is_directory(folder / "taken.dxf" / "inside"));
}

TEST_F(FileReplace, OfTheSystemANameThatIsTooLongIsReported) {
  EXPECT_EQ(Reason(folder / std::wstring(300, L'n')), L"文件名无效，图形未保存");
  ExpectUnchanged();
}

TEST_F(FileReplace, EachProblemHasItsOwnText) {
  std::set<std::wstring> texts;
  const FileProblem all[] = {FileProblem::NoFolder, FileProblem::IsFolder, FileProblem::BadName,
                             FileProblem::NoRights, FileProblem::DiskFull, FileProblem::InUse,
                             FileProblem::Other};
  for (FileProblem problem : all) {
    EXPECT_STRNE(ProblemText(problem), L"");
    texts.insert(ProblemText(problem));
  }
  EXPECT_EQ(texts.size(), std::size(all));
}

TEST_F(FileReplace, FilesThatAnEndedSaveLeftAreRemovedByTheNext) {
  FileSteps steps = SystemFileSteps();
  static std::wstring temporary;
  steps.rename = [](const fs::path& from, const fs::path&) {
    temporary = from.filename().wstring();
    return Error(std::errc::io_error);
  };
  ReplaceFileContents(path, "new", steps);
  ASSERT_TRUE(temporary.starts_with(std::wstring(L"~") + kName + L"-")) << Utf8(temporary);
  EXPECT_TRUE(temporary.ends_with(L".tmp"));
  Write(folder / temporary, "half");
  Write(folder / (temporary.substr(0, temporary.size() - 5) + L"23.tmp"), "half");
  Write(folder / (temporary.substr(0, temporary.size() - 5) + L"x.tmp"), "another name");
  Write(folder / L"~plan2.dxf-1.tmp", "of another drawing");
  EXPECT_EQ(ReplaceFileContents(path, "new"), FileProblem::None);
  EXPECT_FALSE(fs::exists(folder / temporary));
  EXPECT_EQ(Names().size(), 3u) << "the drawing and the two foreign files";
}

TEST_F(FileReplace, LongNamesHaveTemporaryNamesOfTheirOwn) {
  const std::wstring start(100, L'n');
  const fs::path first = folder / (start + L"1.dxf"), second = folder / (start + L"2.dxf");
  static fs::path temporary;
  FileSteps steps = SystemFileSteps();
  steps.rename = [](const fs::path& from, const fs::path&) {
    temporary = from.filename();
    return Error(std::errc::io_error);
  };
  ReplaceFileContents(first, "new", steps);
  EXPECT_TRUE(IsTemporaryFor(first, temporary));
  EXPECT_FALSE(IsTemporaryFor(second, temporary));
  EXPECT_LT(temporary.wstring().size(), 80u);
}

}  // namespace savetest
