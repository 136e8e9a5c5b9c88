// Accessible objects of the module's windows. The base forwards every call to the window system's
// own object for the window; a derived class overrides what that object cannot know.
//
// A client in this process may hold an object longer than its window lives: a derived class uses
// the window's data only as long as it is connected. Clients in other processes are disconnected
// when the window goes: the object's code may be unloaded after that.
#pragma once

#include "afxwin.h"
// after the class library
#include <oleacc.h>

#include <atomic>
#include <functional>
#include <string>

namespace qvx {

class AccessibleObject : public IAccessible {
 public:
  AccessibleObject(const AccessibleObject&) = delete;
  AccessibleObject& operator=(const AccessibleObject&) = delete;

  virtual void OnDisconnect() {}  // the window is about to go

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  // E_NOTIMPL: the standard object would call its own operations, not those of the derived class.
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override;

  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(long* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* key) override;
  STDMETHODIMP get_accFocus(VARIANT* focus) override;
  STDMETHODIMP get_accSelection(VARIANT* selected) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accSelect(long flags, VARIANT child) override;
  STDMETHODIMP accLocation(long* x, long* y, long* width, long* height, VARIANT child) override;
  STDMETHODIMP accNavigate(long way, VARIANT from, VARIANT* to) override;
  STDMETHODIMP accHitTest(long x, long y, VARIANT* hit) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;
  STDMETHODIMP put_accName(VARIANT, BSTR) override;  // E_ACCESSDENIED
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

 protected:
  explicit AccessibleObject(IAccessible* standard) : m_standard(standard) {}
  virtual ~AccessibleObject() { m_standard->Release(); }

  IAccessible& Standard() const { return *m_standard; }

 private:
  std::atomic<ULONG> m_references{1};
  IAccessible* m_standard;  // owned by reference
};

// The object of one window, created at the first request.
class AccessibleHolder {
 public:
  // Takes over the reference to the window system's own object.
  using Make = std::function<AccessibleObject*(IAccessible* standard)>;

  AccessibleHolder() = default;
  ~AccessibleHolder() { Disconnect(); }
  AccessibleHolder(const AccessibleHolder&) = delete;
  AccessibleHolder& operator=(const AccessibleHolder&) = delete;

  // The result of WM_GETOBJECT for the client object.
  LRESULT Answer(HWND window, WPARAM wParam, const Make& make);
  void Disconnect();

 private:
  AccessibleObject* m_object = nullptr;  // owned by reference
};

bool IsSelf(const VARIANT& child);
VARIANT SelfChild();
// Results of calls. An empty text gives S_FALSE.
HRESULT GiveText(const std::wstring& text, BSTR* out);
HRESULT GiveNumber(long number, VARIANT* out);

}  // namespace qvx
