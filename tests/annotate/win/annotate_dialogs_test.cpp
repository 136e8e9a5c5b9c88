// The dialogs of the annotation module as the in-place text editor calls them: by name, modal.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <utility>

#include "afxwin.h"

#include "samples/annotate/resource_ids.h"
#include "tests/doubles/silent_ui.h"

namespace {

namespace fs = std::filesystem;

using Special = bool (*)(CWnd*, CString&);
using Words = bool (*)(CWnd*, CString&, int);

std::function<void(HWND)> g_whenOpen;

LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == MSGF_DIALOGBOX && g_whenOpen) {
    const HWND dialog = ::GetAncestor(reinterpret_cast<MSG*>(lParam)->hwnd, GA_ROOT);
    std::exchange(g_whenOpen, nullptr)(dialog);
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void Press(HWND dialog, int id) {
  ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

void Select(HWND dialog, int list, int index) {
  ::SendDlgItemMessageW(dialog, list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
  ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(list, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, list)));
}

int Rows(HWND dialog, int list) {
  return static_cast<int>(::SendDlgItemMessageW(dialog, list, LB_GETCOUNT, 0, 0));
}

std::wstring TextOf(HWND dialog, int id) {
  wchar_t text[64] = {};
  ::GetDlgItemTextW(dialog, id, text, 64);
  return text;
}

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class AnnotateDialogs : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_folder = fs::temp_directory_path() / "qvx_annotate_test";
    fs::create_directories(s_folder);
    devhost::HostOptions options;
    options.supportPath = {s_folder.wstring()};
    devhost::TheHost().Begin(options, &s_ui, nullptr);
  }
  static void TearDownTestSuite() {
    devhost::TheHost().End();
    fs::remove_all(s_folder);
  }
  void SetUp() override {
    m_module = ::LoadLibraryW(L"qvx_annotate.arx");
    ASSERT_NE(m_module, nullptr);
    m_hook = ::SetWindowsHookExW(WH_MSGFILTER, OnHook, nullptr, ::GetCurrentThreadId());
    std::ofstream(s_folder / "qvxwords.txt", std::ios::binary) << "[a]\r\none\r\n[b]\r\ntwo\r\n";
  }
  void TearDown() override {
    ::UnhookWindowsHookEx(m_hook);
    ::FreeLibrary(m_module);
    fs::remove(s_folder / "qvxwords.txt");
  }
  // Runs `act` on the open dialog; true if the function reports a choice.
  bool ChooseChar(std::function<void(HWND)> act) {
    g_whenOpen = std::move(act);
    return Exported<Special>("GetSpecialChar")(nullptr, m_text);
  }
  bool ChooseWord(std::function<void(HWND)> act) {
    g_whenOpen = std::move(act);
    return Exported<Words>("GetWordFromLib")(nullptr, m_text, 1);
  }

  CString m_text = L"before";
  inline static fs::path s_folder;
  inline static SilentUi s_ui;

 private:
  template <class F>
  F Exported(const char* name) {
    return reinterpret_cast<F>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
  }

  HMODULE m_module = nullptr;
  HHOOK m_hook = nullptr;
};

}  // namespace

TEST_F(AnnotateDialogs, TheSelectedCharacterIsShownLargeAndReturned) {
  std::wstring large;
  int groups = 0;
  EXPECT_TRUE(ChooseChar([&](HWND dialog) {
    groups = Rows(dialog, IDC_GROUPS);
    Select(dialog, IDC_ENTRIES, 1);
    large = TextOf(dialog, IDC_LARGE);
    Press(dialog, IDOK);
  }));
  EXPECT_EQ(groups, 9);
  EXPECT_EQ(large, L"×");
  EXPECT_EQ(m_text, L"×");
}

TEST_F(AnnotateDialogs, AnotherGroupShowsItsCharactersFromTheFirst) {
  EXPECT_TRUE(ChooseChar([](HWND dialog) {
    Select(dialog, IDC_GROUPS, 1);
    Press(dialog, IDOK);
  }));
  EXPECT_EQ(m_text, L"①");
}

TEST_F(AnnotateDialogs, CancelLeavesTheTextAsItWas) {
  EXPECT_FALSE(ChooseChar([](HWND dialog) { Press(dialog, IDCANCEL); }));
  EXPECT_FALSE(ChooseWord([](HWND dialog) { Press(dialog, IDCANCEL); }));
  EXPECT_EQ(m_text, L"before");
}

TEST_F(AnnotateDialogs, ADoubleClickOnAWordReturnsIt) {
  EXPECT_TRUE(ChooseWord([](HWND dialog) {
    Select(dialog, IDC_GROUPS, 1);
    ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_ENTRIES, LBN_DBLCLK),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, IDC_ENTRIES)));
  }));
  EXPECT_EQ(m_text, L"two");
}

TEST_F(AnnotateDialogs, AnAddedWordIsSelectedAndSavedAtOnce) {
  EXPECT_TRUE(ChooseWord([](HWND dialog) {
    ::SetDlgItemTextW(dialog, IDC_WORD, L"墙");
    Press(dialog, IDC_ADD);
    EXPECT_EQ(TextOf(dialog, IDC_WORD), L"");
    EXPECT_EQ(Rows(dialog, IDC_ENTRIES), 2);
    Press(dialog, IDOK);
  }));
  EXPECT_EQ(m_text, L"墙");
  EXPECT_EQ(Bytes(s_folder / "qvxwords.txt"),
            "\xEF\xBB\xBF[a]\r\none\r\n\xE5\xA2\x99\r\n[b]\r\ntwo\r\n");
  EXPECT_FALSE(fs::exists(s_folder / "qvxwords.txt.new"));
}

TEST_F(AnnotateDialogs, AFileInTheSystemsCodePageIsReadToo) {
  std::ofstream(s_folder / "qvxwords.txt", std::ios::binary) << "[a]\r\n\xC7\xBD\xCC\xE5\r\n";
  if (::GetACP() != 936) GTEST_SKIP() << "the system's code page is not 936";
  EXPECT_TRUE(ChooseWord([](HWND dialog) { Press(dialog, IDOK); }));
  EXPECT_EQ(m_text, L"墙体");
}

TEST_F(AnnotateDialogs, WithoutAFileNothingCanBeChosenAndCancelCloses) {
  fs::remove(s_folder / "qvxwords.txt");
  EXPECT_FALSE(ChooseWord([](HWND dialog) {
    EXPECT_EQ(Rows(dialog, IDC_GROUPS), 0);
    Press(dialog, IDOK);  // nothing is selected: it stays open
    EXPECT_TRUE(::IsWindow(dialog));
    Press(dialog, IDCANCEL);
  }));
  EXPECT_EQ(m_text, L"before");
}
