// The code tables of surface, ship and aerodrome reports in both languages, numbered as in the WMO
// Manual on Codes (WMO-No. 306, Volume I.1, part A).
//
// A table is an array with one row a code, so that the code is the index. A code without a meaning
// has an empty row. The texts, their spelling and doubled blanks included, are what users know from
// the screen, search for and compare exported files by: they are not to be tidied. The source is
// UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace zg::tables {

// One code and what it means.
struct CodeRow {
  int Key;
  std::string_view English;
  std::string_view Italian;

  constexpr CodeRow(int key, std::string_view english, std::string_view italian) noexcept
      : Key(key), English(english), Italian(italian) {}
  // A text that is the same in both languages.
  constexpr CodeRow(int key, std::string_view both) noexcept
      : Key(key), English(both), Italian(both) {}
};

// True if the table has the codes 0 to `count` - 1, each at its index.
template <std::size_t N>
constexpr bool HasCodes(const std::array<CodeRow, N>& table, std::size_t count) noexcept {
  for (std::size_t i = 0; i < N; ++i) {
    if (table[i].Key != static_cast<int>(i)) return false;
  }
  return N == count;
}

// clang-format off

// Qc, quadrant of the globe: table 3333.
inline constexpr auto kQuadrant = std::to_array<CodeRow>({
    {0, ""},
    {1, "North-Est", "Nord-Est"},
    {2, ""},
    {3, "South-Est", "Sud-Est"},
    {4, ""},
    {5, "South-West", "Sud-Ovest"},
    {6, ""},
    {7, "North-West", "Nord-Ovest"},
});
static_assert(HasCodes(kQuadrant, 8));

// iw, source and unit of the wind speed: after table 1855, in a count of its own.
inline constexpr auto kWindTypeInd = std::to_array<CodeRow>({
    {0, "mps estimated", "mps (stimati) "},
    {1, "mps from anemometer", "mps (anemometro)"},
    {2, "KTS estimated", "KTS (stimati)"},
    {3, "KTS from anemometer", "KTS (anemometro)"},
});
static_assert(HasCodes(kWindTypeInd, 4));

// iR, inclusion of precipitation data: table 1819.
inline constexpr auto kPrecipInd = std::to_array<CodeRow>({
    {0, "Precipitation in groups 1 and 3", "Precipitazioni riportate in gruppi 1 e 3"},
    {1, "Precipitation reported in group 1 only", "Precipitazioni riportate  in gruppo 1 solo"},
    {2, "Precipitation reported in group 3 only", "Precipitazioni riportate  in gruppo 3 solo"},
    {3, "Precipitation omitted, no precipitation", "Nessuna precipitazione"},
    {4, "Precipitation omitted, no observation", "Precipitazione omessa, nessuna osservazione"},
});
static_assert(HasCodes(kPrecipInd, 5));

// ix, station operation and weather data: table 1860.
inline constexpr auto kStationType = std::to_array<CodeRow>({
    {0, ""},
    {1, "Manned; weather group included", "Manuale; gruppo del tempo incluso"},
    {2, "Manned; no significant weather", "Manuale; nessun tempo significativo"},
    {3, "Manned; no weather observation", "Manuale; nessuna osservazione del tempo"},
    {4, "Auto; weather group included", "Auto; gruppo del tempo incluso"},
    {5, "Auto; no significant weather", "Auto; nessun tempo significativo"},
    {6, "Auto; no weather observation", "Auto; nessuna osservazione del tempo"},
    {7, "Auto; weather group included", "Auto; gruppo del tempo incluso"},
});
static_assert(HasCodes(kStationType, 8));

// h, height of the base of the lowest cloud above ground: table 1600. 10 is the solidus.
inline constexpr auto kLowestCloud = std::to_array<CodeRow>({
    {0, "Under 50 m", "Sotto 50 m"},
    {1, "50 to 100 m", "50 a 100 m"},
    {2, "100 to 200 m", "100 a 200 m"},
    {3, "200 to 300 m", "200 a 300 m"},
    {4, "300 to 600 m", "300 a 600 m"},
    {5, "600 to 1000 m", "600 a 1000 m"},
    {6, "1000 to 1500 m", "1000 a 1500 m"},
    {7, "1500 to 2000 m", "1500 a 2000 m"},
    {8, "2000 to 2500 m", "2000 a 2500 m"},
    {9, "Above 2500 m", "Sopra 2500 m"},
    {10, "Unknown", "Sconosciuto"},
});
static_assert(HasCodes(kLowestCloud, 11));

// The same in few characters, for grids and map labels.
inline constexpr auto kLowestCloudShort = std::to_array<CodeRow>({
    {0, "<50"},
    {1, "50÷100"},
    {2, "100÷200"},
    {3, "200÷300"},
    {4, "300÷600"},
    {5, "600÷1000"},
    {6, "1000÷1500"},
    {7, "1500÷2000"},
    {8, "2000÷2500"},
    {9, ">2500"},
    {10, "-"},
});
static_assert(HasCodes(kLowestCloudShort, 11));

// N and Nh, cloud amount: table 2700. 10 is the solidus.
inline constexpr auto kCloudCover = std::to_array<CodeRow>({
    {0, "Sky Clear", "Sereno"},
    {1, "1/8"},
    {2, "2/8"},
    {3, "3/8"},
    {4, "4/8"},
    {5, "5/8"},
    {6, "6/8"},
    {7, "7/8"},
    {8, "Overcast", "Coperto"},
    {9, "Sky obscured", "Cielo oscurato"},
    {10, "No observation", "No Obsev."},
});
static_assert(HasCodes(kCloudCover, 11));

// The same in few characters.
inline constexpr auto kCloudCoverShort = std::to_array<CodeRow>({
    {0, "0/8"},
    {1, "1/8"},
    {2, "2/8"},
    {3, "3/8"},
    {4, "4/8"},
    {5, "5/8"},
    {6, "6/8"},
    {7, "7/8"},
    {8, "8/8"},
    {9, "Obscured", "Oscurato"},
    {10, "-"},
});
static_assert(HasCodes(kCloudCoverShort, 11));

// a, characteristic of the pressure tendency of the last three hours: table 0200.
inline constexpr auto kPressTendency = std::to_array<CodeRow>({
    {0, "Increasing, then decreasing; resultant pressure same or higher", "In aumento, poi decrescente; pressione risultante uguale o più alta"},
    {1, "Increasing, then steady; resultant pressure higher", "In aumento, poi costante; pressione risultante più alta"},
    {2, "Increasing steadily; resultant pressure higher", "In aumento costante; pressione risultante più alta"},
    {3, "Decreasing or steady, then increasing; resultant pressure higher", "Decrescente o costante, poi in aumento; pressione risultante più alta"},
    {4, "Steady; resultant pressure same", "Costante; pressione risultante uguale"},
    {5, "Decreasing, then increasing; resultant pressure lower", "Decrescente, poi in aumento; pressione risultante più bassa"},
    {6, "Decreasing, then steady; resultant pressure lower", "Decrescente, poi costante; pressione risultante più bassa"},
    {7, "Decreasing steadily; resultant pressure lower", "In diminuzione costante; pressione risultante più bassa"},
    {8, "Increasing or steady, then decreasing; resultant pressure lower", "In aumento o costante, poi decrescente; pressione risultante più bassa"},
});
static_assert(HasCodes(kPressTendency, 9));

// tR, period that the amount of precipitation refers to: table 4019.
inline constexpr auto kPrecipitDuration = std::to_array<CodeRow>({
    {0, ""},
    {1, "6 hours", "6 ore"},
    {2, "12 hours", "12 ore"},
    {3, "18 hours", "18 ore"},
    {4, "24 hours", "24 ore"},
    {5, "1 hour", "1 ora"},
    {6, "2 hours", "2 ore"},
    {7, "3 hours", "3 ore"},
    {8, "9 hours", "9 ore"},
    {9, "15 hours", "15 ore"},
    {10, "24 hours", "24 ore"},
});
static_assert(HasCodes(kPrecipitDuration, 11));

// ww, present weather at a manned station: table 4677. 100 is the solidus.
inline constexpr auto kPresentWeather = std::to_array<CodeRow>({
    {0, "Clear", "Cielo sereno"},
    {1, "Clouds dissolving", "Nubi in dissolvimento"},
    {2, "State of sky unchanged", "Stato di cielo immutato"},
    {3, "Clouds developing", "Sviluppo di Nubi"},
    {4, "Visibility reduced by smoke", "Visibilità ridotta da fumo"},
    {5, "Haze", "Foschia"},
    {6, "Widespread dust in suspension not raised by wind", "Polvere molto estesa in sospensione non alzata dal vento"},
    {7, "Dust or sand raised by wind", "Polvere o sabbia alzata dal vento"},
    {8, "Well developed dust or sand whirls", "Sviluppo di polvere o sabbia"},
    {9, "Dust or sand storm within sight but not at station", "Polvere o Temporale di sabbia in vista ma non locamente"},
    {10, "Mist", "Nebbia"},
    {11, "Shallow fog patches", "Banchi di nebbia fine"},
    {12, "Continuous shallow fog", "Leggera nebbia uniforme"},
    {13, "Lightning visible, no thunder heard", "Lampi visibili, nessun tuono udibile"},
    {14, "Precipitation within sight but not hitting ground", "Precipitazioni visuali ma suolo asciutto"},
    {15, "Distant precipitation but not falling at station", "Precipitazioni distanti ma non presenti localmente"},
    {16, "Nearby precipitation but not falling at station", "Precipitazione vicina ma non localmente"},
    {17, "Thunderstorm but no precipitation falling at station", "Temporale (tuoni e fulmini) senza precipitazioni"},
    {18, "Squalls within sight but no precipitation falling at station", "Turbini in vista ma nessuna precipitazione locale"},
    {19, "Funnel clouds within sight", "Nubi in vista"},
    {20, "Drizzle", "Pioviggine"},
    {21, "Rain", "Pioggia"},
    {22, "Snow", "Neve"},
    {23, "Rain and snow", "Pioggia e neve"},
    {24, "Freezing rain", "Pioggia congelata"},
    {25, "Rain showers", "Pioggia fitta"},
    {26, "Snow showers", "Neve fitta"},
    {27, "Hail showers", "Grandine fitta"},
    {28, "Fog", "Nebbia"},
    {29, "Thunderstorms", "Temporali"},
    {30, "Slight to moderate duststorm, decreasing in intensity", "Leggera tempesta di polvere, decrescente in intensità"},
    {31, "Slight to moderate duststorm, no change", "Leggera tempesta di polvere, nessun cambiamento"},
    {32, "Slight to moderate duststorm, increasing in intensity", "Leggera tempesta di polvere, in aumento di intensità"},
    {33, "Severe duststorm, decreasing in intensity", "Forte tempesta di polvere, decrescente in intensità"},
    {34, "Severe duststorm, no change", "Forte tempesta di polvere, nessun cambiamento"},
    {35, "Severe duststorm, increasing in intensity", "Forte tempesta di polvere, in aumento di intensità"},
    {36, "Slight to moderate drifting snow, below eye level", "Da leggera a moderata neve con vento vicini al suolo"},
    {37, "Heavy drifting snow, below eye level", "Forte neve a vento,vicini al suolo "},
    {38, "Slight to moderate drifting snow, above eye level", "Da leggera a moderata neve a vento, a quote alte"},
    {39, "Heavy drifting snow, above eye level", "Forte neve a vento, a quote alte"},
    {40, "Fog at a distance", "Nebbia a distanza"},
    {41, "Patches of fog", "Banchi di nebbia"},
    {42, "Fog, sky visible, thinning", "Nebbia in dissolvimento, cielo visibile"},
    {43, "Fog, sky not visible, thinning", "Nebbia in dissolvimento, cielo non  visibile"},
    {44, "Fog, sky visible, no change", "Nebbia, cielo visibile, nessun cambiamento"},
    {45, "Fog, sky not visible, no change", "Nebbia, cielo non visibile, nessun cambiamento"},
    {46, "Fog, sky visible, becoming thicker", "Nebbia in intensificazione, cielo visibile"},
    {47, "Fog, sky not visible, becoming thicker", "Nebbia in intensificazione, cielo non visibile"},
    {48, "Fog, depositing rime, sky visible", "Nebbia, brina depositata, cielo visibile"},
    {49, "Fog, depositing rime, sky not visible", "Nebbia, brina depositata , cielo non visibile"},
    {50, "Intermittent light drizzle", "Leggera pioviggine intermittente"},
    {51, "Continuous light drizzle", "Leggera pioviggine continua"},
    {52, "Intermittent moderate drizzle", "Moderata pioviggine intermittente"},
    {53, "Continuous moderate drizzle", "Moderata pioviggine continua"},
    {54, "Intermittent heavy drizzle", "Forte pioviggine intermittente"},
    {55, "Continuous heavy drizzle", "Forte pioviggine continua"},
    {56, "Light freezing drizzle", "Leggera pioviggine congelata"},
    {57, "Moderate to heavy freezing drizzle", "Da moderata a forte pioviggine congelatasi"},
    {58, "Light drizzle and rain", "Leggera pioviggine e/o pioggia"},
    {59, "Moderate to heavy drizzle and rain", "Da moderata a forte pioviggine e/o pioggia"},
    {60, "Intermittent light rain", "Leggera pioggia intermittente"},
    {61, "Continuous light rain", "Leggera pioggia continua"},
    {62, "Intermittent moderate rain", "Moderata pioggia intermittente"},
    {63, "Continuous moderate rain", "Moderata pioggia continua"},
    {64, "Intermittent heavy rain", "Forte pioggia intermittente"},
    {65, "Continuous heavy rain", "Forte pioggia continua"},
    {66, "Light freezing rain", "Leggera pioggia congelatasi"},
    {67, "Moderate to heavy freezing rain", "Da moderata a forte pioggia congelatasi"},
    {68, "Light rain and snow", "Leggera pioggia e neve"},
    {69, "Moderate to heavy rain and snow", "Da moderata a forte pioggia e neve"},
    {70, "Intermittent light snow", "Leggera neve intermittente"},
    {71, "Continuous light snow", "Leggera neve continua"},
    {72, "Intermittent moderate snow", "Moderata neve intermittente"},
    {73, "Continuous moderate snow", "Moderata neve continua"},
    {74, "Intermittent heavy snow", "Forte neve intermittente"},
    {75, "Continuous heavy snow", "Forte neve continua"},
    {76, "Diamond dust", "Cristalli di neve a vento"},
    {77, "Snow grains", "Granuli di neve"},
    {78, "Snow crystals", "Cristalli della neve"},
    {79, "Ice pellets", "Pallottole di ghiaccio"},
    {80, "Light rain showers", "Leggera pioggia fitta"},
    {81, "Moderate to heavy rain showers", "Da moderata a forte pioggia fitta"},
    {82, "Strong rain showers", "Violenta pioggia fitta"},
    {83, "Light rain and snow showers", "Leggera pioggia e neve fitta"},
    {84, "Moderate to heavy rain and snow showers", "Da moderata a forte pioggia e neve fitta"},
    {85, "Light snow showers", "Leggera neve fitta"},
    {86, "Moderate to heavy snow showers", "Da moderata a forte neve fitta"},
    {87, "Light snow/ice pellet showers", "Leggera neve e pallottole di giacchio fitte"},
    {88, "Moderate to heavy snow/ice pellet showers", "Da moderata a forte neve e pallottole di giacchio fitte"},
    {89, "Light hail showers", "Leggera grandine fitta"},
    {90, "Moderate to heavy hail showers", "Da moderata a forte grandine fitta"},
    {91, "Thunderstorm in past hour, currently only light rain", "Temporale nelle ore passate, attualmente solo leggera pioggia"},
    {92, "Thunderstorm in past the hour, currently only moderate to heavy rain", "Temporale nelle ore passate, attualmente da moderata a forte pioggia"},
    {93, "Thunderstorm in past the hour, currently only light snow or rain/snow mix", "Temporale nelle ore passate, attualmente solo leggera neve o neve mista a pioggia"},
    {94, "Thunderstorm in the past hour, currently only moderate to heavy snow or rain/snow mix", "Temporale nelle ore passate, da moderata a forte neve o neve mista a pioggia"},
    {95, "Light to moderate thunderstorm", "Da leggero a moderato temporale"},
    {96, "Light to moderate thunderstorm with hail", "Da leggero a moderato temporale con grandine"},
    {97, "Heavy thunderstorm", "Forte temporale"},
    {98, "Heavy thunderstorm with duststorm", "Forte temporale con tempesta di polvere"},
    {99, "Heavy thunderstorm with hail", "Forte temporale con grandine"},
    {100, "No observation", "Nessuna osservazione"},
});
static_assert(HasCodes(kPresentWeather, 101));

// ww as one character of the symbol font "weather" of the maps.
inline constexpr auto kPresentWeatherSymb = std::to_array<CodeRow>({
    {0, "Q"},
    {1, "R"},
    {2, " "},
    {3, "B"},
    {4, "4"},
    {5, "4"},
    {6, "4"},
    {7, "4"},
    {8, "4"},
    {9, "H"},
    {10, "4"},
    {11, "3"},
    {12, "3"},
    {13, "H"},
    {14, "A"},
    {15, "A"},
    {16, "A"},
    {17, "D"},
    {18, "D"},
    {19, "B"},
    {20, "@"},
    {21, "A"},
    {22, "P"},
    {23, "A"},
    {24, "A"},
    {25, "C"},
    {26, "P"},
    {27, "A"},
    {28, "4"},
    {29, "E"},
    {30, "4"},
    {31, "4"},
    {32, "4"},
    {33, "4"},
    {34, "4"},
    {35, "4"},
    {36, "P"},
    {37, "P"},
    {38, "P"},
    {39, "P"},
    {40, "4"},
    {41, "4"},
    {42, "4"},
    {43, "4"},
    {44, "4"},
    {45, "4"},
    {46, "4"},
    {47, "4"},
    {48, "4"},
    {49, "4"},
    {50, "@"},
    {51, "@"},
    {52, "@"},
    {53, "@"},
    {54, "A"},
    {55, "A"},
    {56, "@"},
    {57, "A"},
    {58, "A"},
    {59, "A"},
    {60, "A"},
    {61, "A"},
    {62, "A"},
    {63, "A"},
    {64, "C"},
    {65, "C"},
    {66, "A"},
    {67, "C"},
    {68, "A"},
    {69, "A"},
    {70, "P"},
    {71, "P"},
    {72, "P"},
    {73, "P"},
    {74, "P"},
    {75, "P"},
    {76, "P"},
    {77, "P"},
    {78, "P"},
    {79, "P"},
    {80, "A"},
    {81, "C"},
    {82, "C"},
    {83, "A"},
    {84, "P"},
    {85, "P"},
    {86, "P"},
    {87, "P"},
    {88, "P"},
    {89, "P"},
    {90, "P"},
    {91, "E"},
    {92, "C"},
    {93, "E"},
    {94, "E"},
    {95, "E"},
    {96, "E"},
    {97, "E"},
    {98, "E"},
    {99, "E"},
    {100, " "},
});
static_assert(HasCodes(kPresentWeatherSymb, 101));

// W1 and W2, past weather: table 4561. 10 is the solidus.
inline constexpr auto kPastWeather = std::to_array<CodeRow>({
    {0, "Cloud covering less than half sky", "Nubi che coprono meno della metà del cielo"},
    {1, "Cloud covering more than half sky during part of period and more than half during part of period", "Nubi che coprono meno della metà del cielo durante parte del periodo e più della metà durante l'alta parte del periodo"},
    {2, "Cloud covering more than half of sky", "Nubi che coprono piu' della metà del cielo"},
    {3, "Sandstorm, duststorm or blowing snow", "Tempesta di polvere e sabbia o neve"},
    {4, "Fog, or thick haze", "Nebbia, o foschia intensa"},
    {5, "Drizzle", "Pioviggine"},
    {6, "Rain", "Pioggia"},
    {7, "Snow or mixed rain and snow", "Neve o pioggia mescolata e neve"},
    {8, "Showers", "Diluvio"},
    {9, "Thunderstorms", "Temporali"},
    {10, "No observation", "Nessuna osservazione"},
});
static_assert(HasCodes(kPastWeather, 11));

// W1 and W2 as one character of the symbol font; the solidus has no glyph but its text.
inline constexpr auto kPastWeatherSymb = std::to_array<CodeRow>({
    {0, "B"},
    {1, "B"},
    {2, "S"},
    {3, "4"},
    {4, "4"},
    {5, "@"},
    {6, "A"},
    {7, "A"},
    {8, "C"},
    {9, "E"},
    {10, "Nessuna osservazione"},
});
static_assert(HasCodes(kPastWeatherSymb, 11));

// CL, clouds of the genera Sc, St, Cu and Cb: table 0513. 10 is the solidus.
inline constexpr auto kLowCloudType = std::to_array<CodeRow>({
    {0, "No low clouds", "Nessuna nube bassa"},
    {1, "Cumulus humulis or fractus (no vertical development)", "Cumulus Humulis o Fractus (senza sviluppo verticale)"},
    {2, "Cumulus mediocris or congestus (moderate vertical development)", "Cumulus Mediocris o Congestus (moderato sviluppo verticale)"},
    {3, "Cumulonimbus calvus (no outlines or anvil)", "Cumulonimbus Calvus (senza bordi)"},
    {4, "Stratocumulus cumulogenitus (formed by spreading of cumulus)", "Stratocumulus Cumulogenitus (formati dal diradamento di Cumulus)"},
    {5, "Stratocumulus"},
    {6, "Stratus nebulosus (continuous sheet)", "Stratus Nebulosus"},
    {7, "Stratus or cumulus fractus (bad weather)", "Stratus o Cumulus Fractus (cattivo tempo)"},
    {8, "Cumulus and stratocumulus (multilevel)", "Cumulus e Stratocumulus (multilivello)"},
    {9, "Cumulonimbus with anvil", "Cumulonimbus"},
    {10, "Low clouds unobserved due to darkness or obscuration", "Nubi basse non osservate causa oscurità"},
});
static_assert(HasCodes(kLowCloudType, 11));

// CM, clouds of the genera Ac, As and Ns: table 0515. 10 is the solidus.
inline constexpr auto kMiddleCloudType = std::to_array<CodeRow>({
    {0, "No middle clouds", "Nessuna nube media"},
    {1, "Altostratus translucidous (mostly transparent)", "Altostratus translucido (soprattutto trasparente)"},
    {2, "Altostratus opacus or nimbostratus", "Altostratus opaco o Nimbostratus"},
    {3, "Altocumulus translucidous (mostly transparent)", "Altocumulus translucido (soprattutto trasparente)"},
    {4, "Patches of altocumulus (irregular, lenticular)", "Pezze di Altocumulus (irregolari, lenticolari)"},
    {5, "Bands of altocumulus", "Nastri di Altocumulus"},
    {6, "Altocumulus cumulogenitus (formed by spreading of cumulus)", "Altocumulus Cumulogenitus (formati da cumuli)"},
    {7, "Altocumulus (multilayers)", "Altocumulus (multilivello)"},
    {8, "Altocumulus castellanus (having cumuliform tufts)", "Altocumulus Castellanus"},
    {9, "Altocumulus of a caotic sky", "Altocumulus di cielo caotico"},
    {10, "Middle clouds unobserved due to darkness or obscuration", "Nubi medie non osservate causa oscurità"},
});
static_assert(HasCodes(kMiddleCloudType, 11));

// CH, clouds of the genera Ci, Cc and Cs: table 0509. 10 is the solidus.
inline constexpr auto kHighCloudType = std::to_array<CodeRow>({
    {0, "No high clouds", "Nessuna nube alta"},
    {1, "Cirrus fibratus (wispy)", "Cirrus Fibratus (esile)"},
    {2, "Cirrus spissatus (dense in patches)", "Cirrus Spissatus (denso in pezze)"},
    {3, "Cirrus spissatus cumulogenitus (formed out of anvil)", "Cirrus Spissatus Cumulogenitus"},
    {4, "Cirrus unicus or fibratus (progressively invading sky)", "Cirrus Unicus o Fibratus (invadenti progressivamente)"},
    {5, "Bands of cirrus or cirrostratus invading sky (less than 45 degree above horizon)", "Nastri di Cirrus o Cirrostratus invadenti (meno di 45 gradi sopra l'orizzonte)"},
    {6, "Bands of cirrus or cirrostratus invading sky (more than 45 degree above horizon)", "Nastri di Cirrus o Cirrostratus invadenti (piu' di 45 gradi sopra l'orizzonte)"},
    {7, "Cirrostratus covering the whole sky", "Cirrostratus con copertura totale del cielo"},
    {8, "Cirrostratus not covering sky but not invading", "Cirrostratus senza copertura del cielo"},
    {9, "Cirrocumulus ", "Cirrocumulus"},
    {10, "High clouds unobserved due to darkness or obscuration", "Nubi Alte  non osservate causa oscurità"},
});
static_assert(HasCodes(kHighCloudType, 11));

// CL of the remarks group 8/CLCMCH of an aerodrome report: table 0513 in short words, no solidus.
inline constexpr auto kLowCloudTypeForMetar = std::to_array<CodeRow>({
    {0, "No Low clouds", "Nessuna nube bassa"},
    {1, "Cumulus (fair wx)", "Cumulus"},
    {2, "Cumulus (towering)", "Cumulus"},
    {3, "Cumulonibus (no anvil)", "Cumulonimbus"},
    {4, "Stratocumulus (from Cu)", "Stratocumulus (da Cu)"},
    {5, "Stratocumulus (not Cu)", "Stratocumulus (da Cu)"},
    {6, "Stratus (fair)", "Stratus"},
    {7, "Fractocumulus (bad wx)", "Fractocumulus (cattivo tempo)"},
    {8, "Cumulus"},
    {9, "Cumulonibus (T-storm)", "Cumulonimbus (T-storm)"},
});
static_assert(HasCodes(kLowCloudTypeForMetar, 10));

// CM of the same group.
inline constexpr auto kMiddleCloudTypeForMetar = std::to_array<CodeRow>({
    {0, "No Middle clouds", "Nessuna nube media"},
    {1, "Altostratus (thin)", "Altostratus (sottile)"},
    {2, "Altostratus (thick)", "Altostratus (spessa)"},
    {3, "Altocumulus (thin)", "Altocumulus (sottile)"},
    {4, "Altocumulus (patchy)", "Altocumulus (rappezzato)"},
    {5, "Altocumulus (thinckeing)", "Altocumulus"},
    {6, "Altocumulus (from Cu)", "Altocumulus (da Cu)"},
    {7, "Altocumulus"},
    {8, "Altocumulus"},
    {9, "Altocumulus (caotic)", "Altocumulus (caotico)"},
});
static_assert(HasCodes(kMiddleCloudTypeForMetar, 10));

// CH of the same group.
inline constexpr auto kHighCloudTypeForMetar = std::to_array<CodeRow>({
    {0, "No High clouds", "Nessuna nube bassa"},
    {1, "Cirrus (filaments)", "Cirrus (filamenti)"},
    {2, "Cirrus (dense)", "Cirrus (densi)"},
    {3, "Cirrus"},
    {4, "Cirrus (thickeing)", "Cirrus"},
    {5, "Cirrus (low in the sky)", "Cirrus (bassi nel cielo)"},
    {6, "Cirrus (high in the sky)", "Cirrus (alti nel cielo)"},
    {7, "Cirrostratus (entire sky)", "Cirrostratus (tutto il cielo)"},
    {8, "Cirrostratus (partial)", "Cirrostratus (parzialmente)"},
    {9, "Cirrocumulus"},
});
static_assert(HasCodes(kHighCloudTypeForMetar, 10));

// Ds, true direction of the displacement of a ship in three hours: table 0700.
inline constexpr auto kShipDirection = std::to_array<CodeRow>({
    {0, "Calm", "Ferma"},
    {1, "Nord-Est"},
    {2, "Est"},
    {3, "Sud-Est"},
    {4, "Sud"},
    {5, "Sud-West", "Sud-Ovest"},
    {6, "West", "Ovest"},
    {7, "Nord-West", "Nord-Ovest"},
    {8, "Nord"},
    {9, "Unknown", "Sconosciuta"},
});
static_assert(HasCodes(kShipDirection, 10));

// The same in few characters.
inline constexpr auto kShipDirectionShort = std::to_array<CodeRow>({
    {0, "Calm", "Ferma"},
    {1, "NE"},
    {2, "E"},
    {3, "SE"},
    {4, "S"},
    {5, "SW"},
    {6, "W"},
    {7, "NW"},
    {8, "N"},
    {9, "unk"},
});
static_assert(HasCodes(kShipDirectionShort, 10));

// vs, average speed of a ship in three hours: table 4451.
inline constexpr auto kShipAvSpeed = std::to_array<CodeRow>({
    {0, "0 kt", "0 KTS"},
    {1, "1 to 5 KTS", "1÷5 KTS"},
    {2, "6 to 10 KTS", "6÷10 KTS"},
    {3, "11 to 15 KTS", "11÷15 KTS"},
    {4, "16 to 20 KTS", "16÷20 KTS"},
    {5, "21 to 25 KTS", "21÷25 KTS"},
    {6, "26 to 30 KTS", "26÷30 KTS"},
    {7, "31 to 35 KTS", "31÷35 KTS"},
    {8, "36 to 40 KTS", "36÷40 KTS"},
    {9, "Over 40 KTS", "sopra 40 KTS"},
});
static_assert(HasCodes(kShipAvSpeed, 10));

// The same in few characters.
inline constexpr auto kShipAvSpeedShort = std::to_array<CodeRow>({
    {0, "0"},
    {1, "1÷5", "1-5"},
    {2, "6÷10", "6-10"},
    {3, "11÷15", "11-15"},
    {4, "16÷20", "16-20"},
    {5, "21÷25", "21-25"},
    {6, "26÷30", "26-30"},
    {7, "31÷35", "31-35"},
    {8, "36÷40", "36-40"},
    {9, ">40", "> 40"},
});
static_assert(HasCodes(kShipAvSpeedShort, 10));

// E', state of the ground with snow or ice: table 0975.
inline constexpr auto kSnowState = std::to_array<CodeRow>({
    {0, "Predominantly covered with ice", "Copertura del ghiaccio predominante"},
    {1, "Compact or wet snow covering less than half of ground", "Copertura di neve bagnata o compatta per meno della del terreno"},
    {2, "Compact or wet snow covering more than half of ground but not completely covered", "Copertura di neve bagnata o compatta per piu' della del terreno"},
    {3, "Even layer of compact or wet snow covering entire ground", "Strato compatto e uniforme di neve o neve bagnata che copre l'intero terreno"},
    {4, "Uneven layer of compact or wet snow covering entire ground", "Strato compatto non uniforme di neve o neve bagnata che copre l'intero terreno"},
    {5, "Loose dry snow covering less than half of ground", "Neve asciutta che copre meno della meta' del terreno"},
    {6, "Loose dry snow covering more than half of ground but not completely covered", "Neve asciutta che copre piu' della meta' del terreno (non interamente)"},
    {7, "Even layer of loose dry snow covering entire ground", "Neve asciutta uniforme che copre interamente il terreno"},
    {8, "Uneven layer of loose dry snow covering entire ground", "Strato uniforme di neve asciutta che copre interamente il terreno"},
    {9, "Snow covering ground completely with deep drifts", "Terreno completamente coperto dalla neve"},
});
static_assert(HasCodes(kSnowState, 10));

// C, genus of cloud of a layer: table 0500. 10 is the solidus.
inline constexpr auto kTypeOfCloud = std::to_array<CodeRow>({
    {0, "Cirrus (Ci)"},
    {1, "Cirrocumulus (Cc)"},
    {2, "Cirrostratus (Cs)"},
    {3, "Altocumulus (Ac)"},
    {4, "Altostratus (As)"},
    {5, "Nimbostratus (Ns)"},
    {6, "Stratocumulus (Sc)"},
    {7, "Stratus (St)"},
    {8, "Cumulus (Cu)", "Cumulo (Cu)"},
    {9, "Cumulonimbus (Cb)"},
    {10, "Cloud not visible", "Nubi non visibili"},
});
static_assert(HasCodes(kTypeOfCloud, 11));

// The same as the abbreviations of aerodrome reports.
inline constexpr auto kTypeOfCloudShort = std::to_array<CodeRow>({
    {0, "CI"},
    {1, "CC"},
    {2, "CS"},
    {3, "AC"},
    {4, "AS"},
    {5, "NS"},
    {6, "SC"},
    {7, "ST"},
    {8, "TCU"},
    {9, "CB"},
    {10, "-"},
});
static_assert(HasCodes(kTypeOfCloudShort, 11));

// ss, sign and way of measuring of the sea surface temperature: table 3850.
inline constexpr auto kSeaTemperType = std::to_array<CodeRow>({
    {0, "Immission", "Immissione"},
    {1, "Immission", "Immissione"},
    {2, "Container", "Contenitore"},
    {3, "Container", "Contenitore"},
    {4, "Sensor to contact", "Sensore a contatto"},
    {5, "Sensor to contact", "Sensore a contatto"},
    {6, "Unk"},
    {7, "Unk"},
});
static_assert(HasCodes(kSeaTemperType, 8));

// Is, ice accretion on ships: table 1751.
inline constexpr auto kShipIceAccretion = std::to_array<CodeRow>({
    {0, ""},
    {1, "Spray of water", "Spruzzi di acqua"},
    {2, "Nebulosity", "Nebulosita'"},
    {3, "Spray and Nebulosity", "Spruzzi e Nebulosita'"},
    {4, "Rain", "Pioggia"},
    {5, "Rain and Spray", "Pioggia e Spruzzi"},
});
static_assert(HasCodes(kShipIceAccretion, 6));

// Rs, rate of ice accretion on ships: table 3551, counted from 1.
inline constexpr auto kRateIceAccretion = std::to_array<CodeRow>({
    {0, ""},
    {1, "Void Growth", "Accrescimento nullo"},
    {2, "Slow Growth", "Accrescimento lento"},
    {3, "Rapid Growth", "Accrescimento rapido"},
    {4, "Slow Decreasing", "Decrescita lenta"},
    {5, "Rapid Decreasing", "Decrescita rapida"},
});
static_assert(HasCodes(kRateIceAccretion, 6));

// sw, sign and origin of the wet-bulb temperature: table 3855.
inline constexpr auto kWetTemperType = std::to_array<CodeRow>({
    {0, "Measured", "Misurata"},
    {1, "Measured", "Misurata"},
    {2, "Measured", "Misurata"},
    {3, ""},
    {4, ""},
    {5, "Calculated", "Calcolata"},
    {6, "Calculated", "Calcolata"},
    {7, "Calculated", "Calcolata"},
});
static_assert(HasCodes(kWetTemperType, 8));

// ci, concentration or arrangement of sea ice: table 0639. 10 is the solidus.
inline constexpr auto kSeaIceConcentration = std::to_array<CodeRow>({
    {0, "Ice doesn't foresee", "Ghiaccio non presente"},
    {1, "Present but not reportable", "Presente ma non riportabile"},
    {2, "Concentrat. < 30 %, Uniform", "Concentraz. < 30%, Uniforme"},
    {3, "Concentrat. = 40 %, Uniform", "Concentraz. al 40%, Uniforme"},
    {4, "Concentrat. = 70 %, Uniform", "Concentraz. al 70%, Uniforme"},
    {5, "Concentrat. > 70 %, Uniform", "Concentraz. > 70%, Uniforme"},
    {6, "Not uniform, distant and firm blocks", "Non uniforme, blocchi distanti e fermi"},
    {7, "Not uniform, near and firm blocks", "Non uniforme, blocchi vicini e fermi"},
    {8, "Not uniform, distant blocks and furniture", "Non uniforme, blocchi distanti e mobili"},
    {9, "Not uniform, near blocks and furniture", "Non uniforme, blocchi vicini e mobili"},
    {10, "Report not effected", "Report non effettuato"},
});
static_assert(HasCodes(kSeaIceConcentration, 11));

// Si, stage of development of sea ice: table 3739. 10 is the solidus.
inline constexpr auto kSeaIceStage = std::to_array<CodeRow>({
    {0, "Stadium 0", "Stadio 0"},
    {1, "Stadium 1", "Stadio 1"},
    {2, "Stadium 2", "Stadio 2"},
    {3, "Stadium 3", "Stadio 3"},
    {4, "Stadium 4", "Stadio 4"},
    {5, "Stadium 5", "Stadio 5"},
    {6, "Stadium 6", "Stadio 6"},
    {7, "Stadium 7", "Stadio 7"},
    {8, "Stadium 8", "Stadio 8"},
    {9, "Stadium 9", "Stadio 9"},
    {10, "Report not effected", "Report non effettuato"},
});
static_assert(HasCodes(kSeaIceStage, 11));

// Di, true bearing of the principal ice edge: table 0739. 10 is the solidus.
inline constexpr auto kSeaIceBearingEdge = std::to_array<CodeRow>({
    {0, "Not available", "Non disponibile"},
    {1, "Nord-Est"},
    {2, "East", "Est"},
    {3, "Sud-Est"},
    {4, "South", "Sud"},
    {5, "Sud-West", "Sud-Ovest"},
    {6, "West"},
    {7, "Nord-West", "Nord-Ovest"},
    {8, "North", "Nord"},
    {9, "Report not effected", "Report non effettuato"},
    {10, "Not visible", "Non visibile"},
});
static_assert(HasCodes(kSeaIceBearingEdge, 11));

// bi, ice of land origin: table 0439. 10 is the solidus.
inline constexpr auto kIceOfLandOrigin = std::to_array<CodeRow>({
    {0, "Not present", "Non Presente"},
    {1, "1-5 Iceberg, No Blocks", "1-5 Iceberg, No Blocchi"},
    {2, "5-10 Iceberg, No Blocks", "5-10 Iceberg, No Blocchi"},
    {3, "11-20 Iceberg, No Blocks", "11-20 Iceberg, No Blocchi"},
    {4, "< 10 Blocks, No Iceberg", "<10 Blocchi, No Iceberg"},
    {5, "> 10 Blocks, No Iceberg", ">10 Blocchi, No Iceberg"},
    {6, "1-5 Iceberg, with Blocks", "1-5 Iceberg, con Blocchi"},
    {7, "5-10 Iceberg, with Blocks", "5-10 Iceberg, con Blocchi"},
    {8, "11-20 Iceberg, with Blocks", "11-20 Iceberg, con Blocchi"},
    {9, "> 20 Iceberg, with Blocks (Danger!)", ">20 Iceberg, con Blocchi (Pericolo!)"},
    {10, "Report not effected", "Report non effettuato"},
});
static_assert(HasCodes(kIceOfLandOrigin, 11));

// zi, ice situation and trend of the last three hours: table 5239. 10 is the solidus.
inline constexpr auto kIceSituation = std::to_array<CodeRow>({
    {0, "Open Sea, little ice", "Mare aperto, poco ghiaccio"},
    {1, "Easily deep, in amelioration", "Facilmente pentrabile, in miglioramento"},
    {2, "Easily deep, constant", "Facilmente pentrabile, costante"},
    {3, "Easily deep, in worsening", "Facilmente pentrabile, in peggioramento"},
    {4, "Hardly deep, in amelioration", "Difficilmente pentrabile, in miglioramento"},
    {5, "Hardly deep, constant", "Difficilmente pentrabile, costante"},
    {6, "Difficult 1 of 4, in worsening", "Difficolta' 1 di 4, in peggioramento"},
    {7, "Difficult 2 of 4, in worsening", "Difficolta' 2 di 4, in peggioramento"},
    {8, "Difficult 3 of 4, in worsening", "Difficolta' 3 di 4, in peggioramento"},
    {9, "Jammed Ship, in worsening", "Nave Bloccata, in peggioramento"},
    {10, "Report not effected", "Report non effettuato"},
});
static_assert(HasCodes(kIceSituation, 11));

// w'w', the abbreviations of weather in aerodrome reports in the order of their bits (MI, BC, PR,
// DR, BL ...): after table 4678. 28 to 30 are "-", "+" and VC.
inline constexpr auto kWeather = std::to_array<CodeRow>({
    {0, "Shallow", "leggero/a"},
    {1, "Patches", "pezze"},
    {2, "Partial", "parziale"},
    {3, "Drifting", "in movimento"},
    {4, "Blowing", "Ventoso"},
    {5, "Shower", "Pioggia Fitta"},
    {6, "Thunderstorm", "Temporale"},
    {7, "Freezing", "Gelo"},
    {8, "Drizzle", "Pioviggine"},
    {9, "Rain", "Pioggia"},
    {10, "Snow", "Neve"},
    {11, "Snow Grains", "Grani della Neve"},
    {12, "Ice Crystals", "Cristalli del Ghiaccio"},
    {13, "Ice Pellets", "Pallottole del Ghiaccio"},
    {14, "Hail", "Grandine"},
    {15, "Snow Pellets", "Pallottole di Neve"},
    {16, "Mist", "Foschia"},
    {17, "Fog", "Nebbia"},
    {18, "Smoke", "Fumo"},
    {19, "Vulcanic Ash", "Cenere Vulcanica"},
    {20, "Dust", "Polvere"},
    {21, "Sand", "Sabbia"},
    {22, "Haze", "Foschia"},
    {23, "Dust/Sand Whirl", "Polvere/Sabbia"},
    {24, "Squalls", "Burrasca"},
    {25, "Funnel Cloud", "Nube dell'Imbuto"},
    {26, "Sundstorm", "Tempesta di Sabbia"},
    {27, "Dustorm", "Tempesta di Polvere"},
    {28, "(Light)", " (Leggero/a)"},
    {29, "(Heavy)", " (Forte)"},
    {30, "in Vicinity", "in Vicinanza"},
});
static_assert(HasCodes(kWeather, 31));

// clang-format on

}  // namespace zg::tables
