// A decoder between the words of a message and the fields that they set, for tests: typed messages
// of stations that no list has.
#pragma once

#include <string>
#include <string_view>

#include "decode/BulletinMessage.h"
#include "decode/DecodeParts.h"
#include "decode/FieldLine.h"
#include "shell/TestSupport.h"

namespace zg::test {

// A message whose last line is the seventh of its file. `heading` tells that the text begins with a
// bulletin heading, `single` that it was typed.
inline BulletinMessage MakeMessage(MessageType type, std::string_view text, bool heading,
                                   bool single) {
  BulletinMessage message;
  message.Type = type;
  message.Text = text;
  message.WordList = SplitWords(text);
  message.HasHeading = heading;
  message.LineCount = 7;
  message.SingleMessage = single;
  return message;
}

// One decoder for many messages, so that none may leave a trace. `Keeper` is an observer whose
// Fields are those of the record stored last.
template <typename Decoder, auto DecodeMessage, typename Keeper>
class TypedDecoder {
 public:
  std::string Decode(MessageType type, std::string_view text) {
    parts_.Log.Lines.clear();
    parts_.Observer.Fields = "not stored";
    (decoder_.*DecodeMessage)(MakeMessage(type, text, false, true), 0);
    return parts_.Observer.Fields;
  }
  // The words logged as wrong items by the last message.
  std::string Wrong() const { return WrongItems(parts_.Log.Lines); }

 private:
  DecodeParts<RecordingLog, Keeper> parts_;
  Decoder decoder_{parts_.Context};
};

}  // namespace zg::test
