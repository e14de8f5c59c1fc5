#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "batch/BatchDecoder.h"
#include "batch/Console.h"
#include "batch/Options.h"

int main(int argc, char** argv) {
  // A reader that goes away and a file that may not grow are errors of writing, told like others.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    const zg::Options options = zg::ParseOptions(arguments);
    if (!options.Error.empty()) {
      zg::PrintError("zgdecode: " + options.Error);
      std::fputs(zg::Usage().data(), stderr);
      return 2;
    }
    if (options.Help) return std::fputs(zg::Usage().data(), stdout) < 0 ? 1 : 0;
    if (options.Version) return std::puts("zgdecode " ZG_VERSION) < 0 ? 1 : 0;
    return zg::RunBatch(options);
  } catch (const std::exception& error) {
    zg::PrintError(std::string("zgdecode: ") + error.what());
    return 1;
  }
}
