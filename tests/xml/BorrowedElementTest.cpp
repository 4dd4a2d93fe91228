#include <gtest/gtest.h>

#include "support/FailingAllocation.h"
#include "support/ScopedLocale.h"
#include "xml/BorrowedElement.h"
#include "xml/Text.h"

namespace {

// An element of a tree of its own, lent to another parent.
struct Loan {
  Loan() {
    lent->AddAttribute("a", "\xfc");
    test::AddText(*lent, "text");
    tsx::Append(*parent, tsx::Borrow(*lent));
    test::AddChild(*parent, "own");
  }
  test::ElementOwner lent = test::NewElement("lent");
  test::ElementOwner parent = test::NewElement("parent");
};

constexpr char kText[] = "\n<parent>\n\t<lent\n\t\ta=\"\xfc\">text</lent>\n\t<own/>\n</parent>";

TEST(BorrowedElement, IsWrittenInItsPlace) {
  const Loan loan;
  EXPECT_EQ(test::StringOf(*loan.parent), kText);
  EXPECT_EQ(test::StreamedTextOf(*loan.parent), kText);
}

TEST(BorrowedElement, IsConvertedWithTheRest) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");
  EXPECT_EQ(test::StreamedTextOf(*Loan().parent, false, true),
            "<parent><lent a=\"\xc3\xbc\">text</lent><own/></parent>");
}

TEST(BorrowedElement, OutlivesItsBorrower) {
  Loan loan;
  loan.parent.reset();
  EXPECT_EQ(test::StreamedTextOf(*loan.lent, false), "<lent a=\"\xfc\">text</lent>");
}

TEST(BorrowedElement, IsFreedOnceWithItsOwner) {
  const long before = test::LiveBlocks();
  { const Loan loan; }
  EXPECT_EQ(test::LiveBlocks(), before);
}

}  // namespace
