#include <gtest/gtest.h>

#include "gateway/gateway.h"

namespace store {
namespace {

TEST(Splice, PutsValuesInAsTheyAreAndNeverTwice) {
  EXPECT_EQ(Splice("A = '{0}' AND B = {1} OR C = '{0}'", {"o'neil", "3"}),
            "A = 'o'neil' AND B = 3 OR C = 'o'neil'");
  EXPECT_EQ(Splice("{0}{1}", {"{1}", "{0}"}), "{1}{0}");
  EXPECT_EQ(Splice("{10}{1}", {"a", "b", "", "", "", "", "", "", "", "", "k"}), "kb");
  EXPECT_EQ(Splice("{2} {x} {", {"a"}), "{2} {x} {");
}

TEST(BuildConnectString, JoinsItsPartsAsTheDriverReadsThem) {
  BuildConnectString("127.0.0.1;PORT=33061", "kt", "demo");
  EXPECT_EQ(ConnectString,
            "DRIVER={MySQL ODBC 3.51 Driver};SERVER=127.0.0.1;PORT=33061;DATABASE=demo;UID=kt;"
            "PWD=qz4471;OPTION=16386");
}

}  // namespace
}  // namespace store
