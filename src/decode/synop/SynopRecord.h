// The two records of a SYNOP message: SynopRawData, which the decoder fills with numbers, and
// SynopData, the texts and codes made from it that a store keeps. Code forms FM 12 and FM 13.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "decode/MissingValues.h"
#include "decode/StationTexts.h"
#include "stations/StationBlock.h"

namespace zg {

// Bit positions of FilterFlags in the records of SYNOP messages.
namespace SynopFlag {
enum : std::uint8_t {
  NorthWest,  // quadrant 7
  NorthEast,  // quadrant 1
  SouthWest,  // quadrant 5
  SouthEast,  // quadrant 3
  Land,
  Buoy,
  Ship,
  LandMessage,  // AAXX
  SeaMessage,   // BBXX
  Section1,
  Section2,
  Section3,
  Section5,
  HumidityInDewPoint,
};
}

// What kind of station sent a message.
namespace StationKinds {
enum : std::int32_t { None, Land, Ship, Buoy };
}

inline constexpr std::size_t SynopCloudLayers = 4;
inline constexpr std::size_t ContinuousWinds = 6;

// The working record: overwritten by each message. Its views are valid while the message is.
// Behind each field stands the group of the code form that fills it.
struct SynopRawData {
  std::int16_t Accepted = 0;
  std::string_view Msg;  // the message with its "="
  StationBlock Station;
  std::int32_t FilterFlags = 0;
  std::string TimeOfObservation = std::string(Unk);  // 9GGgg, "1230"
  std::string IssueTime;                             // YYGGgg of the heading; outlives a reset
  std::uint8_t WindUnitInd = 0;                      // iw; outlives a reset
  std::uint8_t PrecipInd = MissingByte;              // iR
  std::uint8_t StationType = MissingByte;            // ix
  std::uint8_t LowestCloud = MissingByte;            // h
  std::uint8_t Visibility = MissingByte;             // VV
  std::uint8_t CloudCover = MissingByte;             // N
  std::uint8_t WindDirection = MissingByte;          // dd, tens of degrees
  std::uint8_t WindSpeed = MissingByte;              // ff, 00fff, in the unit of WindUnitInd
  float DewPoint = MissingFloat;                     // 2SnTdTdTd, degrees Celsius
  float Humidity = MissingFloat;                     // 29UUU, per cent
  float Temperature = MissingFloat;                  // 1SnTTT, degrees Celsius
  float StatPressure = MissingFloat;                 // 3P0P0P0P0, hPa
  float SeaLevPressure = MissingFloat;               // 4PPPP, hPa
  std::int16_t GeopotHeight = MissingShort;          // 4a3hhh, metres
  std::int16_t GeopotPressure = MissingShort;        // 4a3hhh, hPa
  std::uint8_t PressTendency = MissingByte;          // 5appp: a
  float PressTendencyVal = MissingFloat;             // 5appp: ppp, hPa with sign
  std::int16_t PrecipitAmount1 = MissingShort;       // 6RRRtR: RRR, code table 3590
  std::uint8_t PrecipitDuration1 = MissingByte;      // 6RRRtR: tR
  std::uint8_t PresentWeather = MissingByte;         // 7wwW1W2: ww
  std::uint8_t PastWeather1 = MissingByte;           // W1
  std::uint8_t PastWeather2 = MissingByte;           // W2
  std::uint8_t CloudAmount = MissingByte;            // 8NhCLCMCH: Nh
  std::uint8_t LowCloudType = MissingByte;           // CL
  std::uint8_t MiddleCloudType = MissingByte;        // CM
  std::uint8_t HighCloudType = MissingByte;          // CH
  float MaxTemperature = MissingFloat;               // section 3: 1SnTxTxTx, degrees Celsius
  float MinTemperature = MissingFloat;               // 2SnTnTnTn, degrees Celsius
  std::string RegionalData1 = std::string(Unk);      // group 0
  std::string RegionalData2 = std::string(Unk);      // group 3
  std::uint8_t SnowState = MissingByte;              // 4E'sss: E'
  std::int16_t SnowDepth = MissingShort;             // 4E'sss: sss, cm
  std::string OtherInfo = std::string(Unk);          // group 5
  std::int16_t PrecipitAmount2 = MissingShort;       // 6RRRtR: RRR
  std::uint8_t PrecipitDuration2 = MissingByte;      // tR, 10 where it is a solidus
  std::int16_t PastPrecipitAmount = MissingShort;    // 7R24
  std::array<std::uint8_t, SynopCloudLayers> CloudCovLayer = {MissingByte, MissingByte, MissingByte,
                                                              MissingByte};  // 8NsChshs: Ns
  std::array<std::uint8_t, SynopCloudLayers> TypeOfCloud = {MissingByte, MissingByte, MissingByte,
                                                            MissingByte};  // C
  std::array<std::uint8_t, SynopCloudLayers> HeighOfCloud = {MissingByte, MissingByte, MissingByte,
                                                             MissingByte};  // hshs
  std::uint8_t SupplInfo = MissingByte;                                     // 9SpSpspsp: spsp
  std::array<std::string_view, ContinuousWinds> CountinuousWindRaw;         // section 5: dddfff
  std::int16_t WindAt10mt = MissingShort;                                   // tenths of m/s
  std::int16_t WindAt20mt = MissingShort;                                   // tenths of m/s
  std::string_view MaxWindSpeedTime = Unk;
  std::uint8_t MaxWindSpeed = MissingByte;  // m/s
  std::uint8_t MaxWindDir = MissingByte;    // tens of degrees
  std::string_view ContinueWindTime = Unk;
  std::uint8_t ShipDirection = MissingByte;        // section 2: 222Dsvs: Ds
  std::uint8_t ShipAvSpeed = MissingByte;          // vs
  float SeaTemperature = MissingFloat;             // 0SsTwTwTw, degrees Celsius
  std::uint8_t SeaTemperType = MissingByte;        // Ss
  std::uint8_t WavePeriod = MissingByte;           // 1PwaPwaHwaHwa, 2PwPwHwHw, seconds
  float WaveHeight = MissingFloat;                 // the same, and 70HwaHwaHwa, metres
  std::uint8_t WavePeriodPredom = MissingByte;     // 4Pw1Pw1Hw1Hw1, seconds
  float WaveHeightPredom = MissingFloat;           // metres
  std::uint8_t WaveDirPredom = MissingByte;        // 3dw1dw1dw2dw2, tens of degrees
  std::uint8_t WavePeriodSecond = MissingByte;     // 5Pw2Pw2Hw2Hw2, seconds
  float WaveHeightSecond = MissingFloat;           // metres
  std::uint8_t WaveDirSecond = MissingByte;        // 3dw1dw1dw2dw2, tens of degrees
  std::uint8_t ShipIceAccretion = MissingByte;     // 6IsEsEsRs: Is
  std::uint8_t ThicknessOfIce = MissingByte;       // EsEs, cm as coded
  std::uint8_t RateIceAccretion = MissingByte;     // Rs
  float WetTemperature = MissingFloat;             // 8SwTbTbTb, degrees Celsius
  std::uint8_t WetTemperType = MissingByte;        // Sw
  std::uint8_t SeaIceConcentration = MissingByte;  // ICE ciSibiDizi: ci
  std::uint8_t SeaIceStage = MissingByte;          // Si
  std::uint8_t SeaIceBearingEdge = MissingByte;    // Di
  std::uint8_t IceOfLandOrigin = MissingByte;      // bi
  std::uint8_t IceSituation = MissingByte;         // zi
};

// Sets the record to the missing values. IssueTime and WindUnitInd stay as the message before left
// them: a ship that does not say its wind unit takes that of the message before.
void ResetSynopRecord(SynopRawData& record);

// The stored record. A text is empty where its group was not reported; a ...Code field is the code
// of the text before it.
struct SynopData {
  std::string_view Msg;
  StationTexts Station;
  std::int32_t FilterFlags = 0;
  std::string_view TimeOfObservation;
  std::string_view IssueTime;
  std::string_view PrecipInd;
  std::string_view StationType;
  std::uint8_t StationTypeCode = MissingByte;
  std::string_view LowestCloud;
  std::uint8_t LowestCloudCode = MissingByte;
  std::string_view Visibility;
  std::uint8_t VisibilityCode = MissingByte;
  std::string_view CloudCover;
  std::uint8_t CloudCoverCode = MissingByte;
  std::string_view WindDirection;
  std::string_view WindSpeed;
  std::string_view DewPoint;
  std::string_view Humidity;  // stays empty: a humidity stands in DewPoint
  std::string_view Temperature;
  std::string_view StatPressure;
  std::string_view SeaLevPressure;
  std::string_view GeopotHeight;
  std::string_view GeopotPressure;
  std::string_view PressTendency;
  std::uint8_t PressTendencyCode = MissingByte;
  std::string_view PressTendencyVal;
  std::string_view PrecipitAmount1;
  std::int16_t PrecipitAmount1Code = MissingShort;
  std::string_view PrecipitDuration1;
  std::uint8_t PrecipitDuration1Code = MissingByte;
  std::string_view PresentWeather;
  std::uint8_t PresentWeatherCode = MissingByte;
  std::string_view WeatherSymb;  // one character of the symbol font
  std::string_view PastWeather1;
  std::uint8_t PastWeather1Code = MissingByte;
  std::string_view PastWeather2;
  std::uint8_t PastWeather2Code = MissingByte;
  std::string_view CloudAmount;
  std::uint8_t CloudAmountCode = MissingByte;
  std::string_view LowCloudType;
  std::uint8_t LowCloudTypeCode = MissingByte;
  std::string_view MiddleCloudType;
  std::uint8_t MiddleCloudTypeCode = MissingByte;
  std::string_view HighCloudType;
  std::uint8_t HighCloudTypeCode = MissingByte;
  std::string_view MaxTemperature;
  std::string_view MinTemperature;
  std::string_view RegionalData1;
  std::string_view RegionalData2;
  std::string_view SnowState;
  std::uint8_t SnowStateCode = MissingByte;
  std::string_view SnowDepth;
  std::string_view OtherInfo;
  std::string_view PrecipitAmount2;
  std::string_view PrecipitDuration2;
  std::string_view PastPrecipitAmount;
  std::array<std::string_view, SynopCloudLayers> CloudCovLayer;
  std::array<std::string_view, SynopCloudLayers> TypeOfCloud;
  std::array<std::string_view, SynopCloudLayers> HeighOfCloud;
  std::string_view SupplInfo;
  std::array<std::string_view, ContinuousWinds> CountinuousWindDir;
  std::array<std::string_view, ContinuousWinds> CountinuousWindSpeed;
  std::string_view WindAt10mt;
  std::string_view WindAt20mt;
  std::string_view MaxWindSpeedTime;
  std::string_view MaxWindSpeed;
  std::string_view MaxWindDir;
  std::string_view ContinueWindTime;
  std::string_view ShipDirection;
  std::uint8_t ShipDirectionCode = MissingByte;
  std::string_view ShipAvSpeed;
  std::uint8_t ShipAvSpeedCode = MissingByte;
  std::string_view SeaTemperature;
  std::string_view SeaTemperType;
  std::uint8_t SeaTemperTypeCode = MissingByte;
  std::string_view WavePeriod;
  std::string_view WaveHeight;
  std::string_view WavePeriodPredom;
  std::string_view WaveHeightPredom;
  std::string_view WaveDirPredom;
  std::string_view WavePeriodSecond;
  std::string_view WaveHeightSecond;
  std::string_view WaveDirSecond;
  std::string_view ShipIceAccretion;
  std::uint8_t ShipIceAccretionCode = MissingByte;
  std::string_view ThicknessOfIce;
  std::string_view RateIceAccretion;
  std::uint8_t RateIceAccretionCode = MissingByte;
  std::string_view WetTemperature;
  std::string_view WetTemperType;
  std::uint8_t WetTemperTypeCode = MissingByte;
  std::string_view SeaIceConcentration;
  std::uint8_t SeaIceConcentrationCode = MissingByte;
  std::string_view SeaIceStage;
  std::uint8_t SeaIceStageCode = MissingByte;
  std::string_view SeaIceBearingEdge;
  std::uint8_t SeaIceBearingEdgeCode = MissingByte;
  std::string_view IceOfLandOrigin;
  std::uint8_t IceOfLandOriginCode = MissingByte;
  std::string_view IceSituation;
  std::uint8_t IceSituationCode = MissingByte;
};

}  // namespace zg
