#include "ReportGenerator.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace zg::bench {
namespace {

// --- Weather -------------------------------------------------------------------------------------

struct Phenomenon {
  std::string_view Words;  // in METAR and TAF
  int Code;                // ww of SYNOP (WMO code table 4677)
  int LeastVisibility;     // metres
  int MostVisibility;
  bool Precipitation;
};

constexpr std::array Phenomena = {
    Phenomenon{"BR", 10, 1200, 5000, false},   Phenomenon{"HZ", 5, 2000, 5000, false},
    Phenomenon{"FG", 45, 100, 900, false},     Phenomenon{"-RA", 61, 4000, 9000, true},
    Phenomenon{"RA", 63, 2500, 8000, true},    Phenomenon{"+RA", 65, 800, 4000, true},
    Phenomenon{"-SHRA", 80, 4000, 9000, true}, Phenomenon{"SHRA", 81, 2500, 8000, true},
    Phenomenon{"-DZ", 51, 2000, 7000, true},   Phenomenon{"-SN", 71, 1000, 6000, true},
    Phenomenon{"SN", 73, 400, 2500, true},     Phenomenon{"TSRA", 95, 2000, 6000, true},
    Phenomenon{"-RA BR", 61, 2000, 5000, true}};

struct Cloud {
  int Oktas = 0;
  int Height = 0;  // hundreds of feet
  bool Convective = false;
};

struct Weather {
  int WindDirection = 0;  // tens of degrees, 0 for calm
  int WindSpeed = 0;      // knots
  int Gust = 0;           // knots, 0 for none
  const Phenomenon* Present = nullptr;
  int Visibility = 0;  // metres
  std::array<Cloud, 3> Clouds;
  std::size_t CloudCount = 0;
  int Temperature = 0;  // tenths of a degree Celsius
  int Dewpoint = 0;
  int Pressure = 0;  // at sea level, tenths of a hectopascal

  int TotalOktas() const { return CloudCount == 0 ? 0 : Clouds[CloudCount - 1].Oktas; }
};

Weather DrawWeather(RandomSource& random) {
  Weather weather;
  if (!random.Chance(6)) {
    weather.WindDirection = random.Between(1, 36);
    weather.WindSpeed = random.Between(2, 20);
    if (weather.WindSpeed > 13 && random.Chance(40)) {
      weather.Gust = weather.WindSpeed + random.Between(8, 14);
    }
  }
  weather.Visibility = random.Between(10, 40) * 1000;
  if (random.Chance(30)) {
    weather.Present = &random.Pick(Phenomena);
    weather.Visibility =
        random.Between(weather.Present->LeastVisibility, weather.Present->MostVisibility);
  }
  weather.CloudCount =
      static_cast<std::size_t>(random.Between(weather.Present != nullptr ? 1 : 0, 3));
  Cloud last{.Oktas = 0, .Height = 4};
  for (std::size_t layer = 0; layer < weather.CloudCount; ++layer) {
    last.Oktas = std::min(8, last.Oktas + random.Between(1, 3));
    last.Height += random.Between(4, 60);
    last.Convective = layer < 2 && random.Chance(5);
    weather.Clouds[layer] = last;
  }
  weather.Temperature = random.Between(-120, 320);
  weather.Dewpoint = weather.Temperature - random.Between(0, 150);
  weather.Pressure = random.Between(9850, 10350);
  return weather;
}

// --- Words ---------------------------------------------------------------------------------------

// The digits of a number that is not negative, with zeros in front up to `width`.
void AppendDigits(std::string& out, int value, std::size_t width) {
  const std::string digits = std::to_string(value);
  out.append(width - std::min(width, digits.size()), '0').append(digits);
}

// A word: a blank, the letters and the number behind them.
void AppendWord(std::string& out, std::string_view letters) { out.append(" ").append(letters); }
void AppendWord(std::string& out, std::string_view letters, int value, std::size_t width) {
  AppendWord(out, letters);
  AppendDigits(out, value, width);
}

// snTTT: the sign as a digit and the tenths.
void AppendSigned(std::string& out, int tenths) {
  out += tenths < 0 ? '1' : '0';
  AppendDigits(out, std::abs(tenths), 3);
}

// Whole degrees as in 07/M02.
void AppendDegrees(std::string& out, int tenths) {
  if (tenths < 0) out += 'M';
  AppendDigits(out, (std::abs(tenths) + 5) / 10, 2);
}

// --- METAR and TAF -------------------------------------------------------------------------------

void AppendWind(std::string& out, RandomSource& random, const Weather& weather,
                std::string_view unit) {
  if (weather.WindSpeed > 0 && weather.WindSpeed < 4 && random.Chance(50)) {
    AppendWord(out, "VRB");
  } else {
    AppendWord(out, "", weather.WindDirection * 10, 3);
  }
  AppendDigits(out, weather.WindSpeed, 2);
  if (weather.Gust > 0) {
    out += 'G';
    AppendDigits(out, weather.Gust, 2);
  }
  out.append(unit);
}

void AppendClouds(std::string& out, const Weather& weather, std::string_view clear) {
  static constexpr std::array<std::string_view, 9> Covers = {"SKC", "FEW", "FEW", "SCT", "SCT",
                                                             "BKN", "BKN", "BKN", "OVC"};
  if (weather.CloudCount == 0) AppendWord(out, clear);
  for (std::size_t layer = 0; layer < weather.CloudCount; ++layer) {
    const Cloud& cloud = weather.Clouds[layer];
    AppendWord(out, Covers[static_cast<std::size_t>(cloud.Oktas)], cloud.Height, 3);
    if (cloud.Convective) out.append(cloud.Oktas < 4 ? "TCU" : "CB");
  }
}

// Visibility in metres, weather and clouds, or CAVOK.
void AppendSky(std::string& out, const Weather& weather) {
  const bool lowCloud = weather.CloudCount > 0 && weather.Clouds[0].Height < 50;
  if (weather.Present == nullptr && !lowCloud) {
    AppendWord(out, "CAVOK");
    return;
  }
  AppendWord(out, "", weather.Visibility >= 10000 ? 9999 : weather.Visibility / 100 * 100, 4);
  if (weather.Present != nullptr) AppendWord(out, weather.Present->Words);
  AppendClouds(out, weather, "NSC");
}

std::string_view WindUnitOf(std::string_view station) {
  return station.starts_with('U') || station.starts_with('Z') ? "MPS" : "KT";
}

void AppendStationAndTime(std::string& out, std::string_view station, int minute) {
  out.append(station);
  AppendWord(out, ReportDayHour);
  AppendDigits(out, minute, 2);
  out += 'Z';
}

void AppendTrend(std::string& out, RandomSource& random) {
  static constexpr std::array<std::string_view, 6> Trends = {
      "TEMPO 3000 SHRA", "BECMG 9999 NSW",     "TEMPO BKN012",
      "BECMG 24015KT",   "TEMPO 1416 0800 FG", "TEMPO 25018G30KT 4000 TSRA SCT025CB"};
  AppendWord(out, random.Chance(70) ? "NOSIG" : random.Pick(Trends));
}

void AppendMiles(std::string& out, int metres) {
  static constexpr std::array<std::string_view, 12> Below3 = {
      "1/4", "1/4", "1/2", "3/4", "1", "1 1/4", "1 1/2", "1 3/4", "2", "2 1/4", "2 1/2", "2 3/4"};
  const int quarters = metres / 402;
  if (quarters < 12) {
    AppendWord(out, Below3[static_cast<std::size_t>(quarters)]);
  } else {
    AppendWord(out, "", std::min(quarters / 4, 10), 1);
  }
  out.append("SM");
}

// Coded groups as automatic stations of the United States add them; those of the six-hourly reports
// in a quarter of the reports.
void AppendUsRemarks(std::string& out, RandomSource& random, const Weather& weather) {
  static constexpr std::array<std::string_view, 6> Notes = {"RAB23", "RAE05B41",    "TSNO",
                                                            "PWINO", "CIG 008V014", "VIS 1V3"};
  const bool rain = weather.Present != nullptr && weather.Present->Precipitation;
  AppendWord(out, random.Chance(85) ? "RMK AO2" : "RMK AO1");
  if (weather.Gust > 0) {
    AppendWord(out, "PK WND ", weather.WindDirection * 10, 3);
    AppendDigits(out, weather.Gust + 2, 2);
    out.append("/12");
    AppendDigits(out, random.Between(10, 44), 2);
  }
  if (random.Chance(15)) AppendWord(out, random.Pick(Notes));
  AppendWord(out, "SLP", weather.Pressure % 1000, 3);
  if (rain) AppendWord(out, "P", random.Between(0, 40), 4);
  const bool sixHourly = random.Chance(25);
  if (sixHourly && rain) AppendWord(out, "6", random.Between(0, 150), 4);
  AppendWord(out, "T");
  AppendSigned(out, weather.Temperature);
  AppendSigned(out, weather.Dewpoint);
  if (sixHourly) {
    AppendWord(out, "1");
    AppendSigned(out, weather.Temperature + random.Between(0, 40));
    AppendWord(out, "2");
    AppendSigned(out, weather.Temperature - random.Between(0, 40));
    AppendWord(out, "5", random.Between(0, 8), 1);
    AppendDigits(out, random.Between(0, 45), 3);
  }
  if (random.Chance(8)) AppendWord(out, "$");
}

// --- SYNOP ---------------------------------------------------------------------------------------

// hVV of land stations and hVV with 90 to 99 of ships (WMO code tables 1600 and 4377).
int HeightCode(const Weather& weather) {
  static constexpr std::array Bounds = {2, 3, 7, 10, 20, 33, 50, 66, 83};  // hundreds of feet
  if (weather.CloudCount == 0) return 9;
  const auto above = std::upper_bound(Bounds.begin(), Bounds.end(), weather.Clouds[0].Height);
  return static_cast<int>(above - Bounds.begin());
}

int VisibilityCode(int metres) {
  return metres <= 5000 ? metres / 100 : std::min(80, metres / 1000 + 50);
}

int ShipVisibilityCode(int metres) {
  static constexpr std::array Bounds = {50, 200, 500, 1000, 2000, 4000, 10000, 20000, 50000};
  return 90 +
         static_cast<int>(std::upper_bound(Bounds.begin(), Bounds.end(), metres) - Bounds.begin());
}

// Nddff, 1snTTT, 2snTdTdTd.
void AppendWindAndTemperatures(std::string& out, const Weather& weather) {
  AppendWord(out, "", weather.TotalOktas(), 1);
  AppendDigits(out, weather.WindDirection, 2);
  AppendDigits(out, weather.WindSpeed, 2);
  AppendWord(out, "1");
  AppendSigned(out, weather.Temperature);
  AppendWord(out, "2");
  AppendSigned(out, weather.Dewpoint);
}

// 4PPPP, 5appp.
void AppendPressures(std::string& out, RandomSource& random, const Weather& weather) {
  AppendWord(out, "4", weather.Pressure % 10000, 4);
  AppendWord(out, "5", random.Between(0, 8), 1);
  AppendDigits(out, random.Between(0, 60), 3);
}

// 7wwW1W2, 8NhCLCMCH.
void AppendWeatherAndClouds(std::string& out, RandomSource& random, const Weather& weather) {
  if (weather.Present != nullptr) {
    AppendWord(out, "7", weather.Present->Code, 2);
    AppendDigits(out, random.Between(0, 8), 1);
    AppendDigits(out, random.Between(0, 2), 1);
  }
  if (weather.CloudCount > 0) {
    AppendWord(out, "8", weather.Clouds[0].Oktas, 1);
    AppendDigits(out, random.Between(0, 9), 1);
    out.append(weather.TotalOktas() == 8 ? "//" : std::to_string(random.Between(10, 99)));
  }
}

void AppendLandSection3(std::string& out, RandomSource& random, const Weather& weather) {
  AppendWord(out, "333");
  if (random.Chance(60)) {
    const bool night = random.Chance(50);
    AppendWord(out, night ? "2" : "1");
    AppendSigned(out, weather.Temperature + (night ? -1 : 1) * random.Between(0, 90));
  }
  if (weather.Temperature < 0 && random.Chance(40)) {
    AppendWord(out, "4", random.Between(0, 9), 1);
    AppendDigits(out, random.Between(1, 80), 3);
  }
  if (random.Chance(25)) AppendWord(out, "55", random.Between(0, 120), 3);
  if (random.Chance(25)) AppendWord(out, "7", random.Between(0, 300), 4);
  for (std::size_t layer = 0; layer < weather.CloudCount; ++layer) {
    const Cloud& cloud = weather.Clouds[layer];
    AppendWord(out, "8", cloud.Oktas, 1);
    AppendDigits(out, cloud.Convective ? 9 : random.Between(0, 8), 1);
    AppendDigits(out, std::min(cloud.Height, 50), 2);
  }
  if (weather.Gust > 0) AppendWord(out, "911", weather.Gust, 2);
}

// YYGGiw 99LaLaLa QcLoLoLoLo; quadrants by WMO code table 3333.
void AppendSeaPosition(std::string& out, RandomSource& random) {
  const bool south = random.Chance(30);
  const bool west = random.Chance(60);
  AppendWord(out, ReportDayHour);
  out += '4';
  AppendWord(out, "99", random.Between(10, 650), 3);
  AppendWord(out, "", west ? (south ? 5 : 7) : (south ? 3 : 1), 1);
  AppendDigits(out, random.Between(10, 1790), 4);
}

// 0SsTwTwTw.
void AppendSeaTemperature(std::string& out, const Weather& weather) {
  AppendWord(out, "00", std::max(weather.Temperature, 0), 3);
}

}  // namespace

void AppendMetar(std::string& out, RandomSource& random, std::string_view station) {
  const Weather weather = DrawWeather(random);
  const std::string_view unit = WindUnitOf(station);
  AppendStationAndTime(out, station, random.Chance(60) ? 0 : random.Between(1, 5) * 10);
  if (random.Chance(12)) AppendWord(out, "AUTO");
  AppendWind(out, random, weather, unit);
  if (weather.WindSpeed > 5 && random.Chance(15)) {
    AppendWord(out, "", (weather.WindDirection + 33) % 36 * 10, 3);
    out += 'V';
    AppendDigits(out, (weather.WindDirection + 3) % 36 * 10, 3);
  }
  AppendSky(out, weather);
  if (weather.Visibility < 1500) {
    AppendWord(out, "R", random.Between(1, 36), 2);
    out += '/';
    AppendDigits(out, random.Between(4, 18) * 100, 4);
    out += random.Pick(std::string_view("UDN"));
  }
  AppendWord(out, "");
  AppendDegrees(out, weather.Temperature);
  out += '/';
  AppendDegrees(out, weather.Dewpoint);
  AppendWord(out, "Q", weather.Pressure / 10, 4);
  if (random.Chance(4)) AppendWord(out, "RERA");
  if (random.Chance(2)) AppendWord(out, "WS RWY16R");
  if (random.Chance(55)) AppendTrend(out, random);
}

void AppendUsMetar(std::string& out, RandomSource& random, std::string_view station) {
  const Weather weather = DrawWeather(random);
  AppendStationAndTime(out, station, random.Between(45, 59));
  if (random.Chance(55)) AppendWord(out, "AUTO");
  AppendWind(out, random, weather, "KT");
  AppendMiles(out, weather.Visibility);
  if (weather.Visibility < 1000) AppendWord(out, "R24/P6000FT");
  if (weather.Present != nullptr) AppendWord(out, weather.Present->Words);
  AppendClouds(out, weather, "CLR");
  AppendWord(out, "");
  AppendDegrees(out, weather.Temperature);
  out += '/';
  AppendDegrees(out, weather.Dewpoint);
  AppendWord(out, "A", weather.Pressure * 2953 / 10000, 4);
  AppendUsRemarks(out, random, weather);
}

void AppendTaf(std::string& out, RandomSource& random, std::string_view station,
               std::string_view changeGap) {
  static constexpr std::array<std::string_view, 6> Changes = {"BECMG ", "BECMG ",        "TEMPO ",
                                                              "TEMPO ", "PROB30 TEMPO ", "FM"};
  const std::string_view unit = WindUnitOf(station);
  AppendStationAndTime(out, station, 20);
  AppendWord(out, "151212");
  Weather weather = DrawWeather(random);
  AppendWind(out, random, weather, unit);
  AppendSky(out, weather);
  int hour = 12;
  for (int changes = random.Between(0, 4); changes > 0; --changes) {
    hour += random.Between(1, 4);
    weather = DrawWeather(random);
    const std::string_view change = random.Pick(Changes);
    out.append(changeGap).append(change);
    AppendDigits(out, hour % 24, 2);
    AppendDigits(out, change == "FM" ? 0 : (hour + 2) % 24, 2);
    if (change == "FM" || random.Chance(50)) AppendWind(out, random, weather, unit);
    AppendSky(out, weather);
  }
}

void AppendLandSynop(std::string& out, RandomSource& random, std::int32_t WMOIndex) {
  const Weather weather = DrawWeather(random);
  const bool rain = weather.Present != nullptr && weather.Present->Precipitation;
  AppendDigits(out, WMOIndex, 5);
  AppendWord(out, "", rain ? 1 : random.Between(3, 4), 1);   // iR
  AppendDigits(out, weather.Present != nullptr ? 1 : 2, 1);  // ix
  AppendDigits(out, HeightCode(weather), 1);
  AppendDigits(out, VisibilityCode(weather.Visibility), 2);
  AppendWindAndTemperatures(out, weather);
  AppendWord(out, "3", (weather.Pressure - random.Between(10, 600)) % 10000, 4);
  AppendPressures(out, random, weather);
  if (rain) {
    AppendWord(out, "6", random.Between(1, 60), 3);
    AppendDigits(out, random.Between(1, 2), 1);
  }
  AppendWeatherAndClouds(out, random, weather);
  if (random.Chance(80)) AppendLandSection3(out, random, weather);
}

void AppendShipSynop(std::string& out, RandomSource& random) {
  static constexpr std::array<std::string_view, 20> Series = {
      "C6Q", "GZV", "PDH", "OXQ", "ZDG", "DHQ", "V7F", "IBZ", "ICQ", "9HL",
      "SWK", "3FM", "WKD", "ELY", "LAO", "JCC", "VRX", "9VA", "UBX", "KAB"};
  const Weather weather = DrawWeather(random);
  out.append(random.Pick(Series));
  out += random.Pick(std::string_view("ABDEGHKLMNPRSTWXZ"));
  if (random.Chance(60)) AppendDigits(out, random.Between(2, 9), 1);
  AppendSeaPosition(out, random);
  AppendWord(out, "4", weather.Present != nullptr ? 1 : 2, 1);
  AppendDigits(out, HeightCode(weather), 1);
  AppendDigits(out, ShipVisibilityCode(weather.Visibility), 2);
  AppendWindAndTemperatures(out, weather);
  AppendPressures(out, random, weather);
  AppendWeatherAndClouds(out, random, weather);
  AppendWord(out, "222", random.Between(0, 8), 1);
  AppendDigits(out, random.Between(0, 5), 1);
  AppendSeaTemperature(out, weather);
  AppendWord(out, "2", random.Between(2, 9), 2);
  AppendDigits(out, random.Between(1, 8), 2);
  if (random.Chance(60)) {
    AppendWord(out, "3", random.Between(1, 36), 2);
    out.append("//");
    AppendWord(out, "4", random.Between(5, 12), 2);
    AppendDigits(out, random.Between(1, 10), 2);
  }
  if (random.Chance(20)) {
    AppendWord(out, "8");
    AppendSigned(out, (weather.Temperature + weather.Dewpoint) / 2);
  }
}

void AppendBuoySynop(std::string& out, RandomSource& random) {
  static constexpr std::array Areas = {13, 23, 31, 41, 42, 44, 46, 51, 61, 62, 64};
  const Weather weather = DrawWeather(random);
  AppendDigits(out, random.Pick(Areas), 2);
  AppendDigits(out, random.Between(1, 199), 3);
  AppendSeaPosition(out, random);
  AppendWord(out, "46///");
  AppendWord(out, "/", weather.WindDirection, 2);
  AppendDigits(out, weather.WindSpeed, 2);
  AppendWord(out, "1");
  AppendSigned(out, weather.Temperature);
  AppendPressures(out, random, weather);
  AppendWord(out, "22200");
  AppendSeaTemperature(out, weather);
  AppendWord(out, "1", random.Between(2, 12), 2);
  AppendDigits(out, random.Between(1, 8), 2);
  AppendWord(out, "70", random.Between(2, 60), 3);
  if (random.Chance(50)) {
    AppendWord(out, "333 912", random.Between(4, 30), 2);
    AppendWord(out, "555 11", random.Between(20, 200), 3);
    AppendWord(out, "22", random.Between(20, 200), 3);
  }
}

}  // namespace zg::bench
