// The CSV that zgdecode prints of a run: that of the global view of the family
// that was decoded, as the desktop program exports it from a grid freshly
// opened.
#pragma once

#include <string>

#include "batch/OutputStream.h"
#include "decode/MessageStore.h"
#include "shell/GenericUtility.h"
#include "tables/TextUtility.h"

namespace zg {

class CsvOutput {
 public:
  // Reads the columns ("SynopDataFields", "MetarDataFields") and whether units
  // are shown
  // ("UnitsOnGlobalView").
  CsvOutput(const GenericUtility& parameters, const TextUtility& texts, MessageStores& stores);

  // To be called before each run.
  void BeginRun();
  // Writes what the run has decoded: the heading line at least, and nothing at
  // all if the run found no message of either family.
  void EndRun(OutputStream& out) const;

 private:
  const TextUtility& texts_;
  MessageStores& stores_;
  std::string synopFields_;
  std::string metarFields_;
  bool unitsShown_;
};

}  // namespace zg
