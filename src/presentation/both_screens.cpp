#include "presentation/both_screens.h"

#include <utility>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::pair<PictureBox*, PictureBox*> PanelPair(Show& show, Panel panel) {
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  switch (panel) {
    case Panel::Question:
      return {&console.picQuestion, &audience.picQuestion};
    case Panel::QuestionPicture:
      return {&console.picQuestionPicture, &audience.picQuestionPicture};
    case Panel::Sound:
      return {&console.picSound, &audience.picSound};
    case Panel::Bonus:
      return {&console.picBonus, &audience.picBonus};
    case Panel::Correct:
      return {&console.picCorrect, &audience.picCorrect};
    case Panel::Winner:
      return {&console.picWinner, &audience.picWinner};
    case Panel::Standby:
      break;
  }
  return {&console.picStandby, &audience.picStandby};
}

void SetPanel(Show& show, Panel panel, bool visible) {
  const auto [console, audience] = PanelPair(show, panel);
  console->Visible = visible;
  if (show.state.DualScreen) audience->Visible = visible;
}

}  // namespace

void ShowPanel(Show& show, Panel panel) { SetPanel(show, panel, true); }

void HidePanel(Show& show, Panel panel) { SetPanel(show, panel, false); }

bool PanelVisible(const Show& show, Panel panel) { return PanelPair(const_cast<Show&>(show), panel).first->Visible; }

bool TextOrPictureVisible(const Show& show) {
  return PanelVisible(show, Panel::Question) || PanelVisible(show, Panel::QuestionPicture);
}

bool QuestionVisible(const Show& show) { return TextOrPictureVisible(show) || PanelVisible(show, Panel::Sound); }

void SetScore(Show& show, int player, const std::string& text) {
  show.frmMain.Score(player).Caption = text;
  if (show.state.DualScreen) show.frmFSMain.Label11[PlayerIndex(player)].Caption = text;
  show.frmMain.ScoreCopy(player).Caption = text;
}

double ScoreOf(Show& show, int player) { return ParseNumber(show.frmMain.Score(player).Caption).value_or(0); }

void SetPlayerName(Show& show, int player, const std::string& name) {
  const std::size_t index = PlayerIndex(player);
  show.frmMain.lblPlayer1[index].Caption = name;
  if (show.state.DualScreen) show.frmFSMain.lblPlayer[index].Caption = name;
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
    if (show.state.DualScreen) show.frmFSMain.picPlayer[PlayerIndex(other)].Picture = picture;
  }
}

void SetTypedCommand(Show& show, const std::string& text) {
  show.frmMain.txtDJCommand.Text = text;
  if (show.state.DualScreen) show.frmFSMain.lblDJCommand.Caption = text;
}

void SetSquarePicture(Show& show, int row, int column, const std::string& picture) {
  Image* square = show.frmMain.img.At(row, column);
  if (square == nullptr) return;
  square->Picture = picture;
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
