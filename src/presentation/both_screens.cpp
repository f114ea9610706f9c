#include "presentation/both_screens.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

PictureBox& PanelOf(MainForm& form, Panel panel) {
  switch (panel) {
    case Panel::Question:
      return form.picQuestion;
    case Panel::QuestionPicture:
      return form.picQuestionPicture;
    case Panel::Sound:
      return form.picSound;
    case Panel::Bonus:
      return form.picBonus;
    case Panel::Correct:
      return form.picCorrect;
    case Panel::Winner:
      return form.picWinner;
    case Panel::Standby:
      break;
  }
  return form.picStandby;
}

}  // namespace

void ShowPanel(Show& show, Panel panel) { PanelOf(show.frmMain, panel).Visible = true; }

void HidePanel(Show& show, Panel panel) { PanelOf(show.frmMain, panel).Visible = false; }

bool PanelVisible(const Show& show, Panel panel) { return PanelOf(show.frmMain, panel).Visible; }

void SetScore(Show& show, int player, const std::string& text) {
  show.frmMain.Score(player).Caption = text;
  show.frmMain.ScoreCopy(player).Caption = text;
}

double ScoreOf(Show& show, int player) { return ParseNumber(show.frmMain.Score(player).Caption).value_or(0); }

void SetPlayerName(Show& show, int player, const std::string& name) {
  show.frmMain.lblPlayer1[PlayerIndex(player)].Caption = name;
}

void ResetPlayerNames(Show& show) {
  for (int player = 1; player <= kPlayers; ++player) SetPlayerName(show, player, "PLAYER " + std::to_string(player));
}

void ResetScores(Show& show) {
  for (int player = 1; player <= kPlayers; ++player) SetScore(show, player, "0");
}

void LightScoreBox(Show& show, int player) {
  const std::string normal = LoadPicture(show, "\\Images\\scorebox.bmp", "LightScoreBox");
  const std::string lit = player == 0 ? normal : LoadPicture(show, "\\images\\scoreboxred.bmp", "LightScoreBox");
  for (int other = 1; other <= kPlayers; ++other) {
    const std::string& picture = other == player ? lit : normal;
    show.frmMain.ScoreBox(other).Picture = picture;
    show.frmMain.PlayerBox(other).Picture = picture;
  }
}

void SetTypedCommand(Show& show, const std::string& text) { show.frmMain.txtDJCommand.Text = text; }

void SetSquarePicture(Show& show, int row, int column, const std::string& picture) {
  Image* square = show.frmMain.img.At(row, column);
  if (square == nullptr) return;
  square->Picture = picture;
  // A square may flash while it still turns, when the pair rests.
  if (show.state.DualScreen) show.frmFSMain.img.At(row, column)->Picture = square->Picture;
}

void SetConsoleCursor(Show& show, int player) {
  if (player != 0 && !IsPlayer(player)) return;
  show.frmMain.MouseIcon = show.frmMain.imgCursor[static_cast<std::size_t>(player)].Picture;
}

void SetCursorOnBoth(Show& show, int player) {
  SetConsoleCursor(show, player);
  if (show.state.DualScreen) show.frmFSMain.MouseIcon = show.frmMain.MouseIcon;
}

std::string PicturePath(Show& show, const std::string& tail) {
  const std::string path = show.AppPath(tail);
  const auto [entry, isNew] = show.PictureFound.try_emplace(path, false);
  if (isNew) entry->second = show.platform.files.CanOpen(path);
  return entry->second ? path : "";
}

std::string LoadPicture(Show& show, const std::string& tail, const std::string& procedure) {
  const bool asked = show.PictureFound.contains(show.AppPath(tail));
  std::string path = PicturePath(show, tail);
  if (path.empty() && !asked) {
    ReportError(show.platform.dialogs, RuntimeError(kErrorFileNotFound, "File not found"), "frmMain", procedure,
                show.AppPath(tail));
  }
  return path;
}

}  // namespace pawnfield
