// --codepage: sources and texts without marker in pages other than the default.
#include "menu/menu_model.h"
#include "tests/qmn/qmn_testing.h"
#include "tools/qmn/code_page.h"
#include "tools/qmn/model_io.h"

namespace {

class QmnCodePage : public QmnTest {};

std::string Source(const std::string& label) {
  return "MENU_TITLE = \"T\"\n\n***B\n[" + label + "]x;\n\n***SWITCH\n\n***RESOURCE\n";
}

struct PageCase {
  const char* page;
  const char* bytes;
  const char* utf8;
};
constexpr PageCase kCases[] = {{"936", "\xC7\xBD", "墙"},
                               {"950", "\xC0\xF0", "牆"},
                               {"932", "\x95\xC7", "壁"},
                               {"949", "\xBA\xAE", "벽"},
                               {"1250", "\xB9", "ą"},
                               {"1251", "\xD1\xF2\xE5\xED\xE0", "Стена"},
                               {"1252",
                                "Stra\xDF"
                                "e",
                                "Straße"},
                               {"1253", "\xC4", "Δ"},
                               {"1254", "\xFD", "ı"},
                               {"1255", "\xF9", "ש"},
                               {"1256", "\xCC", "ج"},
                               {"1257", "\xE0", "ą"},
                               {"1258", "\xD0", "Đ"},
                               {"874", "\xA1", "ก"},
                               {"65001", "\xE5\xA2\x99", "墙"}};

// Some texts end in a byte that is a lead byte in the default page; nothing may be lost.
TEST_F(QmnCodePage, SourcesAreReadInTheNamedPage) {
  for (const PageCase& one : kCases) {
    const std::string compiled =
        Qmn({"compile", "-", "--codepage", one.page}, Source(one.bytes)).out;
    const QmnRun dump = Qmn({"dump", "-", "--tree"}, compiled);
    EXPECT_NE(dump.out.find(std::string("\"") + one.utf8 + "\""), std::string::npos)
        << one.page << dump.out;
    EXPECT_EQ(Qmn({"dump", "-", "--tree", "--codepage", one.page}, Source(one.bytes)).out,
              dump.out);
  }
}

TEST_F(QmnCodePage, DecompileAndFmtKeepThePage) {
  for (const PageCase& one : kCases) {
    const std::string compiled =
        Qmn({"compile", "-", "--codepage", one.page}, Source(one.bytes)).out;
    const QmnRun run = Qmn({"decompile", "-", "--codepage", one.page}, compiled);
    EXPECT_EQ(run.code, 0) << one.page << run.err;
    EXPECT_NE(run.out.find(std::string("[") + one.bytes + "]x;"), std::string::npos) << one.page;
    EXPECT_EQ(Qmn({"fmt", "-", "--codepage", one.page}, "\n" + Source(one.bytes)).out,
              Source(one.bytes));
  }
}

TEST_F(QmnCodePage, DecompileReportsACharacterThatIsNotInThePage) {
  const std::string compiled = Qmn({"compile", "-"}, Source("\xC7\xBD")).out;
  EXPECT_EQ(Qmn({"decompile", "-", "--codepage", "1252"}, compiled).err,
            "-: error: block B, line 1: text: U+5899 is not in code page 1252\n");
}

// The good file with one text in the old form, and its bytes after loading it again.
TEST_F(QmnCodePage, TextsWithoutMarkerAreReadInThePageToo) {
  const std::string wide = Qmn({"compile", "-"}, Source("a")).out;
  const std::string label(
      "\xFF\xFE\xFF\x01"
      "a\0",
      6);
  const size_t at = wide.find(label);
  ASSERT_NE(at, std::string::npos);
  for (const PageCase& one : kCases) {
    std::string old = wide;
    const std::string text(one.bytes);
    old.replace(at, label.size(), std::string(1, static_cast<char>(text.size())) + text);
    const QmnRun load = Qmn({"load", "-", "-o", "-", "--codepage", one.page}, old);
    EXPECT_EQ(load.code, 0) << load.err;
    EXPECT_EQ(load.out, Qmn({"compile", "-", "--codepage", one.page}, Source(text)).out)
        << one.page;
    EXPECT_NE(Qmn({"dump", "-", "--bytes", "--codepage", one.page}, old)
                  .out.find(std::string("label = \"") + one.utf8 + "\" in the code page"),
              std::string::npos)
        << one.page;
  }
}

// The fields before the text in the file: values of each kind, and a sub-menu whose flag may be any
// number but 0.
TEST_F(QmnCodePage, TextsWithoutMarkerAreFoundAfterEveryKindOfField) {
  TMenuSystem system;
  auto* bar = new TMenuBar;
  system.Append(bar);
  bar->m_objectMask.AppendLong(90, 7);
  bar->m_objectMask.AppendShort(62, 7);
  bar->m_objectMask.AppendReal(40, 7);
  bar->m_objectMask.AppendString(8, L"L");
  auto* item = new TMenuItem(L"", L"m");
  bar->Append(item);
  item->m_pSubMenu = new TMenuBar;
  item->m_pSubMenu->Append(new TMenuItem(L"", L""));
  item->m_pSubMenu->At(0)->m_strLabel = L"z";
  const std::string flag("m\0\1\0\0\0", 6), label("\xFF\xFE\xFF\1z\0", 6);
  std::string bytes = SaveBytes(system), old = bytes;
  ASSERT_NE(old.find(flag), std::string::npos);
  ASSERT_NE(old.find(label), std::string::npos);
  old[old.find(flag) + 2] = 2;
  old.replace(old.find(label), label.size(), "\1\xDF");
  bytes[bytes.find(label) + 4] = '\xDF';
  EXPECT_EQ(Qmn({"load", "-", "-o", "-", "--codepage", "1252"}, old).out, bytes);
}

TEST_F(QmnCodePage, DamageIsReportedTheSameInEveryPage) {
  const std::string bytes = GoodBytes();
  for (size_t size = 0; size < bytes.size(); size += 3) {
    const std::string prefix = bytes.substr(0, size);
    EXPECT_EQ(Qmn({"load", "-", "--codepage", "1252"}, prefix).err, Qmn({"load", "-"}, prefix).err);
    EXPECT_EQ(WithWideTexts(prefix, 1252), prefix);
  }
  EXPECT_EQ(WithWideTexts(bytes, 1252), bytes);
}

TEST_F(QmnCodePage, AnUnknownPageIsAUsageError) {
  for (const char* page : {"1", "1200", "37", "99999", "x", "-1"}) {
    const QmnRun run = Qmn({"compile", "-", "--codepage", page}, kGoodSource);
    EXPECT_EQ(run.code, 2) << page;
    EXPECT_EQ(run.err, std::string("qmn compile: error: --codepage: there is no code page ") +
                           page + " here\n'qmn help compile' explains its options\n");
  }
}

}  // namespace
