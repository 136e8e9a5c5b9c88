// See row_accessible.h. Calls that the row does not implement are forwarded to the window system's
// standard object. A client in this process may hold an object longer than the row lives, so every
// call looks the row up again and fails when it is gone.
#include "screenmenu/win/row_accessible.h"

#include "ground/guard.h"

namespace {

using qvx::GiveNumber;
using qvx::GiveText;

class RowAccessible final : public qvx::AccessibleObject {
 public:
  RowAccessible(HWND row, IAccessible* standard) : AccessibleObject(standard), m_row(row) {}

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

  STDMETHODIMP accLocation(long* x, long* y, long* width, long* height, VARIANT child) override {
    Ask(child, [](const AccessibleRow& row) {
      row.SettlePlace();
      return S_OK;
    });
    return Standard().accLocation(x, y, width, height, child);
  }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_ACCESSDENIED; }

 private:
  const AccessibleRow* Row(const VARIANT& child) const {
    if (!qvx::IsSelf(child)) return nullptr;
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

  HWND m_row;
};

}  // namespace

LRESULT RowAccess::Answer(HWND row, WPARAM wParam) {
  return m_holder.Answer(row, wParam,
                         [row](IAccessible* standard) { return new RowAccessible(row, standard); });
}
