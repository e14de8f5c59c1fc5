// A decoder over the program's own stores, stations, units and filters. It lives as long as the
// window that it belongs to: what a bulletin leaves behind for the next one stays with it.
#pragma once

#include <string>
#include <string_view>

#include "decode/MeteoDecode.h"
#include "shell/Application.h"

namespace zg {

class ApplicationDecoder {
 public:
  // Nothing is owned. `observer` follows the runs.
  ApplicationDecoder(Application& app, DecodeObserver& observer, Progress& progress);

  // The operations of MeteoDecode, with the filters of the moment.
  MeteoDecode::Summary DecodeFile(const std::string& fileName);
  bool DecodeLine(std::string_view text);
  void CloseFile() noexcept { decoder_.CloseFile(); }

 private:
  Application& app_;
  DecodeContext context_;
  MeteoDecode decoder_;
};

}  // namespace zg
