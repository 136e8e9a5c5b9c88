#include "menu/menu_parser.h"

#include <memory>
#include <string>
#include <utility>

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/menu_line.h"

namespace {

// The list owns the new element from the start.
template <class T>
T& AppendNew(TDPtrList<T>& list) {
  auto element = std::make_unique<T>();
  list.Append(element.get());
  return *element.release();
}

template <class T>
void MoveAll(TDPtrList<T>& from, TDPtrList<T>& to) {
  to.Reserve(to.Length() + from.Length());
  for (T* element : from) to.Append(element);
  from.Forget();
}

}  // namespace

int MenuParser::Parse() {
  Advance();
  if (!QmnMenu()) return 1;
  m_work.FlushNames();
  Commit();
  return 0;
}

int MenuParser::ParseAndFinish() {
  m_finishes = true;
  if (Parse() != 0) return 1;
  ResolveNames(m_system, m_work);
  return 0;
}

// qmn_menu : menu_title menu_bar_list menu_switch_list menu_res_list
bool MenuParser::QmnMenu() {
  return MenuTitle() && MenuBarList() && MenuSwitchList() && MenuResList() && Check(QMN_END);
}

// pop_method : QMN_POP QMN_EQUAL QMN_RCLICK
// pop_method : QMN_POP QMN_EQUAL QMN_CTRL QMN_PLUS QMN_RCLICK
// No rule uses pop_method: its words are reserved, and POP in a file is a syntax error.

// menu_title : QMN_TITLE QMN_EQUAL QMN_STRING
bool MenuParser::MenuTitle() {
  return Expect(QMN_TITLE) && Expect(QMN_EQUAL) && ExpectString(m_title);
}

// menu_bar_list : menu_bar_list menu_bar
// menu_bar_list : menu_bar
// Ends after the prefix of the switch section.
bool MenuParser::MenuBarList() {
  if (!Expect(QMN_PREFIX)) return false;
  do {
    if (!MenuBar() || !Expect(QMN_PREFIX)) return false;
  } while (!Is(QMN_MENU_SWITCH));
  return true;
}

// menu_bar : QMN_PREFIX QMN_IDENTIFIER QMN_IDENTIFIER QMN_EQUAL object_mask menu_item_list
// menu_bar : QMN_PREFIX QMN_IDENTIFIER menu_item_list
// Called after the prefix. A second identifier is the block's kind when '=' follows, else the icon
// of the first line.
bool MenuParser::MenuBar() {
  auto bar = std::make_unique<TMenuBar>();
  if (!ExpectName(bar->m_strName)) return false;
  if (Is(QMN_IDENTIFIER)) {
    ExpectPendingIcon();
    if (Is(QMN_EQUAL)) {
      m_hasPendingIcon = false;
      m_ansi.DecodeTo(m_pendingIcon.name, bar->m_strKind);
      Advance();
      if (!ObjectMask(bar->m_objectMask)) return false;
    }
  }
  if (!MenuItemList()) return false;
  if (m_barsDropped)
    DropBars();
  else
    KeepBar(std::move(bar));
  m_block.Clear();
  return true;
}

void MenuParser::KeepBar(std::unique_ptr<TMenuBar> bar) {
  if (m_finishes)
    FinishBlock(m_lines, *bar, m_block, m_work);
  else
    MoveAll(m_lines, *bar);
  m_bars.Append(bar.get());
  static_cast<void>(bar.release());
}

// Deliberate: one invalid group in a mask drops all blocks of the file, before and after it, but
// not the switches and resources. The user then has no menu.
void MenuParser::DropBars() {
  m_bars.Clear();
  m_lines.Clear();
  m_work.DropNames();
  m_work.icons.clear();
  m_work.marks.clear();
}

// object_mask : object_mask QMN_COMA dxf_group
// object_mask : dxf_group
// Deliberate: each further group replaces all groups after the first one. A mask of three or more
// groups keeps its first and last group, and the block matches more objects than its author wrote.
bool MenuParser::ObjectMask(TRBList& mask) {
  MaskGroup group;
  if (!DxfGroup(group)) return false;
  mask.SetHead(group.release());
  while (Is(QMN_COMA)) {
    Advance();
    if (!DxfGroup(group)) return false;
    if (m_barsDropped) continue;
    TRBList::FreeGroups(std::exchange(mask.Head()->rbnext, group.release()));
  }
  return true;
}

// dxf_group : QMN_ICON QMN_COMA QMN_ICON
// dxf_group : QMN_ICON QMN_COMA QMN_FCON
// dxf_group : QMN_ICON QMN_COMA QMN_STRING
// A value of the wrong kind is reported before the next token is read; the group is then null.
bool MenuParser::DxfGroup(MaskGroup& group) {
  if (!Check(QMN_ICON)) return false;
  const int code = m_token.number;
  Advance();
  if (!Expect(QMN_COMA)) return false;
  if (!Is(QMN_ICON) && !Is(QMN_FCON) && !Is(QMN_STRING)) return SyntaxError();
  group = MakeGroup(code);
  if (!group) m_barsDropped = true;
  Advance();
  return true;
}

MaskGroup MenuParser::MakeGroup(int code) {
  const short kind = QvxExport::TypeOfCode(code);
  if (Is(QMN_ICON)) {
    if (kind == RTSHORT) return NewShortGroup(code, static_cast<short>(m_token.number));
    ReportKind(code, L"integer");
  } else if (Is(QMN_FCON)) {
    if (kind == RTREAL) return NewRealGroup(code, m_token.real);
    ReportKind(code, L"real");
  } else {
    if (kind == RTSTR) {
      TWCString text;
      m_ansi.DecodeTo(m_token.text, text);
      return NewTextGroup(code, text);
    }
    ReportKind(code, L"integer");  // deliberate: not "string"; users know this wording
  }
  return nullptr;
}

void MenuParser::ReportKind(int code, const wchar_t* kind) {
  TWCString message(L"Dxf code ");
  message += std::to_wstring(code).c_str();
  message += L" is not ";
  message += kind;
  message += L" code";
  m_messages.ReportSyntaxError(message, m_scanner.Line());
}

// menu_item_list : menu_item_list menu_item
// menu_item_list : menu_item
bool MenuParser::MenuItemList() {
  do {
    if (!MenuItem()) return false;
  } while (IsItemStart());
  return true;
}

// menu_item : QMN_MENU_ITEM
// menu_item : QMN_IDENTIFIER QMN_MENU_ITEM
bool MenuParser::MenuItem() {
  if (!m_hasPendingIcon && Is(QMN_IDENTIFIER)) ExpectPendingIcon();
  if (!Check(QMN_MENU_ITEM)) return false;
  TMenuItem& item = AppendNew(m_lines);
  ParseMenuLine(m_token.text, m_ansi, item);
  NamePool::Key icon;
  if (std::exchange(m_hasPendingIcon, false)) {
    icon = m_pendingIcon;
    m_ansi.DecodeTo(icon.name, item.m_strIconName);
    m_work.AddName(icon, {.iconIndex = &item.m_nIconIndex});
  }
  if (m_finishes) m_block.Note(item, m_lines.Length() - 1, icon);
  Advance();
  return true;
}

void MenuParser::ExpectPendingIcon() {
  m_pendingIcon = m_work.names.Hash(m_token.text);
  m_hasPendingIcon = true;
  Advance();
}

// menu_switch_list : menu_switch_list menu_switch_item
// menu_switch_list : QMN_PREFIX QMN_MENU_SWITCH
// Behind the prefix.
bool MenuParser::MenuSwitchList() {
  if (!Expect(QMN_MENU_SWITCH)) return false;
  while (Is(QMN_SUB_PREFIX))
    if (!MenuSwitchItem()) return false;
  return true;
}

// menu_switch_item : QMN_SUB_PREFIX QMN_IDENTIFIER QMN_GET_STATE QMN_EQUAL QMN_IDENTIFIER
//                    QMN_SET_STATE QMN_EQUAL QMN_IDENTIFIER switch_state_list
bool MenuParser::MenuSwitchItem() {
  Advance();
  TMenuSwitchItem& made = AppendNew(m_switches);
  return ExpectName(made.m_strName, {.table = &m_work.switches}) &&
         ExpectFunction(QMN_GET_STATE, made.m_strGetFn) &&
         ExpectFunction(QMN_SET_STATE, made.m_strSetFn) && SwitchStateList(made);
}

// switch_state_list : switch_state_list switch_state_item
// switch_state_list : switch_state_item
bool MenuParser::SwitchStateList(TMenuSwitchItem& owner) {
  do {
    if (!SwitchStateItem(owner)) return false;
  } while (Is(QMN_ICON));
  return true;
}

// switch_state_item : QMN_ICON QMN_EQUAL QMN_IDENTIFIER QMN_COMA QMN_STRING
bool MenuParser::SwitchStateItem(TMenuSwitchItem& owner) {
  if (!Check(QMN_ICON)) return false;
  TSwitchStateItem& state = AppendNew(owner.m_states);
  state.m_nValue = m_token.number;
  Advance();
  return Expect(QMN_EQUAL) && ExpectName(state.m_strIconName, {.iconIndex = &state.m_nIconIndex}) &&
         Expect(QMN_COMA) && ExpectString(state.m_strLabel);
}

// menu_res_list : menu_res_list menu_res_item
// menu_res_list : QMN_PREFIX QMN_MENU_RES
bool MenuParser::MenuResList() {
  if (!Expect(QMN_PREFIX) || !Expect(QMN_MENU_RES)) return false;
  while (Is(QMN_IDENTIFIER))
    if (!MenuResItem()) return false;
  return true;
}

// menu_res_item : QMN_IDENTIFIER QMN_EQUAL QMN_STRING QMN_COMA QMN_STRING
bool MenuParser::MenuResItem() {
  TMenuResItem& made = AppendNew(m_resources);
  return ExpectName(made.m_strName, {.table = &m_work.resources}) && Expect(QMN_EQUAL) &&
         ExpectString(made.m_strImage) && Expect(QMN_COMA) && ExpectString(made.m_strImage2);
}

bool MenuParser::Check(int kind) { return Is(kind) || SyntaxError(); }

bool MenuParser::Expect(int kind) {
  if (!Check(kind)) return false;
  Advance();
  return true;
}

bool MenuParser::ExpectString(TWCString& out) {
  if (!Check(QMN_STRING)) return false;
  m_ansi.DecodeTo(m_token.text, out);
  Advance();
  return true;
}

bool MenuParser::ExpectName(TWCString& out) {
  if (!Check(QMN_IDENTIFIER)) return false;
  m_ansi.DecodeTo(m_token.text, out);
  Advance();
  return true;
}

bool MenuParser::ExpectName(TWCString& out, const NameUse& use) {
  if (Is(QMN_IDENTIFIER)) m_work.AddName(m_work.names.Hash(m_token.text), use);
  return ExpectName(out);
}

// keyword QMN_EQUAL QMN_IDENTIFIER
bool MenuParser::ExpectFunction(int keyword, TWCString& out) {
  return Expect(keyword) && Expect(QMN_EQUAL) && ExpectName(out);
}

bool MenuParser::SyntaxError() {
  m_messages.ReportSyntaxError(L"syntax error", m_scanner.Line());
  return false;
}

void MenuParser::Commit() {
  m_system.m_strTitle = std::move(m_title);
  MoveAll(m_bars, m_system);
  MoveAll(m_switches, m_system.m_switches);
  MoveAll(m_resources, m_system.m_resources);
}
