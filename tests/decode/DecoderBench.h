// One of the two decoders in a whole fixture, for tests of what lies around the words: headings,
// stations, filters, stores.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "decode/DecodeFixture.h"
#include "decode/TypedDecoder.h"

namespace zg::test {

struct DecoderBench : DecodeFixture {
  std::string Fields;  // what the record stored last holds, without flags of quadrant and type
  std::string Flags;   // all of its flags

  // A message to decode next; forgets what the one before has left.
  BulletinMessage Begin(MessageType type, std::string_view text, bool heading, bool single) {
    Log.Lines.clear();
    Observer.Messages.clear();
    Observer.Removed.clear();
    Fields = Flags = "";
    return MakeMessage(type, text, heading, single);
  }

 protected:
  void Keep(std::string fields, std::int32_t filterFlags) {
    Fields = std::move(fields);
    Flags = BitsText(static_cast<std::uint32_t>(filterFlags));
  }
};

}  // namespace zg::test
