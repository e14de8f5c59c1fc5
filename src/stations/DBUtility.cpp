#include "stations/DBUtility.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <system_error>

#include "text/TextRules.h"

namespace zg {
namespace {

struct Limit {
  int id;
  int value;
};

// Far above what the program's own statements and rows need, far below what a file made to do harm
// would like.
constexpr std::array<Limit, 10> Limits{{
    {SQLITE_LIMIT_LENGTH, 1'000'000},
    {SQLITE_LIMIT_SQL_LENGTH, 10'000},
    {SQLITE_LIMIT_COLUMN, 64},
    {SQLITE_LIMIT_EXPR_DEPTH, 50},
    {SQLITE_LIMIT_COMPOUND_SELECT, 5},
    {SQLITE_LIMIT_VDBE_OP, 25'000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},
    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 100},
    {SQLITE_LIMIT_VARIABLE_NUMBER, 64},
}};

// Switches of a connection: a double-quoted name is never taken for a text, and nothing that is
// stored in the file (triggers, views, functions in the schema) is run.
constexpr std::array<Limit, 6> Switches{{
    {SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_DQS_DML, 0},
    {SQLITE_DBCONFIG_DQS_DDL, 0},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
}};

char LowerCase(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool EqualNames(std::string_view a, std::string_view b) noexcept {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

// An identifier in SQL. No name of a table or column here holds a quote.
std::string Quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

// The table of "select * from <table>"; empty for any other query.
std::string_view TableOf(std::string_view query) noexcept {
  constexpr std::string_view Start = "select * from ";
  if (!EqualNames(query.substr(0, Start.size()), Start)) return {};
  const std::string_view table = query.substr(Start.size());
  const bool plain = std::all_of(table.begin(), table.end(), [](char c) {
    return IsDigit(c) || (LowerCase(c) >= 'a' && LowerCase(c) <= 'z');
  });
  return plain ? table : std::string_view();
}

int BindValue(sqlite3_stmt* statement, int place, const FieldValue& value) noexcept {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    return sqlite3_bind_int64(statement, place, *whole);
  }
  if (const auto* number = std::get_if<double>(&value)) {
    return sqlite3_bind_double(statement, place, *number);
  }
  if (const auto* text = std::get_if<std::string>(&value)) {
    // The value outlives the run of the statement, so that no copy is needed.
    return sqlite3_bind_text64(statement, place, text->data(), text->size(), SQLITE_STATIC,
                               SQLITE_UTF8);
  }
  return sqlite3_bind_null(statement, place);
}

}  // namespace

bool IsRowRefused(std::int16_t error) noexcept {
  return error == SQLITE_CONSTRAINT || error == SQLITE_MISMATCH || error == SQLITE_TOOBIG;
}

// --- RowView -------------------------------------------------------------------------------------

bool RowView::IsNull(int column) const noexcept {
  return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int64_t RowView::Integer(int column) const noexcept {
  return sqlite3_column_int64(statement_, column);
}

std::string_view RowView::Text(int column) const noexcept {
  const unsigned char* text = sqlite3_column_text(statement_, column);
  if (text == nullptr) return {};
  return {reinterpret_cast<const char*>(text),
          static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

std::optional<double> RowView::Number(int column) const noexcept {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_, column);
    case SQLITE_TEXT:
      return StrictNumber(Text(column));
    default:
      return std::nullopt;
  }
}

FieldValue RowView::Value(int column) const {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
      return sqlite3_column_int64(statement_, column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_, column);
    case SQLITE_NULL:
      return {};
    default:
      return std::string(Text(column));
  }
}

// --- Recordset -----------------------------------------------------------------------------------

void Recordset::Finalize::operator()(sqlite3_stmt* statement) const noexcept {
  sqlite3_finalize(statement);
}

std::size_t Recordset::Column(std::string_view name) const noexcept {
  const auto found = std::find_if(columns_.begin(), columns_.end(),
                                  [&](const std::string& it) { return EqualNames(it, name); });
  return static_cast<std::size_t>(std::distance(columns_.begin(), found));
}

const FieldValue& Recordset::Field(std::string_view column) const noexcept {
  static const FieldValue Null;
  const std::size_t index = Column(column);
  if (AtEnd() || index >= columns_.size()) return Null;
  return rows_[current_].fields[index];
}

std::string Recordset::Text(std::string_view column) const {
  const FieldValue& value = Field(column);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return PlainDecimal(*number);
  return {};
}

std::optional<double> Recordset::Number(std::string_view column) const {
  const FieldValue& value = Field(column);
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* text = std::get_if<std::string>(&value)) return StrictNumber(*text);
  return std::nullopt;
}

bool Recordset::SetField(std::string_view column, FieldValue value) {
  const std::size_t index = Column(column);
  if (pending_ == Pending::None || index >= columns_.size()) return false;
  edited_[index] = std::move(value);
  return true;
}

// --- DBUtility -----------------------------------------------------------------------------------

DBUtility::DBUtility(Prompt& prompt, int busyTimeoutMs)
    : prompt_(prompt), busyTimeoutMs_(busyTimeoutMs) {}

// A recordset may outlive its connection; sqlite3_close_v2 then waits for its statement.
DBUtility::~DBUtility() { sqlite3_close_v2(database_); }

bool DBUtility::Fail() {
  error_ = database_ != nullptr ? sqlite3_errmsg(database_) : "database not connected";
  return false;
}

bool DBUtility::Harden() {
  for (const Limit& limit : Limits) sqlite3_limit(database_, limit.id, limit.value);
  for (const Limit& item : Switches) {
    if (sqlite3_db_config(database_, item.id, item.value, nullptr) != SQLITE_OK) return Fail();
  }
  sqlite3_busy_timeout(database_, busyTimeoutMs_);
  return Query("pragma cell_size_check = on") && Query("pragma temp_store = memory");
}

bool DBUtility::ReadVersion(int& version) {
  return ReadRows("pragma user_version",
                  [&](const RowView& row) { version = static_cast<int>(row.Integer(0)); });
}

bool DBUtility::Open(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    error_ = std::generic_category().message(errno);
    return false;
  }
  if (!S_ISREG(status.st_mode)) {
    error_ = "not a file";
    return false;
  }
  // Without the flag to create, a file that vanishes meanwhile is an error too.
  constexpr int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  if (sqlite3_open_v2(path.c_str(), &database_, Flags, nullptr) != SQLITE_OK) return Fail();
  int version = 0;
  if (!Harden() || !ReadVersion(version)) return false;
  if (version != DatabaseVersion) {
    error_ = "not a station database of this program";
    return false;
  }
  return true;
}

bool DBUtility::ConnectDatabase(const std::string& DataBaseName) {
  sqlite3_close_v2(std::exchange(database_, nullptr));
  if (Open(DataBaseName)) return true;
  error_ = DataBaseName + ": " + error_;
  sqlite3_close_v2(std::exchange(database_, nullptr));
  prompt_.Show(Prompt::Icon::None, error_);
  return false;
}

bool DBUtility::CheckDatabase() {
  std::string finding;
  const bool read = ReadRows("pragma quick_check(1)",
                             [&](const RowView& row) { finding = std::string(row.Text(0)); });
  if (read && finding == "ok") return true;
  if (read) error_ = finding;
  prompt_.Show(Prompt::Icon::None, error_);
  return false;
}

Recordset::Statement DBUtility::Prepare(std::string_view query) {
  sqlite3_stmt* statement = nullptr;
  if (database_ == nullptr ||
      sqlite3_prepare_v2(database_, query.data(), static_cast<int>(query.size()), &statement,
                         nullptr) != SQLITE_OK) {
    Fail();
  } else if (statement == nullptr) {
    error_ = "empty statement";
  }
  return Recordset::Statement(statement);
}

template <typename Values>
bool DBUtility::Bind(sqlite3_stmt* statement, const Values& values) {
  int place = 0;
  for (const FieldValue& value : values) {
    if (BindValue(statement, ++place, value) != SQLITE_OK) return Fail();
  }
  return true;
}

bool DBUtility::Run(sqlite3_stmt* statement) {
  int result = SQLITE_ROW;
  while (result == SQLITE_ROW) result = sqlite3_step(statement);
  if (result != SQLITE_DONE) Fail();
  sqlite3_reset(statement);
  return result == SQLITE_DONE;
}

bool DBUtility::ReadRows(std::string_view query, const std::function<void(const RowView&)>& use,
                         Bindings bindings) {
  const Recordset::Statement statement = Prepare(query);
  if (!statement || !Bind(statement.get(), bindings)) return false;
  const RowView row(statement.get());
  int result = SQLITE_ROW;
  while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) use(row);
  return result == SQLITE_DONE || Fail();
}

std::optional<Recordset> DBUtility::OpenRecord(std::string_view Query, Bindings bindings) {
  Recordset record;
  record.table_ = TableOf(Query);
  const bool writable = !record.table_.empty();
  // A set that can be written carries the rowid of each row in front of its columns.
  const std::string query =
      writable ? "select rowid, * from " + Quoted(record.table_) : std::string(Query);
  const int first = writable ? 1 : 0;

  const Recordset::Statement statement = Prepare(query);
  if (!statement || !Bind(statement.get(), bindings)) return std::nullopt;
  const int count = sqlite3_column_count(statement.get());
  for (int i = first; i < count; ++i) {
    record.columns_.emplace_back(sqlite3_column_name(statement.get(), i));
  }
  const RowView view(statement.get());
  int result = SQLITE_ROW;
  while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
    Recordset::Row& row = record.rows_.emplace_back();
    row.id = writable ? view.Integer(0) : 0;
    row.fields.reserve(record.columns_.size());
    for (int i = first; i < count; ++i) row.fields.push_back(view.Value(i));
  }
  if (result != SQLITE_DONE) {
    Fail();
    return std::nullopt;
  }
  return record;
}

void DBUtility::AddNewRecord(Recordset& record) {
  if (record.table_.empty()) return;
  record.pending_ = Recordset::Pending::AddNew;
  record.edited_.assign(record.columns_.size(), FieldValue());
}

void DBUtility::EditRecord(Recordset& record) {
  if (record.table_.empty() || record.AtEnd()) return;
  record.pending_ = Recordset::Pending::Edit;
  record.edited_ = record.rows_[record.current_].fields;
}

std::int16_t DBUtility::UpdateRecord(Recordset& record) {
  // Only the low byte of SQLite's extended codes tells the kind of error.
  const auto errorNumber = [this] {
    Fail();
    const int code = database_ != nullptr ? sqlite3_errcode(database_) & 0xFF : SQLITE_MISUSE;
    return static_cast<std::int16_t>(code != SQLITE_OK ? code : SQLITE_MISUSE);
  };
  if (record.pending_ == Recordset::Pending::None) return SQLITE_MISUSE;

  Recordset::Statement edit;
  const bool isNew = record.pending_ == Recordset::Pending::AddNew;
  Recordset::Statement& statement = isNew ? record.insert_ : edit;
  if (!statement) {
    std::string names;
    std::string places;
    for (const std::string& column : record.columns_) {
      names += (names.empty() ? "" : ", ") + Quoted(column);
      places += places.empty() ? "?" : ", ?";
    }
    const std::string table = Quoted(record.table_);
    statement = Prepare(isNew ? "insert into " + table + " (" + names + ") values (" + places + ")"
                              : "update " + table + " set (" + names + ") = (" + places +
                                    ") where rowid = ?");
    if (!statement) return errorNumber();
  }
  if (!Bind(statement.get(), record.edited_)) return errorNumber();
  if (!isNew) {
    const auto place = static_cast<int>(record.columns_.size()) + 1;
    if (BindValue(statement.get(), place, record.rows_[record.current_].id) != SQLITE_OK) {
      return errorNumber();
    }
  }
  if (!Run(statement.get())) return errorNumber();
  sqlite3_clear_bindings(statement.get());
  if (!isNew) record.rows_[record.current_].fields = std::move(record.edited_);
  record.edited_.clear();
  record.pending_ = Recordset::Pending::None;
  return 0;
}

void DBUtility::DeleteRecord(Recordset& record) {
  if (record.table_.empty() || record.AtEnd()) return;
  if (!Query("delete from " + Quoted(record.table_) + " where rowid = ?",
             {record.rows_[record.current_].id})) {
    return;
  }
  record.rows_.erase(record.rows_.begin() + static_cast<std::ptrdiff_t>(record.current_));
  record.pending_ = Recordset::Pending::None;
}

std::int32_t DBUtility::GetRecordCount(const Recordset& record) const noexcept {
  return static_cast<std::int32_t>(record.rows_.size());
}

void DBUtility::MoveFirstRecord(Recordset& record) const noexcept {
  record.current_ = 0;
  record.pending_ = Recordset::Pending::None;
}

void DBUtility::MoveLastRecord(Recordset& record) const noexcept {
  record.current_ = record.rows_.empty() ? 0 : record.rows_.size() - 1;
  record.pending_ = Recordset::Pending::None;
}

void DBUtility::MoveNextRecord(Recordset& record) const noexcept {
  if (!record.AtEnd()) ++record.current_;
  record.pending_ = Recordset::Pending::None;
}

void DBUtility::MovePrevRecord(Recordset& record) const noexcept {
  if (record.current_ > 0) --record.current_;
  record.pending_ = Recordset::Pending::None;
}

bool DBUtility::Query(std::string_view query, Bindings bindings) {
  const Recordset::Statement statement = Prepare(query);
  return statement && Bind(statement.get(), bindings) && Run(statement.get());
}

}  // namespace zg
