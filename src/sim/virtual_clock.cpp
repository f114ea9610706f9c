#include "sim/virtual_clock.h"

#include <algorithm>

namespace pawnfield {

void VirtualClock::Attach(Form& form) {
  for (Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::Timer) continue;
    control->AddObserver(*this);
    Start(static_cast<Timer&>(*control));
  }
}

void VirtualClock::Detach(Form& form) {
  for (Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::Timer) continue;
    control->RemoveObserver(*this);
    Stop(static_cast<Timer&>(*control));
  }
}

void VirtualClock::Changed(Control& control, PropertyId id) {
  if (id == PropertyId::Enabled || id == PropertyId::Interval) Start(static_cast<Timer&>(control));
}

void VirtualClock::Start(Timer& timer) {
  Stop(timer);
  if (timer.Enabled && timer.Interval > 0) entries_.push_back({&timer, now_ + timer.Interval, starts_++});
}

void VirtualClock::Stop(const Timer& timer) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.timer == &timer; });
}

VirtualClock::Entry* VirtualClock::NextDue(std::int64_t until) {
  const auto next = std::min_element(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
    return a.due != b.due ? a.due < b.due : a.started < b.started;
  });
  return next == entries_.end() || next->due > until ? nullptr : &*next;
}

void VirtualClock::Advance(std::int64_t ms) {
  const std::int64_t until = now_ + ms;
  while (Entry* entry = NextDue(until)) {
    // A handler that shows a modal form may advance the clock itself, so time can already be past this one.
    now_ = std::max(now_, entry->due);
    entry->due = now_ + entry->timer->Interval;
    entry->timer->Fire();
  }
  now_ = std::max(now_, until);
}

std::vector<const Timer*> VirtualClock::Running() const {
  std::vector<const Timer*> timers;
  for (const Entry& entry : entries_) timers.push_back(entry.timer);
  return timers;
}

}  // namespace pawnfield
