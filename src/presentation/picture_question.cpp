#include "presentation/picture_question.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/question_pictures.h"
#include "presentation/both_screens.h"
#include "presentation/text_fitting.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The question that the picture belongs to may have gone while the disk was asked.
bool IsStillAsked(Show& show, const std::string& path) {
  return PanelVisible(show, Panel::QuestionPicture) && show.frmMain.lblQuestion[0].Caption == path;
}

void WriteCard(Show& show, const std::string& text, ControlArray<Label, 5>& labels) {
  constexpr double kCardSize = 28;
  labels[0].Font = {"Segoe UI", kCardSize, true, false};
  SetQuestion(show, text, labels);
}

// The operator reads what is wrong; the room sees that there is a question and nothing of the trouble.
void ShowMissingPicture(Show& show) {
  HidePanel(show, Panel::QuestionPicture);
  WriteCard(show, kPictureMissing, show.frmMain.lblQuestion);
  if (show.state.DualScreen) WriteMissingPictureCard(show);
  RandomQuestionBackground(show);
  ShowPanel(show, Panel::Question);
}

}  // namespace

void ShowPic(Show& show) {
  const std::string path = show.frmMain.lblQuestion[0].Caption;
  show.frmMain.picImageResize[0].Picture = "";
  ShowPanel(show, Panel::QuestionPicture);
  show.platform.pictures.Look(path, [&show, path](const PictureFacts& facts) {
    if (!IsStillAsked(show, path)) return;
    if (facts.Error != 0) {
      ShowMissingPicture(show);
      return;
    }
    FitPicture(show, facts.Size);
    show.frmMain.picImageResize[0].Picture = path;
    if (show.state.DualScreen) ShowPicOnAudience(show, path, facts.Size);
  });
}

bool IsPictureMissing(const Show& show) { return show.frmMain.lblQuestion[0].Caption == kPictureMissing; }

void WriteMissingPictureCard(Show& show) {
  WriteCard(show, "Question " + std::to_string(show.state.CurrentQuestion + 1), show.frmFSMain.lblQuestion);
}

void BringQuestionPictureInStep(Show& show) {
  const std::string path = show.frmMain.picImageResize[0].Picture;
  if (path.empty()) return;
  show.platform.pictures.Look(path, [&show, path](const PictureFacts& facts) {
    if (show.frmMain.picImageResize[0].Picture != path) return;
    // A picture that has gone from the disk since it was shown leaves its panel empty.
    if (facts.Error == 0) {
      ShowPicOnAudience(show, path, facts.Size);
    } else {
      show.frmFSMain.picImageResize[0].Picture = "";
    }
  });
}

}  // namespace pawnfield
