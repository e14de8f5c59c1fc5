// Filling "MeteoStations" from the two station list files at the first start.
//
// A list is text, one station a line, fields divided by ";". A line begins with block, station
// number and ICAO indicator ("16;242;LIRF;") or with the indicator ("LIRF;16;242;"), "--" and
// "----" standing for none. Then follow ten fields, each ended by ";": place name, state, country,
// WMO region, latitude, longitude, latitude and longitude of the upper-air sensor ("41-48N",
// "012-14E", also with seconds), height of station and of sensor in metres. The last line of a list
// carries no station and is never imported.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "shell/GenericUtility.h"
#include "shell/Platform.h"
#include "stations/DBUtility.h"
#include "tables/TextUtility.h"

namespace zg {

struct StationImport {
  enum class Result {
    Done,            // also with lines that had faults
    Fatal,           // a position of impossible length: nothing of the list may be used
    DatabaseFailed,  // the database takes no rows (full disk, lock, damage)
  };
  Result Outcome = Result::Done;
  int Rows = 0;         // rows written
  int Line = 0;         // line of the fatal stop, from 1
  std::string Message;  // file and line of the fatal stop, or the database's error, in English
};

// Reads a list into the table. Faults of single lines leave no trace but the row as far as it could
// be read; a file that cannot be read goes to the log. Writes row by row and begins no transaction:
// the caller does. Log.Enabled is false while the lines are read.
StationImport ImportStationList(const std::string& FileName, DBUtility& dbUtility, LogList& logList,
                                Progress& progress);

// True if the table can be read and has no row.
bool IsStationTableEmpty(DBUtility& dbUtility);

// What the status bar shows while the table is built.
std::string_view StationBuildStatus(const TextUtility& textUtility) noexcept;

struct StationBuild {
  enum class Result {
    NotNeeded,  // the table has rows: nothing was done or logged
    Built,
    Fatal,   // a list had a fatal fault, on which the program ends; the table is still empty
    Failed,  // the database failed; the table is still empty
  };
  Result Outcome = Result::NotNeeded;
  int Rows = 0;
  std::string Message;  // why it failed
};

// Builds the table from the two lists that the parameters "IndexKeyWMOStation" and
// "IcaoIdKeyWMOStation" name, if it is empty, in one transaction. A failure is shown in a message
// box. `loadCountryList` is called once the rows are there, ahead of the closing log line.
StationBuild BuildStationTable(const GenericUtility& genericUtility, DBUtility& dbUtility,
                               const TextUtility& textUtility, LogList& logList, Progress& progress,
                               Prompt& prompt, const std::function<void()>& loadCountryList = {});

}  // namespace zg
