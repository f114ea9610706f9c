// The figures that need the real program: each prints lines as the other benchmarks do, with a median in its name.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

namespace pawnfield {

struct DesktopPlaces;

// Where a measured program writes: all of it below that folder.
DesktopPlaces PlacesIn(const QString& folder);

void PrintMedian(const std::string& name, std::vector<double> milliseconds);
// The value that so many in 100 of them do not exceed; as a line under that name.
void PrintPercentile(const std::string& name, std::vector<double> milliseconds, std::size_t percent);
// Of 50, 95 and 99, under that name with "_95" and its like behind it.
void PrintPercentiles(const std::string& name, const std::vector<double>& milliseconds);

// Starts this program several times over as the show's program, and by turns as a plain window of the toolkit's. Takes
// the times to their windows and what they hold at rest. False when a start failed.
bool MeasureStartUp();
// One such start: prints the milliseconds from the given reading of the steady clock to the first paint of the loading
// form and of the console, whose splash is clicked away, and then megabytes, threads and wake-ups a
// second at rest.
int RunStartUp(long long startedNs, const QString& folder);
int RunPlain(long long startedNs);

// What the audience's window costs at 1920x1080 and at 3840x2160: frames, a claim until both windows are painted, the
// flip and standing still. False where there is no second monitor.
bool MeasurePaints();

// Hands presses of wireless remotes to the real windows and reports how long each took to reach the game, the screens
// and the player of the clip: from the moment it was handed over, and from the poll that took it. False when one got
// lost.
bool MeasurePresses();

// How far each way's time of a press is from the press itself, as far as a machine without devices can tell: a remote's
// report and its poll, two pads on a line of 9600 baud, a key. False when a press got lost.
bool MeasureWays();

// Phones, the host's page and strangers at the server of the pages, beside the real windows. Touches until both screens
// are painted, on three networks (four minutes); pairs of presses over a poor one (seven, and after each 250 pairs what
// they came to so far); sixty idle pages; and wired presses beside an attack (one each). False when a press or a page
// got lost.
bool MeasureTouches();
bool MeasurePairs();
bool MeasureIdlePages();
bool MeasureAttack();

// Fits a long question into both boxes with the desktop's own measurer, quickly and plainly.
void MeasureFits();

// What the show's record costs, and how long a show that was interrupted takes to come back. False when a part of it
// did not happen.
bool MeasureRecord();
// A start that finds one: prints the milliseconds from that reading of the steady clock to the question about it, and
// from its answer to the game.
int RunInterrupted(long long startedNs, const QString& folder);

// How far the audience's picture of a film is from the operator's during a minute and at its end. False when the film
// did not run.
bool MeasureFilm();

// Each time so far that one of this process's threads has waited for something.
long long Waits();
// How often the program wakes up in a second of standby. Takes 25 seconds.
bool MeasureWakeUps();

// How long a play of the ring-in clip takes to its first sample on a sink of the run's own, beside the plainest player
// that the machine has. False where a sound server or a player is missing, or a play was not heard.
bool MeasureSoundStart();

}  // namespace pawnfield
