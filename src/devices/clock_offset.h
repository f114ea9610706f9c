// How a page's clock stands to ours, learned from exchanges of messages, and how long a message takes on its way. Times
// are microseconds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

namespace pawnfield {

// No way is trusted to be longer, and nobody's press waits longer for another's.
inline constexpr std::int64_t kLongestWayUs = 60000;

// A message there and back: sent and received again by our clock, received and sent back by the page's.
struct Exchange {
  std::int64_t SentUs = 0, PageReceivedUs = 0, PageSentUs = 0, ReceivedUs = 0;
};

class ClockOffset {
 public:
  // Takes an exchange in, in the order of their coming back. One that can't be is passed over, and so is the first
  // after a pause: a phone that dozes answers it late.
  void Add(const Exchange& exchange);

  // Few exchanges say too little: a press counts when it comes until then.
  bool Known() const;
  // A time of the page's clock as one of ours.
  std::int64_t ToOurs(std::int64_t pageUs) const;
  // Of the exchanges that are kept: the shortest there and back, the last one's, the slowest way from the page to us,
  // and what of that counts, no more than kLongestWayUs.
  std::int64_t ShortestRoundTripUs() const;
  std::int64_t LastRoundTripUs() const;
  std::int64_t SlowestWayUs() const;
  std::int64_t LongestWayUs() const;
  // How far ToOurs may be wrong, as a rule: by half of what the round trip behind it took beyond what the network takes
  // at least. That is known by the shortest one of any page and by how far the next shorter ones lie apart; while few
  // exchanges are there, nothing is.
  std::int64_t ErrorUs(std::int64_t shortestOfAllUs) const;

 private:
  struct Sample {
    std::int64_t AtUs = 0, OffsetUs = 0, RoundTripUs = 0;
  };
  void FollowDrift(const Sample& sample);
  const Sample* Best() const;

  // The latest, and the best of each of the last periods, by which the drift is known.
  std::deque<Sample> samples_, periods_;
  // Our microseconds that the page's clock loses in one.
  double drift_ = 0;
  std::int64_t lastSeenUs_ = -1;
};

}  // namespace pawnfield
