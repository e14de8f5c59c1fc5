#include "batch/JsonWriter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace zg {
namespace {

TEST(JsonWriter, Texts) {
  struct Row {
    const char* name;
    std::string_view text;
    const char* json;
  };
  using namespace std::string_view_literals;
  const Row rows[] = {
      {"empty", "", R"("")"},
      {"plain", "METAR LIRF=", R"("METAR LIRF=")"},
      {"quote", R"(a"b)", R"("a\"b")"},
      {"backslash", R"(a\b)", R"("a\\b")"},
      {"solidus stays", "18/12", R"("18/12")"},
      {"line ends", "a\r\nb", R"("a\r\nb")"},
      {"tab", "a\tb", R"("a\tb")"},
      {"other control characters", "\x01\x0B\x1F", R"("\u0001\u000b\u001f")"},
      {"nought", "a\0b"sv, R"("a\u0000b")"},
      {"delete stays", "\x7F", "\"\x7F\""},
      {"UTF-8 stays", "18 \xC2\xB0\x43", "\"18 \xC2\xB0\x43\""},
      {"at both ends", "\"x\"", R"("\"x\"")"},
  };
  for (const Row& row : rows) {
    std::string out;
    JsonWriter(out).Text(row.text);
    EXPECT_EQ(out, row.json) << row.name;
  }
}

TEST(JsonWriter, Floats) {
  struct Row {
    float value;
    const char* json;
  };
  const Row rows[] = {
      {0, "0"},
      {12.3f, "12.3"},
      {-5, "-5"},
      {1013.2f, "1013.2"},
      {0.1f, "0.1"},
      {-0.5f, "-0.5"},
      {75, "75"},
      {1.0f / 3, "0.33333334"},
      {418, "418"},
      {122.333336f, "122.333336"},
      {16777216.0f, "16777216"},
      {std::numeric_limits<float>::lowest(), "-3.4028235e+38"},
      {std::numeric_limits<float>::infinity(), "null"},
      {std::numeric_limits<float>::quiet_NaN(), "null"},
  };
  for (const Row& row : rows) {
    std::string out;
    JsonWriter(out).Number(row.value);
    EXPECT_EQ(out, row.json);
  }
}

TEST(JsonWriter, WholeNumbers) {
  std::string out;
  JsonWriter json(out);
  json.BeginArray();
  json.Number(0);
  json.Number(-1);
  json.Number(std::uint8_t{255});
  json.Number(std::int16_t{32767});
  json.Number(std::numeric_limits<std::int32_t>::min());
  json.Number(std::numeric_limits<std::uint32_t>::max());
  json.Number(std::numeric_limits<std::int64_t>::min());
  json.EndArray();
  EXPECT_EQ(out, "[0,-1,255,32767,-2147483648,4294967295,-9223372036854775808]");
}

TEST(JsonWriter, Structure) {
  std::string out;
  JsonWriter json(out);
  for (int line = 0; line < 2; ++line) {
    json.BeginObject();
    json.Key("a");
    json.Number(line);
    json.Key("b");
    json.BeginObject();
    json.EndObject();
    json.Key("c");
    json.BeginArray();
    json.BeginArray();
    json.EndArray();
    json.Text("x");
    json.Null();
    json.BeginObject();
    json.Key("d");
    json.Boolean(true);
    json.Key("e", 3);
    json.Boolean(false);
    json.EndObject();
    json.EndArray();
    json.Key("f");
    json.Null();
    json.EndObject();
    json.EndLine();
  }
  EXPECT_EQ(out,
            "{\"a\":0,\"b\":{},\"c\":[[],\"x\",null,{\"d\":true,\"e3\":false}],\"f\":null}\n"
            "{\"a\":1,\"b\":{},\"c\":[[],\"x\",null,{\"d\":true,\"e3\":false}],\"f\":null}\n");
}

}  // namespace
}  // namespace zg
