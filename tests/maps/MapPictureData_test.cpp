// The pictures of the five maps that ship with the program: real bitmaps, in the proportions of the
// map windows, with land and sea where the bounds of each map put them.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

namespace zg {
namespace {

struct Colour {
  int red, green, blue;
};

// A bitmap of 256 colours without compression, bottom row first.
struct Bitmap {
  std::string bytes;

  explicit Bitmap(const std::string& name) {
    std::ifstream file(ZG_SOURCE_DIR "/data/maps/" + name, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  int Byte(std::size_t offset) const { return static_cast<std::uint8_t>(bytes.at(offset)); }
  int Read16(std::size_t offset) const { return Byte(offset) | Byte(offset + 1) << 8; }
  int Read32(std::size_t offset) const { return Read16(offset) | Read16(offset + 2) << 16; }
  int PixelsFrom() const { return Read32(10); }
  int Width() const { return Read32(18); }
  int Height() const { return Read32(22); }
  int RowLength() const { return (Width() + 3) / 4 * 4; }

  Colour At(int x, int y) const {
    const int pixel = PixelsFrom() + (Height() - 1 - y) * RowLength() + x;
    const int palette = 14 + Read32(14) + 4 * Byte(static_cast<std::size_t>(pixel));
    const auto entry = static_cast<std::size_t>(palette);
    return {Byte(entry + 2), Byte(entry + 1), Byte(entry)};
  }
};

struct MapPicture {
  const char* name;
  int outerWidth;                      // of the window, in twips
  double logicalWidth, logicalHeight;  // of its surface
  double top, left, bottom, right;     // bounds in degrees
};

constexpr MapPicture kItaly{"Italy", 9825, 6480, 3620, 47.5, 1.5, 34.0, 24.2};
constexpr MapPicture kEurope{"Europe", 8835, 5810, 5310, 71.5, -13.0, 32.4, 28.5};
constexpr MapPicture kWorld{"World", 10920, 7210, 4070, 91.8, -159.2, -100.8, 164.8};
constexpr MapPicture kUsa{"Usa", 9690, 6400, 4800, 59.3, -128.9, 13.6, -70.8};
constexpr MapPicture kGB{"GB", 9300, 6130, 4730, 60.3, -11.4, 48.9, 3.0};

void PrintTo(const MapPicture& map, std::ostream* out) { *out << map.name; }

class MapPictureData : public testing::TestWithParam<MapPicture> {};

TEST_P(MapPictureData, IsABitmapOf256Colours) {
  const Bitmap bitmap(std::string(GetParam().name) + ".bmp");
  ASSERT_GT(bitmap.bytes.size(), 1078u);
  EXPECT_EQ(bitmap.bytes.substr(0, 2), "BM");
  EXPECT_EQ(static_cast<std::size_t>(bitmap.Read32(2)), bitmap.bytes.size());
  EXPECT_EQ(bitmap.Read16(28), 8);  // bits a pixel
  EXPECT_EQ(bitmap.Read32(30), 0);  // no compression
  EXPECT_EQ(bitmap.PixelsFrom() + bitmap.RowLength() * bitmap.Height(),
            static_cast<int>(bitmap.bytes.size()));
}

TEST_P(MapPictureData, FitsItsWindow) {
  constexpr int TwipsPerPixel = 15;
  const Bitmap bitmap(std::string(GetParam().name) + ".bmp");
  const double proportions = GetParam().logicalWidth / GetParam().logicalHeight;
  EXPECT_NEAR(static_cast<double>(bitmap.Width()) / bitmap.Height(), proportions, 0.005);
  EXPECT_GE(bitmap.Width(), 2 * GetParam().outerWidth / TwipsPerPixel);
}

INSTANTIATE_TEST_SUITE_P(Maps, MapPictureData, testing::Values(kItaly, kEurope, kWorld, kUsa, kGB),
                         [](const auto& param) { return std::string(param.param.name); });

enum class Surface { Sea, Land, Ice };

struct Place {
  const char* name;
  MapPicture map;
  double lat, lon;
  Surface surface;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.map.name << place.name; }

Surface SurfaceOf(const Colour& colour) {
  if (colour.blue > colour.red + 40) return Surface::Sea;
  return colour.blue >= colour.red && colour.red > 120 ? Surface::Ice : Surface::Land;
}

class MapPicturePlaces : public testing::TestWithParam<Place> {};

TEST_P(MapPicturePlaces, LandAndSeaLieWithinTheBounds) {
  const Place& place = GetParam();
  const MapPicture& map = place.map;
  const Bitmap bitmap(std::string(map.name) + ".bmp");
  const double x = (place.lon - map.left) / (map.right - map.left) * bitmap.Width();
  const double y = (map.top - place.lat) / (map.top - map.bottom) * bitmap.Height();
  const Colour colour = bitmap.At(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)));
  EXPECT_EQ(SurfaceOf(colour), place.surface)
      << colour.red << ' ' << colour.green << ' ' << colour.blue;
}

// Places near edges and small islands: a picture that is shifted or stretched loses them.
INSTANTIATE_TEST_SUITE_P(
    Places, MapPicturePlaces,
    testing::Values(Place{"Rome", kItaly, 41.85, 12.65, Surface::Land},
                    Place{"Tyrrhenian", kItaly, 40.0, 12.0, Surface::Sea},
                    Place{"Ustica", kItaly, 38.71, 13.18, Surface::Land},
                    Place{"Lampedusa", kItaly, 35.51, 12.58, Surface::Land},
                    Place{"GulfOfGenoa", kItaly, 44.2, 8.9, Surface::Sea},
                    Place{"CreteWest", kItaly, 35.35, 23.9, Surface::Land},
                    Place{"Garda", kItaly, 45.55, 10.68, Surface::Sea},
                    Place{"Gibraltar", kEurope, 35.95, -5.6, Surface::Sea},
                    Place{"CapeSaintVincent", kEurope, 37.1, -8.8, Surface::Land},
                    Place{"NorthCape", kEurope, 70.9, 26.5, Surface::Land},
                    Place{"Gotland", kEurope, 57.5, 18.5, Surface::Land},
                    Place{"Rhodes", kEurope, 36.2, 28.0, Surface::Land},
                    Place{"CapeTown", kWorld, -33.5, 19.5, Surface::Land},
                    Place{"Tasmania", kWorld, -42.0, 146.5, Surface::Land},
                    Place{"Hawaii", kWorld, 19.6, -155.5, Surface::Land},
                    Place{"DrakePassage", kWorld, -59.0, -65.0, Surface::Sea},
                    Place{"NorthPole", kWorld, 89.8, 0.0, Surface::Sea},
                    Place{"Greenland", kWorld, 72.0, -40.0, Surface::Ice},
                    Place{"BeyondTheSouthPole", kWorld, -100.5, 100.0, Surface::Ice},
                    Place{"Caspian", kWorld, 41.5, 50.8, Surface::Sea},
                    Place{"KeyLargoInland", kUsa, 26.0, -81.0, Surface::Land},
                    Place{"LakeMichigan", kUsa, 43.5, -87.5, Surface::Sea},
                    Place{"SaltLake", kUsa, 41.2, -112.6, Surface::Sea},
                    Place{"VancouverIsland", kUsa, 49.5, -125.5, Surface::Land},
                    Place{"Jamaica", kUsa, 18.15, -77.3, Surface::Land},
                    Place{"IsleOfMan", kGB, 54.2, -4.55, Surface::Land},
                    Place{"IsleOfWight", kGB, 50.67, -1.3, Surface::Land},
                    Place{"Orkney", kGB, 59.08, -3.2, Surface::Land},
                    Place{"Solent", kGB, 50.55, -1.3, Surface::Sea},
                    Place{"ValentiaInland", kGB, 52.0, -9.7, Surface::Land}),
    [](const auto& param) { return std::string(param.param.map.name) + param.param.name; });

}  // namespace
}  // namespace zg
