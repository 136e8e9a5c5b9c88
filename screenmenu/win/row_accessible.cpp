// See row_accessible.h. Calls that the row does not implement are forwarded to the window system's
// standard object. A client in this process may hold an object longer than the row lives, so every
// call looks the row up again and fails when it is gone.
#include "screenmenu/win/row_accessible.h"

#include <oleacc.h>

#include <atomic>

#include "ground/guard.h"

namespace {

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

HRESULT GiveText(const std::wstring& text, BSTR* out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (text.empty()) return S_FALSE;
  *out = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT GiveNumber(long number, VARIANT* out) {
  if (!out) return E_POINTER;
  out->vt = VT_I4;
  out->lVal = number;
  return S_OK;
}

class RowAccessible final : public IAccessible {
 public:
  RowAccessible(HWND row, IAccessible* standard) : m_row(row), m_standard(standard) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != __uuidof(IAccessible))
      return E_NOINTERFACE;
    *out = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --m_references;
    if (!left) delete this;
    return left;
  }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    return m_standard->GetTypeInfoCount(count);
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return m_standard->GetTypeInfo(index, locale, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override {
    return m_standard->GetIDsOfNames(iid, names, count, locale, ids);
  }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    return E_NOTIMPL;  // else scripts get the standard object's data, not the row's
  }

  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    return Ask(child, [name](const AccessibleRow& row) {
      return GiveText(qvx::AccessName(row.Facts().caption), name);
    });
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
    return Ask(child, [role](const AccessibleRow& row) {
      return GiveNumber(qvx::AccessRole(row.Facts()), role);
    });
  }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
    return Ask(child, [state](const AccessibleRow& row) {
      return GiveNumber(qvx::AccessStates(row.Facts()), state);
    });
  }
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
    return Ask(child, [help](const AccessibleRow& row) { return GiveText(row.Help(), help); });
  }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* key) override {
    return Ask(child, [key](const AccessibleRow& row) {
      return GiveText(qvx::AccessKey(row.Facts().caption), key);
    });
  }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
    return Ask(child, [action](const AccessibleRow& row) {
      return GiveText(qvx::AccessAction(row.Facts()), action);
    });
  }
  // Posted: a click may open a dialog box, and the client would wait until it closes.
  STDMETHODIMP accDoDefaultAction(VARIANT child) override {
    return Ask(child, [this](const AccessibleRow& row) -> HRESULT {
      if (!row.Facts().enabled) return E_INVALIDARG;
      return ::PostMessageW(m_row, BM_CLICK, 0, 0) ? S_OK : E_FAIL;
    });
  }

  STDMETHODIMP get_accParent(IDispatch** parent) override {
    return m_standard->get_accParent(parent);
  }
  STDMETHODIMP get_accChildCount(long* count) override {
    return m_standard->get_accChildCount(count);
  }
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) override {
    return m_standard->get_accChild(child, out);
  }
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
    return m_standard->get_accValue(child, value);
  }
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
    return m_standard->get_accDescription(child, text);
  }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
    return m_standard->get_accHelpTopic(file, child, topic);
  }
  STDMETHODIMP get_accFocus(VARIANT* focus) override { return m_standard->get_accFocus(focus); }
  STDMETHODIMP get_accSelection(VARIANT* selected) override {
    return m_standard->get_accSelection(selected);
  }
  STDMETHODIMP accSelect(long flags, VARIANT child) override {
    return m_standard->accSelect(flags, child);
  }
  STDMETHODIMP accLocation(long* x, long* y, long* width, long* height, VARIANT child) override {
    Ask(child, [](const AccessibleRow& row) {
      row.SettlePlace();
      return S_OK;
    });
    return m_standard->accLocation(x, y, width, height, child);
  }
  STDMETHODIMP accNavigate(long way, VARIANT from, VARIANT* to) override {
    return m_standard->accNavigate(way, from, to);
  }
  STDMETHODIMP accHitTest(long x, long y, VARIANT* hit) override {
    return m_standard->accHitTest(x, y, hit);
  }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_ACCESSDENIED; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_ACCESSDENIED; }

 private:
  ~RowAccessible() { m_standard->Release(); }

  const AccessibleRow* Row(const VARIANT& child) const {
    if (!IsSelf(child)) return nullptr;
    return dynamic_cast<const AccessibleRow*>(CWnd::FromHandlePermanent(m_row));
  }

  // The result of `answer` for the row; E_INVALIDARG for another child or a destroyed row.
  template <class Answer>
  HRESULT Ask(const VARIANT& child, Answer answer) const {
    return qvx::GuardedOr(HRESULT{E_OUTOFMEMORY}, [&]() -> HRESULT {
      const AccessibleRow* row = Row(child);
      return row ? answer(*row) : E_INVALIDARG;
    });
  }

  std::atomic<ULONG> m_references{1};
  HWND m_row;
  IAccessible* m_standard;  // owned by reference
};

IAccessible* MakeRowAccessible(HWND row) {
  IAccessible* standard = nullptr;
  if (FAILED(::CreateStdAccessibleObject(row, OBJID_CLIENT, __uuidof(IAccessible),
                                         reinterpret_cast<void**>(&standard))))
    return nullptr;
  return new RowAccessible(row, standard);
}

}  // namespace

RowAccess::~RowAccess() {
  if (!m_object) return;
  ::CoDisconnectObject(m_object, 0);
  m_object->Release();
}

LRESULT RowAccess::Answer(HWND row, WPARAM wParam) {
  if (!m_object) m_object = MakeRowAccessible(row);
  return m_object ? ::LresultFromObject(__uuidof(IAccessible), wParam, m_object) : 0;
}
