// See strip_accessible.h. A client in this process may hold the object longer than the strip lives:
// every call then fails.
#include "doctabs/win/strip_accessible.h"

#include "doctabs/tab_access.h"
#include "ground/guard.h"

namespace {

constexpr wchar_t kListName[] = L"文档标签";

using qvx::GiveNumber;
using qvx::GiveText;

HRESULT GiveNothing(VARIANT* out) {
  if (!out) return E_POINTER;
  out->vt = VT_EMPTY;
  return S_FALSE;
}

class StripAccessible final : public qvx::AccessibleObject {
 public:
  StripAccessible(HWND window, const TabStrip& strip, IAccessible* standard)
      : AccessibleObject(standard), m_window(window), m_strip(&strip) {}

  void OnDisconnect() override { m_strip = nullptr; }

  STDMETHODIMP get_accChildCount(long* count) override {
    const VARIANT child = qvx::SelfChild();
    return Ask(child, [&](const TabStrip& strip, int) -> HRESULT {
      if (!count) return E_POINTER;
      *count = strip.Count();
      return S_OK;
    });
  }
  // Tabs have no object of their own.
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) override {
    return Ask(child, [&](const TabStrip&, int) -> HRESULT {
      if (!out) return E_POINTER;
      *out = nullptr;
      return S_FALSE;
    });
  }
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    return Ask(child, [&](const TabStrip& strip, int tab) {
      return GiveText(tab < 0 ? kListName : strip.m_names.At(tab).GetString(), name);
    });
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
    return Ask(child, [&](const TabStrip&, int tab) {
      return GiveNumber(tab < 0 ? kAccessPageTabList : kAccessPageTab, role);
    });
  }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
    return Ask(child, [&](const TabStrip& strip, int tab) {
      const bool visible = ::IsWindowVisible(m_window);
      if (tab < 0) return GiveNumber(visible ? 0L : long{kAccessTabInvisible}, state);
      return GiveNumber(TabAccessStates(strip, tab, Client(), visible), state);
    });
  }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
    return Ask(child, [&](const TabStrip& strip, int tab) {
      return GiveText(tab < 0 ? L"" : TabAccessAction(strip, tab), action);
    });
  }
  // Posted: the client must not wait for the drawing.
  STDMETHODIMP accDoDefaultAction(VARIANT child) override {
    return Ask(child, [&](const TabStrip&, int tab) -> HRESULT {
      if (tab < 0) return DISP_E_MEMBERNOTFOUND;
      return ::PostMessageW(m_window, kActivateTabMessage, static_cast<WPARAM>(tab), 0) ? S_OK
                                                                                        : E_FAIL;
    });
  }
  STDMETHODIMP get_accSelection(VARIANT* selected) override {
    const VARIANT child = qvx::SelfChild();
    return Ask(child, [&](const TabStrip& strip, int) {
      return strip.ActiveTab() < 0 ? GiveNothing(selected)
                                   : GiveNumber(strip.ActiveTab() + 1, selected);
    });
  }
  STDMETHODIMP accLocation(long* x, long* y, long* width, long* height, VARIANT child) override {
    return Ask(child, [&](const TabStrip& strip, int tab) -> HRESULT {
      if (tab < 0) return Standard().accLocation(x, y, width, height, child);
      if (!x || !y || !width || !height) return E_POINTER;
      const RECT box = TabAccessBox(strip, tab, Client());
      POINT corner{box.left, box.top};
      ::ClientToScreen(m_window, &corner);
      *x = corner.x;
      *y = corner.y;
      *width = box.right - box.left;
      *height = box.bottom - box.top;
      return S_OK;
    });
  }
  STDMETHODIMP accHitTest(long x, long y, VARIANT* hit) override {
    const VARIANT child = qvx::SelfChild();
    return Ask(child, [&](const TabStrip& strip, int) {
      RECT window{};
      ::GetWindowRect(m_window, &window);
      if (!::PtInRect(&window, {x, y})) return GiveNothing(hit);
      POINT point{x, y};
      ::ScreenToClient(m_window, &point);
      const int tab = strip.IsOnArrows(point.x) ? strip.Count() : strip.HitTest(point.x);
      return GiveNumber(tab < strip.Count() ? tab + 1 : CHILDID_SELF, hit);
    });
  }
  STDMETHODIMP accNavigate(long way, VARIANT child, VARIANT* to) override {
    return Ask(child, [&](const TabStrip& strip, int tab) -> HRESULT {
      int next = -1;
      if (tab < 0 && way == NAVDIR_FIRSTCHILD) next = 0;
      if (tab < 0 && way == NAVDIR_LASTCHILD) next = strip.Count() - 1;
      if (tab < 0 && next < 0) return Standard().accNavigate(way, child, to);
      if (tab >= 0 && (way == NAVDIR_NEXT || way == NAVDIR_RIGHT)) next = tab + 1;
      if (tab >= 0 && (way == NAVDIR_PREVIOUS || way == NAVDIR_LEFT)) next = tab - 1;
      return strip.m_names.IsValidIndex(next) ? GiveNumber(next + 1, to) : GiveNothing(to);
    });
  }
  STDMETHODIMP accSelect(long, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accValue(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accDescription(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_ACCESSDENIED; }

 private:
  SIZE Client() const {
    RECT client{};
    ::GetClientRect(m_window, &client);
    return {client.right, client.bottom};
  }
  // The result for a tab's index, -1 for the strip itself; E_INVALIDARG for another child, E_FAIL
  // when the strip is gone.
  template <class Result>
  HRESULT Ask(const VARIANT& child, Result result) const {
    return qvx::GuardedOr(HRESULT{E_OUTOFMEMORY}, [&]() -> HRESULT {
      if (!m_strip) return E_FAIL;
      if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > m_strip->Count()) return E_INVALIDARG;
      return result(*m_strip, static_cast<int>(child.lVal) - 1);
    });
  }

  HWND m_window;
  const TabStrip* m_strip;  // null when the window is gone
};

}  // namespace

LRESULT StripAccess::Answer(HWND window, const TabStrip& strip, WPARAM wParam) {
  return m_holder.Answer(window, wParam, [&](IAccessible* standard) {
    return new StripAccessible(window, strip, standard);
  });
}
