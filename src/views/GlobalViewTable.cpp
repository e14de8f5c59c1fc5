#include "views/GlobalViewTable.h"

#include "text/TextRules.h"

namespace zg {

const GlobalViewField& GlobalViewTable::Field(std::size_t index) const noexcept {
  static constexpr GlobalViewField none;
  return index < Fields.size() ? Fields[index] : none;
}

std::string_view GlobalViewTable::Text(std::size_t field, const RecordPlace& place,
                                       std::string& scratch) const {
  const auto text = Field(field).Text;
  if (text == nullptr || place.Index >= Count(place.Stores)) return {};
  return text(place, scratch);
}

std::string RecordIndexText(std::size_t index) {
  return FormatNumber(static_cast<double>(index + 1), "000");
}

}  // namespace zg
