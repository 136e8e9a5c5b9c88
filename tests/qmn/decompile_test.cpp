// qmn decompile: every compiled source decompiles to a source of the same bytes; what no source can
// express is refused with its place.
#include <functional>
#include <random>

#include "menu/menu_model.h"
#include "tests/qmn/qmn_testing.h"
#include "tests/qmn/source_mutation.h"
#include "tools/qmn/decompile.h"
#include "tools/qmn/model_io.h"

namespace {

namespace fs = std::filesystem;

constexpr unsigned kPage = 936;

class QmnDecompile : public QmnTest {};

// A model with lines and other parts for a test to change.
struct Model {
  Model() {
    SilentMessages messages;
    CompileSource(
        "MENU_TITLE = \"T\"\n***WALL W = 0,\"X\",62,3\nA [->a]^C^Cx;\n[b]y;\n[<-c]z;\n"
        "S [*SWITCH*]\n***PLAIN\n[d]\n***SWITCH\n**S GET=G SET=F\n0=A,\"off\"\n***RESOURCE\n"
        "A = \"i\",\"h\"\n",
        messages, system);
  }
  TMenuItem& Line(int index) { return *system.At(0)->At(index); }
  TMenuItem& Plain() { return *system.At(1)->At(0); }
  TSwitchStateItem& State() { return *system.m_switches.At(0)->m_states.At(0); }
  TMenuSystem system;
};

// The tool's messages for a model, without the "-: error: " at the beginning.
std::string Refused(const std::function<void(Model&)>& change) {
  Model model;
  change(model);
  const QmnRun run = Qmn({"decompile", "-"}, SaveBytes(model.system));
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.out, "");
  return run.err.starts_with("-: error: ") ? run.err.substr(10) : run.err;
}

// The first line that contains `mark` in the source of a model; checks that the source compiles to
// the same bytes.
std::string Written(const std::function<void(Model&)>& change, const std::string& mark) {
  Model model;
  change(model);
  const std::string bytes = SaveBytes(model.system);
  const QmnRun run = Qmn({"decompile", "-"}, bytes);
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_EQ(Qmn({"compile", "-"}, run.out).out, bytes) << run.out;
  const size_t at = run.out.find(mark);
  if (at == std::string::npos) return "<no " + mark + " in>\n" + run.out;
  const size_t begin = run.out.rfind('\n', at) + 1;
  return run.out.substr(begin, run.out.find('\r', at) - begin);
}

std::string Command(const wchar_t* command) {
  return Written([&](Model& m) { m.Plain().m_strCommand = command; }, "[d]").substr(3);
}
std::string Label(const wchar_t* label) {
  return Written(
      [&](Model& m) {
        m.Plain().m_strLabel = label;
        m.Plain().m_strCommand = L"mark\n";
      },
      "mark");
}

TEST_F(QmnDecompile, ProductAndGoldenFilesRoundTripInCanonicalLayout) {
  int files = 0;
  for (const std::string& source : SeedSources()) {
    const QmnRun compiled = Qmn({"compile", "-"}, source);
    if (compiled.code != 0) continue;
    const QmnRun run = Qmn({"decompile", "-"}, compiled.out);
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Qmn({"compile", "-"}, run.out).out, compiled.out);
    EXPECT_EQ(Qmn({"fmt", "-"}, run.out).out, run.out);
    ++files;
  }
  EXPECT_GE(files, 8);
}

TEST_F(QmnDecompile, WritesACompleteOutputAndNothingAfterARefusal) {
  const std::string in = Write(u8"a.qmc", GoodBytes());
  EXPECT_EQ(Qmn({"decompile", in, "-o", Name(u8"a.qmn")}).code, 0);
  EXPECT_EQ(Qmn({"compile", Name(u8"a.qmn"), "-o", "-"}).out, GoodBytes());
  Model model;
  model.system.m_nReserved1 = 7;
  const std::string bad = Write(u8"b.qmc", SaveBytes(model.system));
  const QmnRun run = Qmn({"decompile", bad, "-o", Name(u8"b.qmn")});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.err, bad + ": error: file: reserved numbers: 7 and 0; a source makes them 0\n");
  EXPECT_EQ(FileCount(), 3);
}

TEST_F(QmnDecompile, AnExistingFileIsOverwrittenOnlyByForce) {
  const std::string out = Write(u8"a.qmn", "work of a week");
  const QmnRun run = Qmn({"decompile", "-", "-o", out}, GoodBytes());
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, out + ": error: is there already; --force overwrites it\n");
  EXPECT_EQ(Read(u8"a.qmn"), "work of a week");
  EXPECT_EQ(Qmn({"decompile", "-", "--force", "--output", out}, GoodBytes()).code, 0);
  EXPECT_EQ(Qmn({"compile", out, "-o", "-"}).out, GoodBytes());
}

TEST_F(QmnDecompile, UnreadableAndUnwritableFilesAreReported) {
  EXPECT_EQ(Qmn({"decompile", Name(u8"none.qmc")}).code, 3);
  const QmnRun run = Qmn({"decompile", "-", "-o", Name(u8"no/such.qmn")}, GoodBytes());
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.err, Name(u8"no/such.qmn") + ": error: can't be written: there is no folder " +
                         Name(u8"no") + "\n");
  EXPECT_EQ(Qmn({"decompile", "-"}, "x").code, 1);
}

TEST_F(QmnDecompile, OtherFormsOfTheSameFileAreRefusedWithARemedy) {
  std::string bytes = GoodBytes();
  bytes[4] = 'q';
  EXPECT_EQ(
      Qmn({"decompile", "-"}, bytes).err,
      "-: error: file: byte 4: not as the compiler writes it; qmn load IN -o OUT gives a file "
      "that is\n");
  EXPECT_EQ(Qmn({"decompile", "-"}, GoodBytes() + "more").code, 1);
}

TEST_F(QmnDecompile, CommandsAreWrittenInTheirUsualForm) {
  EXPECT_EQ(Command(L"\x1b\x1bTWall\n"), "^C^CTWall;");
  EXPECT_EQ(Command(L"x\ny\n"), "x;y;");
  EXPECT_EQ(Command(L"TLock \"a;b\"\n"), "TLock \"a;b\";");
  EXPECT_EQ(Command(L"\n"), ";");
  EXPECT_EQ(Command(L""), "");
}

TEST_F(QmnDecompile, QuotingIsToggledWhereACommandNeedsIt) {
  EXPECT_EQ(Command(L"a;b\nc\n"), "a^\";b^\";c;");
  EXPECT_EQ(Command(L"\"a\nb\n"), "\"a^\";b;");
  EXPECT_EQ(Command(L"a \t\n"), "a \t;");
  EXPECT_EQ(Command(L"x\n\n"), "x;;");
  EXPECT_EQ(Command(L"\"x;\n"), "\"x;;");
}

TEST_F(QmnDecompile, CommandsThatNoLineCanExpressAreRefused) {
  const auto refused = [](const wchar_t* command) {
    return Refused([&](Model& m) { m.Line(1).m_strCommand = command; });
  };
  EXPECT_EQ(refused(L"x"), "block WALL, line 4: command: \"x\"; a source gives \"x\\n\"\n");
  EXPECT_EQ(refused(L"a^b\n"),
            "block WALL, line 4: command: \"a^b\\n\"; a source gives \"a\\n\"\n");
}

TEST_F(QmnDecompile, LabelsThatLookLikeArrowsOrSwitchesGetALeadingBlank) {
  EXPECT_EQ(Label(L"->x"), "[ ->x]mark;");
  EXPECT_EQ(Label(L"<-"), "[ <-]mark;");
  EXPECT_EQ(Label(L"{x"), "[{x]mark;");
  EXPECT_EQ(Label(L" a"), "[ a]mark;");
  EXPECT_EQ(Written(
                [](Model& m) {
                  m.Plain().m_strLabel = L"*switch*";
                  m.Plain().m_strIconName = L"S";
                },
                "*switch*"),
            "S [ *switch*]");
}

TEST_F(QmnDecompile, ConditionsRoundTripAlsoWithAnEmptyFunction) {
  const auto set = [](unsigned flags, const wchar_t* check, const wchar_t* grey) {
    return [=](Model& m) {
      m.Plain().m_nFlags = flags;
      m.Plain().m_strCheckFn = check;
      m.Plain().m_strGrayFn = grey;
    };
  };
  EXPECT_EQ(Written(set(3, L"C", L"G"), "d]"), "[{!=C}{~=G}d]");
  EXPECT_EQ(Written(set(2, L"", L""), "d]"), "[{~=}d]");
  EXPECT_EQ(Refused(set(4, L"", L"")), "block PLAIN, line 1: flags: 4; a source gives 0\n");
  EXPECT_EQ(Refused(set(0, L"C", L"")),
            "block PLAIN, line 1: check function: \"C\"; a source gives \"\"\n");
  EXPECT_EQ(Refused(set(2, L"", L"a b")),
            "block PLAIN, line 1: grey function: \"a b\"; a source gives \"a\"\n");
}

TEST_F(QmnDecompile, LabelsThatThePassesWouldChangeAreRefused) {
  const auto refused = [](const wchar_t* label) {
    return Refused([&](Model& m) { m.Plain().m_strLabel = label; });
  };
  EXPECT_EQ(refused(L" abc"), "block PLAIN, line 1: label: \" abc\"; a source gives \"abc\"\n");
  EXPECT_EQ(refused(L"a]b"), "block PLAIN, line 1: label: \"a]b\"; a source gives \"a\"\n");
  EXPECT_EQ(refused(L"{x}y"), "block PLAIN, line 1: label: \"{x}y\"; a source gives \"y\"\n");
  EXPECT_EQ(refused(L"a\nb"),
            "block PLAIN, line 1: text: holds a zero or, in the label, a line end\n");
  EXPECT_EQ(refused(std::wstring(200, L'x').c_str()),
            "block PLAIN, line 1: text: 202 bytes; a line holds 199\n");
}

TEST_F(QmnDecompile, SubMenusCloseSeveralLevelsInOneLine) {
  const std::string source =
      "MENU_TITLE = \"T\"\r\n\r\n***B\r\n[->a]x;\r\n[->->b]\r\n[<-<-c]\r\n[->d]\r\n[<-]\r\n\r\n"
      "***SWITCH\r\n\r\n***RESOURCE\r\n";
  EXPECT_EQ(Qmn({"decompile", "-"}, Qmn({"compile", "-"}, source).out).out, source);
}

TEST_F(QmnDecompile, SubMenusThatNoArrowsCanExpressAreRefused) {
  EXPECT_EQ(Refused([](Model& m) { m.Plain().m_pSubMenu = new TMenuBar; }),
            "block PLAIN, line 1: sub-menu: without lines; a source has no such\n");
  EXPECT_EQ(Refused([](Model& m) { m.Line(0).m_pSubMenu->m_strName = L"N"; }),
            "block WALL, line 1: sub-menu: with a name, kind or mask, which a source has for "
            "blocks only\n");
  EXPECT_EQ(Refused([](Model& m) { m.Line(0).m_nFlags = 1; }),
            "block WALL, line 1: flags: 1; a source gives 0\n");
}

TEST_F(QmnDecompile, NamesAreRefusedWhenInvalidOrReserved) {
  EXPECT_EQ(Refused([](Model& m) { m.system.At(1)->m_strName = L"POP"; }),
            "block #2: name: \"POP\" is a reserved word\n");
  EXPECT_EQ(Refused([](Model& m) { m.system.At(1)->m_strName = L""; }),
            "block #2: name: \"\" is no name\n");
  EXPECT_EQ(Refused([](Model& m) { m.Line(1).m_strIconName = L"墙"; }),
            "block WALL, line 4: icon name: \"墙\" is no name\n");
  EXPECT_EQ(Refused([](Model& m) { m.system.m_switches.At(0)->m_strGetFn = L"a b"; }),
            "switch S: get: \"a b\" is no name\n");
  EXPECT_EQ(Refused([](Model& m) { m.State().m_strIconName = L"1"; }),
            "switch S, state 1: icon: \"1\" is no name\n");
}

TEST_F(QmnDecompile, IndexesThatNoSourceGivesAreRefused) {
  EXPECT_EQ(Refused([](Model& m) { m.Line(0).m_nIconIndex = -1; }),
            "block WALL, line 1: icon index: -1; a source gives 0\n");
  EXPECT_EQ(Refused([](Model& m) { m.State().m_nIconIndex = 4; }),
            "switch S, state 1: icon index: 4; a source gives 0\n");
  EXPECT_EQ(Refused([](Model& m) { m.Plain().m_pSwitch = m.system.m_switches.At(0); }),
            "block PLAIN, line 1: switch index: 0; a source gives -1\n");
}

TEST_F(QmnDecompile, StringsAreRefusedForTheirLengthAndForTerminators) {
  const auto title = [](const std::wstring& text) {
    return [=](Model& m) { m.system.m_strTitle = text.c_str(); };
  };
  EXPECT_EQ(
      Refused(title(L"a\"b")),
      "file: title: holds a quote, a line end, a zero or a backslash that can't stand so in a "
      "string\n");
  EXPECT_EQ(Refused(title(L"a\\")), Refused(title(L"a\"b")));
  EXPECT_EQ(Refused(title(std::wstring(198, L'x'))),
            "file: title: 198 bytes; a string holds 197\n");
  EXPECT_EQ(Refused(title(L"\xE01")), "file: title: U+0E01 is not in code page 936\n");
  EXPECT_EQ(Written(title(L"a\\\"b"), "TITLE"), "MENU_TITLE = \"a\\\"b\"");
  EXPECT_EQ(Written(title(std::wstring(197, L'x')), "TITLE").size(), 212u);
}

TEST_F(QmnDecompile, MasksOfMoreThanTwoGroupsAndTypesWithoutValuesAreRefused) {
  EXPECT_EQ(Refused([](Model& m) { m.system.At(0)->m_objectMask.AppendShort(70, 1); }),
            "block WALL: mask: 3 groups; a source keeps no more than two\n");
  const auto mask = [](const std::function<void(TRBList&)>& add) {
    return [=](Model& m) {
      m.system.At(0)->m_objectMask.SetHead(nullptr);
      add(m.system.At(0)->m_objectMask);
    };
  };
  EXPECT_EQ(Refused(mask([](TRBList&) {})),
            "block WALL: kind: stands in a source only in front of a mask\n");
  EXPECT_EQ(Refused(mask([](TRBList& l) { l.AppendLong(90, 1); })),
            "block WALL: mask group 90: a code of a kind that a source has no value for\n");
  EXPECT_EQ(Refused(mask([](TRBList& l) { l.AppendReal(40, -1.5); })),
            "block WALL: mask group 40: a source has no negative numbers and only numbers\n");
  EXPECT_EQ(Refused(mask([](TRBList& l) { l.AppendReal(40, -0.0); })),
            Refused(mask([](TRBList& l) { l.AppendReal(40, -1.5); })));
  EXPECT_EQ(Refused([](Model& m) { m.system.At(0)->m_strKind = L""; }),
            "block WALL: mask: stands in a source only behind a kind\n");
}

TEST_F(QmnDecompile, NumbersHaveTheShortestFormThatReadsBack) {
  const auto head = [](const std::function<void(TRBList&)>& add) {
    return Written(
        [=](Model& m) {
          m.system.At(0)->m_objectMask.SetHead(nullptr);
          add(m.system.At(0)->m_objectMask);
        },
        "***WALL W = ");
  };
  const auto real = [&](double value) {
    return head([=](TRBList& l) { l.AppendReal(40, value); }).substr(15);
  };
  EXPECT_EQ(real(0.1), "0.1");
  EXPECT_EQ(real(3), "3.0");
  EXPECT_EQ(real(1e300), "1.0e+300");
  EXPECT_EQ(real(5e-324), "5.0e-324");
  EXPECT_EQ(real(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(real(1e308 * 10), "1.0e999");
  EXPECT_EQ(head([](TRBList& l) { l.AppendShort(62, -1); }), "***WALL W = 62,65535");
}

TEST_F(QmnDecompile, EmptyListsAndNegativeStatesAreRefusedAllInOneRun) {
  EXPECT_EQ(Refused([](Model& m) {
              m.system.At(1)->Clear();
              m.State().m_nValue = -1;
              m.system.m_nReserved2 = 1;
            }),
            "file: reserved numbers: 0 and 1; a source makes them 0\n"
            "-: error: block PLAIN: lines: none; a block has at least one\n"
            "-: error: switch S, state 1: value: -1; a source has no negative numbers\n");
  EXPECT_EQ(Refused([](Model& m) { m.system.m_switches.At(0)->m_states.Clear(); }),
            "switch S: states: none; a switch has at least one\n");
  TMenuSystem empty;
  EXPECT_EQ(Qmn({"decompile", "-"}, SaveBytes(empty)).err,
            "-: error: file: blocks: none; a source has at least one\n");
}

TEST_F(QmnDecompile, ThousandsOfErrorsAreCounted) {
  const std::string said = Refused([](Model& m) {
    for (int i = 0; i < 2000; ++i) m.system.At(1)->Append(new TMenuItem(L"a]b", L""));
  });
  EXPECT_TRUE(said.ends_with("-: error: and 1980 more places that no source can say\n")) << said;
}

// A line of maximal length has no room for optional characters.
TEST_F(QmnDecompile, ALineOfFullLengthIsWrittenTighter) {
  const std::string filler(190, 'x');
  for (const std::string& line :
       {"[d]\x1b\x1b\x1b" + filler + "xxx", "[->]" + filler + "xxxxx", "[->" + filler + "xxxx]y",
        "[ ->\x1b" + filler + "xx]\x1b", "[a]" + filler + "xxxxx;", "[a]\x1b" + filler + "xxx;;"}) {
    ASSERT_EQ(line.size(), 199u);
    const std::string source = "MENU_TITLE = \"T\"\n***B\n" + line + "\n***SWITCH\n***RESOURCE\n";
    const std::string bytes = Qmn({"compile", "-"}, source).out;
    const QmnRun run = Qmn({"decompile", "-"}, bytes);
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Qmn({"compile", "-"}, run.out).out, bytes);
  }
}

TEST_F(QmnDecompile, EveryMutatedSourceThatCompilesRoundTrips) {
  const std::vector<std::string> seeds = SeedSources();
  std::mt19937 random(3);
  int back = 0;
  for (int i = 0; i < 6000; ++i) {
    const std::string source = MutatedSource(seeds, random);
    TMenuSystem system;
    SilentMessages messages;
    if (!CompileSource(source, messages, system).accepted || messages.Count()) continue;
    Refusals refusals;
    const std::string bytes = SaveBytes(system);
    const std::string written = Decompile(bytes, system, kPage, refusals);
    ASSERT_FALSE(refusals.Any()) << refusals.Shown()[0].place.English()
                                 << refusals.Shown()[0].text.English() << "\n"
                                 << source;
    TMenuSystem again;
    ASSERT_TRUE(CompileSource(written, messages, again).accepted);
    ASSERT_EQ(SaveBytes(again), bytes) << source;
    ++back;
  }
  EXPECT_GE(back, 1000);
}

// --- Models that no source gives

const wchar_t* const kTexts[] = {
    L"",      L"a",   L"->",   L"<-", L"->x",      L"<-<-y", L" ",   L" b ",         L"{",  L"{}",
    L"{!=F}", L"]",   L"^",    L"\"", L"\"q;",     L";",     L"x\n", L"\x1b\x1bT\n", L"\n", L"A",
    L"S",     L"SET", L"墙体", L"\\", L"*SWITCH*", L"a\tb",  L"\r",  L"\xE01"};

class RandomModel {
 public:
  explicit RandomModel(unsigned seed) : m_random(seed) {}

  void Fill(TMenuSystem& system) {
    Text(system.m_strTitle);
    for (unsigned n = m_random() % 3; n; --n) system.m_resources.Append(Resource());
    for (unsigned n = m_random() % 3; n; --n) system.m_switches.Append(Switch());
    for (unsigned n = 1 + m_random() % 3; n; --n) {
      auto bar = std::make_unique<TMenuBar>();
      bar->m_strName = L"B";
      if (Rarely()) Text(bar->m_strName);
      Mask(*bar);
      Lines(*bar, system, 0);
      system.Append(bar.release());
    }
  }

 private:
  bool Rarely() { return m_random() % 12 == 0; }
  void Text(TWCString& text) {
    text = L"";
    for (unsigned n = m_random() % 3; n; --n) text += kTexts[m_random() % std::size(kTexts)];
  }
  void Name(TWCString& text) {
    text = m_random() % 2 ? L"A" : L"S";
    if (Rarely()) Text(text);
  }
  TMenuResItem* Resource() {
    auto item = std::make_unique<TMenuResItem>(L"A", L"i", L"");
    Name(item->m_strName);
    if (Rarely()) Text(item->m_strImage);
    return item.release();
  }
  TMenuSwitchItem* Switch() {
    auto item = std::make_unique<TMenuSwitchItem>();
    Name(item->m_strName);
    item->m_strGetFn = item->m_strSetFn = L"F";
    auto state = std::make_unique<TSwitchStateItem>();
    Name(state->m_strIconName);
    state->m_nIconIndex = static_cast<int>(m_random() % 2) - 1;
    if (!Rarely()) item->m_states.Append(state.release());
    return item.release();
  }
  void Mask(TMenuBar& bar) {
    if (m_random() % 2) return;
    if (!Rarely()) bar.m_strKind = L"K";
    bar.m_objectMask.AppendShort(62, static_cast<short>(m_random()));
    if (m_random() % 2) bar.m_objectMask.AppendReal(40, m_random() / 7.0);
  }
  void Lines(TMenuBar& bar, const TMenuSystem& system, int depth) {
    for (unsigned n = (Rarely() ? 0 : 1) + m_random() % 3; n; --n) {
      auto item = std::make_unique<TMenuItem>();
      item->m_strLabel = L"abc";
      if (m_random() % 3 == 0) Text(item->m_strLabel);
      if (m_random() % 2) Text(item->m_strCommand);
      if (m_random() % 2 && !item->m_strCommand.IsEmpty()) item->m_strCommand += L"\n";
      if (m_random() % 4 == 0) Name(item->m_strIconName);
      if (!item->m_strIconName.IsEmpty()) item->m_nIconIndex = static_cast<int>(m_random() % 2) - 1;
      if (m_random() % 5 == 0 && depth < 4) {
        item->m_pSubMenu = new TMenuBar;
        Lines(*item->m_pSubMenu, system, depth + 1);
      } else if (Rarely() && system.m_switches.Length()) {
        item->m_strLabel = L"*SWITCH*";
        item->m_pSwitch = system.m_switches.At(0);
        item->m_strIconName = item->m_pSwitch->m_strName;
      } else if (m_random() % 5 == 0) {
        item->m_nFlags = m_random() % 4;
        if (item->m_nFlags & 1) item->m_strCheckFn = L"F";
      }
      bar.Append(item.release());
    }
  }

  std::mt19937 m_random;
};

TEST_F(QmnDecompile, RandomModelsRoundTripOrAreRefusedWithTheirPlace) {
  int back = 0, refused = 0;
  for (unsigned seed = 0; seed < 4000; ++seed) {
    TMenuSystem system;
    RandomModel(seed).Fill(system);
    const std::string bytes = SaveBytes(system);
    Refusals refusals;
    const std::string source = Decompile(bytes, system, kPage, refusals);
    ASSERT_EQ(source.empty(), refusals.Any());
    if (refusals.Any()) {
      ASSERT_NE(refusals.Shown()[0].text.English(), "no source gives these bytes") << seed;
      ++refused;
      continue;
    }
    TMenuSystem again;
    SilentMessages messages;
    ASSERT_TRUE(CompileSource(source, messages, again).accepted);
    ASSERT_EQ(SaveBytes(again), bytes) << seed;
    ++back;
  }
  EXPECT_GE(back, 200);
  EXPECT_GE(refused, 400);
}

}  // namespace
