// The parser of the menu language: recursive descent with one token of look-ahead. Each function
// has its grammar rules in its comment; docs/menu-language.md has the same grammar. The first
// syntax error ends the parse; the system is changed only after the whole file was read. Lists are
// loops, so that the stack does not grow with the file. (A table-driven parser of this grammar has
// a limit of 150 stack entries; with its left-recursive lists no file reaches it.)
#pragma once

#include <memory>

#include "menu/ansi_text.h"
#include "menu/mask_group.h"
#include "menu/menu_passes.h"
#include "menu/menu_scanner.h"
#include "menu/menu_system.h"

class MenuParser {
 public:
  MenuParser(MenuScanner& scanner, SourceMessages& messages, TMenuSystem& system,
             NarrowDecoder* decoder = nullptr)
      : m_scanner(scanner),
        m_messages(messages),
        m_system(system),
        m_ansi(decoder),
        m_work(scanner.Left()) {}

  // 0 when the file was accepted, 1 after a syntax error. Appends to the system's lists.
  int Parse();
  // The same, followed by the passes.
  int ParseAndFinish();

 private:
  bool QmnMenu();
  bool MenuTitle();
  bool MenuBarList();
  bool MenuBar();
  bool ObjectMask(TRBList& mask);
  bool DxfGroup(MaskGroup& group);
  bool MenuItemList();
  bool MenuItem();
  bool MenuSwitchList();
  bool MenuSwitchItem();
  bool SwitchStateList(TMenuSwitchItem& owner);
  bool SwitchStateItem(TMenuSwitchItem& owner);
  bool MenuResList();
  bool MenuResItem();

  bool Is(int kind) const { return m_token.kind == kind; }
  bool IsItemStart() const { return Is(QMN_IDENTIFIER) || Is(QMN_MENU_ITEM); }
  void Advance() { m_scanner.Next(m_token); }
  bool Check(int kind);
  bool Expect(int kind);
  bool ExpectString(TWCString& out);
  bool ExpectName(TWCString& out);
  bool ExpectName(TWCString& out, const NameUse& use);
  bool ExpectFunction(int keyword, TWCString& out);
  bool SyntaxError();
  MaskGroup MakeGroup(int code);
  void ReportKind(int code, const wchar_t* kind);
  void ExpectPendingIcon();
  void KeepBar(std::unique_ptr<TMenuBar> bar);
  void DropBars();
  void Commit();

  MenuScanner& m_scanner;
  SourceMessages& m_messages;
  TMenuSystem& m_system;
  MenuToken m_token;
  AnsiText m_ansi;
  // The identifier before a menu line. It is read before the parser can decide between two rules.
  NamePool::Key m_pendingIcon;
  bool m_hasPendingIcon = false;

  bool m_finishes = false;  // the passes run too
  PassWork m_work;
  BlockWork m_block;             // of the current block
  TDPtrList<TMenuItem> m_lines;  // its lines
  TWCString m_title;
  TDPtrList<TMenuBar> m_bars;
  bool m_barsDropped = false;
  TDPtrList<TMenuSwitchItem> m_switches;
  TDPtrList<TMenuResItem> m_resources;
};
