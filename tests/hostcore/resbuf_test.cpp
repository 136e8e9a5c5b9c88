// Resbuf chains and their conversion from and to LISP values.
#include <gtest/gtest.h>

#include <cstring>

#include "adslib.h"
#include "devhost/core/lisp/lisp_value.h"

using namespace devhost;

namespace {

// A chain that is released with this object.
class Chain {
 public:
  explicit Chain(resbuf* head) : m_head(head) {}
  ~Chain() {
    if (m_head) acutRelRb(m_head);
  }
  Chain(const Chain&) = delete;
  Chain& operator=(const Chain&) = delete;
  resbuf* operator->() const { return m_head; }
  resbuf* get() const { return m_head; }

 private:
  resbuf* m_head;
};

}  // namespace

TEST(Resbuf, TypesAndValuesBecomeAChain) {
  const ads_point point = {1, 2, 3};
  const Chain chain(acutBuildList(RTSTR, L"墙", RTSHORT, 7, RTREAL, 2.5, RT3DPOINT, point, RTNONE));
  ASSERT_NE(chain.get(), nullptr);
  EXPECT_STREQ(chain->resval.rstring, L"墙");
  EXPECT_EQ(chain->rbnext->resval.rint, 7);
  EXPECT_EQ(chain->rbnext->rbnext->resval.rreal, 2.5);
  EXPECT_EQ(chain->rbnext->rbnext->rbnext->resval.rpoint[2], 3);
  EXPECT_EQ(chain->rbnext->rbnext->rbnext->rbnext, nullptr);
}

TEST(Resbuf, AFilterListBeginsWithGroupZeroAndEndsWithZero) {
  const Chain chain(acutBuildList(0, L"LINE", 8, L"墙线", 62, 3, 0));
  ASSERT_NE(chain.get(), nullptr);
  EXPECT_EQ(chain->restype, 0);
  EXPECT_STREQ(chain->rbnext->resval.rstring, L"墙线");
  EXPECT_EQ(chain->rbnext->rbnext->resval.rint, 3);
  EXPECT_EQ(chain->rbnext->rbnext->rbnext, nullptr);
}

TEST(Resbuf, ReleasingNothingIsAnError) { EXPECT_EQ(acutRelRb(nullptr), RTERROR); }

TEST(Resbuf, NestedListsConvertBothWays) {
  const LispValue list =
      LispValue::List({LispValue::Integer(1), LispValue::String(L"二"),
                       LispValue::List({LispValue::Real(3.5), LispValue::True()})});
  const Chain chain(ToResbuf(list));
  EXPECT_EQ(Printed(FromResbuf(chain.get())), Printed(list));
}

TEST(Resbuf, NilIsOneNode) {
  const Chain chain(ToResbuf(LispValue::Nil()));
  EXPECT_EQ(chain->restype, RTNIL);
  EXPECT_EQ(chain->rbnext, nullptr);
  EXPECT_TRUE(FromResbuf(nullptr).IsNil());
}

TEST(Resbuf, LargeIntegersBecomeLongs) {
  const Chain small(ToResbuf(LispValue::Integer(32767))),
      large(ToResbuf(LispValue::Integer(40000)));
  EXPECT_EQ(small->restype, RTSHORT);
  EXPECT_EQ(large->restype, RTLONG);
  EXPECT_EQ(large->resval.rlong, 40000);
}
