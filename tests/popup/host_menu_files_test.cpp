// Selection of the add-on's menu files for each host release.
#include "popup/host_menu_files.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

// A host with files and groups; loading a file loads the group with the same index in the list.
struct FakeHost : HostMenus {
  bool FindFile(const wchar_t* name, TWCString& path) override {
    if (!files.count(name)) return false;
    path = (L"C:\\qvx\\" + std::wstring(name)).c_str();
    return true;
  }
  bool IsGroupLoaded(const wchar_t* group) override { return groups.count(group) != 0; }
  void Run(const wchar_t* command, const wchar_t* argument) override {
    const std::wstring name(command), what(argument);
    ran.push_back(name + L" " + what);
    if (name == L".MENUUNLOAD") groups.erase(what);
    if (what == L"C:\\qvx\\QVX.MNS") groups.insert(L"奇维快捷菜单");
    if (what == L"C:\\qvx\\quivera.cuix") groups.insert(L"quivera");
    if (what == L"C:\\qvx\\quivera09.cui") groups.insert(L"quivera09");
  }
  std::vector<std::wstring> Load(int product, double version) {
    ran.clear();
    LoadHostMenuFiles(*this, product, version, refreshed);
    return ran;
  }

  std::set<std::wstring> files = {L"QVX.MNS", L"quivera.cuix", L"quivera09.cui"};
  std::set<std::wstring> groups;
  std::vector<std::wstring> ran;
  bool refreshed = false;
};

using Commands = std::vector<std::wstring>;
const std::wstring kLoadShortcuts = L".MENULOAD C:\\qvx\\QVX.MNS";

TEST(HostMenuFiles, BelowSeventeenTwoOnlyTheShortcutMenuIsLoaded) {
  EXPECT_EQ(FakeHost().Load(2, 17.1), Commands{kLoadShortcuts});
  EXPECT_EQ(FakeHost().Load(2, 16.1), Commands{kLoadShortcuts});
}

TEST(HostMenuFiles, SeventeenTwoHasAFileOfItsOwnAndLaterHostsAnother) {
  EXPECT_EQ(FakeHost().Load(1, 17.2), Commands{L".MENULOAD C:\\qvx\\quivera09.cui"});
  EXPECT_EQ(FakeHost().Load(1, 18.0), Commands{L".MENULOAD C:\\qvx\\quivera.cuix"});
  EXPECT_EQ(FakeHost().Load(17, 24.0),
            (Commands{kLoadShortcuts, L".MENULOAD C:\\qvx\\quivera.cuix"}));
}

TEST(HostMenuFiles, TheShortcutMenuIsForSomeProductsOnly) {
  std::set<int> with;
  for (int product = -1; product < 40; ++product)
    if (!FakeHost().Load(product, 16.0).empty()) with.insert(product);
  EXPECT_EQ(with, (std::set<int>{2, 4, 5, 7, 9, 11, 12, 17}));
}

TEST(HostMenuFiles, AGroupOfAnEarlierRunIsRefreshedOnce) {
  FakeHost host;
  host.groups = {L"奇维快捷菜单", L"quivera"};
  EXPECT_EQ(host.Load(2, 24.0), (Commands{L".MENUUNLOAD 奇维快捷菜单", kLoadShortcuts}));
  EXPECT_EQ(host.Load(2, 24.0), Commands{});
}

TEST(HostMenuFiles, FurtherCallsInTheSameRunChangeNothing) {
  FakeHost host;
  host.Load(2, 24.0);
  EXPECT_EQ(host.groups, (std::set<std::wstring>{L"quivera", L"奇维快捷菜单"}));
  for (int call = 0; call < 2; ++call) EXPECT_EQ(host.Load(2, 24.0), Commands{}) << call;
}

TEST(HostMenuFiles, WithoutFilesNothingIsRun) {
  FakeHost host;
  host.files.clear();
  EXPECT_EQ(host.Load(2, 17.2), Commands{});
  EXPECT_EQ(host.Load(2, 24.0), Commands{});
}

}  // namespace
