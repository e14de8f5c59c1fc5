// Every text of every code table in both languages, written down a second time: a slip in a table
// shows here. Codes that have no row here are expected to be empty.
#include "tables/CodeTables.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "tables/TextUtility.h"

namespace zg {
namespace {

struct ExpectedRow {
  int Key;
  std::string_view English;
  std::string_view Italian;
};

// clang-format off

constexpr ExpectedRow kQuadrant[] = {
    {1, "North-Est", "Nord-Est"},
    {3, "South-Est", "Sud-Est"},
    {5, "South-West", "Sud-Ovest"},
    {7, "North-West", "Nord-Ovest"},
};

constexpr ExpectedRow kWindTypeInd[] = {
    {0, "mps estimated", "mps (stimati) "},
    {1, "mps from anemometer", "mps (anemometro)"},
    {2, "KTS estimated", "KTS (stimati)"},
    {3, "KTS from anemometer", "KTS (anemometro)"},
};

constexpr ExpectedRow kPrecipInd[] = {
    {0, "Precipitation in groups 1 and 3", "Precipitazioni riportate in gruppi 1 e 3"},
    {1, "Precipitation reported in group 1 only", "Precipitazioni riportate  in gruppo 1 solo"},
    {2, "Precipitation reported in group 3 only", "Precipitazioni riportate  in gruppo 3 solo"},
    {3, "Precipitation omitted, no precipitation", "Nessuna precipitazione"},
    {4, "Precipitation omitted, no observation", "Precipitazione omessa, nessuna osservazione"},
};

constexpr ExpectedRow kStationType[] = {
    {1, "Manned; weather group included", "Manuale; gruppo del tempo incluso"},
    {2, "Manned; no significant weather", "Manuale; nessun tempo significativo"},
    {3, "Manned; no weather observation", "Manuale; nessuna osservazione del tempo"},
    {4, "Auto; weather group included", "Auto; gruppo del tempo incluso"},
    {5, "Auto; no significant weather", "Auto; nessun tempo significativo"},
    {6, "Auto; no weather observation", "Auto; nessuna osservazione del tempo"},
    {7, "Auto; weather group included", "Auto; gruppo del tempo incluso"},
};

constexpr ExpectedRow kLowestCloud[] = {
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
};

constexpr ExpectedRow kLowestCloudShort[] = {
    {0, "<50", "<50"},
    {1, "50÷100", "50÷100"},
    {2, "100÷200", "100÷200"},
    {3, "200÷300", "200÷300"},
    {4, "300÷600", "300÷600"},
    {5, "600÷1000", "600÷1000"},
    {6, "1000÷1500", "1000÷1500"},
    {7, "1500÷2000", "1500÷2000"},
    {8, "2000÷2500", "2000÷2500"},
    {9, ">2500", ">2500"},
    {10, "-", "-"},
};

constexpr ExpectedRow kCloudCover[] = {
    {0, "Sky Clear", "Sereno"},
    {1, "1/8", "1/8"},
    {2, "2/8", "2/8"},
    {3, "3/8", "3/8"},
    {4, "4/8", "4/8"},
    {5, "5/8", "5/8"},
    {6, "6/8", "6/8"},
    {7, "7/8", "7/8"},
    {8, "Overcast", "Coperto"},
    {9, "Sky obscured", "Cielo oscurato"},
    {10, "No observation", "No Obsev."},
};

constexpr ExpectedRow kCloudCoverShort[] = {
    {0, "0/8", "0/8"},
    {1, "1/8", "1/8"},
    {2, "2/8", "2/8"},
    {3, "3/8", "3/8"},
    {4, "4/8", "4/8"},
    {5, "5/8", "5/8"},
    {6, "6/8", "6/8"},
    {7, "7/8", "7/8"},
    {8, "8/8", "8/8"},
    {9, "Obscured", "Oscurato"},
    {10, "-", "-"},
};

constexpr ExpectedRow kPressTendency[] = {
    {0, "Increasing, then decreasing; resultant pressure same or higher", "In aumento, poi decrescente; pressione risultante uguale o più alta"},
    {1, "Increasing, then steady; resultant pressure higher", "In aumento, poi costante; pressione risultante più alta"},
    {2, "Increasing steadily; resultant pressure higher", "In aumento costante; pressione risultante più alta"},
    {3, "Decreasing or steady, then increasing; resultant pressure higher", "Decrescente o costante, poi in aumento; pressione risultante più alta"},
    {4, "Steady; resultant pressure same", "Costante; pressione risultante uguale"},
    {5, "Decreasing, then increasing; resultant pressure lower", "Decrescente, poi in aumento; pressione risultante più bassa"},
    {6, "Decreasing, then steady; resultant pressure lower", "Decrescente, poi costante; pressione risultante più bassa"},
    {7, "Decreasing steadily; resultant pressure lower", "In diminuzione costante; pressione risultante più bassa"},
    {8, "Increasing or steady, then decreasing; resultant pressure lower", "In aumento o costante, poi decrescente; pressione risultante più bassa"},
};

constexpr ExpectedRow kPrecipitDuration[] = {
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
};

constexpr ExpectedRow kPresentWeather[] = {
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
};

constexpr ExpectedRow kPresentWeatherSymb[] = {
    {0, "Q", "Q"},
    {1, "R", "R"},
    {2, " ", " "},
    {3, "B", "B"},
    {4, "4", "4"},
    {5, "4", "4"},
    {6, "4", "4"},
    {7, "4", "4"},
    {8, "4", "4"},
    {9, "H", "H"},
    {10, "4", "4"},
    {11, "3", "3"},
    {12, "3", "3"},
    {13, "H", "H"},
    {14, "A", "A"},
    {15, "A", "A"},
    {16, "A", "A"},
    {17, "D", "D"},
    {18, "D", "D"},
    {19, "B", "B"},
    {20, "@", "@"},
    {21, "A", "A"},
    {22, "P", "P"},
    {23, "A", "A"},
    {24, "A", "A"},
    {25, "C", "C"},
    {26, "P", "P"},
    {27, "A", "A"},
    {28, "4", "4"},
    {29, "E", "E"},
    {30, "4", "4"},
    {31, "4", "4"},
    {32, "4", "4"},
    {33, "4", "4"},
    {34, "4", "4"},
    {35, "4", "4"},
    {36, "P", "P"},
    {37, "P", "P"},
    {38, "P", "P"},
    {39, "P", "P"},
    {40, "4", "4"},
    {41, "4", "4"},
    {42, "4", "4"},
    {43, "4", "4"},
    {44, "4", "4"},
    {45, "4", "4"},
    {46, "4", "4"},
    {47, "4", "4"},
    {48, "4", "4"},
    {49, "4", "4"},
    {50, "@", "@"},
    {51, "@", "@"},
    {52, "@", "@"},
    {53, "@", "@"},
    {54, "A", "A"},
    {55, "A", "A"},
    {56, "@", "@"},
    {57, "A", "A"},
    {58, "A", "A"},
    {59, "A", "A"},
    {60, "A", "A"},
    {61, "A", "A"},
    {62, "A", "A"},
    {63, "A", "A"},
    {64, "C", "C"},
    {65, "C", "C"},
    {66, "A", "A"},
    {67, "C", "C"},
    {68, "A", "A"},
    {69, "A", "A"},
    {70, "P", "P"},
    {71, "P", "P"},
    {72, "P", "P"},
    {73, "P", "P"},
    {74, "P", "P"},
    {75, "P", "P"},
    {76, "P", "P"},
    {77, "P", "P"},
    {78, "P", "P"},
    {79, "P", "P"},
    {80, "A", "A"},
    {81, "C", "C"},
    {82, "C", "C"},
    {83, "A", "A"},
    {84, "P", "P"},
    {85, "P", "P"},
    {86, "P", "P"},
    {87, "P", "P"},
    {88, "P", "P"},
    {89, "P", "P"},
    {90, "P", "P"},
    {91, "E", "E"},
    {92, "C", "C"},
    {93, "E", "E"},
    {94, "E", "E"},
    {95, "E", "E"},
    {96, "E", "E"},
    {97, "E", "E"},
    {98, "E", "E"},
    {99, "E", "E"},
    {100, " ", " "},
};

constexpr ExpectedRow kPastWeather[] = {
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
};

constexpr ExpectedRow kPastWeatherSymb[] = {
    {0, "B", "B"},
    {1, "B", "B"},
    {2, "S", "S"},
    {3, "4", "4"},
    {4, "4", "4"},
    {5, "@", "@"},
    {6, "A", "A"},
    {7, "A", "A"},
    {8, "C", "C"},
    {9, "E", "E"},
    {10, "Nessuna osservazione", "Nessuna osservazione"},
};

constexpr ExpectedRow kLowCloudType[] = {
    {0, "No low clouds", "Nessuna nube bassa"},
    {1, "Cumulus humulis or fractus (no vertical development)", "Cumulus Humulis o Fractus (senza sviluppo verticale)"},
    {2, "Cumulus mediocris or congestus (moderate vertical development)", "Cumulus Mediocris o Congestus (moderato sviluppo verticale)"},
    {3, "Cumulonimbus calvus (no outlines or anvil)", "Cumulonimbus Calvus (senza bordi)"},
    {4, "Stratocumulus cumulogenitus (formed by spreading of cumulus)", "Stratocumulus Cumulogenitus (formati dal diradamento di Cumulus)"},
    {5, "Stratocumulus", "Stratocumulus"},
    {6, "Stratus nebulosus (continuous sheet)", "Stratus Nebulosus"},
    {7, "Stratus or cumulus fractus (bad weather)", "Stratus o Cumulus Fractus (cattivo tempo)"},
    {8, "Cumulus and stratocumulus (multilevel)", "Cumulus e Stratocumulus (multilivello)"},
    {9, "Cumulonimbus with anvil", "Cumulonimbus"},
    {10, "Low clouds unobserved due to darkness or obscuration", "Nubi basse non osservate causa oscurità"},
};

constexpr ExpectedRow kMiddleCloudType[] = {
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
};

constexpr ExpectedRow kHighCloudType[] = {
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
};

constexpr ExpectedRow kLowCloudTypeForMetar[] = {
    {0, "No Low clouds", "Nessuna nube bassa"},
    {1, "Cumulus (fair wx)", "Cumulus"},
    {2, "Cumulus (towering)", "Cumulus"},
    {3, "Cumulonibus (no anvil)", "Cumulonimbus"},
    {4, "Stratocumulus (from Cu)", "Stratocumulus (da Cu)"},
    {5, "Stratocumulus (not Cu)", "Stratocumulus (da Cu)"},
    {6, "Stratus (fair)", "Stratus"},
    {7, "Fractocumulus (bad wx)", "Fractocumulus (cattivo tempo)"},
    {8, "Cumulus", "Cumulus"},
    {9, "Cumulonibus (T-storm)", "Cumulonimbus (T-storm)"},
};

constexpr ExpectedRow kMiddleCloudTypeForMetar[] = {
    {0, "No Middle clouds", "Nessuna nube media"},
    {1, "Altostratus (thin)", "Altostratus (sottile)"},
    {2, "Altostratus (thick)", "Altostratus (spessa)"},
    {3, "Altocumulus (thin)", "Altocumulus (sottile)"},
    {4, "Altocumulus (patchy)", "Altocumulus (rappezzato)"},
    {5, "Altocumulus (thinckeing)", "Altocumulus"},
    {6, "Altocumulus (from Cu)", "Altocumulus (da Cu)"},
    {7, "Altocumulus", "Altocumulus"},
    {8, "Altocumulus", "Altocumulus"},
    {9, "Altocumulus (caotic)", "Altocumulus (caotico)"},
};

constexpr ExpectedRow kHighCloudTypeForMetar[] = {
    {0, "No High clouds", "Nessuna nube bassa"},
    {1, "Cirrus (filaments)", "Cirrus (filamenti)"},
    {2, "Cirrus (dense)", "Cirrus (densi)"},
    {3, "Cirrus", "Cirrus"},
    {4, "Cirrus (thickeing)", "Cirrus"},
    {5, "Cirrus (low in the sky)", "Cirrus (bassi nel cielo)"},
    {6, "Cirrus (high in the sky)", "Cirrus (alti nel cielo)"},
    {7, "Cirrostratus (entire sky)", "Cirrostratus (tutto il cielo)"},
    {8, "Cirrostratus (partial)", "Cirrostratus (parzialmente)"},
    {9, "Cirrocumulus", "Cirrocumulus"},
};

constexpr ExpectedRow kShipDirection[] = {
    {0, "Calm", "Ferma"},
    {1, "Nord-Est", "Nord-Est"},
    {2, "Est", "Est"},
    {3, "Sud-Est", "Sud-Est"},
    {4, "Sud", "Sud"},
    {5, "Sud-West", "Sud-Ovest"},
    {6, "West", "Ovest"},
    {7, "Nord-West", "Nord-Ovest"},
    {8, "Nord", "Nord"},
    {9, "Unknown", "Sconosciuta"},
};

constexpr ExpectedRow kShipDirectionShort[] = {
    {0, "Calm", "Ferma"},
    {1, "NE", "NE"},
    {2, "E", "E"},
    {3, "SE", "SE"},
    {4, "S", "S"},
    {5, "SW", "SW"},
    {6, "W", "W"},
    {7, "NW", "NW"},
    {8, "N", "N"},
    {9, "unk", "unk"},
};

constexpr ExpectedRow kShipAvSpeed[] = {
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
};

constexpr ExpectedRow kShipAvSpeedShort[] = {
    {0, "0", "0"},
    {1, "1÷5", "1-5"},
    {2, "6÷10", "6-10"},
    {3, "11÷15", "11-15"},
    {4, "16÷20", "16-20"},
    {5, "21÷25", "21-25"},
    {6, "26÷30", "26-30"},
    {7, "31÷35", "31-35"},
    {8, "36÷40", "36-40"},
    {9, ">40", "> 40"},
};

constexpr ExpectedRow kSnowState[] = {
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
};

constexpr ExpectedRow kTypeOfCloud[] = {
    {0, "Cirrus (Ci)", "Cirrus (Ci)"},
    {1, "Cirrocumulus (Cc)", "Cirrocumulus (Cc)"},
    {2, "Cirrostratus (Cs)", "Cirrostratus (Cs)"},
    {3, "Altocumulus (Ac)", "Altocumulus (Ac)"},
    {4, "Altostratus (As)", "Altostratus (As)"},
    {5, "Nimbostratus (Ns)", "Nimbostratus (Ns)"},
    {6, "Stratocumulus (Sc)", "Stratocumulus (Sc)"},
    {7, "Stratus (St)", "Stratus (St)"},
    {8, "Cumulus (Cu)", "Cumulo (Cu)"},
    {9, "Cumulonimbus (Cb)", "Cumulonimbus (Cb)"},
    {10, "Cloud not visible", "Nubi non visibili"},
};

constexpr ExpectedRow kTypeOfCloudShort[] = {
    {0, "CI", "CI"},
    {1, "CC", "CC"},
    {2, "CS", "CS"},
    {3, "AC", "AC"},
    {4, "AS", "AS"},
    {5, "NS", "NS"},
    {6, "SC", "SC"},
    {7, "ST", "ST"},
    {8, "TCU", "TCU"},
    {9, "CB", "CB"},
    {10, "-", "-"},
};

constexpr ExpectedRow kSeaTemperType[] = {
    {0, "Immission", "Immissione"},
    {1, "Immission", "Immissione"},
    {2, "Container", "Contenitore"},
    {3, "Container", "Contenitore"},
    {4, "Sensor to contact", "Sensore a contatto"},
    {5, "Sensor to contact", "Sensore a contatto"},
    {6, "Unk", "Unk"},
    {7, "Unk", "Unk"},
};

constexpr ExpectedRow kShipIceAccretion[] = {
    {1, "Spray of water", "Spruzzi di acqua"},
    {2, "Nebulosity", "Nebulosita'"},
    {3, "Spray and Nebulosity", "Spruzzi e Nebulosita'"},
    {4, "Rain", "Pioggia"},
    {5, "Rain and Spray", "Pioggia e Spruzzi"},
};

constexpr ExpectedRow kRateIceAccretion[] = {
    {1, "Void Growth", "Accrescimento nullo"},
    {2, "Slow Growth", "Accrescimento lento"},
    {3, "Rapid Growth", "Accrescimento rapido"},
    {4, "Slow Decreasing", "Decrescita lenta"},
    {5, "Rapid Decreasing", "Decrescita rapida"},
};

constexpr ExpectedRow kWetTemperType[] = {
    {0, "Measured", "Misurata"},
    {1, "Measured", "Misurata"},
    {2, "Measured", "Misurata"},
    {5, "Calculated", "Calcolata"},
    {6, "Calculated", "Calcolata"},
    {7, "Calculated", "Calcolata"},
};

constexpr ExpectedRow kSeaIceConcentration[] = {
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
};

constexpr ExpectedRow kSeaIceStage[] = {
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
};

constexpr ExpectedRow kSeaIceBearingEdge[] = {
    {0, "Not available", "Non disponibile"},
    {1, "Nord-Est", "Nord-Est"},
    {2, "East", "Est"},
    {3, "Sud-Est", "Sud-Est"},
    {4, "South", "Sud"},
    {5, "Sud-West", "Sud-Ovest"},
    {6, "West", "West"},
    {7, "Nord-West", "Nord-Ovest"},
    {8, "North", "Nord"},
    {9, "Report not effected", "Report non effettuato"},
    {10, "Not visible", "Non visibile"},
};

constexpr ExpectedRow kIceOfLandOrigin[] = {
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
};

constexpr ExpectedRow kIceSituation[] = {
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
};

constexpr ExpectedRow kWeather[] = {
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
};

// clang-format on

// The lookups have two types of keys; here they all take an int.
template <auto Method, typename Key = std::uint8_t>
std::string_view Look(const TextUtility& texts, int key) {
  return (texts.*Method)(static_cast<Key>(key));
}

struct Table {
  std::string_view Name;
  std::string_view (*Look)(const TextUtility&, int key);
  std::span<const ExpectedRow> Rows;
};

void PrintTo(const Table& table, std::ostream* out) { *out << table.Name; }

// clang-format off
constexpr Table kTables[] = {
    {"Quadrant", Look<&TextUtility::Quadrant, std::int16_t>, kQuadrant},
    {"WindTypeInd", Look<&TextUtility::WindTypeInd>, kWindTypeInd},
    {"PrecipInd", Look<&TextUtility::PrecipInd>, kPrecipInd},
    {"StationType", Look<&TextUtility::StationType>, kStationType},
    {"LowestCloud", Look<&TextUtility::LowestCloud>, kLowestCloud},
    {"LowestCloudShort", Look<&TextUtility::LowestCloudShort>, kLowestCloudShort},
    {"CloudCover", Look<&TextUtility::CloudCover>, kCloudCover},
    {"CloudCoverShort", Look<&TextUtility::CloudCoverShort>, kCloudCoverShort},
    {"PressTendency", Look<&TextUtility::PressTendency>, kPressTendency},
    {"PrecipitDuration", Look<&TextUtility::PrecipitDuration>, kPrecipitDuration},
    {"PresentWeather", Look<&TextUtility::PresentWeather>, kPresentWeather},
    {"PresentWeatherSymb", Look<&TextUtility::PresentWeatherSymb>, kPresentWeatherSymb},
    {"PastWeather", Look<&TextUtility::PastWeather>, kPastWeather},
    {"PastWeatherSymb", Look<&TextUtility::PastWeatherSymb>, kPastWeatherSymb},
    {"LowCloudType", Look<&TextUtility::LowCloudType>, kLowCloudType},
    {"MiddleCloudType", Look<&TextUtility::MiddleCloudType>, kMiddleCloudType},
    {"HighCloudType", Look<&TextUtility::HighCloudType>, kHighCloudType},
    {"LowCloudTypeForMetar", Look<&TextUtility::LowCloudTypeForMetar>, kLowCloudTypeForMetar},
    {"MiddleCloudTypeForMetar", Look<&TextUtility::MiddleCloudTypeForMetar>, kMiddleCloudTypeForMetar},
    {"HighCloudTypeForMetar", Look<&TextUtility::HighCloudTypeForMetar>, kHighCloudTypeForMetar},
    {"ShipDirection", Look<&TextUtility::ShipDirection>, kShipDirection},
    {"ShipDirectionShort", Look<&TextUtility::ShipDirectionShort>, kShipDirectionShort},
    {"ShipAvSpeed", Look<&TextUtility::ShipAvSpeed>, kShipAvSpeed},
    {"ShipAvSpeedShort", Look<&TextUtility::ShipAvSpeedShort>, kShipAvSpeedShort},
    {"SnowState", Look<&TextUtility::SnowState>, kSnowState},
    {"TypeOfCloud", Look<&TextUtility::TypeOfCloud>, kTypeOfCloud},
    {"TypeOfCloudShort", Look<&TextUtility::TypeOfCloudShort>, kTypeOfCloudShort},
    {"SeaTemperType", Look<&TextUtility::SeaTemperType>, kSeaTemperType},
    {"ShipIceAccretion", Look<&TextUtility::ShipIceAccretion>, kShipIceAccretion},
    {"RateIceAccretion", Look<&TextUtility::RateIceAccretion>, kRateIceAccretion},
    {"WetTemperType", Look<&TextUtility::WetTemperType>, kWetTemperType},
    {"SeaIceConcentration", Look<&TextUtility::SeaIceConcentration>, kSeaIceConcentration},
    {"SeaIceStage", Look<&TextUtility::SeaIceStage>, kSeaIceStage},
    {"SeaIceBearingEdge", Look<&TextUtility::SeaIceBearingEdge>, kSeaIceBearingEdge},
    {"IceOfLandOrigin", Look<&TextUtility::IceOfLandOrigin>, kIceOfLandOrigin},
    {"IceSituation", Look<&TextUtility::IceSituation>, kIceSituation},
    {"Weather", Look<&TextUtility::Weather>, kWeather},
};
// clang-format on

class CodeTables : public testing::TestWithParam<Table> {};

TEST_P(CodeTables, HoldsEveryTextInBothLanguages) {
  const Table& table = GetParam();
  TextUtility english;
  english.SetLanguage(1);
  TextUtility italian;
  italian.SetLanguage(0);

  auto row = table.Rows.begin();
  for (int key = 0; key <= 255; ++key) {
    SCOPED_TRACE(key);
    const bool isRow = row != table.Rows.end() && row->Key == key;
    EXPECT_EQ(table.Look(english, key), isRow ? row->English : "");
    EXPECT_EQ(table.Look(italian, key), isRow ? row->Italian : "");
    if (isRow) ++row;
  }
  EXPECT_EQ(row, table.Rows.end()) << "rows out of order";
}

INSTANTIATE_TEST_SUITE_P(Tables, CodeTables, testing::ValuesIn(kTables),
                         [](const auto& test) { return std::string(test.param.Name); });

// A table of three rows, two of them out of order.
TEST(CodeTablesHasCodes, WantsEachCodeAtItsIndex) {
  using tables::CodeRow;
  using tables::HasCodes;
  constexpr auto ordered = std::to_array<CodeRow>({{0, "a"}, {1, "b"}, {2, ""}});
  constexpr auto swapped = std::to_array<CodeRow>({{0, "a"}, {2, "b"}, {1, ""}});
  EXPECT_TRUE(HasCodes(ordered, 3));
  EXPECT_FALSE(HasCodes(ordered, 4));
  EXPECT_FALSE(HasCodes(swapped, 3));
}

}  // namespace
}  // namespace zg
