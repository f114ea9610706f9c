#include "devices/clock_offset.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace pawnfield {

namespace {

constexpr std::size_t kKept = 300;
constexpr std::size_t kLeast = 8;
// Of round trips that spread evenly, the fifth is a little further from the shortest than that is, as a rule, from the
// least there can be.
constexpr std::size_t kNextShortest = 4;
constexpr std::int64_t kSecondUs = 1000000;
// An exchange that took longer says nothing of a network that people play over.
constexpr std::int64_t kMostUs = 2 * kSecondUs;
constexpr std::int64_t kPauseUs = 4 * kSecondUs;
constexpr std::int64_t kPeriodUs = 20 * kSecondUs;
constexpr std::size_t kPeriods = 15;
constexpr std::size_t kPeriodsForDrift = 6;
// Of clocks of quartz, beyond which a slope is noise.
constexpr double kMostDrift = 0.0001;
// What an old sample is worth less, for each microsecond of its age.
constexpr double kAging = 0.00002;

template <typename Samples>
double SlopeOf(const Samples& samples) {
  const auto count = static_cast<double>(samples.size());
  double meanAt = 0, meanOffset = 0;
  for (const auto& sample : samples) {
    meanAt += static_cast<double>(sample.AtUs) / count;
    meanOffset += static_cast<double>(sample.OffsetUs) / count;
  }
  double products = 0, squares = 0;
  for (const auto& sample : samples) {
    const double at = static_cast<double>(sample.AtUs) - meanAt;
    products += at * (static_cast<double>(sample.OffsetUs) - meanOffset);
    squares += at * at;
  }
  return squares > 0 ? std::clamp(products / squares, -kMostDrift, kMostDrift) : 0;
}

}  // namespace

void ClockOffset::Add(const Exchange& exchange) {
  const std::int64_t held = exchange.PageSentUs - exchange.PageReceivedUs;
  const std::int64_t roundTrip = exchange.ReceivedUs - exchange.SentUs - held;
  const bool afterPause = lastSeenUs_ >= 0 && exchange.ReceivedUs - lastSeenUs_ > kPauseUs;
  lastSeenUs_ = exchange.ReceivedUs;
  if (held < 0 || roundTrip < 0 || roundTrip > kMostUs || afterPause) return;
  const Sample sample{exchange.ReceivedUs,
                      (exchange.SentUs + exchange.ReceivedUs - exchange.PageReceivedUs - exchange.PageSentUs) / 2,
                      roundTrip};
  samples_.push_back(sample);
  if (samples_.size() > kKept) samples_.pop_front();
  FollowDrift(sample);
}

void ClockOffset::FollowDrift(const Sample& sample) {
  if (periods_.empty() || sample.AtUs / kPeriodUs != periods_.back().AtUs / kPeriodUs) {
    periods_.push_back(sample);
    if (periods_.size() > kPeriods) periods_.pop_front();
    // The period that has just begun has no best one yet.
    const std::deque<Sample> whole(periods_.begin(), periods_.end() - 1);
    if (whole.size() >= kPeriodsForDrift) drift_ = SlopeOf(whole);
  } else if (sample.RoundTripUs < periods_.back().RoundTripUs) {
    periods_.back() = sample;
  }
}

const ClockOffset::Sample* ClockOffset::Best() const {
  if (samples_.empty()) return nullptr;
  const std::int64_t now = samples_.back().AtUs;
  const auto worth = [now](const Sample& sample) {
    return static_cast<double>(sample.RoundTripUs) + kAging * static_cast<double>(now - sample.AtUs);
  };
  return &*std::min_element(samples_.begin(), samples_.end(),
                            [&](const Sample& one, const Sample& other) { return worth(one) < worth(other); });
}

bool ClockOffset::Known() const { return samples_.size() >= kLeast; }

std::int64_t ClockOffset::ToOurs(std::int64_t pageUs) const {
  const Sample* best = Best();
  if (best == nullptr) return pageUs;
  const std::int64_t ours = pageUs + best->OffsetUs;
  return ours + std::llround(drift_ * static_cast<double>(ours - best->AtUs));
}

std::int64_t ClockOffset::ShortestRoundTripUs() const {
  std::int64_t shortest = kMostUs;
  for (const Sample& sample : samples_) shortest = std::min(shortest, sample.RoundTripUs);
  return shortest;
}

std::int64_t ClockOffset::LastRoundTripUs() const { return samples_.empty() ? 0 : samples_.back().RoundTripUs; }

std::int64_t ClockOffset::SlowestWayUs() const {
  const Sample* best = Best();
  std::int64_t longest = 0;
  for (const Sample& sample : samples_) {
    const auto drifted = std::llround(drift_ * static_cast<double>(sample.AtUs - best->AtUs));
    const std::int64_t way = sample.RoundTripUs / 2 + sample.OffsetUs - best->OffsetUs - drifted;
    longest = std::max(longest, std::clamp<std::int64_t>(way, 0, sample.RoundTripUs));
  }
  return longest;
}

std::int64_t ClockOffset::LongestWayUs() const { return std::min(SlowestWayUs(), kLongestWayUs); }

std::int64_t ClockOffset::ErrorUs(std::int64_t shortestOfAllUs) const {
  const std::int64_t shortest = ShortestRoundTripUs();
  if (samples_.size() < kKept) return shortest / 2;
  std::vector<std::int64_t> trips;
  trips.reserve(samples_.size());
  for (const Sample& sample : samples_) trips.push_back(sample.RoundTripUs);
  std::nth_element(trips.begin(), trips.begin() + kNextShortest, trips.end());
  const std::int64_t least = std::min(shortestOfAllUs, 2 * shortest - trips[kNextShortest]);
  return (Best()->RoundTripUs - least) / 2;
}

}  // namespace pawnfield
