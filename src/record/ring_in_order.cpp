#include "record/ring_in_order.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/main_form.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kListedUs = 2000000;

const Press* FirstOf(const std::vector<Press>& presses) {
  const auto first =
      std::find_if(presses.begin(), presses.end(), [](const Press& p) { return p.Place == PressPlace::First; });
  return first == presses.end() ? nullptr : &*first;
}

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

std::string Margin(std::int64_t us) {
  const std::string sign = us < 0 ? "-" : "+";
  return sign + std::to_string((std::abs(us) + 500) / 1000) + " ms";
}

}  // namespace

Press PressOf(const Show& show, int player, PressWay way, std::int64_t atUs) {
  return {player, way, atUs != 0 ? atUs : show.platform.clock.NowUs(), ErrorOfWay(way), PressPlace::First};
}

void AddPress(Show& show, Press press) {
  if (!Plays(show.state, press.Player)) return;
  const auto place = PlaceOf(show, press);
  std::vector<Press>& presses = show.record->Presses;
  if (!place || IsListed(presses, press.Player, place == PressPlace::Early)) return;
  press.Place = *place;
  presses.push_back(press);
  std::stable_sort(presses.begin(), presses.end(), [](const Press& a, const Press& b) { return a.TimeUs < b.TimeUs; });
  ShowRingInOrder(show);
}

void BeginRingInOrder(Show& show, Opening opening) {
  ShowRecord& record = *show.record;
  std::erase_if(record.Presses, [&](const Press& press) {
    return press.Place != PressPlace::Early || (opening == Opening::Anew && press.TimeUs < record.QuestionUs);
  });
  if (opening == Opening::Anew) record.QuestionUs = show.platform.clock.NowUs();
  ShowRingInOrder(show);
}

std::vector<RingInRow> RingInRows(const Show& show) {
  std::vector<RingInRow> rows;
  const std::vector<Press>& presses = show.record->Presses;
  const Press* first = FirstOf(presses);
  const Press* before = first;
  int number = 1;
  for (const Press& press : presses) {
    const std::string& name = show.frmMain.PlayerName(press.Player);
    if (press.Place == PressPlace::Early) {
      rows.push_back({"", name, "early", false});
    } else if (&press == first) {
      rows.push_back({std::to_string(number++), name, "first", false});
    } else if (first != nullptr) {
      const bool tooClose = std::abs(press.TimeUs - before->TimeUs) < press.ErrorUs + before->ErrorUs;
      const std::string margin = Margin(press.TimeUs - first->TimeUs);
      rows.push_back({std::to_string(number++), name, tooClose ? margin + ", too close to call" : margin, tooClose});
      before = &press;
    }
  }
  return rows;
}

void ShowRingInOrder(Show& show) {
  ListView& list = show.frmMain.lstRingInOrder;
  std::vector<ListView::Row> rows;
  for (const RingInRow& row : RingInRows(show))
    rows.push_back({row.Number, row.Name, row.When, row.TooClose ? "amber" : ""});
  show.frmMain.lblRingInOrder.Visible = !rows.empty();
  list.Visible = !rows.empty();
  list.ListItems = rows;
}

}  // namespace pawnfield
