#include "record/restore.h"

#include <algorithm>
#include <array>
#include <optional>

#include "engine/answer_clock.h"
#include "engine/game_flow.h"
#include "engine/question_cycle.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "media/background_music.h"
#include "media/sound_channels.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/text.h"
#include "presentation/audience_step.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/text_fitting.h"
#include "record/capture.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/phase.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The panel that the question stands in, if one is up.
std::optional<Panel> PanelOf(const Snapshot& snapshot) {
  if (!snapshot.QuestionUp) return std::nullopt;
  switch (KindOfQuestion(Trim(snapshot.Asked.QuestionText))) {
    case QuestionKind::Picture:
      return Panel::QuestionPicture;
    case QuestionKind::Sound:
      return Panel::Sound;
    case QuestionKind::Text:
      break;
  }
  return Panel::Question;
}

// The text that is up is the very one that is to stand. Fitting it anew would cost both screens more than all else.
bool StandsAlready(const Snapshot& snapshot, const Show& show) {
  const bool text = PanelOf(snapshot) == Panel::Question && PanelVisible(show, Panel::Question);
  return text && QuestionIsUp(show) && show.Asked == snapshot.Asked &&
         show.frmMain.lblQuestion[0].Caption == Trim(snapshot.Asked.QuestionText);
}

// Ends whatever runs over the board or follows of itself. The panel of the question that is to stand isn't taken down
// for the moment until it does, as both screens would be painted whole.
void StopAll(const Snapshot& snapshot, Show& show) {
  MainForm& form = show.frmMain;
  EndQuestionClip(show);
  ForgetClaimedSquare(show);
  for (Timer* timer : {&form.tmrAutoContinue, &form.tmr5QuestionTimer, &form.tmrBonus, &form.tmrWinner,
                       &form.tmrCorrectSWF, &form.tmrAnswer, &form.tmrAnimate[0], &form.tmrAnimate[1]}) {
    timer->Enabled = false;
  }
  show.AnimateCount = {};
  show.FlashCount = 0;
  show.WinnerDue = false;
  show.state.PiecePoints = 0;
  show.state.FlipPlayer = 0;
  // The seconds to answer in begin anew by the operator's key.
  show.state.Clock = {};
  form.tmrAnswerClock.Enabled = false;
  form.lblAnswerClock.Visible = false;
  form.lblRightWrong.Visible = true;
  for (const Panel panel :
       {Panel::Bonus, Panel::Correct, Panel::Winner, Panel::Question, Panel::QuestionPicture, Panel::Sound}) {
    if (panel != PanelOf(snapshot)) HidePanel(show, panel);
  }
}

void RestoreBoard(const Snapshot& snapshot, Show& show) {
  GameState& state = show.state;
  if (state.GridSize != snapshot.GridSize || state.GridCols != snapshot.GridSize) {
    state.GridSize = snapshot.GridSize;
    BuildGrid(show, state.GridSize);
  }
  show.frmMain.optGridControl[static_cast<std::size_t>(state.GridSize - 3)].SelectInGroup();
  for (int r = 0; r < 6; ++r) {
    for (int c = 0; c < 6; ++c) {
      const int owner = snapshot.Board[static_cast<std::size_t>(r * 6 + c)] - '0';
      state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)] = owner;
      SetSquarePicture(show, r, c, (IsPlayer(owner) ? show.frmMain.FaceA(owner) : show.frmMain.imgBkgnd).Picture);
    }
  }
}

void RestoreState(const Snapshot& snapshot, Show& show) {
  GameState& state = show.state;
  state.GameType = static_cast<GameMode>(snapshot.GameType);
  state.Players = snapshot.Players;
  state.GameLoaded = snapshot.Loaded;
  state.GameStarted = snapshot.Started;
  state.GameInProgress = snapshot.InProgress;
  state.QuestionUp = snapshot.QuestionUp;
  state.PlacementOpen = snapshot.PlacementOpen;
  state.CurrentPlayer = snapshot.CurrentPlayer;
  state.CurrentQuestion = snapshot.CurrentQuestion;
  state.LastSquareKey = snapshot.LastSquareKey;
  state.LastPlayer = snapshot.LastPlayer;
  state.LastPoints = snapshot.LastPoints;
  state.LastRow = snapshot.LastRow;
  state.LastCol = snapshot.LastCol;
  show.entry = {snapshot.Entry, snapshot.EntryLetter, snapshot.EntryRow, snapshot.EntryColumn};
}

void RestorePlayers(const Snapshot& snapshot, Show& show) {
  ApplyPlayerLayout(show, snapshot.Players);
  show.frmMain.optPlayers[static_cast<std::size_t>(snapshot.Players - 2)].SelectInGroup();
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t index = PlayerIndex(player);
    show.state.Lamp[player] = snapshot.Lamp[index];
    show.state.LampCode[player] = snapshot.LampCode[index];
    SetPlayerName(show, player, snapshot.Names[index]);
    SetScore(show, player, snapshot.Scores[index]);
    show.frmMain.Score(player).BackColor = snapshot.ScoreColors[index];
  }
}

// The cover hides whose turn it is, and the board's return shows it.
void RestoreLights(const Snapshot& snapshot, Show& show) {
  const bool covered = ScreenCovered(show);
  if (covered == snapshot.Covered) {
    LightScoreBox(show, snapshot.Lit);
    SetCursorOnBoth(show, snapshot.Cursor);
  } else {
    LightScoreBox(show, covered ? 0 : HolderOfTurn(show));
    SetCursorOnBoth(show, covered || show.state.Nature().Trivia ? 0 : snapshot.CurrentPlayer);
  }
}

void RestoreTurn(const Snapshot& snapshot, Show& show) {
  MainForm& form = show.frmMain;
  form.imgDJEntry.Picture = snapshot.Corner == 0 ? PicturePath(show, "\\Images\\Neutral.bmp")
                                                 : std::string(form.FaceA(snapshot.Corner).Picture);
  form.txtDJCommand.BackColor = snapshot.EntryColor;
  SetTypedCommand(show, snapshot.Typed);
}

void RestoreFlow(const Snapshot& snapshot, Show& show) {
  MainForm& form = show.frmMain;
  const auto holds = [](const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (Control* control : FlowControls(form)) {
    control->Enabled = !holds(snapshot.Disabled, control->Name());
    control->Visible = !holds(snapshot.Hidden, control->Name());
  }
  form.optGameType[RowOf(show.state.GameType)].SelectInGroup();
  form.tmrArrowsTimer.Enabled = snapshot.Pointers;
  form.tmrOptionalHeaders.Enabled = snapshot.Headers;
  if (snapshot.Pointers) return;
  for (Control* pointer : {static_cast<Control*>(&form.shpStart), static_cast<Control*>(&form.lblListLeftArrow),
                           static_cast<Control*>(&form.lblListRightArrow)}) {
    pointer->Visible = false;
  }
}

// The question that is up, or the answer of the one that was; before the first there is none.
void RestoreQuestion(const Snapshot& snapshot, bool stands, Show& show) {
  if (!snapshot.Background.empty()) {
    show.DrawnBackground = snapshot.Background;
    show.frmMain.imgQuestionBackground.Picture = snapshot.Background;
  }
  const bool asked = snapshot.Started && show.state.Nature().Trivia;
  if (asked) show.Asked = snapshot.Asked;
  if (snapshot.QuestionUp && !stands) ShowQuestionAgain(show);
  if (asked) {
    SetAnswer(show, Trim(show.Asked.AnswerText));
  } else {
    show.frmMain.lblAnswer.Caption = "";
  }
  if (show.state.DualScreen) CoverAnsweredQuestion(show);
}

// What others were told of the players, as far as it has changed.
void TellOthers(const Snapshot& before, const Snapshot& after, Show& show) {
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t index = PlayerIndex(player);
    const bool score = before.Scores[index] != after.Scores[index];
    const bool turn = (before.CurrentPlayer == player) != (after.CurrentPlayer == player);
    if (score) PublishScore(show, std::to_string(9 + player), player);
    if (score || turn || before.Names[index] != after.Names[index])
      ReportPlayer(show, player, after.CurrentPlayer == player ? kRed : kWhite);
  }
  if (QuestionIsUp(show)) SendKeyPressInRingIn(show, IsPhase(show, PhaseKind::QuestionOpen));
}

// A game's end stops the music, and nothing else of the game does.
void RestoreMusic(const Snapshot& snapshot, Show& show) {
  const bool plays = show.frmMain.tmrBGMusic.Enabled;
  if (snapshot.Loaded && !plays && !show.state.MusicStopped) BringMusicBack(show);
  if (snapshot.Over && plays) EndMusic(show);
}

template <std::size_t N>
int IndexOf(const std::array<int, N>& choices, int value) {
  return static_cast<int>(std::find(choices.begin(), choices.end(), value) - choices.begin());
}

}  // namespace

void Restore(const Snapshot& snapshot, Show& show) {
  const Snapshot before = Capture(show);
  const bool stands = StandsAlready(snapshot, show);
  StopAll(snapshot, show);
  RestoreState(snapshot, show);
  RestorePlayers(snapshot, show);
  RestoreBoard(snapshot, show);
  RestoreQuestion(snapshot, stands, show);
  RestoreFlow(snapshot, show);
  RestoreTurn(snapshot, show);
  RestoreLights(snapshot, show);
  RestoreMusic(snapshot, show);
  UpdateAnswerClock(show);
  TellOthers(before, snapshot, show);
}

void RestoreOptions(const GameOptions& options, Show& show) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  state.Scoring = options.Scoring;
  state.Bonus = options.Bonus;
  state.SoundSet = options.SoundSet;
  state.TimedResponse = options.TimedResponse;
  state.AutoContinue = options.AutoContinue;
  state.PenaltyPoints = options.PenaltyPoints;
  state.HideQuestion = options.HideQuestion;
  state.KeyControl = options.KeyControl;
  state.Animation = options.Animation;
  state.GameEnds = options.GameEnds;
  state.IncorrectPenalty = options.IncorrectPenalty;
  state.PlayerPenalty = PerPlayer<bool>(options.Penalty1, options.Penalty2, options.Penalty3);
  form.cbxScore[0].ListIndex = state.Scoring;
  form.cbxScore[1].ListIndex = state.Bonus;
  if (state.SoundSet >= 1 && state.SoundSet <= 3)
    form.optSoundBank[static_cast<std::size_t>(state.SoundSet - 1)].SelectInGroup();
  form.cboTimedResponse.ListIndex = IndexOf(kTimedResponses, state.TimedResponse);
  form.cboAutoContinue.ListIndex = state.AutoContinue - kAutoContinues.Low;
  show.frmPlayerNames.cboPenaltyPoints.ListIndex = IndexOf(kPenaltyChoices, state.PenaltyPoints);
  form.chkHideQuestion.Value = state.HideQuestion ? 1 : 0;
  form.chkExtKeyboardCtrl.Value = state.KeyControl ? 1 : 0;
  form.txtDJCommand.Visible = state.KeyControl;
  form.chkAnimation.Value = state.Animation ? 1 : 0;
  form.optGameEnds[state.GameEnds ? 0 : 1].SelectInGroup();
  form.chkIncorrectPenalty.Value = state.IncorrectPenalty ? 1 : 0;
  for (int player = 1; player <= kPlayers; ++player)
    show.frmPlayerNames.PenaltyBox(player).Value = state.PlayerPenalty[player] ? 1 : 0;
}

void RestoreSet(const RecordedSet& set, Show& show) {
  show.GameSet = set.Questions;
  show.NumGameQuestions = set.Count;
  show.state.LoadedSetPath = set.Path;
  show.state.SetFolder = set.Folder;
  show.consoleDialog.FileName.clear();
}

}  // namespace pawnfield
