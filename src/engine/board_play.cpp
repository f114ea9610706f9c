#include "engine/board_play.h"

#include <optional>

#include "engine/lines.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "outward/companion.h"
#include "platform/text.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "show/note.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kBonusThreshold = 300;

struct FlipConstants {
  double Step, FullHeight, FSStep, FSFullHeight;
};

std::optional<FlipConstants> FlipConstantsOf(int gridSize) {
  switch (gridSize) {
    case 3:
      return FlipConstants{255, 1110, 401, 2009};
    case 4:
      return FlipConstants{210, 885, 321, 1607};
    case 5:
      return FlipConstants{165, 735, 268, 1339};
    case 6:
      return FlipConstants{8, 41, 228, 1139};
    default:
      return std::nullopt;
  }
}

int OwnerOf(const Show& show, BoardSquare square) {
  return show.state.Board[static_cast<std::size_t>(square.Row)][static_cast<std::size_t>(square.Column)];
}

// By the square's name, which ends in the row and the column.
BoardSquare SquareNamed(const std::string& name) { return {name[name.size() - 2] - '0', name[name.size() - 1] - '0'}; }

std::string FaceAtRest(Show& show, BoardSquare square) {
  const int owner = OwnerOf(show, square);
  return (IsPlayer(owner) ? show.frmMain.FaceA(owner) : show.frmMain.imgBkgnd).Picture;
}

// A turn that is cut off, where ticks come late, leaves its square as it rests.
void PrepareFlip(Show& show, Flip& flip, Timer& timer, Image* square) {
  const bool turns = flip.Square != nullptr && timer.Enabled;
  StopTurning(flip, timer);
  if (turns) flip.Square->Picture = FaceAtRest(show, SquareNamed(flip.Square->Name()));
  flip.Square = square;
  flip.RestTop = square->Top;
  flip.RestHeight = square->Height;
}

// A claim that comes while the last one still flashes takes the flash along; its squares are left as they are at rest.
void RestFlashingSquares(Show& show) {
  if (!show.frmMain.tmrAnswer.Enabled) return;
  for (const BoardSquare& square : show.FlashSquares) {
    SetSquarePicture(show, square.Row, square.Column, FaceAtRest(show, square));
  }
}

void StartFlip(Show& show, int r, int c) {
  const auto constants = FlipConstantsOf(show.state.GridSize);
  Image* square = show.frmMain.img.At(r, c);
  Timer& timer = show.frmMain.tmrFlipPlayerPiece;
  Timer& fsTimer = show.frmFSMain.tmrFSFlipPlayerPiece;
  if (square != nullptr) {
    PrepareFlip(show, show.flip, timer, square);
    if (show.state.DualScreen) PrepareFlip(show, show.fsFlip, fsTimer, show.frmFSMain.img.At(r, c));
  }
  if (!constants) return;
  show.flip.Step = constants->Step;
  show.flip.FullHeight = constants->FullHeight;
  timer.Enabled = true;
  if (!show.state.DualScreen) return;
  show.fsFlip.Step = constants->FSStep;
  show.fsFlip.FullHeight = constants->FSFullHeight;
  fsTimer.Enabled = true;
}

// Adds what the lines through the square pay to PiecePoints. They flash together with the square.
LineMade PayLines(Show& show, int r, int c) {
  const LineClaim claim{r, c, show.state.CurrentPlayer, show.state.GridSize, show.state.Bonus * 10};
  bool hit = false;
  show.FlashSquares = ClaimedSquares(show.state.Board, claim);
  for (const auto& check : {CheckRowLine, CheckColumnLine, CheckDiagonalLine, CheckAntiDiagonalLine}) {
    const LineResult result = check(show.state.Board, claim);
    show.state.PiecePoints += result.Points;
    hit = hit || result.Hit;
  }
  return hit ? LineMade::Yes : LineMade::No;
}

void PayScore(Show& show) {
  const int player = show.state.CurrentPlayer;
  if (!IsPlayer(player)) return;
  SetScore(show, player, NumberText(ScoreOf(show, player) + show.state.PiecePoints));
  ReportPlayer(show, player, kRed);
}

// A square belongs to a player, so it waits until one has the turn.
bool MayClaim(Show& show) {
  const bool nobody = show.state.PlacementOpen && show.state.CurrentPlayer == 0;
  if (nobody && IsPhase(show, PhaseKind::Pause)) SayNobodyHasTurn(show);
  return IsPhase(show, PhaseKind::Claiming);
}

void CloseTurnOfRingIn(Show& show) {
  show.frmMain.btnCorrect.Enabled = false;
  TakeTurn(show);
}

// The flash of the claim may have ended meanwhile and forgotten the player.
int PlayerOnSquare(const Show& show, const Image& square) {
  return IsPlayer(show.state.FlipPlayer) ? show.state.FlipPlayer : OwnerOf(show, SquareNamed(square.Name()));
}

// The face of the turning piece at the edge. The O piece has no change of face.
std::string EdgeFace(const Show& show, int player) {
  switch (player) {
    case 1:
      return show.frmMain.imgXb.Picture;
    case 2:
      return show.frmMain.imgOa.Picture;
    case 3:
      return show.frmMain.imgTb.Picture;
    default:
      return show.frmMain.imgBkgnd.Picture;
  }
}

// One tick of a turning square; true when it has come back to its full size.
bool TurnSquare(Show& show, Flip& flip) {
  Image& square = *flip.Square;
  // Where ticks come late the flash has begun before the turn is over, and the picture is the flash's on both screens.
  const bool flashes = show.FlashCount > 0;
  if (!flip.Larger && square.Height > flip.Step - 1) {
    flip.AtEdge = true;
    square.Height = square.Height - flip.Step;
    square.Top = square.Top + flip.Step / 2;
    return false;
  }
  if (flip.AtEdge) {
    if (!flashes) square.Picture = EdgeFace(show, PlayerOnSquare(show, square));
    flip.AtEdge = false;
  }
  flip.Larger = true;
  square.Height = square.Height + flip.Step;
  square.Top = square.Top - flip.Step / 2;
  if (square.Height <= flip.FullHeight) return false;
  flip.Larger = false;
  if (flashes) return true;
  const int player = PlayerOnSquare(show, square);
  // Nobody's square rests as an empty one, which it is.
  square.Picture = (IsPlayer(player) ? show.frmMain.FaceA(player) : show.frmMain.imgBkgnd).Picture;
  return true;
}

void FlashSquare(Show& show) {
  if (!IsPlayer(show.state.FlipPlayer) || show.FlashSquares.empty()) return;
  const int player = show.state.FlipPlayer;
  Image& face = show.FlashToggle ? show.frmMain.FaceA(player) : show.frmMain.FaceB(player);
  show.FlashToggle = !show.FlashToggle;
  for (const BoardSquare& square : show.FlashSquares) SetSquarePicture(show, square.Row, square.Column, face.Picture);
}

void FinishPlainPiece(Show& show) {
  MainForm& form = show.frmMain;
  // The claim has ended its game: nothing of that goes on.
  if (!show.state.GameLoaded) return;
  if (show.state.Nature().Trivia) StartAutoContinue(show);
  form.btnReset.Enabled = true;
  form.btnEndGame.Enabled = true;
  if (!show.state.Nature().Trivia) {
    show.state.PlacementOpen = true;
  } else {
    CheckQuestionsLeft(show);
  }
}

// The step behind the flash. A game that was ended meanwhile has none.
void GoOnAfterFlash(Show& show, bool bonus) {
  if (!show.WinnerDue && !show.state.GameLoaded) return;
  if (!show.WinnerDue && IsGameOver(show, LineMade::No)) EndGame(show);
  if (bonus) {
    ShowBonus(show);
  } else if (show.WinnerDue) {
    ShowWinner(show);
  } else {
    FinishPlainPiece(show);
  }
}

}  // namespace

bool TryClaimSquare(Show& show, int r, int c) {
  if (r < 0 || r > 5 || c < 0 || c > 5) return false;
  int& owner = show.state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
  if (owner != 0) return false;
  owner = show.state.CurrentPlayer;
  return true;
}

void ClaimSquare(Show& show, int r, int c, const std::string& key) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  if (!MayClaim(show)) return;
  show.entry.DJEntry.clear();
  SetTypedCommand(show, "");
  if (!TryClaimSquare(show, r, c)) return;
  Note(show, EventKind::Claim, state.CurrentPlayer);
  state.PlacementOpen = false;
  state.GameInProgress = true;
  // A claim after a skip gets its own whole pause.
  form.tmrAutoContinue.Enabled = false;
  form.btnContinue.Enabled = false;
  form.txtDJCommand.Visible = state.KeyControl;
  RestFlashingSquares(show);
  StartFlip(show, r, c);
  state.LastSquareKey = key;
  state.FlipPlayer = state.CurrentPlayer;
  state.PiecePoints = state.Scoring * 10;
  const LineMade lineMade = PayLines(show, r, c);
  PayScore(show);
  form.tmrAnswer.Enabled = true;
  state.LastPlayer = state.CurrentPlayer;
  state.LastPoints = state.PiecePoints;
  state.LastRow = r;
  state.LastCol = c;
  if (state.Nature().AfterClaim == NextTurn::Passes) AdvanceToNextPlayer(show);
  PlayPawn(show);
  if (IsGameOver(show, lineMade)) EndGame(show);
  if (state.Nature().AfterClaim == NextTurn::Nobodys) CloseTurnOfRingIn(show);
}

void tmrFlipPlayerPiece_Timer(Show& show) {
  if (show.flip.Square == nullptr || !TurnSquare(show, show.flip)) return;
  show.frmMain.tmrFlipPlayerPiece.Enabled = false;
  SetCursorOnBoth(show, !show.state.Nature().Trivia ? show.state.CurrentPlayer : 0);
}

void tmrFSFlipPlayerPiece_Timer(Show& show) {
  if (show.fsFlip.Square != nullptr && TurnSquare(show, show.fsFlip)) {
    show.frmFSMain.tmrFSFlipPlayerPiece.Enabled = false;
  }
}

void tmrAnswer_Timer(Show& show) {
  constexpr int kFlashTicks = 6;
  FlashSquare(show);
  if (++show.FlashCount < kFlashTicks) return;
  const bool bonus = show.state.PiecePoints >= kBonusThreshold;
  EndFlash(show);
  GoOnAfterFlash(show, bonus);
}

void EndFlash(Show& show) {
  RestFlashingSquares(show);
  show.frmMain.tmrAnswer.Enabled = false;
  show.FlashSquares.clear();
  show.FlashToggle = false;
  show.FlashCount = 0;
  show.state.PiecePoints = 0;
  show.state.FlipPlayer = 0;
}

}  // namespace pawnfield
