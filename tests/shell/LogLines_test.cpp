#include "shell/LogLines.h"

#include <gtest/gtest.h>

#include <string>

namespace zg {
namespace {

TEST(LogLines, EntryIsDateTimeAndText) {
  LogLines log;
  EXPECT_TRUE(log.Add("2026-01-02 03:04:05", "Ready"));
  ASSERT_EQ(log.Lines().size(), 1u);
  EXPECT_EQ(log.Lines()[0], "2026-01-02 03:04:05 - Ready");
}

TEST(LogLines, The1001stRemovesTheOldest) {
  LogLines log;
  for (int i = 1; i <= 1000; ++i) log.Add("2026-01-02 03:04:05", std::to_string(i));
  EXPECT_EQ(log.Lines().size(), 1000u);
  EXPECT_EQ(log.Gone(), 0u);
  log.Add("2026-01-02 03:04:05", "1001");
  EXPECT_EQ(log.Lines().size(), 1000u);
  EXPECT_EQ(log.Lines().front(), "2026-01-02 03:04:05 - 2");
  EXPECT_EQ(log.Lines().back(), "2026-01-02 03:04:05 - 1001");
  EXPECT_EQ(log.Gone(), 1u);
}

TEST(LogLines, TheSameInTheSameSecondStandsOnce) {
  LogLines log;
  EXPECT_TRUE(log.Add("2026-01-02 03:04:05", "Waiting"));
  EXPECT_TRUE(log.Add("2026-01-02 03:04:05", "Other"));
  EXPECT_FALSE(log.Add("2026-01-02 03:04:05", "Waiting"));
  EXPECT_TRUE(log.Add("2026-01-02 03:04:06", "Waiting"));
  EXPECT_EQ(log.Lines().size(), 3u);
}

TEST(LogLines, BlanksAtTheEndsGo) {
  LogLines log;
  log.Add("2026-01-02 03:04:05", "Building ...  ");
  EXPECT_EQ(log.Lines()[0], "2026-01-02 03:04:05 - Building ...");
  EXPECT_FALSE(log.Add("2026-01-02 03:04:05", "Building ..."));
}

}  // namespace
}  // namespace zg
