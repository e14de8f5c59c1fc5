#include "decode/aero/MetarWalk.h"

#include <bit>

namespace zg {
namespace {

// Offers the word to the entries of a table that may want it, in their order. It is looked through
// only when it comes to an entry that wants something inside: most are taken before.
Verdict OfferTo(const RecogniserIndex& index, MetarWalk& walk) {
  const std::string_view word = walk.Word;
  const std::uint8_t ending = FeaturesOfEnding(word);
  std::uint64_t candidates = index.Candidates(word, ending | WordFeature::Inside, walk.InRemarks);
  bool lookedThrough = false;
  while (candidates != 0) {
    const Recogniser& next = index.Table()[static_cast<std::size_t>(std::countr_zero(candidates))];
    if ((next.Needs & WordFeature::Inside) != 0 && !lookedThrough) {
      candidates &= index.Content(ending | FeaturesInside(word));
      lookedThrough = true;
      continue;
    }
    candidates &= candidates - 1;
    const Verdict verdict = next.Try(walk, word);
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
  Verdict verdict = Verdict::Again;
  while (verdict == Verdict::Again) {
    const bool inRemarks = walk.Section().SectionType == SectionKind::Remarks;
    const RecogniserIndex* index = inRemarks ? &remarks : &general;
    while ((verdict = OfferTo(*index, walk)) == Verdict::Declined && index != &general) {
      index = &general;
    }
  }
  return verdict;
}

}  // namespace zg
