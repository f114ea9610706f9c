#include "presentation/monitors.h"

#include "show/show.h"

namespace pawnfield {

void EnumMonitors(Show& show) { show.Monitors = show.platform.displays.Enumerate(); }

int MonitorCount(const Show& show) { return static_cast<int>(show.Monitors.size()); }

bool HasSecondMonitor(const Show& show) { return MonitorCount(show) >= 2; }

MonitorInfo MonitorRect(const Show& show, int index) {
  if (index < 1 || index > MonitorCount(show)) return {};
  return show.Monitors[static_cast<std::size_t>(index - 1)];
}

std::string SizeText(const MonitorInfo& monitor) {
  return std::to_string(monitor.Right - monitor.Left) + " x " + std::to_string(monitor.Bottom - monitor.Top);
}

void FindAudiencePlace(Show& show) {
  EnumMonitors(show);
  const MonitorInfo first = MonitorRect(show, 1);
  const int left = HasSecondMonitor(show) ? MonitorRect(show, 2).Left : first.Right - first.Left;
  show.state.FSLeft = static_cast<int>(left * kTwipsPerPixel);
}

}  // namespace pawnfield
