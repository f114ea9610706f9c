#include "desktop/windows/audience_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/board_items.h"
#include "desktop/painting/ground.h"
#include "forms/fs_main_form.h"
#include "forms/second_screen_form.h"

namespace pawnfield {

namespace {
// Names and scores are read from the back row: their capitals are a fortieth of the picture high, or more.
constexpr double kSmallestLegible = 20;
}  // namespace

AudienceWindow::AudienceWindow(FSMainForm& form, SecondScreenForm& copy, FormWindows& windows, PictureCache& pictures,
                               Screens& screens, MpvVideo& video)
    : FormWindow(form, windows, Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      copy_(copy),
      windows_(windows),
      screens_(screens) {
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
  screen_->AddVideo(form.MediaPlayer1, video);
  Bindings()->AddCanvas(*screen_);
  copy_.SetMirror(this);
  windows_.Add(copy_, *this);
  setWindowTitle(FromWindows1252(copy_.Form::Caption));
  screens_.Subscribe([this] { Place(); });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &AudienceWindow::ScreenRemoved);
}

AudienceWindow::~AudienceWindow() {
  copy_.SetMirror(nullptr);
  windows_.Remove(copy_);
}

void AudienceWindow::Fill(FSMainForm& form) {
  screen_->Add(form.imgBackground);
  screen_->Add(form.imgHeader);
  AddBoard(*screen_, form);
  ItemStyle legible;
  legible.SmallestSize = kSmallestLegible;
  ItemStyle rounded;
  rounded.Edge = 0.03;
  rounded.Corner = 0.18;
  for (std::size_t i = 0; i < 3; ++i) {
    screen_->Add(form.picPlayer[i], rounded);
    screen_->Add(form.ScoreBox(static_cast<int>(i) + 1), rounded);
    screen_->Add(form.lblPlayer[i], legible);
    screen_->Add(form.Label11[i], legible);
  }
  screen_->Add(form.txtOptionalHeading);
  screen_->Add(form.lblDJCommand);
}

void AudienceWindow::FillPanels(FSMainForm& form) {
  ItemStyle panel;
  panel.PaintsGround = true;
  for (PictureBox* box :
       {&form.picQuestion, &form.picQuestionPicture, &form.picHideQuestion, &form.picCorrect, &form.picWinner,
        &form.picBonus, &form.picMOD, &form.picMODVideo, &form.picSound, &form.picStandby}) {
    screen_->Add(*box, panel);
  }
  for (Image* image :
       {&form.imgQuestionBackground, &form.imgCorrect, &form.imgBonus, &form.imgSound, &form.imgStandby}) {
    screen_->Add(*image);
  }
  ItemStyle fitted;
  fitted.Grows = true;
  for (Image* image : {&form.picImageResize[0], &form.picImageResize[1]}) screen_->Add(*image, fitted);
  AddFittedTexts(*screen_, form);
  for (Label* label : {&form.lblPlayerName, &form.lblWhatIsAnswer, &form.lblRightWrong}) screen_->Add(*label);
}

void AudienceWindow::Changed(Control& control, PropertyId id) {
  // What frmFSMain tells of a window is frmSS's affair, but for the cursor.
  if (&control == &copy_ ? id == PropertyId::Visible : id == PropertyId::MouseIcon) {
    id == PropertyId::Visible ? Place() : FormWindow::Changed(control, id);
  }
}

void AudienceWindow::ShowForm() { Place(); }

void AudienceWindow::Place() {
  QScreen* target = screens_.Second();
  if (!copy_.Visible || target == nullptr) {
    hide();
    return;
  }
  winId();
  // The window manager keeps a full-screen window at its monitor's size, also where the toolkit has not heard of it.
  if (isVisible() && windowHandle()->screen() == target && pos() == target->geometry().topLeft()) return;
  // Where windows have no coordinates, a full-screen window goes to the monitor it had when it was shown.
  if (isVisible() && windowHandle()->screen() != target) hide();
  windowHandle()->setScreen(target);
  setGeometry(target->geometry());
  // The toolkit's own call for this would also ask for the focus.
  setWindowState(Qt::WindowFullScreen);
  show();
  setGeometry(target->geometry());
}

void AudienceWindow::ScreenRemoved(const QScreen* screen) {
  if (windowHandle() != nullptr && windowHandle()->screen() == screen) hide();
}

void AudienceWindow::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || screens_.IsChanging()) return;
  copy_.WindowState = isMinimized() ? 1 : 0;
  if (copy_.OnResize) copy_.Dispatch(copy_.OnResize, "Form_Resize");
}

void AudienceWindow::moveEvent(QMoveEvent* event) {
  FormWindow::moveEvent(event);
  const QScreen* target = screens_.Second();
  if (!isVisible() || screens_.IsChanging() || target == nullptr || pos() == target->geometry().topLeft()) return;
  if (copy_.OnMove) copy_.Dispatch(copy_.OnMove, "Form_Move");
  QTimer::singleShot(0, this, [this] { Place(); });
}

}  // namespace pawnfield
