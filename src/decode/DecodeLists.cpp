#include "decode/DecodeLists.h"

#include <array>
#include <span>

#include "text/TextRules.h"

namespace zg {
namespace {

struct MaskText {
  unsigned Bit;
  std::string_view Text;
};

constexpr std::array<MaskText, 4> QuadrantRows = {{{1, "NE "}, {2, "SE "}, {4, "SW "}, {8, "NW "}}};
constexpr std::array<MaskText, 3> StationRows = {{{1, "Buoy "}, {2, "Ship "}, {4, "Land "}}};

std::string TextOfMask(std::uint8_t mask, std::span<const MaskText> texts) {
  std::string text;
  for (const MaskText& row : texts) {
    if ((mask & row.Bit) != 0) text += row.Text;
  }
  return text;
}

}  // namespace

void DecodeLists::Clear() {
  Countries.Clear();
  Stations.Clear();
  for (std::string* text : {&Type, &Day, &Time, &MsgId, &Sender, &SenderCity, &Country, &Station}) {
    text->clear();
  }
  DecodedCount = 0;
}

void DecodeLists::MessageAccepted(const AcceptedMessage& message) {
  Countries.Add(message.Country);
  Stations.Add(message.ListName);
  Type = message.Type;
  Day = message.Day;
  Time = message.Time;
  MsgId = message.MsgId;
  Sender = message.Sender;
  SenderCity = message.SenderCity;
  Country = message.Country;
  Station = message.Station;
  DecodedCount = message.DecodedCount;
}

std::string QuadrantFilterText(std::uint8_t mask) { return TextOfMask(mask, QuadrantRows); }

std::string StationFilterText(std::uint8_t mask) { return TextOfMask(mask, StationRows); }

std::string PercentText(std::int64_t position, std::int64_t maximum) {
  if (maximum <= 0) return {};
  const double percent = static_cast<double>(position) / static_cast<double>(maximum) * 100;
  return FormatNumber(percent, "##") + "%";
}

std::string_view FileNameOfPath(std::string_view path) noexcept {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

}  // namespace zg
