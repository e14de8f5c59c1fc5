// A database file for tests: the shipped schema with rows of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

#include "shell/TestSupport.h"

namespace zg::test {

// Runs SQL on a file, which is made if it is not there.
inline void RunSql(const std::string& path, const std::string& sql) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
      << sqlite3_errmsg(database);
  sqlite3_close(database);
}

inline void MakeDatabase(const std::string& path, const std::string& rows = "") {
  RunSql(path, ReadTestFile(std::string(ZG_SOURCE_DIR) + "/data/schema.sql") + "begin;" + rows +
                   "commit;");
}

}  // namespace zg::test
