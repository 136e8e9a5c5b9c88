// The parser of the menu language: one function a grammar rule, one token of look-ahead, no table.
// Each function opens with its rules; the comments below are the grammar, and docs/menu-language.md
// repeats them. The first syntax error ends the parse; nothing reaches the system before the whole
// file is read. No stack grows with the file, since every list is a loop; the limit of 150 entries
// that a table-driven parser of this grammar has is out of reach for it too, its lists being
// left-recursive.
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
  // The same with the passes, so that an accepted file gives the final tree.
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
  // The identifier in front of a menu line, read before it was known which of the two rules it
  // opens.
  NamePool::Key m_pendingIcon;
  bool m_hasPendingIcon = false;

  bool m_finishes = false;  // runs the passes too
  PassWork m_work;
  BlockWork m_block;             // of the block that is being read
  TDPtrList<TMenuItem> m_lines;  // its lines
  TWCString m_title;
  TDPtrList<TMenuBar> m_bars;
  bool m_barsDropped = false;
  TDPtrList<TMenuSwitchItem> m_switches;
  TDPtrList<TMenuResItem> m_resources;
};
