// Where the application directory is: settings, database, station lists, label files, bulletins.
#pragma once

#include <string>

namespace zg {

struct ApplicationDirectory {
  std::string Path;   // ends in "/"
  std::string Error;  // why it could not be found or filled, in English; empty if it could
};

// The folder of the executable if it holds "zephyrgram.ini" and can be written: portable use, and
// the build tree. Else "zephyrgram" under the user's data folder (XDG_DATA_HOME, or
// ~/.local/share), made and filled from the installed data, "../share/zephyrgram" beside the folder
// of the executable, where files are missing. Files that are there are never touched.
ApplicationDirectory FindApplicationDirectory();

// A path given by the user as an application directory: with a "/" at its end.
std::string WithSeparator(std::string path);

}  // namespace zg
