#include "views/WorldOutline.h"

#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "shell/FileText.h"

namespace zg {
namespace {

constexpr std::size_t RecordSize = 6;
constexpr int LastContinuing = 1000;  // codes above begin a line

std::int16_t Number(std::string_view bytes, std::size_t offset) noexcept {
  const unsigned low = static_cast<unsigned char>(bytes[offset]);
  const unsigned high = static_cast<unsigned char>(bytes[offset + 1]);
  return static_cast<std::int16_t>(high << 8 | low);
}

bool IsNear(const OutlinePoint& a, const OutlinePoint& b, int step) noexcept {
  return std::abs(a.Lat - b.Lat) < step && std::abs(a.Long - b.Long) < step;
}

OutlineLine Thin(const OutlineLine& line, int step) {
  OutlineLine kept;
  for (const OutlinePoint& point : line) {
    if (kept.empty() || !IsNear(point, kept.back(), step)) kept.push_back(point);
  }
  // A line that ends where it began stays closed.
  if (kept.size() > 1 && kept.back() != line.back()) kept.push_back(line.back());
  return kept;
}

}  // namespace

std::vector<OutlineLine> ReadOutline(std::string_view bytes, int step) {
  std::vector<OutlineLine> lines;
  OutlineLine line;
  const auto finish = [&] {
    OutlineLine kept = Thin(line, step);
    if (kept.size() > 1) lines.push_back(std::move(kept));
    line.clear();
  };
  for (std::size_t at = 0; at + RecordSize <= bytes.size(); at += RecordSize) {
    const int code = Number(bytes, at);
    if (code < 1) continue;
    if (code > LastContinuing) finish();
    line.push_back({Number(bytes, at + 2), Number(bytes, at + 4)});
  }
  finish();
  return lines;
}

std::vector<OutlineLine> ReadWorldOutline(const std::string& applicationPath, int step) {
  std::vector<OutlineLine> lines;
  for (const char* name : {"Coast.pnt", "Island.pnt"}) {
    std::vector<OutlineLine> more = ReadOutline(ReadFileBytes(applicationPath + name).Bytes, step);
    lines.insert(lines.end(), std::make_move_iterator(more.begin()),
                 std::make_move_iterator(more.end()));
  }
  return lines;
}

}  // namespace zg
