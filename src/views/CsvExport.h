// The CSV file of a global view: what the grid shows, its headings in a first line and then its
// rows as they are sorted.
//
// The file is Windows-1252 without a byte order mark, and every line ends in CR LF. A comma stands
// behind every field, the last one too; nothing is quoted, a comma within a text becomes a point.
#pragma once

#include <string>
#include <string_view>

#include "views/GlobalView.h"

namespace zg {

// Append a line of the file to `out`.
void AppendCsvHeading(const GlobalView& view, std::string& out);
void AppendCsvRow(const GlobalView& view, std::size_t row, std::string& out);

// Writes the file; one that is there is replaced. The result is the system's description of what
// went wrong, empty if nothing did. What was written until then stays.
std::string WriteCsvFile(const GlobalView& view, const std::string& path);

// The CSV file that belongs to a bulletin file in a scheduled cycle.
std::string CsvFileName(std::string_view bulletinPath);

// Who has asked for an export, and so where its outcome is told: in a message box, or in the log.
enum class CsvExport { ByUser, Scheduled };

// What is told of an export. `error` is the description of a failure, or empty: also of a user who
// has cancelled the choice of a file it is told that the file was saved.
std::string CsvOutcome(CsvExport how, std::string_view error, const TextUtility& texts);

// The dialog in which a user chooses the file.
inline constexpr std::string_view CsvDialogTitle = "Excel CSV File";
inline constexpr std::string_view CsvDialogFilter = "Text Files (*.csv)";

}  // namespace zg
