// Finding panes by name; see the header. Pane classes have no CRuntimeClass, so the compiler's type
// name is used, without the length in front of it.
#include "devhost/ui/bars/pane_place.h"

#include <typeinfo>

#include "devhost/core/base/utf8.h"
#include "devhost/ui/bars/status_bar.h"

namespace devhost {
namespace {

std::string ClassOf(const AcPane& pane) {
  const std::string name = typeid(pane).name();
  return name.substr(name.find_first_not_of("0123456789"));
}

std::string TextOf(const AcPane& pane) {
  CString text;
  pane.GetText(text);
  return Utf8(static_cast<LPCTSTR>(text));
}

}  // namespace

std::string FindPanePoint(const std::string& name, POINT* out) {
  StatusBar* bar = TheStatusBar();
  if (!bar) return "there is no status bar";
  std::string names;
  for (int i = 0; i < bar->GetPaneCount(); ++i) {
    AcPane& pane = *bar->GetPane(i);
    names += (names.empty() ? "" : ", ") + ClassOf(pane);
    if (ClassOf(pane) != name && TextOf(pane) != name) continue;
    RECT r{};
    if (!bar->GetRect(&pane, r)) return "pane \"" + name + "\" has no place on the bar";
    *out = {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    ::ClientToScreen(bar->GetWindow(), out);
    return {};
  }
  return "there is no pane \"" + name + "\"; there are " + (names.empty() ? "none" : names);
}

}  // namespace devhost
