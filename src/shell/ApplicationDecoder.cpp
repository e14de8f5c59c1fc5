#include "shell/ApplicationDecoder.h"

namespace zg {

ApplicationDecoder::ApplicationDecoder(Application& app, DecodeObserver& observer,
                                       Progress& progress)
    : app_(app),
      context_{.Stations = app.Stations,
               .Units = {app.Texts, app.Conversion},
               .Filters = app.Filters,
               .Stores = app.Stores,
               .Log = app.Log,
               .Observer = observer},
      decoder_({.ApplicationPath = app.ApplicationPath, .MaxMessages = app.MaxMessages()}, context_,
               app.Database, app.Messages, app.Time, progress) {}

MeteoDecode::Summary ApplicationDecoder::DecodeFile(const std::string& fileName) {
  context_.Filters = app_.Filters;
  return decoder_.DecodeFile(fileName);
}

bool ApplicationDecoder::DecodeLine(std::string_view text) {
  context_.Filters = app_.Filters;
  return decoder_.DecodeLine(text);
}

}  // namespace zg
