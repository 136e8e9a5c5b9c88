#include "tools/qmn/dump_forms.h"

#include <string_view>
#include <unordered_map>
#include <vector>

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/menu_model.h"
#include "tools/qmn/json_out.h"

int CodeOf(const TGroups& group) { return static_cast<unsigned short>(group.restype); }
int KindOf(const TGroups& group) { return QvxExport::TypeOfCode(CodeOf(group)); }

namespace {

class JsonDump {
 public:
  JsonDump(TMenuSystem& system, std::ostream& out) : m_system(system), m_json(out) {
    for (int i = 0; i < system.m_switches.Length(); ++i) m_switchIndex[system.m_switches.At(i)] = i;
  }

  void Run() {
    m_json.OpenObject();
    Text("title", m_system.m_strTitle);
    m_json.Key("reserved");
    m_json.OpenArray();
    m_json.Integer(m_system.m_nReserved1);
    m_json.Integer(m_system.m_nReserved2);
    m_json.Close();
    Resources();
    Switches();
    m_json.Key("bars");
    m_json.OpenArray();
    for (TMenuBar* bar : m_system) Bar(*bar);
    m_json.Close();
    m_json.Close();
    m_json.End();
  }

 private:
  struct Place {
    TMenuBar* bar;
    int next;
  };

  void Text(std::string_view key, const TWCString& text) {
    m_json.Key(key);
    m_json.Text({text, static_cast<size_t>(text.Length())});
  }
  void Integer(std::string_view key, long long value) {
    m_json.Key(key);
    m_json.Integer(value);
  }

  void Resources() {
    m_json.Key("resources");
    m_json.OpenArray();
    for (TMenuResItem* item : m_system.m_resources) {
      m_json.OpenObject();
      Text("name", item->m_strName);
      Text("image", item->m_strImage);
      Text("image2", item->m_strImage2);
      m_json.Close();
    }
    m_json.Close();
  }

  void Switches() {
    m_json.Key("switches");
    m_json.OpenArray();
    for (TMenuSwitchItem* item : m_system.m_switches) {
      m_json.OpenObject();
      Text("name", item->m_strName);
      Text("get", item->m_strGetFn);
      Text("set", item->m_strSetFn);
      m_json.Key("states");
      m_json.OpenArray();
      for (TSwitchStateItem* state : item->m_states) State(*state);
      m_json.Close();
      m_json.Close();
    }
    m_json.Close();
  }

  void State(const TSwitchStateItem& state) {
    m_json.OpenObject();
    Integer("value", state.m_nValue);
    Text("icon", state.m_strIconName);
    Text("label", state.m_strLabel);
    Integer("iconIndex", state.m_nIconIndex);
    m_json.Close();
  }

  // Iterates over lines and sub-menus with a path on the heap: nesting depth is limited by file
  // size only.
  void Bar(TMenuBar& root) {
    std::vector<Place> path;
    BarHead(root);
    path.push_back({&root, 0});
    while (!path.empty()) {
      Place& place = path.back();
      if (place.next == place.bar->Length()) {
        m_json.Close();
        m_json.Close();
        path.pop_back();
        if (!path.empty()) ItemTail(*path.back().bar->At(path.back().next - 1));
        continue;
      }
      TMenuItem& item = *place.bar->At(place.next++);
      ItemHead(item);
      if (TMenuBar* below = item.m_pSubMenu) {
        BarHead(*below);
        path.push_back({below, 0});
      } else {
        m_json.Null();
        ItemTail(item);
      }
    }
  }

  // Leaves the array of lines open.
  void BarHead(TMenuBar& bar) {
    m_json.OpenObject();
    Text("name", bar.m_strName);
    Text("kind", bar.m_strKind);
    m_json.Key("mask");
    m_json.OpenArray();
    for (const TGroups* group = bar.m_objectMask.Head(); group; group = group->Next())
      Group(*group);
    m_json.Close();
    m_json.Key("items");
    m_json.OpenArray();
  }

  // Ends with the key of the sub-menu, whose value the caller writes.
  void ItemHead(const TMenuItem& item) {
    m_json.OpenObject();
    Text("label", item.m_strLabel);
    Text("command", item.m_strCommand);
    m_json.Key("submenu");
  }

  void ItemTail(const TMenuItem& item) {
    const auto found = m_switchIndex.find(item.m_pSwitch);
    Integer("switch", found == m_switchIndex.end() ? -1 : found->second);
    Integer("flags", item.m_nFlags);
    Text("checkFn", item.m_strCheckFn);
    Text("grayFn", item.m_strGrayFn);
    Text("iconName", item.m_strIconName);
    Integer("iconIndex", item.m_nIconIndex);
    m_json.Close();
  }

  void Group(const TGroups& group) {
    m_json.OpenObject();
    Integer("code", CodeOf(group));
    m_json.Key("type");
    switch (KindOf(group)) {
      case RTSHORT:
        m_json.Text(L"short");
        Integer("value", group.resval.rint);
        break;
      case RTREAL:
        m_json.Text(L"real");
        m_json.Key("value");
        m_json.Real(group.resval.rreal);
        break;
      case RTSTR:
        m_json.Text(L"string");
        m_json.Key("value");
        m_json.Text(group.resval.rstring ? group.resval.rstring : L"");
        break;
      case RTLONG:
        m_json.Text(L"long");
        Integer("value", group.resval.rlong);
        break;
      default:
        m_json.Text(L"other");
        m_json.Key("value");
        m_json.Null();
    }
    m_json.Close();
  }

  TMenuSystem& m_system;
  JsonOut m_json;
  std::unordered_map<const TMenuSwitchItem*, int> m_switchIndex;
};

}  // namespace

void DumpJson(TMenuSystem& system, std::ostream& out) { JsonDump(system, out).Run(); }
