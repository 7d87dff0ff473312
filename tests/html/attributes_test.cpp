#include "html/attributes.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Attributes, FileAddressHasSlashesOnly) {
  EXPECT_EQ(FileAddress("C:\\a\\b c.gif", false), "file:///C:/a/b c.gif");
  EXPECT_EQ(FileAddress("/home/jan/b.gif", false), "file:///home/jan/b.gif");
  EXPECT_EQ(FileAddress("b.gif", true), "b.gif");
  EXPECT_EQ(FileAddress("a\\b.gif", true), "a/b.gif");
  EXPECT_EQ(FileAddress("", true), "");
}

TEST(Attributes, TrimTakesBlanksOnly) {
  EXPECT_EQ(LeftTrimmed("  10% "), "10% ");
  EXPECT_EQ(LeftTrimmed("   "), "");
  EXPECT_EQ(Trimmed(" a b\t "), "a b\t");
  EXPECT_EQ(Trimmed("  "), "");
}

}  // namespace
}  // namespace pelmar
