#include "menu/yacc_entry.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "menu/menu_compiler.h"

MenuValue yylval;

namespace {

struct YaccRun {
  YaccRun(std::string source, std::FILE* echoFile, SourceMessages& messages, TMenuSystem& target)
      : echo(echoFile), compiler(std::move(source), messages, &echo), system(target) {}
  SourceEcho echo;
  MenuCompiler compiler;
  TMenuSystem& system;
};
std::unique_ptr<YaccRun> g_run;

std::string ReadAll(std::FILE* in) {
  std::string bytes;
  char piece[4096];
  while (const size_t count = std::fread(piece, 1, sizeof piece, in)) bytes.append(piece, count);
  return bytes;
}

char* CopyOf(std::string_view text) {
  char* copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (!copy) throw std::bad_alloc();
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = 0;
  return copy;
}

bool HasText(int kind) {
  return kind == QMN_STRING || kind == QMN_ERR_STRING || kind == QMN_MENU_ITEM ||
         kind == QMN_ERR_MENU_ITEM || kind == QMN_IDENTIFIER;
}

}  // namespace

void yybegin(std::FILE* in, std::FILE* echo, SourceMessages& messages, TMenuSystem& system) {
  g_run = std::make_unique<YaccRun>(ReadAll(in), echo, messages, system);
}

void yyend() { g_run.reset(); }

int yylex() {
  if (!g_run) return QMN_END;
  MenuToken token;
  const int kind = g_run->compiler.Scanner().Next(token);
  if (HasText(kind)) yylval.text = CopyOf(token.text);
  if (kind == QMN_ICON) yylval.number = token.number;
  if (kind == QMN_FCON) yylval.real = token.real;
  return kind;
}

int yyparse() { return g_run ? g_run->compiler.Parse(g_run->system) : 1; }

int yylineno() { return g_run ? g_run->compiler.Scanner().Line() : 0; }
