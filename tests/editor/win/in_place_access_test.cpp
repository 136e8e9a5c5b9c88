// The box as screen readers see it, in this process and in another one.
#include "tests/editor/win/in_place_fixture.h"

#include <objbase.h>
#include <oleacc.h>

#include "tests/screenmenu/win/outside_reader.h"

namespace {

class InPlaceAccess : public InPlaceModule {
 protected:
  InPlaceAccess() { ::CoInitialize(nullptr); }
  ~InPlaceAccess() override { ::CoUninitialize(); }

  static IAccessible* ObjectOf(HWND window) {
    IAccessible* object = nullptr;
    EXPECT_EQ(
        ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&object)),
        S_OK);
    return object;
  }
  static VARIANT Self() {
    VARIANT child{};
    child.vt = VT_I4;
    return child;
  }
  static std::wstring Taken(BSTR text) {
    const std::wstring taken = text ? text : L"";
    ::SysFreeString(text);
    return taken;
  }
  static std::wstring NameOf(IAccessible& object) {
    BSTR name = nullptr;
    object.get_accName(Self(), &name);
    return Taken(name);
  }
};

}  // namespace

TEST_F(InPlaceAccess, AScreenReaderInAnotherProcessReadsTheKindOfTheObjectAndTheTyped) {
  Open();
  Type(L"hall");
  // Name, role 2a (text), state, action, rectangle.
  const std::vector<std::string> lines = ReadFromOutside(Box(), L"children");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].substr(0, lines[0].find('\t') + 4), devhost::Utf8(L"房间文字") + "\t2a\t")
      << lines[0];
  EXPECT_EQ(ReadFromOutside(Box(), L"value"), std::vector<std::string>{"hall"});
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Editor()["text"], "hall") << "reading changes nothing";
}

TEST_F(InPlaceAccess, TheNextTextHasItsOwnName) {
  const AcDbObjectId axis = Add(L"QVX_AXIS_LABEL", [&](QvxDbEntity& entity) {
    entity.start = {2000, 2000, 0};
    entity.end = {2000, 6000, 0};
    entity.size = 800;
    entity.label = L"12";
  });
  Open();
  IAccessible* room = ObjectOf(Box());
  EXPECT_EQ(NameOf(*room), L"房间文字");
  ::PostMessageW(Box(), WM_KEYDOWN, VK_ESCAPE, 1);
  Pump();
  EXPECT_NE(NameOf(*room), L"房间文字") << "the box is gone";
  EXPECT_EQ(room->Release(), 0u) << "the editor holds no reference to it";
  DoubleClick(axis);
  ASSERT_TRUE(IsOpen());
  IAccessible* next = ObjectOf(Box());
  EXPECT_EQ(NameOf(*next), L"轴号");
  next->Release();
}

TEST_F(InPlaceAccess, WhatIsNotTheNameIsTheControls) {
  Open();
  IAccessible* box = ObjectOf(Box());
  VARIANT value{};
  EXPECT_EQ(box->get_accRole(Self(), &value), S_OK);
  EXPECT_EQ(value.lVal, ROLE_SYSTEM_TEXT);
  EXPECT_EQ(box->get_accState(Self(), &value), S_OK);
  EXPECT_TRUE(value.lVal & STATE_SYSTEM_FOCUSED);
  BSTR text = nullptr;
  EXPECT_EQ(box->get_accValue(Self(), &text), S_OK);
  EXPECT_EQ(Taken(text), L"次卧");
  long x = 0, y = 0, width = 0, height = 0;
  EXPECT_EQ(box->accLocation(&x, &y, &width, &height, Self()), S_OK);
  RECT client{};
  ::GetClientRect(Box(), &client);
  ::MapWindowPoints(Box(), nullptr, reinterpret_cast<POINT*>(&client), 2);
  EXPECT_EQ(x, client.left);
  EXPECT_EQ(y, client.top);
  EXPECT_EQ(x + width, client.right);
  EXPECT_EQ(y + height, client.bottom);
  EXPECT_EQ(box->put_accName(Self(), nullptr), E_ACCESSDENIED);
  box->Release();
}

TEST_F(InPlaceAccess, TheTextOfAnErasedObjectIsCalledText) {
  Open();
  {
    const AcAxDocLock lock;
    m_room.object()->erase();
  }
  IAccessible* box = ObjectOf(Box());
  EXPECT_EQ(NameOf(*box), L"文字");
  box->Release();
}

TEST_F(InPlaceAccess, AReaderThatHoldsTheObjectMayAskAfterTheUnload) {
  Open();
  const HeldInMemory held;
  IAccessible* box = ObjectOf(Box());
  ASSERT_TRUE(UnloadModule());
  BSTR text = nullptr;
  box->get_accValue(Self(), &text);
  EXPECT_EQ(Taken(text), L"");
  EXPECT_EQ(NameOf(*box), L"");
  EXPECT_EQ(box->Release(), 0u);
}
