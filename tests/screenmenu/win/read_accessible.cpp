// A program that reads the palette from another process, as a screen reader does. Arguments: a
// window handle. Output, UTF-8: for each button below that window, in window order, one line of
// name, role, state and default action, separated by tabs; with a second argument the name and the
// four numbers of its rectangle. Run by the accessibility test.
#include <windows.h>
// after windows.h
#include <oleacc.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string Utf8(BSTR text) {
  if (!text) return "";
  char buffer[1024] = "";
  ::WideCharToMultiByte(CP_UTF8, 0, text, -1, buffer, sizeof buffer, nullptr, nullptr);
  ::SysFreeString(text);
  return buffer;
}

long Number(const VARIANT& value) { return value.vt == VT_I4 ? value.lVal : -1; }

void PrintPlace(IAccessible& object, const std::string& name) {
  VARIANT self{};
  self.vt = VT_I4;
  long x = 0, y = 0, width = 0, height = 0;
  object.accLocation(&x, &y, &width, &height, self);
  std::printf("%s\t%ld\t%ld\t%ld\t%ld\n", name.c_str(), x, y, width, height);
}

void PrintButton(HWND button, bool place) {
  IAccessible* object = nullptr;
  const HRESULT got =
      ::AccessibleObjectFromWindow(button, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&object));
  if (FAILED(got) || !object) {
    std::printf("no object: %lx\n", got);
    return;
  }
  VARIANT self{}, role{}, state{};
  self.vt = VT_I4;
  BSTR name = nullptr, action = nullptr;
  object->get_accName(self, &name);
  if (place) {
    PrintPlace(*object, Utf8(name));
    object->Release();
    return;
  }
  object->get_accRole(self, &role);
  object->get_accState(self, &state);
  object->get_accDefaultAction(self, &action);
  const std::string nameText = Utf8(name), actionText = Utf8(action);
  std::printf("%s\t%lx\t%lx\t%s\n", nameText.c_str(), Number(role), Number(state),
              actionText.c_str());
  object->Release();
}

BOOL CALLBACK Visit(HWND window, LPARAM place) {
  wchar_t name[16] = L"";
  ::GetClassNameW(window, name, 16);
  if (!_wcsicmp(name, L"button")) PrintButton(window, place != 0);
  return TRUE;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || FAILED(::CoInitialize(nullptr))) return 2;
  const auto window = reinterpret_cast<HWND>(std::strtoull(argv[1], nullptr, 16));
  ::EnumChildWindows(window, Visit, argc > 2);
  ::CoUninitialize();
  return 0;
}
