/// \file
/// Answers in a table of SQLite in memory, asked through one prepared statement.
#pragma once

#include <array>
#include <map>

#include <sqlite3.h>

namespace mqp::bench {

class SqliteAnswers {
 public:
  using Key = std::array<int, 8>;

  explicit SqliteAnswers(const std::map<Key, int>& answers);
  SqliteAnswers(const SqliteAnswers&) = delete;
  SqliteAnswers& operator=(const SqliteAnswers&) = delete;
  ~SqliteAnswers();

  [[nodiscard]] int Find(const Key& key) const;

 private:
  sqlite3* m_database = nullptr;
  sqlite3_stmt* m_query = nullptr;
};

}  // namespace mqp::bench
