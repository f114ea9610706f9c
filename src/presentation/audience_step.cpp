#include "presentation/audience_step.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "media/optional_headers.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/final_result.h"
#include "presentation/picture_question.h"
#include "presentation/screen_pairs.h"
#include "presentation/text_fitting.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void FitQuestion(Show& show) {
  const Label& source = show.frmMain.lblQuestion[0];
  show.frmFSMain.lblQuestion[0].Font = source.Font;
  SetQuestion(show, source.Caption, show.frmFSMain.lblQuestion);
}

// The result is written on both, so that they agree on scores that were changed since.
void FitWinner(Show& show) {
  if (!show.frmMain.Winner.lblWinnerHead.Caption->empty()) ShowResult(show);
  const std::string text = show.frmMain.lblWinner.Caption;
  if (!text.empty()) SetWinner(show, text, show.frmFSMain.lblWinner);
}

}  // namespace

// The cover is the audience's alone: it is up from a ring-in to its verdict.
void CoverAnsweredQuestion(Show& show) {
  const auto [kind, player] = Phase(show);
  const bool cover = kind == PhaseKind::Answering && show.state.Nature().RingIn && show.state.HideQuestion;
  if (cover) {
    show.frmFSMain.lblPlayerName.Caption = show.frmMain.lblPlayer1[PlayerIndex(player)].Caption;
  }
  show.frmFSMain.picHideQuestion.Picture = PicturePath(show, "\\Images\\Cover.jpg");
  show.frmFSMain.picHideQuestion.Visible = cover;
}

void BringAudienceInStep(Show& show) {
  BuildFSGrid(show, show.state.GridSize);
  FitQuestion(show);
  FitWinner(show);
  FitHeading(show);
  CopyPairs(show);
  if (IsPictureMissing(show)) WriteMissingPictureCard(show);
  // Last, because a picture whose file has gone must not be shown.
  BringQuestionPictureInStep(show);
  FitMedia(show);
  CoverAnsweredQuestion(show);
  show.frmFSMain.MouseIcon = show.frmMain.MouseIcon;
}

}  // namespace pawnfield
