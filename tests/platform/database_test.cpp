#include "platform/database/database.h"

#include <gtest/gtest.h>

#include "support/fault_of.h"

namespace tagwright {
namespace {

bool IsRefused(const std::string& source) {
  return FaultOf([&] { TableOfSource(source); }) == kDatabaseFault;
}

TEST(TableOfSourceTest, TakesLettersDigitsAndUnderscores) {
  for (const char* name :
       {"Orders", "a", "_", "Table_1", "x9", "Umsätze", "Straße", "Заказы", "注文", "Ωmega"}) {
    EXPECT_EQ(TableOfSource(std::string("SELECT * FROM ") + name), name);
  }
}

TEST(TableOfSourceTest, RefusesANameThatWouldNeedQuotes) {
  for (const char* name :
       {"Order Details", "19 MB", "1st", "a-b", "a.b", "[Orders]", "'Orders'", "Orders;",
        "Orders WHERE 1=1", "What?", "a×b", "a€", "“a”", "a\tb", " Orders", "Orders "}) {
    EXPECT_TRUE(IsRefused(std::string("SELECT * FROM ") + name)) << name;
  }
  EXPECT_TRUE(IsRefused(std::string("SELECT * FROM a\0b", 17)));
}

TEST(TableOfSourceTest, RefusesEveryOtherSource) {
  for (const char* source :
       {"", "Orders", "SELECT * FROM ", "SELECT * FROM", "select * from Orders",
        "SELECT Id FROM Orders", "SELECT  * FROM Orders", "DELETE * FROM Orders"}) {
    EXPECT_TRUE(IsRefused(source)) << source;
  }
}

}  // namespace
}  // namespace tagwright
