// All that a decoder works with, in one object: for tests and fuzzers.
#pragma once

#include "decode/DecodeContext.h"
#include "decode/MessageStore.h"
#include "stations/StationDirectory.h"
#include "tables/ConversionUtility.h"
#include "tables/TextUtility.h"

namespace zg::test {

// English, no unit chosen, all filters open, no stations.
template <typename LogType, typename ObserverType>
struct DecodeParts {
  DecodeParts() = default;
  DecodeParts(const DecodeParts&) = delete;
  DecodeParts& operator=(const DecodeParts&) = delete;

  LogType Log;
  ObserverType Observer;
  TextUtility Texts;
  ConversionUtility Conversion{Texts};
  StationDirectory Stations;
  MessageStores Stores;
  DecodeContext Context{.Stations = Stations,
                        .Units = {Texts, Conversion},
                        .Filters = {},
                        .Stores = Stores,
                        .Log = Log,
                        .Observer = Observer};
};

}  // namespace zg::test
