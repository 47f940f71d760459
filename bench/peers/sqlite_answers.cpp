#include "sqlite_answers.h"

#include "../family.h"

namespace mqp::bench {
namespace {

void Bind(sqlite3_stmt* statement, const SqliteAnswers::Key& key) {
  int place = 0;
  for (const int part : key) {
    sqlite3_bind_int(statement, ++place, part);
  }
}

sqlite3_stmt* Prepare(sqlite3* database, const char* text) {
  sqlite3_stmt* statement = nullptr;
  RequireSame(sqlite3_prepare_v2(database, text, -1, &statement, nullptr) == SQLITE_OK, text);
  return statement;
}

}  // namespace

SqliteAnswers::SqliteAnswers(const std::map<Key, int>& answers) {
  sqlite3_open(":memory:", &m_database);
  sqlite3_exec(
      m_database,
      "CREATE TABLE answers(a INT, b INT, c INT, d INT, e INT, f INT, g INT, h INT, answer INT, "
      "PRIMARY KEY(a, b, c, d, e, f, g, h)) WITHOUT ROWID; BEGIN",
      nullptr, nullptr, nullptr);
  sqlite3_stmt* insert =
      Prepare(m_database, "INSERT INTO answers VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?)");
  for (const auto& [key, answer] : answers) {
    Bind(insert, key);
    sqlite3_bind_int(insert, 9, answer);
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
  sqlite3_exec(m_database, "COMMIT", nullptr, nullptr, nullptr);
  m_query = Prepare(m_database,
                    "SELECT answer FROM answers WHERE a = ? AND b = ? AND c = ? AND d = ? "
                    "AND e = ? AND f = ? AND g = ? AND h = ?");
}

SqliteAnswers::~SqliteAnswers() {
  sqlite3_finalize(m_query);
  sqlite3_close(m_database);
}

int SqliteAnswers::Find(const Key& key) const {
  Bind(m_query, key);
  const int answer = sqlite3_step(m_query) == SQLITE_ROW ? sqlite3_column_int(m_query, 0) : 0;
  sqlite3_reset(m_query);
  return answer;
}

}  // namespace mqp::bench
