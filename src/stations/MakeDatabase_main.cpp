// Makes the shipped "ICAOData.mdb": the tables of a schema file, and "ShipCountry" filled from a
// list of call sign series. Runs when the program is built.
//
//     zgmakedb SCHEMA.sql SHIP_COUNTRY.csv OUTPUT
//
// The list has the heading line "StartIndex,Country"; a country that holds a comma or a quote
// stands in quotes, quotes in it doubled. The output is replaced only when all went well.
#include <sqlite3.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "shell/AtomicFile.h"
#include "shell/FileText.h"
#include "text/TextRules.h"

namespace {

constexpr std::string_view Heading = "StartIndex,Country";

struct Series {
  std::int64_t StartIndex;
  std::string Country;
};

// The content of a CSV field: as it stands, or without its quotes.
std::optional<std::string> Unquote(std::string_view field) {
  if (!field.starts_with('"')) return std::string(field);
  if (field.size() < 2 || !field.ends_with('"')) return std::nullopt;
  return zg::ReplaceAll(field.substr(1, field.size() - 2), "\"\"", "\"");
}

std::optional<Series> ParseSeries(std::string_view line) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos || !zg::IsDigits(line.substr(0, comma))) return std::nullopt;
  const auto start = zg::StrictInteger<std::int32_t>(line.substr(0, comma));
  auto country = Unquote(line.substr(comma + 1));
  if (!start || !country) return std::nullopt;
  return Series{*start, std::move(*country)};
}

// A database in memory, with what went wrong in it.
class Database {
 public:
  Database() { Check(sqlite3_open(":memory:", &handle_)); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database() { sqlite3_close(handle_); }

  bool Run(const std::string& sql) {
    return Check(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr));
  }

  bool Insert(const Series& series) {
    sqlite3_stmt* statement = nullptr;
    constexpr const char* Sql = "insert into ShipCountry (StartIndex, Country) values (?, ?)";
    if (!Check(sqlite3_prepare_v2(handle_, Sql, -1, &statement, nullptr))) return false;
    sqlite3_bind_int64(statement, 1, series.StartIndex);
    sqlite3_bind_text64(statement, 2, series.Country.data(), series.Country.size(), SQLITE_STATIC,
                        SQLITE_UTF8);
    sqlite3_step(statement);
    return Check(sqlite3_finalize(statement));
  }

  // The database as the bytes of its file.
  std::string Bytes() {
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, void (*)(void*)> image(
        sqlite3_serialize(handle_, "main", &size, 0), sqlite3_free);
    if (!image) return {};
    return {reinterpret_cast<const char*>(image.get()), static_cast<std::size_t>(size)};
  }

  const std::string& Error() const { return error_; }

 private:
  bool Check(int result) {
    if (result != SQLITE_OK) error_ = sqlite3_errmsg(handle_);
    return result == SQLITE_OK;
  }

  sqlite3* handle_ = nullptr;
  std::string error_;
};

int Fail(const std::string& reason) {
  std::fprintf(stderr, "zgmakedb: %s\n", reason.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: zgmakedb SCHEMA.sql SHIP_COUNTRY.csv OUTPUT\n", stderr);
    return 2;
  }
  const std::string listName = argv[2];
  const zg::FileBytes schema = zg::ReadFileBytes(argv[1]);
  const zg::TextLines list = zg::ReadTextLines(listName);
  if (!schema.Ok()) return Fail(schema.Error);
  if (!list.Ok()) return Fail(list.Error);
  if (list.Lines.empty() || list.Lines[0] != Heading) return Fail(listName + ": no heading line");

  Database database;
  if (!database.Run(schema.Bytes)) return Fail(std::string(argv[1]) + ": " + database.Error());
  for (std::size_t i = 1; i < list.Lines.size(); ++i) {
    const std::optional<Series> series = ParseSeries(list.Lines[i]);
    if (!series) return Fail(listName + ", line " + std::to_string(i + 1) + ": no series");
    if (!database.Insert(*series)) return Fail(listName + ": " + database.Error());
  }
  const std::string bytes = database.Bytes();
  if (bytes.empty()) return Fail("no memory");
  zg::AtomicFile file(argv[3]);
  file.Write(bytes);
  return file.Commit() ? 0 : Fail(file.Error());
}
