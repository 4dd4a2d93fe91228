#include <gtest/gtest.h>

#include "dictionary/Application.h"

namespace {

TEST(ApplicationName, EmptyOneClearsAGivenVersionToo) {
  tsx::Application application;
  application.Set("App", "1");
  application.Set("", "2");
  EXPECT_EQ(application.name(), "");
  EXPECT_EQ(application.version(), "");
}

}  // namespace
