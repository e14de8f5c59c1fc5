// A whole decoder for tests: a station directory from a database of its own, and implementations of
// the interfaces that keep what they are told. Language is English, all filters are open.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "decode/DecodeParts.h"
#include "decode/MeteoDecode.h"
#include "stations/TestDatabase.h"

namespace zg::test {

// The key of a radio call sign in "ShipCountry".
inline std::string CallSignKey(std::string_view sign) {
  const auto code = [&sign](std::size_t i) {
    return static_cast<std::int64_t>(static_cast<unsigned char>(sign[i]));
  };
  return std::to_string(code(0) * 65536 + code(1) * 256 + code(2));
}

// One station for each quadrant and for each way of being listed.
inline std::string TestStations() {
  const std::string stations =
      "insert into MeteoStations (WMOIndex, IcaoName, Station, State, Country, WMORegion, "
      "StationLat, StationLong, StationHT, SensorHT) values "
      "(16242, 'LIRF', 'Roma Fiumicino', '', 'Italy', '6', '41.48N', '012.14E', 2, 3),"
      "(3772, 'EGLL', 'London Heathrow', '', 'United Kingdom', '6', '51.29N', '000.27W', 25, 25),"
      "(72565, 'KDEN', 'Denver', 'CO', 'United States', '4', '39.50N', '104.40W', 1656, null),"
      "(94767, 'YSSY', 'Sydney Airport', '', 'Australia', '5', '33.57S', '151.11E', 3, 6),"
      "(87576, 'SAEZ', 'Ezeiza', '', 'Argentina', '3', '34.49S', '058.32W', 20, 20),"
      "(16230, '', 'L''Aquila', '', 'Italy', '6', '42.22N', '013.19E', 735, null),"
      "(-1, 'LIQB', 'Arezzo', '', 'Italy', '6', '43.28N', '011.51E', 248, null),"
      // In both lists: the row above wins.
      "(-1, 'LIRF', 'Fiumicino', '', 'Italy', '6', '41.48N', '012.14E', 4, null),"
      // Without a country no filter lets it pass.
      "(99001, 'XXNC', 'Nowhere', '', '', '', '10.00N', '020.00E', null, null);";
  const std::string ships =
      "insert into ShipCountry (StartIndex, Country) values (" + CallSignKey("CAA") +
      ", 'Chile'), (" + CallSignKey("DAA") + ", 'Germany'), (" + CallSignKey("DSA") +
      ", 'Korea'), (" + CallSignKey("IAA") + ", 'Italy'), (" + CallSignKey("JAA") + ", 'Japan');";
  return stations + ships;
}

// The bytes of the database, made once: each fixture has a copy of its own.
inline const std::string& TestDatabase() {
  static const std::string bytes = [] {
    const TemporaryFolder folder;
    MakeDatabase(folder / "ICAOData.mdb", TestStations());
    return ReadTestFile(folder / "ICAOData.mdb");
  }();
  return bytes;
}

// Advances by a step at each reading.
struct StepClock : Clock {
  std::int64_t Now = 1000;
  std::int64_t Step = 0;
  std::int64_t TickCount() override {
    const std::int64_t now = Now;
    Now += Step;
    return now;
  }
};

struct RecordingObserver : DecodeObserver {
  // AcceptedMessage with texts of its own.
  struct Accepted {
    std::string Country, ListName, Station, MsgId, Type, Sender, SenderCity, Day, Time;
    int DecodedCount = 0;
  };
  std::vector<Accepted> Messages;
  std::vector<std::string> Removed;
  std::vector<std::string> WrongLines;
  // Called with each working record; its views hold only during the call.
  std::function<void(const MetarRawData&)> OnMetar;
  std::function<void(const SynopRawData&)> OnSynop;

  bool WantsAccepted() const override { return true; }
  void MessageAccepted(const AcceptedMessage& message) override {
    const auto text = [](std::string_view view) { return std::string(view); };
    Messages.push_back({text(message.Country), text(message.ListName), text(message.Station),
                        text(message.MsgId), text(message.Type), text(message.Sender),
                        text(message.SenderCity), text(message.Day), text(message.Time),
                        message.DecodedCount});
  }
  void StationRemoved(std::string_view listName) override { Removed.emplace_back(listName); }
  void MetarStored(const MetarRawData& raw, const MetarData&) override {
    if (OnMetar) OnMetar(raw);
  }
  void SynopStored(const SynopRawData& raw, const SynopData&) override {
    if (OnSynop) OnSynop(raw);
  }
  void WrongLine(std::string_view line) override { WrongLines.emplace_back(line); }
};

// Set Settings, Filters, language and units ahead of the first decoding; the decoder is made there
// and lives as long as the fixture.
struct DecodeFixture : DecodeParts<RecordingLog, RecordingObserver> {
  TemporaryFolder Folder;  // the application directory
  RecordingPrompt Boxes;
  RecordingProgress Progress;
  StepClock Ticks;
  DBUtility Database{Boxes};
  MeteoDecodeSettings Settings{.ApplicationPath = Folder.Path()};

  DecodeFixture() {
    const std::string path = Folder / "ICAOData.mdb";
    WriteTestFile(path, TestDatabase());
    EXPECT_TRUE(Database.ConnectDatabase(path));
    EXPECT_TRUE(Database.Query("pragma synchronous = off"));
    EXPECT_TRUE(Stations.Load(Database));
  }

  MeteoDecode& Decoder() {
    if (!decoder_) decoder_.emplace(Settings, Context, Database, Boxes, Ticks, ProgressInUse());
    return *decoder_;
  }
  // Takes the place of Progress.
  void UseProgress(zg::Progress& progress) { progress_ = &progress; }

  // Decodes the bytes of a file, which stand in memory only.
  MeteoDecode::Summary Decode(std::string_view bytes, std::string_view name = "bulletin.txt") {
    return Decoder().DecodeBytes(name, std::string(bytes));
  }
  // Decodes a typed message.
  bool DecodeTyped(std::string_view text) { return Decoder().DecodeLine(text); }

  std::span<const MetarData> Metars() const { return Stores.MetarStore.Records(); }
  std::span<const SynopData> Synops() const { return Stores.SynopStore.Records(); }

  std::string WrongFilePath(std::string_view name = "bulletin.txt") const {
    return Folder / ("WrongFiles/" + std::string(name) + ".Wrong");
  }
  std::string WrongFile(std::string_view name = "bulletin.txt") const {
    return ReadTestFile(WrongFilePath(name));
  }

 private:
  zg::Progress& ProgressInUse() { return progress_ == nullptr ? Progress : *progress_; }

  zg::Progress* progress_ = nullptr;
  std::optional<MeteoDecode> decoder_;
};

}  // namespace zg::test
