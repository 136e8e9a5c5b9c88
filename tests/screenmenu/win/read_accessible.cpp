// A program that reads windows of another process, as a screen reader does. Arguments: a window
// handle. Output, UTF-8: for each button below that window, in window order, one line of name,
// role, state and default action, separated by tabs; with the second argument "places" the name and
// the four numbers of its rectangle. With "children" the same window's own line and that of each of
// its parts that have no window, name to action and the rectangle; with "press N" it also performs
// the default action of the part N. With "value" only the value of the same window. Run by the
// accessibility tests.
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

IAccessible* ObjectOf(HWND window) {
  IAccessible* object = nullptr;
  const HRESULT got =
      ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&object));
  if (SUCCEEDED(got) && object) return object;
  std::printf("no object: %lx\n", got);
  return nullptr;
}

std::string Texts(IAccessible& object, const VARIANT& child) {
  VARIANT role{}, state{};
  BSTR name = nullptr, action = nullptr;
  object.get_accName(child, &name);
  object.get_accRole(child, &role);
  object.get_accState(child, &state);
  object.get_accDefaultAction(child, &action);
  char numbers[40];
  std::snprintf(numbers, sizeof numbers, "\t%lx\t%lx\t", Number(role), Number(state));
  return Utf8(name) + numbers + Utf8(action);
}

void PrintParts(HWND window, const char* press) {
  IAccessible* object = ObjectOf(window);
  if (!object) return;
  long count = 0;
  object->get_accChildCount(&count);
  VARIANT child{};
  child.vt = VT_I4;
  for (child.lVal = 0; child.lVal <= count; ++child.lVal) {
    long x = 0, y = 0, width = 0, height = 0;
    object->accLocation(&x, &y, &width, &height, child);
    std::printf("%s\t%ld\t%ld\t%ld\t%ld\n", Texts(*object, child).c_str(), x, y, width, height);
  }
  if (press) {
    child.lVal = std::atol(press);
    std::printf("pressed: %lx\n", object->accDoDefaultAction(child));
  }
  object->Release();
}

void PrintValue(HWND window) {
  IAccessible* object = ObjectOf(window);
  if (!object) return;
  VARIANT self{};
  self.vt = VT_I4;
  BSTR value = nullptr;
  object->get_accValue(self, &value);
  std::printf("%s\n", Utf8(value).c_str());
  object->Release();
}

void PrintButton(HWND button, bool place) {
  IAccessible* object = ObjectOf(button);
  if (!object) return;
  VARIANT self{};
  self.vt = VT_I4;
  if (place) {
    BSTR name = nullptr;
    object->get_accName(self, &name);
    PrintPlace(*object, Utf8(name));
  } else {
    std::printf("%s\n", Texts(*object, self).c_str());
  }
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
  const std::string what = argc > 2 ? argv[2] : "";
  if (what == "children" || what == "press")
    PrintParts(window, argc > 3 ? argv[3] : nullptr);
  else if (what == "value")
    PrintValue(window);
  else
    ::EnumChildWindows(window, Visit, what == "places");
  ::CoUninitialize();
  return 0;
}
