#include "decode/synop/SynopRecord.h"

#include <memory>
#include <utility>

namespace zg {

// Made anew in its place, which costs less than to copy a blank record over it.
void ResetSynopRecord(SynopRawData& record) {
  std::string issueTime = std::move(record.IssueTime);
  const std::uint8_t windUnit = record.WindUnitInd;
  std::destroy_at(&record);
  std::construct_at(&record);
  record.IssueTime = std::move(issueTime);
  record.WindUnitInd = windUnit;
}

}  // namespace zg
