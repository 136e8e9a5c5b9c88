// The strip as screen readers see it, in this process and in another one.
#include "tests/doctabs/win/module_tabs.h"

#include <objbase.h>
#include <oleacc.h>

#include "tests/screenmenu/win/outside_reader.h"

namespace {

VARIANT Child(long id) {
  VARIANT child;
  child.vt = VT_I4;
  child.lVal = id;
  return child;
}

std::wstring NameOf(IAccessible& object, long id) {
  BSTR name = nullptr;
  object.get_accName(Child(id), &name);
  const std::wstring text = name ? name : L"";
  ::SysFreeString(name);
  return text;
}

}  // namespace

TEST_F(ModuleTabs, AScreenReaderFindsAListOfPageTabsAndMaySwitch) {
  ::CoInitialize(nullptr);
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  New();
  FireTimer(1);
  IAccessible* strip = nullptr;
  ASSERT_EQ(::AccessibleObjectFromWindow(Strip(), static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), reinterpret_cast<void**>(&strip)),
            S_OK);
  VARIANT value{};
  long count = 0;
  EXPECT_EQ(strip->get_accChildCount(&count), S_OK);
  EXPECT_EQ(count, 2);
  strip->get_accRole(Child(0), &value);
  EXPECT_EQ(value.lVal, ROLE_SYSTEM_PAGETABLIST);
  strip->get_accRole(Child(2), &value);
  EXPECT_EQ(value.lVal, ROLE_SYSTEM_PAGETAB);
  EXPECT_EQ(devhost::Utf8(NameOf(*strip, 1)), Tabs()["tabs"][0]["text"].get<std::string>());
  strip->get_accState(Child(1), &value);
  EXPECT_EQ(value.lVal, STATE_SYSTEM_SELECTABLE);
  strip->get_accState(Child(2), &value);
  EXPECT_EQ(value.lVal, STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_SELECTED);
  EXPECT_EQ(strip->get_accSelection(&value), S_OK);
  EXPECT_EQ(value.lVal, 2);
  long x = 0, y = 0, width = 0, height = 0;
  EXPECT_EQ(strip->accLocation(&x, &y, &width, &height, Child(2)), S_OK);
  EXPECT_EQ(x, Tabs()["tabs"][1]["left"]);
  EXPECT_EQ(x + width + 2, Tabs()["tabs"][1]["right"]);
  EXPECT_EQ(strip->accHitTest(x + 5, y + 5, &value), S_OK);
  EXPECT_EQ(value.lVal, 2);
  EXPECT_EQ(strip->get_accRole(Child(3), &value), E_INVALIDARG);
  EXPECT_EQ(strip->accDoDefaultAction(Child(1)), S_OK);
  MSG message;
  while (::PeekMessageW(&message, Strip(), WM_APP, WM_APP + 10, PM_REMOVE))
    ::DispatchMessageW(&message);
  EXPECT_EQ(acDocManager->curDocument(), a);
  ::DestroyWindow(Strip());
  EXPECT_EQ(strip->get_accChildCount(&count), E_FAIL) << "the strip is gone";
  strip->Release();
  ::CoUninitialize();
}

namespace {

// name, role, state, action and the rectangle, as the reader prints them
std::string Line(const std::string& name, const char* roleAndState, const char* action, long left,
                 long top, long width, long height) {
  std::ostringstream line;
  line << name << '\t' << roleAndState << '\t' << action << '\t' << left << '\t' << top << '\t'
       << width << '\t' << height;
  return line.str();
}

}  // namespace

TEST_F(ModuleTabs, AScreenReaderInAnotherProcessReadsTheTabsAndSwitches) {
  ::CoInitialize(nullptr);
  AcApDocument* a = New();
  ASSERT_TRUE(LoadModule());
  BringUp();  // otherwise the palette moves the strip while the reader runs
  ::SetWindowTextW(adsw_acadDocWnd(), L"C:\\A\\平面.dwg");
  FireTimer(1);
  New();
  FireTimer(1);
  const Json tabs = Tabs();
  const long top = tabs["rect"][1], height = tabs["rect"][3].get<long>() - top;
  const auto tab = [&](int i, const char* state, const char* action) {
    const Json& one = tabs["tabs"][i];
    const long left = one["left"], right = one["right"];
    return Line(one["text"], state, action, left, top, right - 2 - left, height);
  };
  // Page tab list, page tab: 3c, 25. Selectable 200000, selected 2.
  const std::vector<std::string> lines = ReadFromOutside(Strip(), L"children");
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].substr(lines[0].find('\t'), 7), "\t3c\t0\t\t") << lines[0];
  EXPECT_EQ(lines[1], tab(0, "25\t200000", "切换"));
  EXPECT_EQ(lines[2], tab(1, "25\t200002", ""));
  const std::vector<std::string> pressed = ReadFromOutside(Strip(), L"press 1");
  EXPECT_EQ(pressed.back(), "pressed: 0");
  MSG message;
  while (::PeekMessageW(&message, Strip(), WM_APP, WM_APP + 10, PM_REMOVE))
    ::DispatchMessageW(&message);
  EXPECT_EQ(acDocManager->curDocument(), a);
  EXPECT_EQ(Tabs()["active"], 0);
  ::CoUninitialize();
}
