// qmn load: intact files are written unchanged, damaged ones are reported.
#include "tests/qmn/qmn_testing.h"

namespace {

class QmnLoad : public QmnTest {};

TEST_F(QmnLoad, WritesTheSameBytesAgain) {
  const std::string in = Write(u8"a.qmc", GoodBytes());
  const QmnRun run = Qmn({"load", in, "-o", Name(u8"b.qmc")});
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(Read(u8"b.qmc"), GoodBytes());
  EXPECT_EQ(Qmn({"load", "-", "-o", "-"}, GoodBytes()).out, GoodBytes());
}

TEST_F(QmnLoad, WithoutAnOutputItReadsAndWritesNothing) {
  const QmnRun run = Qmn({"load", Write(u8"a.qmc", GoodBytes())});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(QmnLoad, EveryPrefixIsRefusedAndNothingIsWritten) {
  const std::string bytes = GoodBytes();
  for (size_t size = 0; size < bytes.size(); ++size) {
    const QmnRun run = Qmn({"load", "-", "-o", Name(u8"out.qmc")}, bytes.substr(0, size));
    EXPECT_EQ(run.code, 1) << size;
    EXPECT_EQ(run.err.substr(0, 10), "-: error: ") << size;
  }
  EXPECT_EQ(FileCount(), 0);
}

TEST_F(QmnLoad, AsHostNamesTheExceptionAndWritesWhatWasRead) {
  const std::string bytes = GoodBytes();
  const QmnRun run = Qmn({"load", "--as-host", "-", "-o", "-"}, bytes.substr(0, bytes.size() - 1));
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, "CArchiveException\n");
  // Only the icon index of the last line is lost, and it has no icon.
  EXPECT_EQ(run.out, bytes);
}

TEST_F(QmnLoad, AsHostReportsAForeignFileAndAMissingOne) {
  // A string other than the magic: length 1, one character.
  QmnRun run = Qmn({"load", "--as-host", "-"}, "\x01X");
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, "CFileException\n");
  run = Qmn({"load", "--as-host", Name(u8"none.qmc")});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, "无法读取文件" + Name(u8"none.qmc") + "\n");
}

TEST_F(QmnLoad, UnreadableAndUnwritableFilesExitWithThree) {
  EXPECT_EQ(Qmn({"load", Name(u8"none.qmc")}).code, 3);
  const std::string out = Name(u8"no/such.qmc");
  QmnRun run = Qmn({"load", "-", "-o", out}, GoodBytes());
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, out + ": error: can't be written: there is no folder " + Name(u8"no") + "\n");
  run = Qmn({"load", "--as-host", "-", "-o", out}, GoodBytes());
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, "无法创建文件" + out + "\n");
}

}  // namespace
