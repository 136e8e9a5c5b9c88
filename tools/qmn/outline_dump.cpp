#include "tools/qmn/dump_forms.h"

#include <ostream>
#include <vector>

#include "adsdef.h"
#include "menu/menu_model.h"
#include "tools/qmn/json_out.h"
#include "tools/qmn/tool_text.h"

namespace {

std::string TextOf(const TWCString& text) {
  return Utf8({text, static_cast<size_t>(text.Length())});
}

// Newlines would break the outline.
std::string Quoted(const TWCString& text) {
  std::string out = "\"";
  for (const char c : TextOf(text)) {
    if (c == '\n')
      out += "\\n";
    else if (static_cast<unsigned char>(c) < 0x20)
      out += {'^', static_cast<char>(c + '@')};
    else
      out += c;
  }
  return out + '"';
}

void PutGroup(std::ostream& out, const TGroups& group) {
  out << "  " << CodeOf(group) << "=";
  switch (KindOf(group)) {
    case RTSHORT:
      out << group.resval.rint;
      break;
    case RTREAL:
      out << group.resval.rreal;
      break;
    case RTSTR:
      out << Quoted(group.resval.rstring);
      break;
    case RTLONG:
      out << group.resval.rlong;
      break;
    default:
      out << "-";
  }
}

void PutItem(std::ostream& out, const TMenuItem& item) {
  out << Quoted(item.m_strLabel);
  if (!item.m_strCommand.IsEmpty()) out << "  " << Quoted(item.m_strCommand);
  if (!item.m_strIconName.IsEmpty()) out << "  icon " << TextOf(item.m_strIconName);
  if (item.m_pSwitch) out << "  switch " << TextOf(item.m_pSwitch->m_strName);
  if (!item.m_strCheckFn.IsEmpty()) out << "  checked by " << TextOf(item.m_strCheckFn);
  if (!item.m_strGrayFn.IsEmpty()) out << "  greyed by " << TextOf(item.m_strGrayFn);
  out << "\n";
}

struct Place {
  TMenuBar* bar;
  int next;
};

void PutLines(std::ostream& out, TMenuBar& root) {
  std::vector<Place> path{{&root, 0}};
  while (!path.empty()) {
    Place& place = path.back();
    if (place.next == place.bar->Length()) {
      path.pop_back();
      continue;
    }
    const TMenuItem& item = *place.bar->At(place.next++);
    PutIndent(out, path.size());
    PutItem(out, item);
    if (item.m_pSubMenu) path.push_back({item.m_pSubMenu, 0});
  }
}

void PutBar(std::ostream& out, TMenuBar& bar) {
  out << "block " << TextOf(bar.m_strName);
  if (!bar.m_strKind.IsEmpty()) out << " " << TextOf(bar.m_strKind);
  for (const TGroups* group = bar.m_objectMask.Head(); group; group = group->Next())
    PutGroup(out, *group);
  out << "\n";
  PutLines(out, bar);
}

void PutSwitch(std::ostream& out, const TMenuSwitchItem& item) {
  out << "switch " << TextOf(item.m_strName) << "  get " << TextOf(item.m_strGetFn) << "  set "
      << TextOf(item.m_strSetFn) << "\n";
  for (const TSwitchStateItem* state : item.m_states)
    out << "  " << state->m_nValue << "  " << Quoted(state->m_strLabel) << "  icon "
        << TextOf(state->m_strIconName) << "\n";
}

}  // namespace

void DumpOutline(TMenuSystem& system, std::ostream& out) {
  out << "title " << Quoted(system.m_strTitle) << "\n";
  for (TMenuBar* bar : system) PutBar(out, *bar);
  for (TMenuSwitchItem* item : system.m_switches) PutSwitch(out, *item);
  for (TMenuResItem* item : system.m_resources)
    out << "icon " << TextOf(item->m_strName) << "  " << Quoted(item->m_strImage) << "  "
        << Quoted(item->m_strImage2) << "\n";
}
