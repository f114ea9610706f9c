#include "record/ring_in_order.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "data/press_order.h"
#include "forms/main_form.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kListedUs = 2000000;

std::optional<PressPlace> PlaceOf(const Show& show, const Press& press) {
  if (IsPhase(show, PhaseKind::QuestionOpen) && !ScreenCovered(show)) return PressPlace::First;
  const Press* first = FirstOf(show.record->Presses);
  if (first != nullptr && press.TimeUs - first->TimeUs <= kListedUs) return PressPlace::Later;
  if (!QuestionIsUp(show)) return PressPlace::Early;
  return std::nullopt;
}

bool IsListed(const std::vector<Press>& presses, int player, bool early) {
  return std::any_of(presses.begin(), presses.end(), [&](const Press& press) {
    return press.Player == player && (press.Place == PressPlace::Early) == early;
  });
}

}  // namespace

Press PressOf(const Show& show, int player, PressWay way, std::int64_t atUs) {
  const bool polled = way == PressWay::Remote && atUs == 0;
  const std::int64_t error = ErrorOfWay(way) + (polled ? kPollErrorUs : 0);
  return {player, way, atUs != 0 ? atUs : show.platform.clock.NowUs(), error, PressPlace::First};
}

void AddPress(Show& show, Press press) {
  if (!Plays(show.state, press.Player)) return;
  const auto place = PlaceOf(show, press);
  std::vector<Press>& presses = show.record->Presses;
  if (!place || IsListed(presses, press.Player, place == PressPlace::Early)) return;
  press.Place = *place;
  presses.push_back(press);
  SortPresses(presses);
  ShowRingInOrder(show);
}

void BeginRingInOrder(Show& show, Opening opening) {
  ShowRecord& record = *show.record;
  std::erase_if(record.Presses, [&](const Press& press) {
    return press.Place != PressPlace::Early || (opening == Opening::Anew && press.TimeUs < record.QuestionUs);
  });
  record.OpenedUs = show.platform.clock.NowUs();
  if (opening == Opening::Anew) record.QuestionUs = record.OpenedUs;
  ShowRingInOrder(show);
}

std::vector<RingInRow> RingInRows(const std::vector<Press>& presses, const std::array<std::string, kPlayers>& names) {
  std::vector<RingInRow> rows;
  for (const Press& press : presses) {
    if (press.Place == PressPlace::Early)
      rows.push_back({press.Player, "", names[PlayerIndex(press.Player)], "early", false});
  }
  int number = 0;
  for (const PlacedPress& placed : PlacePresses(presses)) {
    const std::string& name = names[PlayerIndex(placed.Of.Player)];
    rows.push_back({placed.Of.Player, std::to_string(++number), name, MarginText(placed), placed.TooClose});
  }
  return rows;
}

std::vector<RingInRow> RingInRows(const Show& show) {
  std::array<std::string, kPlayers> names;
  for (int player = 1; player <= kPlayers; ++player) names[PlayerIndex(player)] = show.frmMain.PlayerName(player);
  return RingInRows(show.record->Presses, names);
}

void ShowRingInOrder(Show& show) {
  ListView& list = show.frmMain.lstRingInOrder;
  std::vector<ListView::Row> rows;
  for (const RingInRow& row : RingInRows(show))
    rows.push_back({row.Number, row.Name, row.When, row.TooClose ? "amber" : "", std::to_string(row.Player)});
  show.frmMain.lblRingInOrder.Visible = !rows.empty();
  list.Visible = !rows.empty();
  list.ListItems = rows;
}

}  // namespace pawnfield
