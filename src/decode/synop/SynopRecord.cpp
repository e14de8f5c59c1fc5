#include "decode/synop/SynopRecord.h"

#include <utility>

namespace zg {

void ResetSynopRecord(SynopRawData& record) {
  std::string issueTime = std::move(record.IssueTime);
  const std::uint8_t windUnit = record.WindUnitInd;
  record = {};
  record.IssueTime = std::move(issueTime);
  record.WindUnitInd = windUnit;
}

}  // namespace zg
