#include "record/capture.h"

#include <algorithm>
#include <string>

#include "forms/main_form.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kBonusThreshold = 300;

std::string BoardText(const GameState& state) {
  std::string text;
  for (std::size_t r = 0; r < 6; ++r) {
    for (std::size_t c = 0; c < 6; ++c) text += static_cast<char>('0' + state.Board[r][c]);
  }
  return text;
}

int CornerOf(const MainForm& form) {
  const std::string& picture = form.imgDJEntry.Picture;
  for (const auto& [player, face] : {std::pair{1, &form.imgXa}, {2, &form.imgOa}, {3, &form.imgTa}}) {
    if (!picture.empty() && picture == face->Picture.Get()) return player;
  }
  return 0;
}

int LitOf(const Show& show) {
  const std::string lit = show.AppPath("\\images\\scoreboxred.bmp");
  for (int player = 1; player <= kPlayers; ++player) {
    if (show.frmMain.PlayerBox(player).Picture.Get() == lit) return player;
  }
  return 0;
}

int CursorOf(const MainForm& form) {
  for (std::size_t i = 1; i <= kPlayers; ++i) {
    const std::string& picture = form.imgCursor[i].Picture;
    if (!picture.empty() && picture == form.MouseIcon.Get()) return static_cast<int>(i);
  }
  return 0;
}

void CaptureFlow(const Show& show, Snapshot& snapshot) {
  for (const Control* control : FlowControls(show.frmMain)) {
    if (!control->Enabled) snapshot.Disabled.push_back(control->Name());
    if (!control->Visible) snapshot.Hidden.push_back(control->Name());
  }
}

void Offer(Snapshot& snapshot, const Control& control) { std::erase(snapshot.Disabled, control.Name()); }

// What the end of a flash, a bonus, the notice or the pause would offer.
void BringToRest(const Show& show, Snapshot& snapshot) {
  const MainForm& form = show.frmMain;
  const bool flash = form.tmrAnswer.Enabled;
  const bool bonus = form.tmrBonus.Enabled || (flash && show.state.PiecePoints >= kBonusThreshold);
  const bool notice = form.tmr5QuestionTimer.Enabled;
  const bool trivia = show.state.Nature().Trivia;
  if (flash) {
    Offer(snapshot, form.btnReset);
    Offer(snapshot, form.btnEndGame);
  }
  if (bonus || notice) Offer(snapshot, form.btnNextPlayer);
  if ((flash || bonus) && !trivia) snapshot.PlacementOpen = true;
  if (trivia && (flash || bonus || notice || form.tmrAutoContinue.Enabled)) Offer(snapshot, form.btnContinue);
  if (!form.tmrFlipPlayerPiece.Enabled && !flash) return;
  const int cursor = trivia || !IsPlayer(snapshot.CurrentPlayer) ? 0 : snapshot.CurrentPlayer;
  snapshot.Cursor = form.imgCursor[static_cast<std::size_t>(cursor)].Picture->empty() ? 0 : cursor;
}

}  // namespace

std::vector<Control*> FlowControls(MainForm& form) {
  std::vector<Control*> controls{&form.btnStart,
                                 &form.btnSelectGame,
                                 &form.cboList,
                                 &form.btnContinue,
                                 &form.btnNextPlayer,
                                 &form.btnSkipQuestion,
                                 &form.btnReset,
                                 &form.btnEndGame,
                                 &form.btnCorrect,
                                 &form.btnQuestionCorrect,
                                 &form.btnQuestionIncorrect,
                                 &form.lblSelectPlayer,
                                 &form.btnEnableAllBuzzers,
                                 &form.txtDJCommand,
                                 &form.fraGridControl,
                                 &form.chkAnimation,
                                 &form.lblShowAnimation,
                                 &form.chkHideQuestion,
                                 &form.lblHidequestionOption,
                                 &form.chkIncorrectPenalty,
                                 &form.lblLose100Points,
                                 &form.chkExtKeyboardCtrl,
                                 &form.lblExtKeyboardCtrl,
                                 &form.cboTimedResponse,
                                 &form.lblTimedResponse,
                                 &form.cboAutoContinue,
                                 &form.lblAutoContinuePrompt,
                                 &form.fileClearAllScores,
                                 &form.mnuFileOptions};
  for (std::size_t i = 0; i < kPlayers; ++i) {
    controls.push_back(&form.btnSelectPlayer[i]);
    controls.push_back(&form.btnBuzzer[i]);
  }
  for (std::size_t i = 0; i < kGameTypes.size(); ++i) controls.push_back(&form.optGameType[i]);
  return controls;
}

GameOptions CaptureOptions(const Show& show) {
  const GameState& state = show.state;
  GameOptions options;
  options.Scoring = state.Scoring;
  options.Bonus = state.Bonus;
  options.SoundSet = state.SoundSet;
  options.TimedResponse = state.TimedResponse;
  options.AutoContinue = state.AutoContinue;
  options.PenaltyPoints = state.PenaltyPoints;
  options.HideQuestion = state.HideQuestion;
  options.KeyControl = state.KeyControl;
  options.Animation = state.Animation;
  options.GameEnds = state.GameEnds;
  options.IncorrectPenalty = state.IncorrectPenalty;
  options.Penalty1 = state.PlayerPenalty[1];
  options.Penalty2 = state.PlayerPenalty[2];
  options.Penalty3 = state.PlayerPenalty[3];
  return options;
}

RecordedSet CaptureSet(const Show& show) {
  return {show.GameSet, show.NumGameQuestions, show.state.LoadedSetPath, show.state.SetFolder};
}

Snapshot Capture(const Show& show) {
  const GameState& state = show.state;
  const MainForm& form = show.frmMain;
  Snapshot snapshot;
  snapshot.GameType = static_cast<int>(state.GameType);
  snapshot.Players = state.Players;
  snapshot.GridSize = state.GridSize;
  snapshot.Board = BoardText(state);
  snapshot.Loaded = state.GameLoaded;
  snapshot.Started = state.GameStarted;
  snapshot.InProgress = state.GameInProgress;
  snapshot.QuestionUp = state.QuestionUp;
  snapshot.PlacementOpen = state.PlacementOpen;
  snapshot.Over = show.WinnerDue || form.tmrWinner.Enabled;
  snapshot.CurrentPlayer = state.CurrentPlayer;
  snapshot.Corner = CornerOf(form);
  snapshot.Lit = LitOf(show);
  snapshot.Cursor = CursorOf(form);
  snapshot.Covered = ScreenCovered(show);
  snapshot.CurrentQuestion = state.CurrentQuestion;
  if (state.GameStarted && state.Nature().Trivia) snapshot.Asked = show.Asked;
  snapshot.LastSquareKey = state.LastSquareKey;
  snapshot.LastPlayer = state.LastPlayer;
  snapshot.LastPoints = state.LastPoints;
  snapshot.LastRow = state.LastRow;
  snapshot.LastCol = state.LastCol;
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t index = PlayerIndex(player);
    snapshot.Lamp[index] = state.Lamp[player];
    snapshot.LampCode[index] = state.LampCode[player];
    snapshot.Names[index] = form.lblPlayer1[index].Caption;
    snapshot.Scores[index] = show.frmMain.Score(player).Caption;
    snapshot.ScoreColors[index] = show.frmMain.Score(player).BackColor;
  }
  snapshot.Entry = show.entry.DJEntry;
  snapshot.EntryLetter = show.entry.DJRowLetter;
  snapshot.Typed = form.txtDJCommand.Text;
  snapshot.EntryRow = show.entry.DJRow;
  snapshot.EntryColumn = show.entry.DJColumn;
  snapshot.EntryColor = form.txtDJCommand.BackColor;
  snapshot.Background = form.imgQuestionBackground.Picture;
  snapshot.Pointers = form.tmrArrowsTimer.Enabled;
  snapshot.Headers = form.tmrOptionalHeaders.Enabled;
  snapshot.Options = CaptureOptions(show);
  CaptureFlow(show, snapshot);
  BringToRest(show, snapshot);
  return snapshot;
}

}  // namespace pawnfield
