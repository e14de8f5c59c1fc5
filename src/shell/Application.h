// What the windows of the program share: settings, texts, database, stations, stores. One object,
// made by main and handed on by reference; nothing else in the program is global.
#pragma once

#include <string>
#include <string_view>

#include "decode/MessageFilters.h"
#include "decode/MessageStore.h"
#include "shell/GenericUtility.h"
#include "shell/Platform.h"
#include "stations/DBUtility.h"
#include "stations/StationDirectory.h"
#include "tables/ConversionUtility.h"
#include "tables/TextUtility.h"

namespace zg {

// The version follows.
inline constexpr std::string_view ApplicationTitle = "Zephyrgram ";

// "Rel. 1.2 Build 0003" of a version as CMake writes it, "1.2.3".
std::string ApplicationVersion(std::string_view version);

struct Application {
  // `applicationPath` ends in "/". The interfaces must outlive this object. Nothing is read yet.
  Application(std::string applicationPath, LogList& log, Prompt& prompt, Clock& clock);
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // The language of the moment chooses.
  std::string_view Choose(std::string_view italian, std::string_view english) const noexcept {
    return Texts.Choose(italian, english);
  }

  // "MaxMessages", and the largest that there is where the parameter is missing or no number.
  std::int32_t MaxMessages() const;

  const std::string ApplicationPath;  // each ends in "/"
  const std::string MeteoFilesPath;
  const std::string WrongFilesPath;
  std::string Caption;  // of the main window: title and version
  LogList& Log;
  Prompt& Messages;
  Clock& Time;

  TextUtility Texts;
  ConversionUtility Conversion{Texts};
  GenericUtility Parameters;
  DBUtility Database;
  StationDirectory Stations;
  MessageStores Stores;
  MessageFilters Filters;

  // What windows tell each other.
  std::string mFileName;            // the bulletin file to be decoded
  std::string mLineInputMsg;        // the typed message to be decoded
  bool mSchedulingStarted = false;  // a scheduled cycle runs: nobody is there to be asked
  int mSelectedSynopMap = 0;        // field of the label at the stations, 0 for none
  int mSelectedMetarMap = 0;
};

}  // namespace zg
