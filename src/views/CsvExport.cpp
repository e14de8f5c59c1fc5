#include "views/CsvExport.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "text/Windows1252.h"

namespace zg {
namespace {

constexpr std::size_t FullBuffer = std::size_t{64} * 1024;

void AppendField(std::string_view text, std::string& out) {
  const std::size_t start = out.size();
  if (IsAscii(text)) {
    out += text;
  } else {
    out += Utf8ToWindows1252(text);
  }
  std::replace(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), ',', '.');
  out += ',';
}

std::string SystemError() { return std::generic_category().message(errno); }

// A file that is written from its beginning. Calls behind a failed one do nothing.
class PlainFile {
 public:
  explicit PlainFile(const std::string& path)
      : descriptor_(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {
    if (descriptor_ < 0) error_ = SystemError();
  }
  PlainFile(const PlainFile&) = delete;
  PlainFile& operator=(const PlainFile&) = delete;
  ~PlainFile() { Close(); }

  void Write(std::string_view bytes) {
    while (error_.empty() && !bytes.empty()) {
      const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
      if (written >= 0) {
        bytes.remove_prefix(static_cast<std::size_t>(written));
      } else if (errno != EINTR) {
        error_ = SystemError();
      }
    }
  }

  void Close() {
    if (descriptor_ >= 0 && close(descriptor_) != 0 && error_.empty()) error_ = SystemError();
    descriptor_ = -1;
  }

  bool Ok() const noexcept { return error_.empty(); }
  const std::string& Error() const noexcept { return error_; }

 private:
  int descriptor_;
  std::string error_;
};

}  // namespace

void AppendCsvHeading(const GlobalView& view, std::string& out) {
  for (std::size_t column = 0; column < view.ColumnCount(); ++column) {
    AppendField(view.Heading(column), out);
  }
  out += "\r\n";
}

void AppendCsvRow(const GlobalView& view, std::size_t row, std::string& out) {
  std::string scratch;
  for (std::size_t column = 0; column < view.ColumnCount(); ++column) {
    AppendField(view.CellText(row, column, scratch), out);
  }
  out += "\r\n";
}

std::string WriteCsvFile(const GlobalView& view, const std::string& path) {
  PlainFile file(path);
  std::string buffer;
  AppendCsvHeading(view, buffer);
  for (std::size_t row = 0; row < view.RowCount() && file.Ok(); ++row) {
    AppendCsvRow(view, row, buffer);
    if (buffer.size() < FullBuffer) continue;
    file.Write(buffer);
    buffer.clear();
  }
  file.Write(buffer);
  file.Close();
  return file.Error();
}

std::string CsvFileName(std::string_view bulletinPath) {
  return std::string(bulletinPath).append(".csv");
}

std::string CsvOutcome(CsvExport how, std::string_view error, const TextUtility& texts) {
  if (!error.empty()) {
    return std::string(texts.Choose("Il File CSV NON e' stato generato!\r\nProblema: ",
                                    "CSV File not saved!\r\nError: "))
        .append(error);
  }
  return std::string(texts.Choose("File CSV generato correttamente", "CSV File succesfully saved"))
      .append(how == CsvExport::ByUser ? "!" : "");
}

}  // namespace zg
