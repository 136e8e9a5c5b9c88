// The scanner and the parser under the names of the yacc interface: yylex and yyparse, values in
// yylval, one run at a time for the whole module. Main thread only. The loader itself uses
// MenuCompiler.
#pragma once

#include <cstdio>

class SourceMessages;
class TMenuSystem;

union MenuValue {
  char* text;  // malloc; the caller of yylex frees it
  int number;
  double real;
};
extern MenuValue yylval;

// Ends the previous run and begins a new one at line 1. Reads `in` to its end; the caller keeps
// both files, and `echo` may be null.
void yybegin(std::FILE* in, std::FILE* echo, SourceMessages& messages, TMenuSystem& system);
void yyend();

int yylex();    // the next token's number, 0 at the end of input or without a run
int yyparse();  // 0 when accepted, 1 after a syntax error or without a run
int yylineno();
