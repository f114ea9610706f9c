#include "engine/why_not.h"

#include "forms/main_form.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string NoGame(const Show& show) {
  return show.state.Nature().Trivia ? "No game runs: choose a set and press Start" : "No game runs: press Start";
}

std::string WhyNoStart(const Show& show) {
  if (show.state.GameStarted) return "The game runs already";
  return show.state.Nature().Trivia ? "Choose a set first" : "Choose a game type first";
}

std::string WhyNoContinue(const Show& show) {
  if (!show.state.GameStarted) return NoGame(show);
  if (!show.state.Nature().Trivia) return "A challenge has no questions to continue with";
  if (show.frmMain.tmrAutoContinue.Enabled) return "The next question comes by itself";
  return QuestionIsUp(show) ? "A question is up: judge or skip it first" : "A square is to be taken first";
}

std::string WhyNoShow(const Show& show) { return ScreenCovered(show) ? "" : "The room sees the board already"; }

std::string WhyNoHide(const Show& show) { return ScreenCovered(show) ? "The room sees standby already" : ""; }

std::string WhyNoNextPlayer(const Show& show) {
  if (show.state.Nature().RingIn) return "Players ring in: nobody is next";
  return show.state.GameStarted ? "What runs over the board comes first" : NoGame(show);
}

std::string WhyNoSkip(const Show& show) {
  if (!show.state.Nature().Trivia) return "A challenge has no questions to skip";
  return NoGame(show);
}

std::string WhyNoUndo(const Show& show) { return show.state.GameStarted ? "Nothing to take back" : NoGame(show); }

std::string WhyNoEnd(const Show& show) {
  return show.state.GameStarted ? "Wait until the first square is taken" : NoGame(show);
}

std::string WhyNoRingIn(const Show& show, const std::string& name) {
  if (name.ends_with("(2)") && show.state.Players == 2) return "Player 3 isn't in this game";
  return show.state.Nature().Trivia ? "A question must be up" : "Nobody rings in to a challenge";
}

std::string WhyNoSetUp(const Show& show, const Control& control) {
  if (show.state.GameStarted) return "Locked while a question is up";
  const Offers& offer = show.state.Nature().Offer;
  const MainForm& form = show.frmMain;
  const bool offered = (&control == &form.chkHideQuestion && offer.HideQuestion) ||
                       (&control == &form.cboTimedResponse && offer.TimedResponse) ||
                       (&control == &form.cboAutoContinue && offer.AutoContinue);
  return offered ? "Locked while a question is up" : "This game type doesn't have it";
}

}  // namespace

std::string WhyNot(const Show& show, const Control& control) {
  if (control.IsReachable()) return "";
  const MainForm& form = show.frmMain;
  const std::string& name = control.Name();
  if (&control == &form.btnStart) return WhyNoStart(show);
  if (&control == &form.btnContinue) return WhyNoContinue(show);
  if (&control == &form.btnPlayMode) return WhyNoShow(show);
  if (&control == &form.btnStandbyMode) return WhyNoHide(show);
  if (&control == &form.btnNextPlayer) return WhyNoNextPlayer(show);
  if (&control == &form.btnSkipQuestion) return WhyNoSkip(show);
  if (&control == &form.btnUndo) return WhyNoUndo(show);
  if (&control == &form.btnReset || &control == &form.btnEndGame) return WhyNoEnd(show);
  if (name.starts_with("btnSelectPlayer")) return WhyNoRingIn(show, name);
  if (name.starts_with("optGridControl")) return "The grid is locked from Start to the end of a game";
  if (name == "cboList") return "Challenges are played without a set";
  const bool setUp = name.starts_with("chk") || name.starts_with("cbo") || name.starts_with("optGameType");
  return setUp ? WhyNoSetUp(show, control) : "";
}

}  // namespace pawnfield
