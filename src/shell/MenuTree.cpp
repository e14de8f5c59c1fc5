#include "shell/MenuTree.h"

#include <array>

#include "text/TextRules.h"

namespace zg {
namespace {

using enum MenuKind;

constexpr MenuEntry Line(std::string_view parent, std::string_view name = {}) {
  return {Separator, parent, name, {}, {}};
}

constexpr auto Entries = std::to_array<MenuEntry>({
    {Menu, "", "mnuApplication", "&Applicazione", ""},
    {Menu, "mnuApplication", "mnuConfig", "&Configurazione", ""},
    {Command, "mnuConfig", "mnuLanguage", "&Lingua", ""},
    {Command, "mnuConfig", "mnuScheduler", "&Scheduler", ""},
    Line("mnuConfig"),
    {Command, "mnuConfig", "mnuQuadrantFilter", "Filtro &Quadranti Geografici", ""},
    {Command, "mnuConfig", "mnuStationType", "Filtro &Tipo di Stazione", ""},
    {Command, "mnuConfig", "mnuCountryFilter", "Filtro &Nazioni", ""},
    Line("mnuConfig"),
    {Command, "mnuConfig", "mnuMetarDataFields", "Campi Dati &Metar/TAF", ""},
    {Command, "mnuConfig", "mnuSynopDataFields", "Campi &Dati Synop", ""},
    {Command, "mnuConfig", "mnuAchiveFields", "Campi &Archivio", ""},
    {Command, "mnuConfig", "mnuTimeInArchive", "Tempo di &Permanenza in Archivio", ""},
    Line("mnuConfig"),
    {Command, "mnuConfig", "mnuMapFont", "&Font Mappe", ""},
    {Menu, "mnuConfig", "mnuColor", "&Colori Simboli Stazione", ""},
    {Command, "mnuColor", "mnuLandStationColor", "Stazioni di Terra (Land)", ""},
    {Command, "mnuColor", "mnuShipStationColor", "Stazioni di Mare (Ship)", ""},
    {Command, "mnuColor", "mnuBuoyColor", "Boe Marine (Buoy)", ""},
    Line("mnuConfig"),
    {Menu, "mnuConfig", "mnuConfigPictures", "Pictures", ""},
    {Command, "mnuConfigPictures", "mnuPicture1Name", "Picture (1) Name", ""},
    {Command, "mnuConfigPictures", "mnuPicture1Url", "Picture (1) Url", ""},
    {Command, "mnuConfigPictures", "mnuPicture2Name", "Picture (2) Name", ""},
    {Command, "mnuConfigPictures", "mnuPicture2Url", "Picture (2) Url", ""},
    {Command, "mnuConfigPictures", "mnuPicture3Name", "Picture (3) Name", ""},
    {Command, "mnuConfigPictures", "mnuPicture3Url", "Picture (3) Url", ""},
    {Command, "mnuConfigPictures", "mnuPicture4Name", "Picture (4) Name", ""},
    {Command, "mnuConfigPictures", "mnuPicture4Url", "Picture (4) Url", ""},
    {Command, "mnuConfigPictures", "mnuPicture5Name", "Picture (5) Name", ""},
    {Command, "mnuConfigPictures", "mnuPicture5Url", "Picture (5) Url", ""},
    {Command, "mnuConfig", "mnuURLFtp", "URL Ftp Connection", ""},
    Line("mnuConfig"),
    {Menu, "mnuConfig", "mnuUnit", "&Conversione Unita di Misura", ""},
    {Menu, "mnuUnit", "mnuLevelUnit", "Livello (Altezza)", ""},
    {Check, "mnuLevelUnit", "mnuFeet", "ft", ""},
    {Check, "mnuLevelUnit", "mnuHighMeter", "m", ""},
    {Menu, "mnuUnit", "mnuSpeedUnit", "Velocita' del Vento", ""},
    {Check, "mnuSpeedUnit", "mnuKnots", "KTS", ""},
    {Check, "mnuSpeedUnit", "mnuMeterPerSec", "mps", ""},
    {Check, "mnuSpeedUnit", "mnuKmPerHour", "kmh", ""},
    {Menu, "mnuUnit", "mnuDistanceUnit", "Distanza", ""},
    {Check, "mnuDistanceUnit", "mnuMMiles", "NM", ""},
    {Check, "mnuDistanceUnit", "mnuMiles", "SM", ""},
    {Check, "mnuDistanceUnit", "mnuKilometer", "km", ""},
    {Check, "mnuDistanceUnit", "mnuDistMeter", "m", ""},
    {Menu, "mnuUnit", "mnuPressureUnit", "Pressione", ""},
    {Check, "mnuPressureUnit", "mnuInHg", "inHg", ""},
    {Check, "mnuPressureUnit", "mnuBar", "hpa", ""},
    {Menu, "mnuUnit", "mnuTemperatureUnit", "Temperatura", ""},
    {Check, "mnuTemperatureUnit", "mnuDegreeCent", "°C", ""},
    {Check, "mnuTemperatureUnit", "mnuDegreeFar", "°F", ""},
    Line("mnuUnit"),
    {Check, "mnuUnit", "mnuMessageUnit", "Utilizzazione delle U.di M. del Messaggio", ""},
    {Command, "mnuApplication", "mnuStopDownload", "&Stop Downloading", ""},
    {Command, "mnuApplication", "mnuMinimize", "&Minimize", ""},
    Line("mnuApplication"),
    {Command, "mnuApplication", "mnuExit", "&Exit", "Ctrl+Q"},

    {Menu, "", "mnuInput", "&Input Dati", ""},
    {Command, "mnuInput", "mnuOpen", "&File Meteo", "Ctrl+O"},
    {Menu, "mnuInput", "mnuRecent", "File &Recenti", ""},
    {Command, "mnuInput", "mnuLineInput", "&Input in Linea", "Ctrl+L"},
    Line("mnuInput"),
    {Command, "mnuInput", "mnuSynopWorld", "Dati Sinottici del &Mondo", ""},
    {Command, "mnuInput", "mnuSynopEurope", "Dati Sinottici d'&Europa", ""},
    {Command, "mnuInput", "mnuShip", "Dati Ship (Navi)", ""},
    {Command, "mnuInput", "mnuBuoys", "Dati Buoys (Boe)", ""},
    {Menu, "mnuInput", "mnuForecast", "TAF", ""},
    {Menu, "mnuForecast", "mnuDailyTaf", "TAF Giornalieri", ""},
    {Command, "mnuDailyTaf", "mnuTaf", "", "", 4, 6},
    {Command, "mnuForecast", "mnuWorldTaf", "TAF del Mondo", ""},
    {Menu, "mnuInput", "mnuAircraftMetar", "Metar", ""},
    {Menu, "mnuAircraftMetar", "mnuDailyMetar", "Metar Giornalieri", ""},
    {Command, "mnuDailyMetar", "mnuMetar", "", "", 24, 1},
    {Command, "mnuAircraftMetar", "mnuWorldMetar", "Metar del Mondo", ""},
    {Command, "mnuInput", "mnuFronts", "FRONTs (ASUS1)", ""},
    Line("mnuInput"),
    {Command, "mnuInput", "mnuFtpMeteo", "&URL Archivi Meteo", ""},

    {Menu, "", "mnuShowData", "&Visualizzazione Dati", ""},
    {Menu, "mnuShowData", "mnuSynopData", "Dati &Synop", ""},
    {Menu, "mnuSynopData", "mnuSynopGeoMaps", "&Geografia", ""},
    {Command, "mnuSynopGeoMaps", "mnuSynopItalyMap", "Cartina &Italia", ""},
    {Command, "mnuSynopGeoMaps", "mnuSynopEuropeMap", "Cartina &Europa", ""},
    {Command, "mnuSynopGeoMaps", "mnuSynopWorldMap", "Cartina &Mondo", ""},
    {Command, "mnuSynopGeoMaps", "mnuSynopUSAMap", "Cartina &Stati Uniti", ""},
    {Command, "mnuSynopGeoMaps", "mnuSynopEnglandMap", "Cartina I&nghilterra", ""},
    {Command, "mnuSynopData", "mnuSingleSheet", "Scheda Singole", ""},
    {Command, "mnuSynopData", "mnuSynopDataGrid", "Scheda d'Insieme", ""},
    {Command, "mnuSynopData", "mnuSynopDataArchive", "Archivia", ""},
    {Command, "mnuSynopData", "mnuDeleteSynopData", "Cancella", ""},
    {Menu, "mnuShowData", "mnuMetarSynopData", "Dati &Metar/TAF", ""},
    {Menu, "mnuMetarSynopData", "mnuMetarGeoMaps", "&Geografia", ""},
    {Command, "mnuMetarGeoMaps", "mnuMetarItalyMap", "Cartina &Italia", ""},
    {Command, "mnuMetarGeoMaps", "mnuMetarEuropeMap", "Cartina &Europa", ""},
    {Command, "mnuMetarGeoMaps", "mnuMetarWorldMap", "Cartina &Mondo", ""},
    {Command, "mnuMetarGeoMaps", "mnuMetarUSAMap", "Cartina &Stati Uniti", ""},
    {Command, "mnuMetarGeoMaps", "mnuMetarEnglandMap", "Cartina I&nghilterra", ""},
    {Command, "mnuMetarSynopData", "mnuMetarSingleSheet", "Scheda Singole", ""},
    {Command, "mnuMetarSynopData", "mnuMetarSynopDataGrid", "Scheda d'Insieme", ""},
    {Command, "mnuMetarSynopData", "mnuMetarDeleteSynopData", "Cancella", ""},
    {Menu, "mnuShowData", "mnuArchivedData", "&Dati Archiviati", ""},
    {Command, "mnuArchivedData", "mnuArchiveGrid", "Scheda d'Insieme", ""},
    {Command, "mnuArchivedData", "mnuDeleteArchivedData", "Cancella", ""},
    Line("mnuShowData", "mnuSeparator"),
    {Command, "mnuShowData", "mnuPicture1", "Picture 1", ""},
    {Command, "mnuShowData", "mnuPicture2", "Picture 2", ""},
    {Command, "mnuShowData", "mnuPicture3", "3", ""},
    {Command, "mnuShowData", "mnuPicture4", "4", ""},
    {Command, "mnuShowData", "mnuPicture5", "5", ""},

    {Menu, "", "mnuHelp", "&Help", ""},
    {Command, "mnuHelp", "mnuInfo", "&Informazioni su Zephyrgram", "F1"},
});

}  // namespace

std::span<const MenuEntry> MenuTree() noexcept { return Entries; }

std::string MemberName(std::string_view name, int index) {
  return std::string(name) + "(" + PlainDecimal(index) + ")";
}

}  // namespace zg
