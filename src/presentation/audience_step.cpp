#include "presentation/audience_step.h"

#include <array>

#include "forms/board_labels.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "media/question_pictures.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/text_fitting.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void CopyBoard(Show& show) {
  BuildFSGrid(show, show.state.GridSize);
  for (int r = 0; r < 6; ++r) {
    for (int c = 0; c < 6; ++c) show.frmFSMain.img.At(r, c)->Picture = show.frmMain.img.At(r, c)->Picture;
  }
}

void CopyPlayers(Show& show) {
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t i = PlayerIndex(player);
    const bool plays = console.PlayerBox(player).Visible;
    audience.lblPlayer[i].Caption = console.lblPlayer1[i].Caption;
    audience.Label11[i].Caption = console.Score(player).Caption;
    audience.picPlayer[i].Picture = console.PlayerBox(player).Picture;
    for (Control* part :
         {static_cast<Control*>(&audience.lblPlayer[i]), static_cast<Control*>(&audience.Label11[i]),
          static_cast<Control*>(&audience.picPlayer[i]), static_cast<Control*>(&audience.ScoreBox(player))}) {
      part->Visible = plays;
    }
  }
}

void CopyHeader(Show& show) {
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  audience.imgHeader.Visible = console.imgHeader.Visible;
  audience.txtOptionalHeading.Text = console.txtOptionalHeading.Text;
  audience.txtOptionalHeading.ForeColor = console.txtOptionalHeading.ForeColor;
  audience.txtOptionalHeading.BackColor = console.txtOptionalHeading.BackColor;
  audience.txtOptionalHeading.Visible = console.txtOptionalHeading.Visible;
  audience.lblDJCommand.Caption = console.txtDJCommand.Text.Get();
}

void CopyQuestion(Show& show) {
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  const Label& source = console.lblQuestion[0];
  audience.imgQuestionBackground.Picture = console.imgQuestionBackground.Picture;
  audience.lblQuestion[0].Font = source.Font;
  SetQuestion(show, source.Caption, audience.lblQuestion);
}

// A picture that has gone from the disk since it was shown leaves its panel empty.
void CopyQuestionPicture(Show& show) {
  const std::string path = show.frmMain.picImageResize[0].Picture;
  if (path.empty()) return;
  try {
    FSImageResize(show, path);
    show.frmFSMain.picImageResize[0].Picture = path;
  } catch (const RuntimeError&) {
    show.frmFSMain.picImageResize[0].Picture = "";
  }
}

void CopyVerdictAndWinner(Show& show) {
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  audience.imgCorrect.Picture = console.imgCorrect.Picture;
  audience.lblRightWrong.Caption = console.lblRightWrong.Caption;
  audience.lblRightWrong.ForeColor = console.lblRightWrong.ForeColor;
  audience.lblRightWrong.Visible = console.lblRightWrong.Visible;
  if (!console.lblWinner.Caption->empty()) SetWinner(show, console.lblWinner.Caption, audience.lblWinner);
  audience.lblWinner.Visible = console.lblWinner.Visible;
}

// The cover is the audience's alone: it is up from a ring-in to its verdict.
void CoverAnsweredQuestion(Show& show) {
  const int player = show.state.CurrentPlayer;
  const bool answering = QuestionVisible(show) && IsPlayer(player) && show.frmMain.btnQuestionCorrect.Visible;
  const bool cover = answering && show.state.Nature().RingIn && show.state.HideQuestion;
  if (cover) {
    show.frmFSMain.lblPlayerName.Caption = show.frmMain.lblPlayer1[PlayerIndex(player)].Caption;
  }
  show.frmFSMain.picHideQuestion.Visible = cover;
}

}  // namespace

void CopyDesignPictures(Show& show) {
  MainForm& form = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  for (std::size_t i = 0; i < 5; ++i) {
    ColumnLabels(audience)[i]->Picture = ColumnLabels(form)[i]->Picture;
    RowLabels(audience)[i]->Picture = RowLabels(form)[i]->Picture;
  }
  audience.imgSound.Picture = form.imgSound.Picture;
  audience.picWinner.Picture = form.picWinner.Picture;
  audience.picHideQuestion.Picture = PicturePath(show, "\\Images\\Cover.jpg");
}

void CopyScreenPictures(Show& show) {
  show.frmFSMain.imgStandby.Picture = show.frmMain.imgStandby.Picture;
  show.frmFSMain.imgBonus.Picture = show.frmMain.imgBonus.Picture;
  show.frmFSMain.imgHeader.Picture = show.frmMain.imgHeader.Picture;
}

void BringAudienceInStep(Show& show) {
  CopyDesignPictures(show);
  CopyScreenPictures(show);
  CopyBoard(show);
  CopyPlayers(show);
  CopyHeader(show);
  CopyQuestion(show);
  CopyQuestionPicture(show);
  CopyVerdictAndWinner(show);
  CoverAnsweredQuestion(show);
  show.frmFSMain.MouseIcon = show.frmMain.MouseIcon;
  for (const Panel panel : {Panel::Question, Panel::QuestionPicture, Panel::Sound, Panel::Bonus, Panel::Correct,
                            Panel::Winner, Panel::Standby}) {
    PanelVisible(show, panel) ? ShowPanel(show, panel) : HidePanel(show, panel);
  }
  BringMediaInStep(show);
}

}  // namespace pawnfield
