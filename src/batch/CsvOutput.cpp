#include "batch/CsvOutput.h"

#include "text/TextRules.h"
#include "views/CsvExport.h"
#include "views/GlobalView.h"

namespace zg {
namespace {

// A run empties the store of its family before anything else. A record without
// any text, left in both stores, is gone from the store that the run has
// chosen.
template <typename Record>
void Mark(MessageStore<Record>& store) {
  store.Reset(0);
  store.Add();
}

bool IsMarked(const MessageStore<SynopData>& store) {
  return store.Count() == 1 && store.Records().front().Msg.empty();
}
bool IsMarked(const MessageStore<MetarData>& store) {
  return store.Count() == 1 && store.Records().front().RawText.empty();
}

}  // namespace

CsvOutput::CsvOutput(const GenericUtility& parameters, const TextUtility& texts,
                     MessageStores& stores)
    : texts_(texts),
      stores_(stores),
      synopFields_(parameters.GetParameter(SynopGlobalView.SelectionKey)),
      metarFields_(parameters.GetParameter(MetarGlobalView.SelectionKey)),
      unitsShown_(Value(parameters.GetParameter(UnitsParameter)) != 0) {}

void CsvOutput::BeginRun() {
  Mark(stores_.SynopStore);
  Mark(stores_.MetarStore);
}

void CsvOutput::EndRun(OutputStream& out) const {
  const bool synop = !IsMarked(stores_.SynopStore);
  if (!synop && IsMarked(stores_.MetarStore)) return;
  GlobalView view(synop ? SynopGlobalView : MetarGlobalView, stores_, texts_);
  view.SetColumns(synop ? synopFields_ : metarFields_);
  view.SetUnitsShown(unitsShown_);
  view.RefreshGlobalList();
  AppendCsvHeading(view, out.Buffer());
  for (std::size_t row = 0; row < view.RowCount() && out.FlushIfFull(); ++row) {
    AppendCsvRow(view, row, out.Buffer());
  }
}

}  // namespace zg
