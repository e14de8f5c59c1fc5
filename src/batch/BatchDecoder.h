// zgdecode behind its command line: settings, station directory, the runs over all files, and the
// output of their records.
#pragma once

#include "batch/Options.h"

namespace zg {

// Does what the options say. Records go to standard output or the output file, log lines and errors
// to standard error. The result is the exit status: 0 all files were read, 1 a file could not be
// read or the output not be written.
int RunBatch(const Options& options);

}  // namespace zg
