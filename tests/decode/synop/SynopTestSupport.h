// SYNOP messages for tests, decoded from words.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "decode/FieldLine.h"
#include "decode/TypedDecoder.h"
#include "decode/synop/SynopDecoder.h"

namespace zg::test {

// All that is not missing, in the order of the record: the flags of sections 2 to 5 and behind,
// then the groups. Heading, station and what a reset leaves are left out.
inline std::string Describe(const SynopRawData& raw) {
  FieldLine line;
  line.Reported("Flags",
                std::string_view(BitsText(static_cast<std::uint32_t>(raw.FilterFlags), 10)));
#define ZG_REPORTED(name) line.Reported(#name, raw.name)
  ZG_REPORTED(TimeOfObservation);
  ZG_REPORTED(PrecipInd);
  ZG_REPORTED(StationType);
  ZG_REPORTED(LowestCloud);
  ZG_REPORTED(Visibility);
  ZG_REPORTED(CloudCover);
  ZG_REPORTED(WindDirection);
  ZG_REPORTED(WindSpeed);
  ZG_REPORTED(DewPoint);
  ZG_REPORTED(Humidity);
  ZG_REPORTED(Temperature);
  ZG_REPORTED(StatPressure);
  ZG_REPORTED(SeaLevPressure);
  ZG_REPORTED(GeopotHeight);
  ZG_REPORTED(GeopotPressure);
  ZG_REPORTED(PressTendency);
  ZG_REPORTED(PressTendencyVal);
  ZG_REPORTED(PrecipitAmount1);
  ZG_REPORTED(PrecipitDuration1);
  ZG_REPORTED(PresentWeather);
  ZG_REPORTED(PastWeather1);
  ZG_REPORTED(PastWeather2);
  ZG_REPORTED(CloudAmount);
  ZG_REPORTED(LowCloudType);
  ZG_REPORTED(MiddleCloudType);
  ZG_REPORTED(HighCloudType);
  ZG_REPORTED(MaxTemperature);
  ZG_REPORTED(MinTemperature);
  ZG_REPORTED(RegionalData1);
  ZG_REPORTED(RegionalData2);
  ZG_REPORTED(SnowState);
  ZG_REPORTED(SnowDepth);
  ZG_REPORTED(OtherInfo);
  ZG_REPORTED(PrecipitAmount2);
  ZG_REPORTED(PrecipitDuration2);
  ZG_REPORTED(PastPrecipitAmount);
  ZG_REPORTED(CloudCovLayer);
  ZG_REPORTED(TypeOfCloud);
  ZG_REPORTED(HeighOfCloud);
  ZG_REPORTED(SupplInfo);
  ZG_REPORTED(CountinuousWindRaw);
  ZG_REPORTED(WindAt10mt);
  ZG_REPORTED(WindAt20mt);
  ZG_REPORTED(MaxWindSpeedTime);
  ZG_REPORTED(MaxWindSpeed);
  ZG_REPORTED(MaxWindDir);
  ZG_REPORTED(ContinueWindTime);
  ZG_REPORTED(ShipDirection);
  ZG_REPORTED(ShipAvSpeed);
  ZG_REPORTED(SeaTemperature);
  ZG_REPORTED(SeaTemperType);
  ZG_REPORTED(WavePeriod);
  ZG_REPORTED(WaveHeight);
  ZG_REPORTED(WavePeriodPredom);
  ZG_REPORTED(WaveHeightPredom);
  ZG_REPORTED(WaveDirPredom);
  ZG_REPORTED(WavePeriodSecond);
  ZG_REPORTED(WaveHeightSecond);
  ZG_REPORTED(WaveDirSecond);
  ZG_REPORTED(ShipIceAccretion);
  ZG_REPORTED(ThicknessOfIce);
  ZG_REPORTED(RateIceAccretion);
  ZG_REPORTED(WetTemperature);
  ZG_REPORTED(WetTemperType);
  ZG_REPORTED(SeaIceConcentration);
  ZG_REPORTED(SeaIceStage);
  ZG_REPORTED(SeaIceBearingEdge);
  ZG_REPORTED(IceOfLandOrigin);
  ZG_REPORTED(IceSituation);
#undef ZG_REPORTED
  return line.Take();
}

struct SynopKeeper : DecodeObserver {
  std::string Fields;
  void SynopStored(const SynopRawData& raw, const SynopData&) override { Fields = Describe(raw); }
};

// Decodes typed reports of a ship.
class ShipDecoder {
 public:
  // The fields that `words` set behind the position of the ship.
  std::string Decode(std::string_view words) {
    return decoder_.Decode(MessageType::BBXX, "BBXX DBBH 12001 99423 10123 " + std::string(words));
  }
  std::string Wrong() const { return decoder_.Wrong(); }

 private:
  TypedDecoder<SynopDecoder, &SynopDecoder::DecodeSynopMessage, SynopKeeper> decoder_;
};

// Groups and all that they set; `wrong` are the words logged as wrong items.
struct GroupCase {
  const char* groups;
  const char* fields;
  const char* wrong = "";
};

// `front` is put ahead of the groups. One decoder takes all cases, so that none may leave a trace.
inline void ExpectGroups(std::string_view front, const std::vector<GroupCase>& cases) {
  ShipDecoder decoder;
  for (const GroupCase& row : cases) {
    EXPECT_EQ(decoder.Decode(std::string(front) + row.groups), row.fields) << row.groups;
    EXPECT_EQ(decoder.Wrong(), row.wrong) << row.groups;
  }
}

}  // namespace zg::test
