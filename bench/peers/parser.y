// The grammar of the menu language in bison, rule by rule.
%define api.pure full
%define api.prefix {peer_yy}
%param {void* scanner}
%parse-param {peer::ParseState& state}

%code requires {
#include "bench/peers/parse_state.h"
}
%code provides {
#define YYSTYPE PEER_YYSTYPE  // the name that flex expects
int peer_yylex(PEER_YYSTYPE* value, void* scanner);
}
%code {
#include <memory>
#include <utility>
#include "bench/peers/peer_text.h"

static void peer_yyerror(void*, peer::ParseState& state, const char* text) { state.Report(text); }
static std::u16string Wide(peer::Slice text) { return peer::Widen(text.View()); }
}

%union {
  peer::Slice text;
  int integer;
  double real;
  std::vector<peer::Group>* mask;
  std::vector<peer::Item>* items;
  std::vector<peer::State>* states;
  peer::Bar* bar;
  peer::Group* group;
  struct { peer::Slice icon; peer::Slice line; } item;
}

%token QMN_ERR_STRING 257
%token <text> QMN_STRING
%token <integer> QMN_ICON
%token <real> QMN_FCON
%token <text> QMN_MENU_ITEM
%token <text> QMN_IDENTIFIER
%token QMN_ERR_MENU_ITEM QMN_COMA QMN_PLUS QMN_EQUAL QMN_PREFIX QMN_SUB_PREFIX QMN_TITLE QMN_POP
%token QMN_CTRL QMN_RCLICK QMN_MENU_RES QMN_MENU_SWITCH QMN_GET_STATE QMN_SET_STATE

%type <bar> menu_bar
%type <mask> object_mask
%type <group> dxf_group
%type <items> menu_item_list
%type <item> menu_item
%type <states> switch_state_list
%destructor { delete $$; } <bar> <mask> <group> <items> <states>

%%
qmn_menu : menu_title menu_bar_list menu_switch_list menu_res_list ;

menu_title : QMN_TITLE QMN_EQUAL QMN_STRING { state.menu.title = Wide($3); } ;

menu_bar_list
  : menu_bar_list menu_bar {
      std::unique_ptr<peer::Bar> bar($2);
      if (!bar) state.barsLost = true;
      if (bar) state.menu.bars.push_back(std::move(*bar));
    }
  | menu_bar {
      std::unique_ptr<peer::Bar> bar($1);
      if (!bar) state.barsLost = true;
      if (bar) state.menu.bars.push_back(std::move(*bar));
    }
  ;

menu_bar
  : QMN_PREFIX QMN_IDENTIFIER QMN_IDENTIFIER QMN_EQUAL object_mask menu_item_list {
      std::unique_ptr<std::vector<peer::Group>> mask($5);
      std::unique_ptr<std::vector<peer::Item>> items($6);
      $$ = mask ? new peer::Bar{Wide($2), Wide($3), std::move(*mask), std::move(*items)} : nullptr;
    }
  | QMN_PREFIX QMN_IDENTIFIER menu_item_list {
      std::unique_ptr<std::vector<peer::Item>> items($3);
      $$ = new peer::Bar{Wide($2), {}, {}, std::move(*items)};
    }
  ;

object_mask
  : object_mask QMN_COMA dxf_group {
      std::unique_ptr<std::vector<peer::Group>> mask($1);
      std::unique_ptr<peer::Group> group($3);
      if (!mask || !group) {
        $$ = nullptr;
      } else {
        mask->resize(1);
        mask->push_back(std::move(*group));
        $$ = mask.release();
      }
    }
  | dxf_group {
      std::unique_ptr<peer::Group> group($1);
      $$ = nullptr;
      if (group) {
        $$ = new std::vector<peer::Group>;
        $$->push_back(std::move(*group));
      }
    }
  ;

dxf_group
  : QMN_ICON QMN_COMA QMN_ICON {
      auto group = std::make_unique<peer::Group>();
      $$ = peer::MakeInteger(state, $1, $3, *group) ? group.release() : nullptr;
    }
  | QMN_ICON QMN_COMA QMN_FCON {
      auto group = std::make_unique<peer::Group>();
      $$ = peer::MakeReal(state, $1, $3, *group) ? group.release() : nullptr;
    }
  | QMN_ICON QMN_COMA QMN_STRING {
      auto group = std::make_unique<peer::Group>();
      $$ = peer::MakeString(state, $1, $3.View(), *group) ? group.release() : nullptr;
    }
  ;

menu_item_list
  : menu_item_list menu_item {
      $$ = $1;
      peer::Item& item = $$->emplace_back();
      item.iconName = Wide($2.icon);
      peer::ParseLine(Wide($2.line), item);
    }
  | menu_item {
      $$ = new std::vector<peer::Item>;
      peer::Item& item = $$->emplace_back();
      item.iconName = Wide($1.icon);
      peer::ParseLine(Wide($1.line), item);
    }
  ;

menu_item
  : QMN_MENU_ITEM { $$.icon = {"", 0}; $$.line = $1; }
  | QMN_IDENTIFIER QMN_MENU_ITEM { $$.icon = $1; $$.line = $2; }
  ;

menu_switch_list
  : menu_switch_list menu_switch_item
  | QMN_PREFIX QMN_MENU_SWITCH
  ;

menu_switch_item
  : QMN_SUB_PREFIX QMN_IDENTIFIER QMN_GET_STATE QMN_EQUAL QMN_IDENTIFIER
    QMN_SET_STATE QMN_EQUAL QMN_IDENTIFIER switch_state_list {
      std::unique_ptr<std::vector<peer::State>> states($9);
      state.menu.switches.push_back({Wide($2), Wide($5), Wide($8), std::move(*states)});
    }
  ;

switch_state_list
  : switch_state_list QMN_ICON QMN_EQUAL QMN_IDENTIFIER QMN_COMA QMN_STRING {
      $$ = $1;
      $$->push_back({$2, Wide($4), Wide($6), -1});
    }
  | QMN_ICON QMN_EQUAL QMN_IDENTIFIER QMN_COMA QMN_STRING {
      $$ = new std::vector<peer::State>;
      $$->push_back({$1, Wide($3), Wide($5), -1});
    }
  ;

menu_res_list
  : menu_res_list QMN_IDENTIFIER QMN_EQUAL QMN_STRING QMN_COMA QMN_STRING {
      state.menu.resources.push_back({Wide($2), Wide($4), Wide($6)});
    }
  | QMN_PREFIX QMN_MENU_RES
  ;
%%
