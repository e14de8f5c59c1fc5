// The symbol font that ships with the program: every character that stands for weather or a state
// of the sky has a drawing in it.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "tables/TextUtility.h"

namespace zg {
namespace {

// As much of a TrueType file as is needed to tell whether a character is drawn.
class FontFile {
 public:
  FontFile() {
    std::ifstream file(ZG_SOURCE_DIR "/data/weather.ttf", std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }

  bool IsTrueType() const { return bytes_.size() > 12 && Read32(0) == 0x00010000; }

  // Where a table begins, 0 if there is none.
  std::size_t Table(std::string_view tag) const {
    for (std::size_t i = 0; i < Read16(4); ++i) {
      const std::size_t entry = 12 + 16 * i;
      if (std::string_view(bytes_).substr(entry, 4) == tag) return Read32(entry + 8);
    }
    return 0;
  }

  // The glyph of a character of the basic plane, 0 if it has none.
  std::size_t Glyph(unsigned character) const {
    const std::size_t cmap = Table("cmap");
    for (std::size_t i = 0; i < Read16(cmap + 2); ++i) {
      const std::size_t subtable = cmap + Read32(cmap + 4 + 8 * i + 4);
      if (Read16(subtable) == 4) return GlyphBySegments(subtable, character);
    }
    return 0;
  }

  // How many closed outlines a glyph has; none for a blank.
  std::size_t Contours(std::size_t glyph) const {
    const bool wide = Read16(Table("head") + 50) == 1;
    const std::size_t loca = Table("loca");
    const auto offset = [&](std::size_t index) {
      return wide ? Read32(loca + 4 * index) : 2 * Read16(loca + 2 * index);
    };
    if (offset(glyph) == offset(glyph + 1)) return 0;
    return Read16(Table("glyf") + offset(glyph));
  }

  // The family name, read from a name record of the Unicode kind.
  std::string FamilyName() const {
    const std::size_t name = Table("name");
    const std::size_t texts = name + Read16(name + 4);
    for (std::size_t i = 0; i < Read16(name + 2); ++i) {
      const std::size_t record = name + 6 + 12 * i;
      if (Read16(record) != 3 || Read16(record + 6) != 1) continue;
      std::string family;
      for (std::size_t k = 1; k < Read16(record + 8); k += 2) {
        family += bytes_.at(texts + Read16(record + 10) + k);
      }
      return family;
    }
    return {};
  }

 private:
  std::size_t Byte(std::size_t offset) const {
    return static_cast<std::uint8_t>(bytes_.at(offset));
  }
  std::size_t Read16(std::size_t offset) const { return Byte(offset) << 8 | Byte(offset + 1); }
  std::size_t Read32(std::size_t offset) const { return Read16(offset) << 16 | Read16(offset + 2); }

  std::size_t GlyphBySegments(std::size_t subtable, unsigned character) const {
    const std::size_t segments = Read16(subtable + 6) / 2;
    const std::size_t ends = subtable + 14;
    const std::size_t starts = ends + 2 * segments + 2;
    const std::size_t deltas = starts + 2 * segments;
    const std::size_t ranges = deltas + 2 * segments;
    for (std::size_t i = 0; i < segments; ++i) {
      if (character > Read16(ends + 2 * i) || character < Read16(starts + 2 * i)) continue;
      const std::size_t range = Read16(ranges + 2 * i);
      if (range == 0) return (character + Read16(deltas + 2 * i)) & 0xFFFF;
      const std::size_t within = character - Read16(starts + 2 * i);
      return Read16(ranges + 2 * i + range + 2 * within);
    }
    return 0;
  }

  std::string bytes_;
};

// Every character that a record or a map shows in the font.
std::set<char> SymbolCharacters() {
  std::set<char> characters{'Q', 'R', 'B', 'S'};  // cloud cover
  const TextUtility tables;
  const auto add = [&](std::string_view symbol) {
    if (symbol.size() == 1) characters.insert(symbol.front());
  };
  for (int code = 0; code <= 100; ++code) {
    add(tables.PresentWeatherSymb(static_cast<std::uint8_t>(code)));
    add(tables.PastWeatherSymb(static_cast<std::uint8_t>(code)));
  }
  return characters;
}

TEST(WeatherFontData, IsTheFamilyWeather) {
  const FontFile font;
  ASSERT_TRUE(font.IsTrueType());
  EXPECT_EQ(font.FamilyName(), "weather");
}

TEST(WeatherFontData, EverySymbolIsDrawn) {
  const FontFile font;
  ASSERT_TRUE(font.IsTrueType());
  const std::set<char> characters = SymbolCharacters();
  EXPECT_GE(characters.size(), 14u);  // thirteen signs and the blank
  std::set<std::size_t> glyphs;
  for (const char character : characters) {
    const std::size_t glyph = font.Glyph(static_cast<unsigned char>(character));
    EXPECT_NE(glyph, 0u) << character;
    EXPECT_EQ(font.Contours(glyph) > 0, character != ' ') << character;
    EXPECT_TRUE(glyphs.insert(glyph).second) << character << " looks like another one";
  }
}

}  // namespace
}  // namespace zg
