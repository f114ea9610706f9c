#include "presentation/board_layout.h"

#include <array>

#include "forms/board_labels.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "show/note.h"
#include "show/show.h"

namespace pawnfield {

namespace {

struct GridPlace {
  double Left, Top, GapAcross, GapDown;
};

constexpr GridPlace kConsoleGrid{800, 815, 180, 30};
constexpr GridPlace kAudienceGrid{2160, 1440, 60, 60};

template <typename BoardForm>
class GridBuilder {
 public:
  GridBuilder(BoardForm& form, const GridPlace& place, double w, double h) : form_(form), place_(place), w_(w), h_(h) {}

  // Cell 0 of either direction is the label's.
  void Place(Control& control, int row, int column) {
    control.MoveTo(place_.Left + column * (w_ + place_.GapAcross), place_.Top + row * (h_ + place_.GapDown), w_, h_);
    control.Visible = true;
  }

  // The 3 by 3 core first, then each further size's label, row and column.
  void Build(int n) {
    for (int column = 0; column < 3; ++column) Place(*ColumnLabels(form_)[Index(column)], 0, column + 1);
    for (int row = 0; row < 3; ++row) PlaceRow(row, 3);
    for (int extra = 3; extra < n; ++extra) {
      Place(*ColumnLabels(form_)[Index(extra)], 0, extra + 1);
      PlaceRow(extra, extra + 1);
      for (int row = 0; row < extra; ++row) Place(*form_.img.At(row, extra), row + 1, extra + 1);
    }
  }

 private:
  static std::size_t Index(int i) { return static_cast<std::size_t>(i); }

  void PlaceRow(int row, int columns) {
    Place(*RowLabels(form_)[Index(row)], row + 1, 0);
    for (int column = 0; column < columns; ++column) Place(*form_.img.At(row, column), row + 1, column + 1);
  }

  BoardForm& form_;
  GridPlace place_;
  double w_, h_;
};

template <typename BoardForm>
void HideBoard(BoardForm& form) {
  form.img.ForEach([](Image& square) { square.Visible = false; });
  for (Image* label : ColumnLabels(form)) label->Visible = false;
  for (Image* label : RowLabels(form)) label->Visible = false;
}

// The options that a game type offers are both visible and enabled; the others are neither.
void OfferOption(Control& control, Control& label, bool offered) {
  control.Visible = offered;
  label.Visible = offered;
  control.Enabled = offered;
  label.Enabled = offered;
}

}  // namespace

void ShowOptionsOfType(Show& show) {
  MainForm& form = show.frmMain;
  const GameNature& type = show.state.Nature();
  form.btnStart.Enabled = !type.Trivia;
  form.btnSelectGame.Visible = type.Trivia;
  OfferOption(form.chkAnimation, form.lblShowAnimation, type.Offer.Animation);
  OfferOption(form.chkHideQuestion, form.lblHidequestionOption, type.Offer.HideQuestion);
  OfferOption(form.chkIncorrectPenalty, form.lblLose100Points, type.Offer.IncorrectPenalty);
  OfferOption(form.cboTimedResponse, form.lblTimedResponse, type.Offer.TimedResponse);
  OfferOption(form.cboAutoContinue, form.lblAutoContinuePrompt, type.Offer.AutoContinue);
  form.btnEnableAllBuzzers.Enabled = type.RingIn;
  form.lblSelectPlayer.Visible = type.RingIn;
  form.btnNextPlayer.Visible = type.Offer.NextPlayer;
}

void MakeGameBoard(Show& show, int w, int h, int n) {
  show.state.GridCols = n;
  show.state.GridRows = n;
  ClearBoardArray(show);
  ClearBoardPictures(show);
  HideBoardControls(show);
  GridBuilder builder(show.frmMain, kConsoleGrid, w, h);
  show.frmMain.imgDJEntry.MoveTo(kConsoleGrid.Left, kConsoleGrid.Top, w, h);
  builder.Build(n);
}

void MakeFSGameBoard(Show& show, int w, int h, int n) {
  ClearFSBoardPictures(show);
  HideFSBoardControls(show);
  GridBuilder(show.frmFSMain, kAudienceGrid, w, h).Build(n);
}

void BuildGrid(Show& show, int gridSize) {
  switch (gridSize) {
    case 3:
      MakeGameBoard(show, 1410, 1155, 3);
      break;
    case 4:
      MakeGameBoard(show, 1095, 915, 4);
      break;
    default:
      MakeGameBoard(show, 885, 750, 5);
  }
  BuildFSGrid(show, gridSize);
}

void BuildFSGrid(Show& show, int gridSize) {
  if (!show.state.DualScreen) return;
  switch (gridSize) {
    case 3:
      MakeFSGameBoard(show, 2640, 2010, 3);
      break;
    case 4:
      MakeFSGameBoard(show, 2112, 1608, 4);
      break;
    default:
      MakeFSGameBoard(show, 1760, 1340, 5);
  }
}

void ClearBoardArray(Show& show) {
  for (std::size_t r = 0; r < 6; ++r) {
    for (std::size_t c = 0; c < 6; ++c) show.state.Board[r][c] = 0;
  }
}

void ClearBoardPictures(Show& show) {
  show.frmMain.img.ForEach([&](Image& square) { square.Picture = show.frmMain.imgBkgnd.Picture; });
  if (show.state.DualScreen) ClearFSBoardPictures(show);
}

void ClearFSBoardPictures(Show& show) {
  show.frmFSMain.img.ForEach([&](Image& square) { square.Picture = show.frmMain.imgBkgnd.Picture; });
}

void HideBoardControls(Show& show) { HideBoard(show.frmMain); }

void HideFSBoardControls(Show& show) { HideBoard(show.frmFSMain); }

void ResetGameBoard(Show& show) {
  MainForm& form = show.frmMain;
  GameState& state = show.state;
  Note(show, EventKind::Wipe);
  state.CurrentQuestion = 0;
  // A flash that ran on would draw on the cleared board and open the next turn of a game that is gone.
  ForgetClaimedSquare(show);
  form.tmrAnswer.Enabled = false;
  show.FlashCount = 0;
  state.FlipPlayer = 0;
  show.WinnerDue = false;
  ResetScores(show);
  ResetPlayerNames(show);
  LightScoreBox(show, 0);
  ClearBoardPictures(show);
  for (Button* button :
       {&form.btnSkipQuestion, &form.btnNextPlayer, &form.btnContinue, &form.btnEndGame, &form.btnReset}) {
    button->Enabled = false;
  }
  state.GameLoaded = false;
  state.GameInProgress = false;
  state.PlacementOpen = false;
  state.GameStarted = false;
  state.QuestionUp = false;
  SetCursorOnBoth(show, 0);
  ShowOptionsOfType(show);
  ShowPanel(show, Panel::Standby);
  form.btnStandbyMode.Enabled = false;
  form.btnPlayMode.Enabled = true;
  form.picQuestion.Visible = false;
  form.picQuestionPicture.Visible = false;
  form.lblAnswer.Caption = "";
  SetTypedCommand(show, "");
  form.txtDJCommand.BackColor = kRed;
  form.imgDJEntry.Picture = form.imgXa.Picture;
  for (int player = 1; player <= kPlayers; ++player) state.Lamp[player] = player == 1 ? kLampOn : kLampOff;
  state.CurrentPlayer = 1;
}

void StopTurning(Flip& flip, Timer& timer) {
  if (flip.Square == nullptr || !timer.Enabled) return;
  timer.Enabled = false;
  flip.Square->Top = flip.RestTop;
  flip.Square->Height = flip.RestHeight;
  flip.Larger = false;
  flip.AtEdge = false;
}

void ForgetClaimedSquare(Show& show) {
  StopTurning(show.flip, show.frmMain.tmrFlipPlayerPiece);
  StopTurning(show.fsFlip, show.frmFSMain.tmrFSFlipPlayerPiece);
  show.state.LastSquareKey.clear();
  show.FlashSquares.clear();
  // The next flash begins with the lit face again.
  show.FlashToggle = false;
}

void RemovePiece(Show& show, int r, int c) { SetSquarePicture(show, r, c, show.frmMain.imgBkgnd.Picture); }

}  // namespace pawnfield
