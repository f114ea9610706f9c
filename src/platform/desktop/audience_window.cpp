#include "platform/desktop/audience_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "platform/desktop/ground.h"
#include "presentation/fs_main_form.h"

namespace pawnfield {

AudienceWindow::AudienceWindow(FSMainForm& form, FormWindows& windows, PictureCache& pictures)
    : FormWindow(form, windows, Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  screen_ = new Canvas(pictures, this);
  screen_->setObjectName("pnlScreen");
  setCentralWidget(screen_);
  screen_->SetLogicalSize(form.Width, form.Height);
  screen_->SetFillsDisplay(true);
  screen_->SetBackdrop(PaintGround);
  BindForm();
  Fill(form);
  FillPanels(form);
  Bindings()->AddCanvas(*screen_);
  // A projector that comes or goes: the window must neither cover the console nor stay away.
  const auto place = [this] { QTimer::singleShot(0, this, [this] { ShowForm(); }); };
  connect(qGuiApp, &QGuiApplication::screenAdded, this, place);
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, place);
}

void AudienceWindow::Fill(FSMainForm& form) {
  screen_->Add(form.imgBackground);
  screen_->Add(form.imgHeader);
  ItemStyle sign;
  sign.IsSign = true;
  for (Image* image : {&form.imgA, &form.imgB, &form.imgC, &form.imgD, &form.imgE, &form.imgF, &form.img1, &form.img2,
                       &form.img3, &form.img4, &form.img5, &form.img6}) {
    screen_->Add(*image, sign);
  }
  screen_->Add(form.imgDJEntry);
  ItemStyle rounded;
  rounded.Corner = 0.09;
  form.img.ForEach([&](Image& square) { screen_->Add(square, rounded); });
  rounded.Edge = 0.03;
  rounded.Corner = 0.18;
  for (std::size_t i = 0; i < 3; ++i) {
    screen_->Add(form.picPlayer[i], rounded);
    screen_->Add(form.ScoreBox(static_cast<int>(i) + 1), rounded);
    screen_->Add(form.lblPlayer[i]);
    screen_->Add(form.Label11[i]);
  }
  screen_->Add(form.txtOptionalHeading);
  screen_->Add(form.lblDJCommand);
}

void AudienceWindow::FillPanels(FSMainForm& form) {
  ItemStyle panel;
  panel.PaintsGround = true;
  for (PictureBox* box : {&form.picQuestion, &form.picQuestionPicture, &form.picHideQuestion, &form.picCorrect,
                          &form.picWinner, &form.picBonus, &form.picMOD, &form.picSound, &form.picStandby}) {
    screen_->Add(*box, panel);
  }
  for (Image* image : {&form.imgQuestionBackground, &form.picImageResize[0], &form.imgCorrect, &form.imgBonus,
                       &form.imgSound, &form.imgStandby}) {
    screen_->Add(*image);
  }
  // A rule has fitted these, so they are drawn as told.
  ItemStyle fitted;
  fitted.ShrinkToFit = false;
  fitted.Align = Qt::AlignHCenter;
  for (std::size_t i = 0; i < 5; ++i) screen_->Add(form.lblQuestion[i], fitted);
  screen_->Add(form.lblWinner, fitted);
  for (Label* label : {&form.lblPlayerName, &form.lblWhatIsAnswer, &form.lblRightWrong}) screen_->Add(*label);
}

void AudienceWindow::ShowForm() {
  const QList<QScreen*> screens = QGuiApplication::screens();
  if (!form_.Visible || screens.size() < 2) {
    hide();
    return;
  }
  setGeometry(screens[1]->geometry());
  // The toolkit's own call for this would also ask for the focus.
  setWindowState(windowState() | Qt::WindowFullScreen);
  show();
  if (windowHandle() != nullptr) windowHandle()->setScreen(screens[1]);
  setGeometry(screens[1]->geometry());
}

}  // namespace pawnfield
