#include "support/same_show.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "record/capture.h"
#include "record/snapshot_json.h"
#include "show/phase.h"
#include "support/screen_pairs.h"

namespace pawnfield {

namespace {

// Beside what isn't of the game: what is worked out of the rest of the console after each event, as the line over the
// board is.
constexpr std::array<std::string_view, 34> kNotOfTheGame = {"lblAnswerClock",
                                                            "txtOptionalHeading",
                                                            "imgHeader",
                                                            "lblStatusBar",
                                                            "prgMediaCheck",
                                                            "MediaPlayer1",
                                                            "btnPlayMode",
                                                            "btnStandbyMode",
                                                            "shpStart",
                                                            "lblListLeft",
                                                            "lblListRight",
                                                            "cboList",
                                                            "mnu",
                                                            "btnUndo",
                                                            "lblUndoNote",
                                                            "mTestK7",
                                                            "lblStatus",
                                                            "btnPlayVideo",
                                                            "btnStopVideo",
                                                            "chp",
                                                            "lstRingInOrder",
                                                            "lblRingInOrder",
                                                            "lblLine",
                                                            "lblInPlay",
                                                            "lblNowPlaying",
                                                            "fdr",
                                                            "btnMute",
                                                            "btnStopAll",
                                                            "btnCues",
                                                            "fraCues",
                                                            "lstCues",
                                                            "picLastResult",
                                                            "lblLastResult",
                                                            "picImageResize"};

bool IsOfTheGame(const Control& control) {
  const std::string& name = control.Name();
  if (control.Kind() == ControlKind::Timer || name.starts_with("picMOD")) return false;
  return std::none_of(kNotOfTheGame.begin(), kNotOfTheGame.end(),
                      [&](std::string_view other) { return name.starts_with(other); });
}

// Something moves that is held at rest by the record, on the board or in front of it.
bool Moves(const Show& show) {
  const MainForm& form = show.frmMain;
  const bool timer = form.tmrAutoContinue.Enabled || form.tmrCorrectSWF.Enabled || form.tmrFlipPlayerPiece.Enabled ||
                     show.frmFSMain.tmrFSFlipPlayerPiece.Enabled || form.tmrAnimate[0].Enabled ||
                     form.tmrAnimate[1].Enabled;
  const PhaseKind kind = Phase(show).Kind;
  return timer || show.WinnerDue || kind == PhaseKind::Flashing || kind == PhaseKind::Bonus ||
         kind == PhaseKind::Notice || kind == PhaseKind::Winner;
}

bool SameContent(const Control& a, const Control& b) {
  if (a.Kind() == ControlKind::Label) {
    const auto& one = static_cast<const Label&>(a);
    const auto& other = static_cast<const Label&>(b);
    if (one.Caption->empty() && other.Caption->empty()) return true;
    return one.ForeColor == other.ForeColor && one.BackColor == other.BackColor && one.Font.Get() == other.Font.Get() &&
           one.Caption.Get() == other.Caption.Get();
  }
  if (a.Kind() == ControlKind::OptionButton)
    return static_cast<const OptionButton&>(a).Value == static_cast<const OptionButton&>(b).Value;
  if (a.Kind() == ControlKind::CheckBox)
    return static_cast<const CheckBox&>(a).Value == static_cast<const CheckBox&>(b).Value;
  if (a.Kind() == ControlKind::ComboBox)
    return static_cast<const ComboBox&>(a).ListIndex == static_cast<const ComboBox&>(b).ListIndex;
  if (a.Kind() == ControlKind::TextBox &&
      static_cast<const TextBox&>(a).BackColor != static_cast<const TextBox&>(b).BackColor)
    return false;
  return Content(a) == Content(b);
}

bool SamePlace(const Control& a, const Control& b) {
  // A label without a text is nowhere to be seen.
  if (a.Kind() == ControlKind::Label && static_cast<const Label&>(a).Caption->empty()) return true;
  return a.Left == b.Left && a.Top == b.Top && a.Width == b.Width && a.Height == b.Height;
}

// How the restored control differs from the played one, empty when they are alike.
std::string Unlike(const Control& a, const Control& b) {
  if (a.IsShown() != b.IsShown()) return a.IsShown() ? " is hidden" : " is shown";
  if (!a.IsShown()) return {};
  if (a.Enabled != b.Enabled) return a.Enabled ? " is disabled" : " is enabled";
  if (!SamePlace(a, b)) return " stands elsewhere";
  return SameContent(a, b) ? "" : " shows '" + Content(b) + "' and not '" + Content(a) + "'";
}

std::string UnlikeForms(const Form& played, const Form& restored) {
  for (std::size_t i = 0; i < played.Controls().size(); ++i) {
    const Control& control = *played.Controls()[i];
    const std::string unlike = Unlike(control, *restored.Controls()[i]);
    if (!unlike.empty() && IsOfTheGame(control)) return played.Name() + "." + control.Name() + unlike;
  }
  return {};
}

}  // namespace

std::string UnlikeSnapshots(const Snapshot& wanted, const Snapshot& found) {
  const Json a = JsonOf(wanted);
  const Json b = JsonOf(found);
  std::string unlike;
  for (std::size_t i = 0; i < a.AsMembers().size(); ++i) {
    const auto& [name, value] = a.AsMembers()[i];
    const Json& other = b.AsMembers()[i].second;
    if (!(value == other)) unlike += " " + name + ": wanted " + value.Text() + ", found " + other.Text() + ";";
  }
  return unlike;
}

std::string UnlikeShows(Show& played, Show& restored) {
  const Snapshot wanted = Capture(played);
  Snapshot found = Capture(restored);
  // The winner himself moves, and isn't begun again.
  found.Over = wanted.Over;
  if (!(wanted == found)) return UnlikeSnapshots(wanted, found);
  if (Moves(played)) return {};
  if (std::string unlike = UnlikeForms(played.frmMain, restored.frmMain); !unlike.empty()) return unlike;
  if (!played.state.DualScreen || !restored.state.DualScreen) return {};
  return UnlikeForms(played.frmFSMain, restored.frmFSMain);
}

}  // namespace pawnfield
