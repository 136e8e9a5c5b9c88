#include "tests/menu/good_file.h"

#include <gtest/gtest.h>

#include "tests/menu/menu_testing.h"

std::string GoodFile() {
  Compiled compiled;
  Compile(
      "MENU_TITLE=\"t\"\n***A K = 0,\"X\",40,1.5\nI [->a]\n[->b]x;\n[<-<-{~=f}c]\nS [*SWITCH*]\n"
      "***B L = 62,3,8,\"y\"\n[d]\n***SWITCH\n**S GET=g SET=s\n0=I,\"l\"\n***RESOURCE\n"
      "I=\"p\",\"q\"\n",
      compiled);
  EXPECT_EQ(compiled.result, 0);
  return SaveBytes(compiled.system);
}
