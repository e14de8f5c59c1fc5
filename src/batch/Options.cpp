#include "batch/Options.h"

#include <array>
#include <optional>

namespace zg {
namespace {

constexpr std::string_view UsageText =
    R"(Usage: zgdecode [options] FILE...

Decodes WMO bulletins (SYNOP, METAR, SPECI, TAF) into JSON Lines or CSV on standard output.
A FILE named - is standard input. What happens on the way goes to standard error.

  --app DIR        application directory: settings, station database, station lists
                   (default: the one that the desktop program uses)
  --format FORMAT  jsonl (default); csv: the table that the desktop program exports
  --fields FIELDS  of jsonl: data: texts as shown (default); raw: numbers as decoded; both
  --message        each FILE holds one message as typed by hand
  --output FILE    write there instead of standard output
  --summary        print a short summary of what was decoded instead of the records
  --progress       show progress on standard error
  --help           print this text
  --version        print the version

Exit status: 0 all files were read; 1 a file could not be read or the output not be
written; 2 the arguments are wrong.
)";

struct Flag {
  std::string_view name;
  bool Options::*field;
};
constexpr std::array<Flag, 5> Flags = {{
    {"--message", &Options::Message},
    {"--progress", &Options::Progress},
    {"--summary", &Options::Summary},
    {"--help", &Options::Help},
    {"--version", &Options::Version},
}};

bool SetFlag(Options& options, std::string_view name) {
  for (const Flag& flag : Flags) {
    if (flag.name != name) continue;
    options.*flag.field = true;
    return true;
  }
  return false;
}

// A word that an option takes for its value.
template <typename T>
struct Choice {
  std::string_view word;
  T meaning;
};
constexpr std::array<Choice<RecordFields>, 3> FieldsChoices = {{
    {"data", RecordFields::Data},
    {"raw", RecordFields::Raw},
    {"both", RecordFields::Both},
}};
constexpr std::array<Choice<OutputFormat>, 2> FormatChoices = {{
    {"jsonl", OutputFormat::JsonLines},
    {"csv", OutputFormat::Csv},
}};

template <typename T, std::size_t N>
void SetChoice(Options& options, const std::array<Choice<T>, N>& choices, T Options::*field,
               std::string_view value, std::string_view otherwise) {
  for (const Choice<T>& choice : choices) {
    if (choice.word != value) continue;
    options.*field = choice.meaning;
    return;
  }
  options.Error = std::string(otherwise).append(value);
}

// Takes an option with a value. False if there is no such option.
bool SetValue(Options& options, std::string_view name, std::string_view value) {
  if (name == "--app") {
    options.ApplicationDirectory = value;
  } else if (name == "--output") {
    options.Output = value;
  } else if (name == "--fields") {
    SetChoice(options, FieldsChoices, &Options::Fields, value,
              "--fields takes data, raw or both, not ");
  } else if (name == "--format") {
    SetChoice(options, FormatChoices, &Options::Format, value, "--format takes jsonl or csv, not ");
  } else {
    return false;
  }
  if (value.empty()) options.Error = std::string(name) + " wants a value";
  return true;
}

bool TakesValue(std::string_view name) {
  Options ignored;
  return SetValue(ignored, name, "-");
}

}  // namespace

Options ParseOptions(std::span<const std::string_view> arguments) {
  Options options;
  bool onlyFiles = false;
  for (std::size_t i = 0; i < arguments.size() && options.Error.empty(); ++i) {
    const std::string_view argument = arguments[i];
    if (onlyFiles || argument == "-" || !argument.starts_with('-')) {
      options.Files.emplace_back(argument);
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (!SetFlag(options, argument)) {
      const std::size_t equals = argument.find('=');
      const std::string_view name = argument.substr(0, equals);
      if (!TakesValue(name)) {
        options.Error = "There is no option " + std::string(name);
      } else if (equals != std::string_view::npos) {
        SetValue(options, name, argument.substr(equals + 1));
      } else if (i + 1 < arguments.size()) {
        SetValue(options, name, arguments[++i]);
      } else {
        options.Error = std::string(name) + " wants a value";
      }
    }
  }
  if (options.Error.empty() && !options.Help && !options.Version && options.Files.empty()) {
    options.Error = "No FILE is given";
  }
  return options;
}

std::string_view Usage() noexcept { return UsageText; }

}  // namespace zg
