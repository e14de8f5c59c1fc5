// Access to "ICAOData.mdb", a SQLite 3 database: one open connection, and result sets that one
// walks through. Values are always bound to a statement, never written into its text.
//
// The file may come from anywhere: it is opened without trust in what stands in it, and whatever is
// wrong with it ends in a message or in an empty result. A connection belongs to one thread.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "shell/Platform.h"

struct sqlite3;
struct sqlite3_stmt;

namespace zg {

// The version of the tables that this program works with (PRAGMA user_version of the file).
inline constexpr int DatabaseVersion = 1;

// A value of a column: NULL, whole number, floating-point number or UTF-8 text.
using FieldValue = std::variant<std::monostate, std::int64_t, double, std::string>;

// Values for the "?" of a statement, in their order.
using Bindings = std::initializer_list<FieldValue>;

// True if an error number of UpdateRecord is about that row alone (a unique key, a type, its size);
// any other (full disk, lock, damage) will meet every row.
bool IsRowRefused(std::int16_t error) noexcept;

// The row that a statement stands on. Columns count from 0; texts are valid during the call only.
class RowView {
 public:
  explicit RowView(sqlite3_stmt* statement) noexcept : statement_(statement) {}

  bool IsNull(int column) const noexcept;
  std::int64_t Integer(int column) const noexcept;
  // Empty for NULL. A number is written as SQLite writes it.
  std::string_view Text(int column) const noexcept;
  // Nothing for NULL and for a text that is no number.
  std::optional<double> Number(int column) const noexcept;
  FieldValue Value(int column) const;

 private:
  sqlite3_stmt* statement_;
};

// The rows of a query, read at once, and a position among them: on a row or behind the last. Column
// names are found in either case; one that is not there reads as NULL.
class Recordset {
 public:
  // True behind the last row, and in an empty set.
  bool AtEnd() const noexcept { return current_ >= rows_.size(); }

  // The current row. Text of NULL is empty.
  const FieldValue& Field(std::string_view column) const noexcept;
  std::string Text(std::string_view column) const;
  std::optional<double> Number(std::string_view column) const;

  // Writes a column of the row begun with AddNewRecord or EditRecord. False if there is no such row
  // or column.
  bool SetField(std::string_view column, FieldValue value);

 private:
  friend class DBUtility;
  enum class Pending { None, AddNew, Edit };
  struct Row {
    std::int64_t id;  // rowid, where the set can be written
    std::vector<FieldValue> fields;
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const noexcept;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

  std::size_t Column(std::string_view name) const noexcept;

  std::vector<std::string> columns_;
  std::vector<Row> rows_;
  std::size_t current_ = 0;
  std::string table_;  // the table that AddNew, Edit and Delete write to; empty: read only
  Pending pending_ = Pending::None;
  std::vector<FieldValue> edited_;
  Statement insert_;
};

class DBUtility {
 public:
  // A statement waits `busyTimeoutMs` for another connection's lock.
  explicit DBUtility(Prompt& prompt, int busyTimeoutMs = 2000);
  DBUtility(const DBUtility&) = delete;
  DBUtility& operator=(const DBUtility&) = delete;
  ~DBUtility();

  // Opens the file, which must exist and be a database of this program. A failure is told in a
  // plain message box and leaves the object unconnected: then every operation fails.
  bool ConnectDatabase(const std::string& DataBaseName);
  bool IsConnected() const noexcept { return database_ != nullptr; }

  // Reads the whole file and tests its structure. Takes some 10 ms: once at start-up. A failure is
  // told in a message box.
  bool CheckDatabase();

  // The rows of a query, standing on the first; nothing if the statement fails. A set of the form
  // "select * from <table>" can be written.
  std::optional<Recordset> OpenRecord(std::string_view Query, Bindings bindings = {});

  // Hands each row of a query to `use` without keeping them. False if the statement fails, also
  // after some rows.
  bool ReadRows(std::string_view query, const std::function<void(const RowView&)>& use,
                Bindings bindings = {});

  // Begins a new row, or the change of the current one; UpdateRecord completes it.
  void AddNewRecord(Recordset& record);
  void EditRecord(Recordset& record);
  // Writes the row begun. 0, or the error number; after an error the row stays begun. A new row is
  // not in the set: a later OpenRecord finds it.
  std::int16_t UpdateRecord(Recordset& record);
  // Deletes the current row; the set then stands on the next one.
  void DeleteRecord(Recordset& record);

  // Number of rows; the current row stays.
  std::int32_t GetRecordCount(const Recordset& record) const noexcept;

  void MoveFirstRecord(Recordset& record) const noexcept;
  void MoveLastRecord(Recordset& record) const noexcept;
  void MoveNextRecord(Recordset& record) const noexcept;
  // On the first row it stays there.
  void MovePrevRecord(Recordset& record) const noexcept;

  // Runs a statement that returns no rows; false if it fails.
  bool Query(std::string_view query, Bindings bindings = {});

  // What the last operation that failed has met, in English.
  const std::string& Error() const noexcept { return error_; }

 private:
  bool Open(const std::string& path);
  bool Harden();
  bool ReadVersion(int& version);
  bool Fail();
  Recordset::Statement Prepare(std::string_view query);
  template <typename Values>
  bool Bind(sqlite3_stmt* statement, const Values& values);
  bool Run(sqlite3_stmt* statement);

  Prompt& prompt_;
  int busyTimeoutMs_;
  sqlite3* database_ = nullptr;
  std::string error_;
};

}  // namespace zg
