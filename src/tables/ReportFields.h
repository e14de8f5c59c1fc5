// What the report windows show of one message: tabs, group boxes and fields, for each family as a
// table. The window of SYNOP and that of METAR, SPECI and TAF are the same code over two of these.
//
// Nothing is worked out here: each field is a text that the stored record holds ready-made.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "decode/MessageStore.h"
#include "tables/TextUtility.h"

namespace zg {

inline constexpr std::size_t ReportTabs = 5;
// Stands for the part of the window above the tabs where a tab is asked for.
inline constexpr std::size_t ReportHeader = ReportTabs;
inline constexpr std::size_t MaxReportChoices = 4;
inline constexpr int NothingChosen = -1;

// The record on show: its place in the store of its family, from 0, and what the user has chosen
// among its cloud layers and its sections, by the choices of the table.
struct ReportPlace {
  const MessageStores& Stores;
  const TextUtility& Texts;  // for the few texts that are looked up when they are shown
  std::size_t Index = 0;
  std::array<int, MaxReportChoices> Chosen = {NothingChosen, NothingChosen, NothingChosen,
                                              NothingChosen};
};

// A text of the record, empty where it has none. One that the record does not hold is made in
// `scratch`: the view holds until `scratch` changes or the store is reset.
using ReportText = std::string_view (*)(const ReportPlace& place, std::string& scratch);

enum class ReportControl : std::uint8_t {
  Box,      // a line of text
  Symbol,   // a character of the symbol font, large
  Lines,    // a text of some lines
  Check,    // a check box, ticked where the text is not empty
  Message,  // a text that fills its tab, as a bulletin prints it
  Records,  // the box with all records of the store
};

struct ReportField {
  std::string_view Control;
  ReportText Text = nullptr;
  ReportControl Kind = ReportControl::Box;
  int Width = 12;               // characters that the box has room for in any case
  int Span = 1;                 // fields of the common width that it takes the place of
  std::string_view Label = {};  // of the label ahead of it, where ReportLabelName has another

  static constexpr ReportField Wide(std::string_view control, ReportText text, int width,
                                    int span) noexcept {
    return {control, text, ReportControl::Box, width, span};
  }
};

// The name of the label ahead of a field: "lblDewpoint" of "txtDewpoint". Check boxes, the symbol
// and the message have none.
std::string ReportLabelName(const ReportField& field);

// Option buttons that choose among parts of the record.
struct ReportChoice {
  std::string_view Control;  // a control array
  int Members = 0;
  bool HidesOthers = false;       // a button that is not offered is not to be seen either
  int DependsOn = NothingChosen;  // the choice, ahead of it, whose part it is a choice of
  // True if the record has the part.
  bool (*IsOffered)(const ReportPlace& place, int member) = nullptr;
  // Also where the record does not have the part, and without a record.
  std::string (*Caption)(const ReportPlace& place, int member) = nullptr;
};

// A row of a tab is divided into so many parts, which group boxes share.
inline constexpr int ReportGridParts = 12;

struct ReportGroup {
  std::string_view Frame = {};  // the group box; none around the header and a message
  int Row = 0;
  int Part = 0;   // the first of its parts of the row
  int Parts = 1;  // how many it takes
  int FieldsPerLine = 1;
  std::span<const ReportField> Fields;
  int Choice = NothingChosen;  // the choice whose buttons stand above the fields
};

// When a tab can be opened.
enum class ReportTabRule : std::uint8_t { WhenFilled, WhenAnyText, Never };

struct ReportTab {
  std::string_view Italian;
  std::string_view English;
  ReportTabRule Rule = ReportTabRule::WhenFilled;
  std::span<const ReportGroup> Groups;
};

// A label whose caption depends on the record.
struct ReportLabel {
  std::string_view Name;
  std::string_view (*Caption)(const ReportPlace& place);  // of a record in the store
  std::string_view Italian;                               // while there is no record
  std::string_view English;
};

struct ReportTable {
  std::string_view Form;  // the window "frmSynopMeteoData"
  ReportGroup Header;
  std::array<ReportTab, ReportTabs> Tabs;
  std::span<const ReportChoice> Choices;
  std::span<const ReportLabel> Labels;
  std::size_t (*Count)(const MessageStores& stores);
  bool (*IsTabFilled)(const ReportPlace& place, std::size_t tab);
  // A record in the list of all: the station, of a message from the sea with its position.
  ReportText RecordName;
  // What a record is found by when something is typed there: name, identifiers, country.
  std::string (*SearchText)(const ReportPlace& place);
};

extern const ReportTable SynopReport;
extern const ReportTable MetarReport;

// The text of a field of a tab or of the header; empty if the tab is not filled for this record,
// and if the record is not in the store.
std::string_view ReportFieldText(const ReportTable& table, std::size_t tab,
                                 const ReportField& field, const ReportPlace& place,
                                 std::string& scratch);

bool IsReportTabEnabled(const ReportTable& table, const ReportPlace& place, std::size_t tab);

// Chooses the first part that the record has in each choice; nothing where it has none.
void ChooseFirstParts(const ReportTable& table, ReportPlace& place);

// Chooses a part, and the first of each choice that depends on that.
void ChoosePart(const ReportTable& table, ReportPlace& place, std::size_t choice, int member);

// "Meteo Data - Record: 1/250" for index 0 of 250.
std::string ReportCaption(std::size_t index, std::size_t count);

}  // namespace zg
