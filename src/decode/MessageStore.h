// The decoded messages of the last run, in memory only: one store for SYNOP, one for METAR, SPECI
// and TAF. A run fills one of them and replaces it whole; what it does not fill stays.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "decode/StationTexts.h"
#include "decode/ValueTexts.h"
#include "decode/aero/MetarRecord.h"
#include "decode/synop/SynopRecord.h"
#include "stations/StationDirectory.h"
#include "tables/TextUtility.h"
#include "text/MemoryHints.h"
#include "text/TextArena.h"

namespace zg {

// The texts of the stations that a store has met, by the number of their row in the directory. They
// outlive the records: the same stations report hour by hour.
class StationTextCache {
 public:
  // Forgets all if the directory, what is loaded in it, or the language is not that of before.
  void UseFor(const StationDirectory& directory, std::uint8_t language) {
    if (&directory == directory_ && directory.Generation() == generation_ &&
        language == language_) {
      return;
    }
    directory_ = &directory;
    generation_ = directory.Generation();
    language_ = language;
    known_.clear();
    arena_.Clear();
  }

  // The texts of a row, made by `make(arena)` the first time that it is met.
  template <typename Make>
  const StationPlace* Get(std::size_t row, Make make) {
    if (row >= known_.size()) known_.resize(std::max(row + 1, known_.size() * 2));
    const StationPlace*& known = known_[row];
    if (known == nullptr) known = make(arena_);
    return known;
  }

  // Has what Get reads brought near.
  void Expect(std::size_t row) const noexcept {
    if (row < known_.size()) PrefetchForReading(&known_[row]);
  }

  std::size_t Capacity() const noexcept {
    return arena_.Capacity() + known_.capacity() * sizeof(void*);
  }

 private:
  TextArena arena_;
  std::vector<const StationPlace*> known_;
  const StationDirectory* directory_ = nullptr;
  int generation_ = 0;
  std::uint8_t language_ = 0;
};

// The texts of the records of one store. Those of single records go with the records; those that
// are made from values and stations stay for the next run, as long as language, units and directory
// do.
struct StoreTexts {
  TextArena Arena;
  TextArena ValueArena;
  ValueTexts Values{ValueArena};
  StationTextCache Stations;
  // What the record before had from the heading of its bulletin, mostly the same again.
  std::string_view MsgId;
  std::string_view Type;
  std::string_view Sender;
  std::string_view AddedInfo;

  StoreTexts() = default;
  StoreTexts(const StoreTexts&) = delete;
  StoreTexts& operator=(const StoreTexts&) = delete;

  // The text in the arena, which is that of the record before where it is the same.
  std::string_view Repeated(std::string_view& last, std::string_view text) {
    if (text != last) last = Arena.Copy(text);
    return last;
  }

  // Forgets the texts of single records.
  void Clear() noexcept {
    MsgId = Type = Sender = AddedInfo = {};
    Arena.Clear();
    if (Values.Count() > MostValues) ForgetValues();
  }

  // To be called, with no record in the store, before a run with these: forgets what was made with
  // others.
  void UseFor(const StationDirectory& directory, const TextUtility& textUtility) {
    Stations.UseFor(directory, textUtility.Language());
    if (textUtility.SameLanguageAndUnits(made_)) return;
    made_ = textUtility;
    ForgetValues();
  }

 private:
  static constexpr std::size_t MostValues = 200'000;

  void ForgetValues() noexcept {
    Values.Clear();
    ValueArena.Clear();
  }

  TextUtility made_;  // language and units of what is kept
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
    if (records_.capacity() < maxMessages) {
      records_.reserve(maxMessages);
      AdviseLargePages(records_.data(), maxMessages * sizeof(Record));
    }
  }

  Record& Add() {
    Record& record = records_.emplace_back();
    // While the next message is read its place comes near.
    if (records_.size() < records_.capacity()) PrefetchForWriting(&record + 1, sizeof(Record));
    return record;
  }

  std::size_t Count() const noexcept { return records_.size(); }
  std::span<const Record> Records() const noexcept { return records_; }
  StoreTexts& Texts() noexcept { return texts_; }

  // Bytes that the records and their texts take.
  std::size_t MemoryInUse() const noexcept {
    return records_.size() * sizeof(Record) + texts_.Arena.Capacity() +
           texts_.ValueArena.Capacity() + texts_.Values.Capacity() + texts_.Stations.Capacity();
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
