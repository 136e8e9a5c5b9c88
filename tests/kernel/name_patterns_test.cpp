// Types of a filter and names of blocks as patterns of the host.
#include <gtest/gtest.h>

#include "adslib.h"
#include "kernel/pick_object.h"

namespace {

TEST(TypePatterns, BlanksAroundEachPatternAreTrimmed) {
  EXPECT_EQ(L"QVX_*,TEXT,ATTRIB", TrimmedPatterns(L"QVX_*, TEXT, ATTRIB"));
  EXPECT_EQ(L"A,B", TrimmedPatterns(L"  A  ,  B  "));
  EXPECT_EQ(L"A B", TrimmedPatterns(L"A B")) << "within a name";
  EXPECT_EQ(L"A`, B,C", TrimmedPatterns(L"A`, B, C")) << "an escaped comma";
  EXPECT_EQ(L"A` ,B", TrimmedPatterns(L"A` , B")) << "an escaped blank";
  EXPECT_EQ(L",", TrimmedPatterns(L" , "));
  EXPECT_EQ(L"A`", TrimmedPatterns(L"A`"));
  EXPECT_EQ(L"", TrimmedPatterns(L""));
}

TEST(BlockNames, EscapedNamesMatchThemselvesOnly) {
  for (const wchar_t* name : {L"*U12", L"A#1", L"a@b", L"1.5", L"why?", L"~x", L"[A-C]", L"p-q",
                              L"a,b", L"`", L"*?#@.~[]-,`"}) {
    CString escaped = name;
    EXPECT_TRUE(SpringStrHasSpecialChar(&escaped)) << name;
    EXPECT_EQ(RTNORM, acutWcMatch(name, escaped)) << name;
    EXPECT_EQ(RTERROR, acutWcMatch((std::wstring(name) + L"X").c_str(), escaped)) << name;
  }
  CString star = L"*U1";
  SpringStrHasSpecialChar(&star);
  EXPECT_STREQ(L"`*U1", star.GetString());
  EXPECT_EQ(RTERROR, acutWcMatch(L"XU1", star));
}

TEST(BlockNames, NamesWithoutWildCardsStay) {
  CString name = L"门 M0921_甲";
  EXPECT_FALSE(SpringStrHasSpecialChar(&name));
  EXPECT_STREQ(L"门 M0921_甲", name.GetString());
  CString empty;
  EXPECT_FALSE(SpringStrHasSpecialChar(&empty));
  EXPECT_FALSE(SpringStrHasSpecialChar(nullptr));
}

}  // namespace
