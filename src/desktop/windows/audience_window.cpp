#include "desktop/windows/audience_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/board_items.h"
#include "desktop/painting/ground.h"
#include "desktop/system/x_windows.h"
#include "desktop/windows/key_relay.h"
#include "forms/fs_main_form.h"
#include "forms/second_screen_form.h"

namespace pawnfield {

namespace {
// Names and scores are read from the back row: their capitals are a fortieth of the picture high, or more.
constexpr double kSmallestLegible = 20;
constexpr double kRound = 0.18;
// In which a compositor has put a window where it belongs, in looks of which each lets in what it has told meanwhile: a
// program that was kept from running hears of the time before it hears of the place. And how often it is asked.
constexpr int kLookMs = 100;
constexpr int kLooks = 4;
constexpr int kTries = 3;
// A desktop that was too busy for all of them is asked after that long, after twice that and so on.
constexpr int kAgainMs = 5000;
constexpr int kLongestMs = 60000;
// A window that has stood for so long was where it was to go.
constexpr int kStoodMs = 2000;
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
  Bindings()->Hold({"lblWinner"});
  screen_->AddVideo(form.MediaPlayer1, video);
  Bindings()->AddCanvas(*screen_);
  copy_.AddObserver(*this);
  windows_.Add(copy_, *this);
  setWindowTitle(Unescape(copy_.Form::Caption));
  placed_.setInterval(kLookMs);
  placed_.callOnTimeout(this, [this] { CheckPlace(); });
  screens_.Subscribe([this] { PlaceAnew(); });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &AudienceWindow::ScreenRemoved);
}

AudienceWindow::~AudienceWindow() { windows_.Remove(copy_); }

// What isn't painted plainly. Everything else on the form needs no line here.
ItemStyles AudienceWindow::Styles(FSMainForm& form) {
  ItemStyles styles = BoardStyles(form);
  for (std::size_t i = 0; i < 3; ++i) {
    const int player = static_cast<int>(i) + 1;
    styles[&form.picPlayer[i]].Card = player;
    // Lies on the card, which shows its light.
    styles[&form.ScoreBox(player)].Corner = kRound;
    styles[&form.picBandPlayer[i]].Card = player;
    for (Label* label : {&form.lblPlayer[i], &form.Label11[i], &form.lblBandName[i], &form.lblBandScore[i]}) {
      styles[label].SmallestSize = kSmallestLegible;
      styles[label].OnCardOf = &form.picPlayer[i];
    }
    styles[&form.lblBandName[i]].Align = Qt::AlignVCenter | Qt::AlignLeft;
    styles[&form.lblBandScore[i]].Align = Qt::AlignVCenter | Qt::AlignRight;
  }
  styles.merge(ResultStyles(form));
  for (std::size_t i = 0; i < 3; ++i) {
    for (Label* label : {&form.Winner.lblFinalName[i], &form.Winner.lblFinalScore[i]}) {
      styles[label].SmallestSize = kSmallestLegible;
    }
  }
  styles[&form.txtOptionalHeading].IsOneLine = true;
  styles[&form.txtOptionalHeading].SmallestSize = kSmallestLegible;
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::PictureBox && !styles.contains(control)) styles[control].PaintsGround = true;
  }
  for (Image* image : {&form.picImageResize[0], &form.picImageResize[1]}) styles[image].Grows = true;
  styles[&form.picTest].IsTestCard = true;
  // As large as the picture says its letters are.
  styles[&form.lblTestLine].ShrinkToFit = false;
  styles.merge(FittedTextStyles(form));
  styles[&form.lblRightWrong].IsVerdict = styles[&form.lblRightWrong].IsOutlined = true;
  return styles;
}

void AudienceWindow::Fill(FSMainForm& form) {
  const auto styles = Styles(form);
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::Timer || control->Kind() == ControlKind::MediaPlayer) continue;
    if (control == &form.lblWinner) continue;
    const auto style = styles.find(control);
    screen_->Add(*control, style == styles.end() ? ItemStyle() : style->second);
  }
}

void AudienceWindow::Changed(Control& control, PropertyId id) {
  // What frmFSMain says of a window is frmSS's affair, but for the cursor.
  if (&control == &copy_ ? id == PropertyId::Visible : id == PropertyId::MouseIcon) {
    id == PropertyId::Visible ? PlaceAnew() : FormWindow::Changed(control, id);
  }
}

void AudienceWindow::ShowForm() { PlaceAnew(); }

void AudienceWindow::PlaceAnew() {
  triesLeft_ = kTries;
  againMs_ = kAgainMs;
  Place();
}

void AudienceWindow::Place() {
  QScreen* target = screens_.Second();
  if (!copy_.Visible || target == nullptr) {
    hide();
    return;
  }
  winId();
  if (relay_) windowHandle()->installEventFilter(relay_.get());
  if (!WindowsHavePlaces()) {
    GoTo(*target);
    return;
  }
  // The window manager keeps a full-screen window at its monitor's size, also where the toolkit has not heard of it.
  const QRect place = screens_.Place(*target);
  if (isVisible() && windowHandle()->screen() == target && pos() == place.topLeft()) return;
  if (isVisible() && windowHandle()->screen() != target) hide();
  windowHandle()->setScreen(target);
  StandOnEveryWorkspace(*windowHandle());
  setGeometry(place);
  // The toolkit's own call for this would also ask for the focus.
  setWindowState(Qt::WindowFullScreen);
  show();
  setGeometry(place);
  StandOnEveryWorkspace(*windowHandle());
}

// A full-screen window goes to the monitor that it had when it was shown.
void AudienceWindow::GoTo(QScreen& target) {
  connect(windowHandle(), &QWindow::screenChanged, this, &AudienceWindow::Moved, Qt::UniqueConnection);
  AwaitPlace();
  if (isVisible() && windowHandle()->screen() == &target) return;
  sent_.start();
  hide();
  windowHandle()->setScreen(&target);
  setWindowState(Qt::WindowFullScreen);
  show();
}

void AudienceWindow::AwaitPlace() {
  looksLeft_ = kLooks;
  placed_.start();
}

void AudienceWindow::CheckPlace() {
  if (--looksLeft_ > 0) return;
  placed_.stop();
  const QScreen* target = screens_.Second();
  if (!isVisible() || target == nullptr || windowHandle()->screen() == target) return;
  if (--triesLeft_ > 0) {
    Place();
    return;
  }
  // Nowhere is better than over the console.
  hide();
  if (againMs_ > kLongestMs) return;
  QTimer::singleShot(againMs_, this, [this] {
    if (!isVisible()) Place();
  });
  againMs_ *= 2;
}

void AudienceWindow::Moved() {
  if (sent_.hasExpired(kStoodMs)) triesLeft_ = kTries;
  AwaitPlace();
}

void AudienceWindow::HandKeysTo(QWidget& console) { relay_ = std::make_unique<KeyRelay>(console); }

void AudienceWindow::ScreenRemoved(const QScreen* screen) {
  if (windowHandle() != nullptr && windowHandle()->screen() == screen) hide();
}

void AudienceWindow::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && relay_) relay_->BringForward();
  if (event->type() != QEvent::WindowStateChange || screens_.IsChanging()) return;
  copy_.WindowState = isMinimized() ? 1 : 0;
  if (copy_.OnResize) copy_.Dispatch(copy_.OnResize, "Form_Resize");
}

void AudienceWindow::moveEvent(QMoveEvent* event) {
  FormWindow::moveEvent(event);
  const QScreen* target = screens_.Second();
  if (!isVisible() || screens_.IsChanging() || target == nullptr) return;
  if (pos() == screens_.Place(*target).topLeft()) return;
  if (copy_.OnMove) copy_.Dispatch(copy_.OnMove, "Form_Move");
  QTimer::singleShot(0, this, [this] { Place(); });
}

}  // namespace pawnfield
