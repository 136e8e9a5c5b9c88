#include "ground/win/accessible_object.h"

#include <utility>

namespace qvx {

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

VARIANT SelfChild() {
  VARIANT child{};
  child.vt = VT_I4;
  child.lVal = CHILDID_SELF;
  return child;
}

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

HRESULT AccessibleObject::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != __uuidof(IAccessible))
    return E_NOINTERFACE;
  *out = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

ULONG AccessibleObject::AddRef() { return ++m_references; }

ULONG AccessibleObject::Release() {
  const ULONG left = --m_references;
  if (!left) delete this;
  return left;
}

HRESULT AccessibleObject::GetTypeInfoCount(UINT* count) {
  return m_standard->GetTypeInfoCount(count);
}
HRESULT AccessibleObject::GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) {
  return m_standard->GetTypeInfo(index, locale, info);
}
HRESULT AccessibleObject::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                        DISPID* ids) {
  return m_standard->GetIDsOfNames(iid, names, count, locale, ids);
}
HRESULT AccessibleObject::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                 UINT*) {
  return E_NOTIMPL;
}

HRESULT AccessibleObject::get_accParent(IDispatch** parent) {
  return m_standard->get_accParent(parent);
}
HRESULT AccessibleObject::get_accChildCount(long* count) {
  return m_standard->get_accChildCount(count);
}
HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** out) {
  return m_standard->get_accChild(child, out);
}
HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name) {
  return m_standard->get_accName(child, name);
}
HRESULT AccessibleObject::get_accValue(VARIANT child, BSTR* value) {
  return m_standard->get_accValue(child, value);
}
HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* text) {
  return m_standard->get_accDescription(child, text);
}
HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
  return m_standard->get_accRole(child, role);
}
HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state) {
  return m_standard->get_accState(child, state);
}
HRESULT AccessibleObject::get_accHelp(VARIANT child, BSTR* help) {
  return m_standard->get_accHelp(child, help);
}
HRESULT AccessibleObject::get_accHelpTopic(BSTR* file, VARIANT child, long* topic) {
  return m_standard->get_accHelpTopic(file, child, topic);
}
HRESULT AccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* key) {
  return m_standard->get_accKeyboardShortcut(child, key);
}
HRESULT AccessibleObject::get_accFocus(VARIANT* focus) { return m_standard->get_accFocus(focus); }
HRESULT AccessibleObject::get_accSelection(VARIANT* selected) {
  return m_standard->get_accSelection(selected);
}
HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
  return m_standard->get_accDefaultAction(child, action);
}
HRESULT AccessibleObject::accSelect(long flags, VARIANT child) {
  return m_standard->accSelect(flags, child);
}
HRESULT AccessibleObject::accLocation(long* x, long* y, long* width, long* height, VARIANT child) {
  return m_standard->accLocation(x, y, width, height, child);
}
HRESULT AccessibleObject::accNavigate(long way, VARIANT from, VARIANT* to) {
  return m_standard->accNavigate(way, from, to);
}
HRESULT AccessibleObject::accHitTest(long x, long y, VARIANT* hit) {
  return m_standard->accHitTest(x, y, hit);
}
HRESULT AccessibleObject::accDoDefaultAction(VARIANT child) {
  return m_standard->accDoDefaultAction(child);
}
HRESULT AccessibleObject::put_accName(VARIANT, BSTR) { return E_ACCESSDENIED; }
HRESULT AccessibleObject::put_accValue(VARIANT child, BSTR value) {
  return m_standard->put_accValue(child, value);
}

LRESULT AccessibleHolder::Answer(HWND window, WPARAM wParam, const Make& make) {
  if (!m_object) {
    IAccessible* standard = nullptr;
    if (FAILED(::CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&standard))))
      return 0;
    m_object = make(standard);
  }
  return ::LresultFromObject(__uuidof(IAccessible), wParam, m_object);
}

void AccessibleHolder::Disconnect() {
  AccessibleObject* const object = std::exchange(m_object, nullptr);
  if (!object) return;
  object->OnDisconnect();
  ::CoDisconnectObject(object, 0);
  object->Release();
}

}  // namespace qvx
