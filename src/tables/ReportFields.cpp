#include "tables/ReportFields.h"

#include <algorithm>

#include "text/TextRules.h"

namespace zg {
namespace {

int FirstPart(const ReportTable& table, const ReportPlace& place, std::size_t choice) {
  if (place.Index >= table.Count(place.Stores)) return NothingChosen;
  const ReportChoice& row = table.Choices[choice];
  for (int member = 0; member < row.Members; ++member) {
    if (row.IsOffered(place, member)) return member;
  }
  return NothingChosen;
}

}  // namespace

std::string ReportLabelName(const ReportField& field) {
  if (!field.Label.empty()) return std::string(field.Label);
  switch (field.Kind) {
    case ReportControl::Box:
    case ReportControl::Lines:
    case ReportControl::Records:
      return "lbl" + std::string(field.Control.substr(3));
    case ReportControl::Symbol:
    case ReportControl::Check:
    case ReportControl::Message:
      break;
  }
  return {};
}

std::string_view ReportFieldText(const ReportTable& table, std::size_t tab,
                                 const ReportField& field, const ReportPlace& place,
                                 std::string& scratch) {
  if (place.Index >= table.Count(place.Stores)) return {};
  if (tab != ReportHeader && !table.IsTabFilled(place, tab)) return {};
  return field.Text(place, scratch);
}

bool IsReportTabEnabled(const ReportTable& table, const ReportPlace& place, std::size_t tab) {
  if (place.Index >= table.Count(place.Stores) || !table.IsTabFilled(place, tab)) return false;
  std::string scratch;
  const auto hasText = [&](const ReportField& field) {
    return !ReportFieldText(table, tab, field, place, scratch).empty();
  };
  switch (table.Tabs[tab].Rule) {
    case ReportTabRule::WhenFilled:
      return true;
    case ReportTabRule::WhenAnyText:
      return std::any_of(table.Tabs[tab].Groups.begin(), table.Tabs[tab].Groups.end(),
                         [&](const ReportGroup& group) {
                           return std::any_of(group.Fields.begin(), group.Fields.end(), hasText);
                         });
    case ReportTabRule::Never:
      break;
  }
  return false;
}

void ChooseFirstParts(const ReportTable& table, ReportPlace& place) {
  for (std::size_t choice = 0; choice < table.Choices.size(); ++choice) {
    place.Chosen[choice] = FirstPart(table, place, choice);
  }
}

void ChoosePart(const ReportTable& table, ReportPlace& place, std::size_t choice, int member) {
  place.Chosen[choice] = member;
  for (std::size_t i = choice + 1; i < table.Choices.size(); ++i) {
    if (table.Choices[i].DependsOn == static_cast<int>(choice)) {
      place.Chosen[i] = FirstPart(table, place, i);
    }
  }
}

std::string ReportCaption(std::size_t index, std::size_t count) {
  return "Meteo Data - Record: " + PlainDecimal(static_cast<int>(index + 1)) + "/" +
         PlainDecimal(static_cast<int>(count));
}

}  // namespace zg
