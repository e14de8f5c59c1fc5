// The decoded messages of the last run, in memory only: one store for SYNOP, one for METAR, SPECI
// and TAF. A run fills one of them and replaces it whole; what it does not fill stays.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "decode/StationTexts.h"
#include "decode/ValueTexts.h"
#include "decode/aero/MetarRecord.h"
#include "decode/synop/SynopRecord.h"
#include "text/TextArena.h"

namespace zg {

// The texts that the records of one store share. Cleared as a whole, never in part.
struct StoreTexts {
  TextArena Arena;
  ValueTexts Values{Arena};
  // Texts of stations met so far, by the number of their row in the directory.
  std::vector<const StationTexts*> Stations;

  StoreTexts() = default;
  StoreTexts(const StoreTexts&) = delete;
  StoreTexts& operator=(const StoreTexts&) = delete;

  void Clear() noexcept {
    Values.Clear();
    Stations.clear();
    Arena.Clear();
  }
};

// Records in the order of decoding. A record is written once and never moves or changes until the
// store is reset.
template <typename Record>
class MessageStore {
 public:
  // Erases all records and makes room for `maxMessages`, so that storing does not allocate.
  void Reset(std::size_t maxMessages) {
    records_.clear();
    texts_.Clear();
    records_.reserve(maxMessages);
  }

  Record& Add() { return records_.emplace_back(); }

  std::size_t Count() const noexcept { return records_.size(); }
  std::span<const Record> Records() const noexcept { return records_; }
  StoreTexts& Texts() noexcept { return texts_; }

  // Bytes that the records and their texts take.
  std::size_t MemoryInUse() const noexcept {
    return records_.size() * sizeof(Record) + texts_.Arena.Capacity() + texts_.Values.Capacity() +
           texts_.Stations.capacity() * sizeof(void*);
  }

 private:
  std::vector<Record> records_;
  StoreTexts texts_;
};

struct MessageStores {
  MessageStore<SynopData> SynopStore;
  MessageStore<MetarData> MetarStore;
};

}  // namespace zg
