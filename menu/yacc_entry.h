// The scanner and the parser under the names and with the manners that the language was born with:
// yylex and yyparse over one run for the whole module, values in yylval. A run is set up with
// yybegin; it belongs to the main thread, like everything here. The loader itself uses
// MenuCompiler.
#pragma once

#include <cstdio>

class SourceMessages;
class TMenuSystem;

union MenuValue {
  char* text;  // a _strdup copy; whoever took the token frees it
  int number;
  double real;
};
extern MenuValue yylval;

// Ends the run before. `in` is read to its end and stays the caller's, as does `echo`, which may be
// null. The line counter starts at 1.
void yybegin(std::FILE* in, std::FILE* echo, SourceMessages& messages, TMenuSystem& system);
void yyend();

int yylex();    // the next token's number, 0 at the end of input or without a run
int yyparse();  // 0 when accepted, 1 after a syntax error or without a run
int yylineno();
