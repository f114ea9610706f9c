#include "soak/operator.h"

#include "engine/win_detection.h"
#include "forms/main_form.h"
#include "media/background_music.h"

namespace pawnfield {

namespace {

constexpr int kFilmMs = 9000;
constexpr int kForms = 9;
constexpr std::size_t kFirstMediaRow = 9 + ('Q' - 'A');

}  // namespace

void Operator::Prepare(const ShowMedia& media) {
  GameState& state = show_.state;
  show_.soundBanks[1][kFirstMediaRow] = media.Sound;
  show_.soundBanks[1][kFirstMediaRow + 1] = media.Picture;
  show_.soundBanks[1][kFirstMediaRow + 2] = media.Film;
  state.OptionalHeaders[0] = {"Welcome to the long show", "Comic Sans MS", 18, true, false, "65535", "5242880"};
  state.OptionalHeaders[1] = {"It goes on", "Segoe UI", 16, false, true, "16777215", "4210688"};
  state.OptionalHeaderCount = 2;
  state.OptionalHeadersOn = true;
  state.BackgroundMusic = kMusicFileMode;
  state.BgMusicFileName = media.Music;
  DecideOnMusic(show_);
  for (std::size_t remote = 1; remote < state.Routing.size(); ++remote) {
    state.Routing[remote] = 1 + static_cast<int>(remote) % 3;
  }
  for (int form = 0; form < kForms; ++form) VisitForm(form);
}

void Operator::SetUp(int game) {
  const auto turn = static_cast<std::size_t>(game);
  hands_.Press(form_.optGameType[turn % kGameTypes.size()]);
  hands_.Press(form_.optPlayers[turn / 2 % 2]);
  for (int i = 0; i < 10 && !form_.optGridControl[0].IsReachable(); ++i) hands_.Wait(500);
  hands_.Press(form_.optGridControl[turn % 3]);
  hands_.Press(form_.optGameEnds[turn / 3 % 2]);
  if (turn % 4 == 3) hands_.Press(form_.chkAnimation);
  if (!show_.state.Nature().Trivia) return;
  form_.cboList.DropDown();
  const auto& sets = form_.cboList.List.Get();
  // The first entry only asks to choose.
  if (sets.size() > 1) hands_.Choose(form_.cboList, std::string(sets[1 + turn % (sets.size() - 1)]));
}

void Operator::PlayGame() {
  const int game = games_++;
  SetUp(game);
  hands_.Press(form_.btnStart);
  for (int step = 0; step < pace_.MostSteps && !form_.picWinner.Visible; ++step) Step(step);
  if (!form_.picWinner.Visible) {
    if (form_.picStandby.Visible) hands_.Press(form_.btnPlayMode);
    hands_.Press(form_.btnEndGame);
  }
  if (form_.picWinner.Visible) ++winners_;
  WaitForIdle();
  VisitForm(game);
}

void Operator::WaitForIdle() {
  for (int i = 0; i < 30 && (form_.picWinner.Visible || show_.state.GameLoaded); ++i) hands_.Wait(500);
  if (show_.state.GameLoaded) hands_.Press(form_.btnReset);
  hands_.Wait(500);
}

void Operator::VisitForm(int game) {
  Control* const openers[kForms] = {
      &form_.btnSounds,        &form_.btnGameTypeHelp,       &form_.mnuFileOptions,
      &form_.mnuHelpAbout,     &form_.mnuFileAddPlayerNames, &form_.btnEditKeyboardCtrl,
      &form_.mnuHelpProjector, &form_.btnStartGame,          &form_.mnuFileOptionalHeaders};
  hands_.Visit(*openers[static_cast<std::size_t>(game % kForms)]);
}

void Operator::Rest() {
  for (int i = 0; i < kFilmMs / 500 && form_.picMOD.Visible; ++i) hands_.Wait(500);
  hands_.Press(form_.btnStopSounds);
  hands_.Wait(4000);
}

Image* Operator::FreeSquare(int step) {
  const int grid = show_.state.GridSize;
  for (int i = 0; i < grid * grid; ++i) {
    const int place = (i * 7 + step) % (grid * grid);
    const int row = place / grid;
    const int column = place % grid;
    if (show_.state.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] == 0) {
      return form_.img.At(row, column);
    }
  }
  return nullptr;
}

void Operator::Judge(int step) {
  Button& verdict = step % 3 == 2 ? form_.btnQuestionIncorrect : form_.btnQuestionCorrect;
  if (verdict.IsReachable()) {
    hands_.Press(verdict);
  } else if (step % 2 == 0) {
    hands_.PressRemote(1 + step % 3);
  } else {
    hands_.Press(form_.btnSelectPlayer[static_cast<std::size_t>(step) % 3]);
  }
}

void Operator::BringUpMedia() {
  hands_.Type("qrs"[media_++ % 3]);
  hands_.Wait(1000);
  if (form_.picMODVideo.IsShown() && show_.platform.media.MediaPlayer1.CurrentPosition() > 0) ++films_;
  // A film ends by itself; a key and a picture need no waiting.
  for (int i = 0; i < kFilmMs / 500 && form_.picMODVideo.IsShown(); ++i) hands_.Wait(500);
}

void Operator::Step(int step) {
  if (form_.picStandby.Visible) {
    hands_.Press(form_.btnPlayMode);
  } else if (step % 40 == 39) {
    hands_.Press(form_.btnStandbyMode);
  } else if (step % 20 == 12) {
    BringUpMedia();
  } else if (step % 30 == 17 && form_.btnUndo.IsReachable()) {
    hands_.Press(form_.btnUndo);
  } else if (form_.picQuestion.Visible || form_.picQuestionPicture.Visible || form_.picSound.Visible) {
    Judge(step);
  } else if (show_.state.PlacementOpen && FreeSquare(step) != nullptr) {
    if (hands_.Press(*FreeSquare(step))) ++claims_;
  } else {
    hands_.Press(form_.btnContinue);
  }
  hands_.Wait(pace_.LookMs * (1 + step % 3));
}

}  // namespace pawnfield
