// The vector files that ship with the program: whether they can be drawn, and lie where they
// should.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace zg {
namespace {

constexpr std::size_t kRecordSize = 6;
constexpr int kLongestStep = 6;  // minutes: 5, and one for the rounding of both ends

struct Point {
  int code;
  int lat;  // minutes, north positive
  int lon;  // minutes, east positive
};

std::string ReadFile(const std::string& name) {
  std::ifstream file(std::string(ZG_SOURCE_DIR "/data/maps/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int Read16(const std::string& bytes, std::size_t offset) {
  const auto low = static_cast<std::uint8_t>(bytes[offset]);
  const auto high = static_cast<std::uint8_t>(bytes[offset + 1]);
  return std::bit_cast<std::int16_t>(static_cast<std::uint16_t>(low | high << 8));
}

std::vector<Point> ReadPoints(const std::string& name) {
  const std::string bytes = ReadFile(name);
  std::vector<Point> points;
  for (std::size_t i = 0; i + kRecordSize <= bytes.size(); i += kRecordSize) {
    points.push_back({Read16(bytes, i), Read16(bytes, i + 2), Read16(bytes, i + 4)});
  }
  return points;
}

bool BeginsLine(const Point& point) { return point.code > 1000; }

class MapVectorData : public testing::TestWithParam<const char*> {};

TEST_P(MapVectorData, IsWholeRecords) {
  const std::string bytes = ReadFile(GetParam());
  ASSERT_GT(bytes.size(), 100'000u);
  EXPECT_EQ(bytes.size() % kRecordSize, 0u);
}

TEST_P(MapVectorData, LinesBeginAndGoOn) {
  const std::vector<Point> points = ReadPoints(GetParam());
  ASSERT_FALSE(points.empty());
  EXPECT_TRUE(BeginsLine(points.front()));
  EXPECT_FALSE(BeginsLine(points.back()));
  bool lastBegan = false;
  for (std::size_t i = 0; i < points.size(); ++i) {
    ASSERT_GE(points[i].code, 1) << "record " << i;
    ASSERT_FALSE(lastBegan && BeginsLine(points[i])) << "a line of one point, record " << i;
    lastBegan = BeginsLine(points[i]);
  }
}

TEST_P(MapVectorData, PositionsAreOnEarth) {
  for (const Point& point : ReadPoints(GetParam())) {
    ASSERT_LE(std::abs(point.lat), 90 * 60);
    ASSERT_LE(std::abs(point.lon), 180 * 60);
  }
}

// A step between two points outside of a zoomed map is not drawn, even if it crosses the map: steps
// have to be shorter than the margin of the smallest one.
TEST_P(MapVectorData, StepsAreShort) {
  const std::vector<Point> points = ReadPoints(GetParam());
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (BeginsLine(points[i])) continue;
    const int lat = std::abs(points[i].lat - points[i - 1].lat);
    const int lon = std::abs(points[i].lon - points[i - 1].lon);
    ASSERT_LE(std::max(lat, lon), kLongestStep) << "record " << i;
    ASSERT_GT(std::max(lat, lon), 0) << "record " << i;
  }
}

// Polygons of the source end at the date line and the poles; nothing on earth runs along there.
TEST_P(MapVectorData, NothingRunsAlongTheEdgeOfTheWorld) {
  const std::vector<Point> points = ReadPoints(GetParam());
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (BeginsLine(points[i])) continue;
    const Point &from = points[i - 1], &to = points[i];
    ASSERT_FALSE(std::abs(from.lat) == 90 * 60 && std::abs(to.lat) == 90 * 60) << "record " << i;
    ASSERT_FALSE(std::abs(from.lon) == 180 * 60 && std::abs(to.lon) == 180 * 60) << "record " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, MapVectorData,
                         testing::Values("Coast.pnt", "Island.pnt", "Country.pnt", "State.pnt",
                                         "Lake.pnt", "River.pnt"),
                         [](const auto& param) {
                           const std::string name = param.param;
                           return name.substr(0, name.find('.'));
                         });

struct Place {
  const char* name;
  const char* file;
  int south, west, north, east;  // degrees
  bool crossed;                  // whether a line of the file has a point inside
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }

class MapVectorPlaces : public testing::TestWithParam<Place> {};

TEST_P(MapVectorPlaces, LinesLieWhereTheyShould) {
  const Place& place = GetParam();
  const std::vector<Point> points = ReadPoints(place.file);
  const bool crossed = std::ranges::any_of(points, [&](const Point& point) {
    return point.lat > place.south * 60 && point.lat < place.north * 60 &&
           point.lon > place.west * 60 && point.lon < place.east * 60;
  });
  EXPECT_EQ(crossed, place.crossed);
}

INSTANTIATE_TEST_SUITE_P(
    Places, MapVectorPlaces,
    testing::Values(Place{"Otranto", "Coast.pnt", 40, 18, 41, 19, true},
                    Place{"CapeHorn", "Island.pnt", -56, -68, -55, -67, true},
                    Place{"BarrowAlaska", "Coast.pnt", 71, -158, 72, -155, true},
                    Place{"RossSea", "Coast.pnt", -79, 160, -72, 172, true},
                    Place{"MidAtlantic", "Coast.pnt", 0, -34, 60, -19, false},
                    Place{"Sahara", "Coast.pnt", 18, -5, 28, 28, false},
                    Place{"Sicily", "Island.pnt", 37, 12, 38, 16, true},
                    Place{"SaintHelena", "Island.pnt", -17, -6, -15, -5, true},
                    Place{"SaharaIslands", "Island.pnt", 18, -5, 28, 28, false},
                    Place{"Brenner", "Country.pnt", 46, 11, 48, 12, true},
                    Place{"Parallel49", "Country.pnt", 48, -106, 50, -105, true},
                    Place{"Pacific", "Country.pnt", -40, -160, 40, -130, false},
                    Place{"KansasColorado", "State.pnt", 38, -103, 39, -102, true},
                    Place{"Tuscany", "State.pnt", 43, 11, 44, 13, true},
                    Place{"FourCorners", "State.pnt", 36, -110, 38, -108, true},
                    Place{"Libya", "State.pnt", 24, 12, 30, 24, false},
                    Place{"Garda", "Lake.pnt", 45, 10, 46, 11, true},
                    Place{"Caspian", "Lake.pnt", 40, 49, 42, 51, true},
                    Place{"Superior", "Lake.pnt", 46, -92, 49, -84, true},
                    Place{"Sardinia", "Lake.pnt", 38, 7, 39, 8, false},
                    Place{"Po", "River.pnt", 44, 9, 46, 13, true},
                    Place{"Nile", "River.pnt", 24, 32, 26, 34, true},
                    Place{"Antarctica", "River.pnt", -90, -180, -60, 180, false}),
    [](const auto& param) { return std::string(param.param.name); });

}  // namespace
}  // namespace zg
