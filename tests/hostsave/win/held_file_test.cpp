// Saving over files that another program has open or that are write-protected, with the errors of
// the system itself.
#include <windows.h>

#include "../drawing_folder.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"

using namespace devhost;

namespace savetest {

class HeldFile : public DrawingFolder {
 protected:
  void SetUp() override {
    DrawingFolder::SetUp();
    path = folder / L"plan.dxf";
    Write(path, "old");
    acdbSetDbmod(&database, 1);
  }
  HANDLE Hold(DWORD sharing) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    return file;
  }
  std::wstring Reason() {
    std::wstring why;
    EXPECT_FALSE(WriteDrawing(path.wstring(), database, &why));
    EXPECT_EQ(database.body().modified, 1) << "still marked as changed";
    EXPECT_EQ(Names().size(), 1u) << "no temporary file";
    return why;
  }
  void ExpectSaved() {
    std::wstring why;
    EXPECT_TRUE(WriteDrawing(path.wstring(), database, &why));
    EXPECT_EQ(Bytes(path), DrawingText(database));
    EXPECT_EQ(database.body().modified, 0);
  }
  AcDbDatabase database;
  fs::path path;
};

TEST_F(HeldFile, AFileOpenWithoutSharingIsReportedAsInUse) {
  const HANDLE file = Hold(0);
  EXPECT_EQ(Reason(), path.wstring() + L": 文件正被其他程序使用，图形未保存");
  CloseHandle(file);
  EXPECT_EQ(Bytes(path), "old");
  ExpectSaved();
}

// It can be opened for writing, but not replaced.
TEST_F(HeldFile, AFileThatCanBeWrittenButNotReplacedIsReportedAsInUse) {
  const HANDLE file = Hold(FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_EQ(Reason(), path.wstring() + L": 文件正被其他程序使用，图形未保存");
  CloseHandle(file);
  EXPECT_EQ(Bytes(path), "old");
  ExpectSaved();
}

TEST_F(HeldFile, AWriteProtectedFileIsReported) {
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(Reason(), path.wstring() + L": 没有写入权限，图形未保存");
  EXPECT_EQ(Bytes(path), "old");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  ExpectSaved();
}

TEST_F(HeldFile, AnInvalidNameIsReported) {
  path = folder / L"a?b.dxf";
  std::wstring why;
  EXPECT_FALSE(WriteDrawing(path.wstring(), database, &why));
  EXPECT_EQ(why, path.wstring() + L": 文件名无效，图形未保存");
}

}  // namespace savetest
