// The list of the monitors, counted from 1: the console's is the first, the audience's the second.
#pragma once

#include "platform/ports.h"

namespace pawnfield {

struct Show;

inline constexpr double kTwipsPerPixel = 15;

// Reads the list anew.
void EnumMonitors(Show& show);
int MonitorCount(const Show& show);
bool HasSecondMonitor(const Show& show);
// All zero for an index that is not in the list.
MonitorInfo MonitorRect(const Show& show, int index);

// "1920 x 1080".
std::string SizeText(const MonitorInfo& monitor);

// Reads the list and finds the audience screen's place: FSLeft is the second monitor's left edge in twips, which may
// be negative, or without a second monitor the right edge of the only one.
void FindAudiencePlace(Show& show);

}  // namespace pawnfield
