#include "decode/aero/MetarWalk.h"

namespace zg {
namespace {

// Offers the word to the entries of a table that may want it, in their order.
Verdict OfferTo(const RecogniserIndex& index, std::uint8_t features, MetarWalk& walk) {
  std::uint64_t candidates = index.Candidates(walk.Word, features, walk.InRemarks);
  while (candidates != 0) {
    const auto next = static_cast<std::size_t>(std::countr_zero(candidates));
    candidates &= candidates - 1;
    const Verdict verdict = index.Table()[next].Try(walk, walk.Word);
    if (verdict != Verdict::Declined) return verdict;
  }
  return Verdict::Declined;
}

}  // namespace

Verdict OfferWord(MetarWalk& walk) {
  static const RecogniserIndex general(MetarRecognisers());
  static const RecogniserIndex remarks(RemarkRecognisers());
  walk.Word = walk.WordList[walk.WordIndex];
  walk.Forms.clear();
  while (true) {
    const std::uint8_t features = FeaturesOf(walk.Word);
    Verdict verdict = Verdict::Declined;
    if (walk.Section().SectionType == SectionKind::Remarks) {
      verdict = OfferTo(remarks, features, walk);
    }
    if (verdict == Verdict::Declined) {
      verdict = OfferTo(general, features, walk);
    }
    if (verdict != Verdict::Again) return verdict;
  }
}

}  // namespace zg
