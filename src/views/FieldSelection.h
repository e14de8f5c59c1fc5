// Which fields of a global view are its columns, and the text in which the parameters
// "SynopDataFields" and "MetarDataFields" hold that.
//
// The text has a hexadecimal digit for each four fields: of digit n, from 1, the bits 1, 2, 4 and 8
// stand for the fields 4(n-1) to 4(n-1)+3. Twenty digits cover all fields there can be.
#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

#include "tables/TextUtility.h"
#include "views/GlobalViewTable.h"

namespace zg {

using FieldSelection = std::bitset<SelectableFields>;

// The selection that a parameter holds. What is no hexadecimal digit counts as 0, fields beyond the
// end of the text are off, and more than twenty digits are not read.
FieldSelection DecodeFieldSelection(std::string_view text) noexcept;

// The text of a selection, always twenty upper-case digits. The fields that a view cannot do
// without are in it in any case: the station, which is a row's main text, and the number of the
// record, which links a row to it. What lies behind that number (the time of insertion) is not
// offered to the user and is never in it.
std::string EncodeFieldSelection(const GlobalViewTable& table, const FieldSelection& selected);

// A field as the window that selects fields lists it.
struct DataField {
  std::string_view Title;  // in the language in force
  std::string_view Key;
  bool Selected = false;
};

// The fields that the user can choose among, in the order of the table, with the selection that
// `parameter` holds.
std::vector<DataField> GetFieldsList(const GlobalViewTable& table, std::string_view parameter,
                                     const TextUtility& texts);

}  // namespace zg
