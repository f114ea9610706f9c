#include "desktop/windows/last_screen.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/painting/ground.h"
#include "desktop/system/list_guard.h"
#include "desktop/system/screens.h"
#include "desktop/windows/form_window.h"

namespace pawnfield {

namespace {

// A key that was on its way when the screen went is not meant for the card.
constexpr int kNotMeantMs = 1000;
constexpr double kLetterShare = 0.05;

class Card : public QLabel {
 public:
  explicit Card(QWidget& window) : QLabel("One screen left: show the console here?\n\nPress a key or click.", &window) {
    setObjectName("pnlLastScreen");
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    window.installEventFilter(this);
    Fit();
    show();
    raise();
    // Now, and not when the desktop asks for the next picture: it may show the window's last one before it does.
    window.repaint();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    if (event->type() == QEvent::ChildAdded) raise();
    return false;
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    PaintGround(painter, rect());
    painter.end();
    QLabel::paintEvent(event);
  }

 private:
  void Fit() {
    setGeometry(parentWidget()->rect());
    setStyleSheet(QString("font-size: %1px;").arg(std::max(14, qRound(width() * kLetterShare / 2))));
  }
};

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

bool Answers(const QEvent& event) {
  if (event.type() == QEvent::KeyPress) return !static_cast<const QKeyEvent&>(event).isAutoRepeat();
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TouchBegin;
}

}  // namespace

LastScreen::LastScreen(QWidget& console, QWidget& audience, Screens& screens)
    : console_(console), audience_(audience), screens_(screens) {
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &LastScreen::ScreenRemoved);
  screens_.Subscribe([this] { ScreensChanged(); });
}

LastScreen::~LastScreen() { Uncover(); }

void LastScreen::ScreenRemoved(const QScreen* screen) {
  QList<QScreen*> left = QGuiApplication::screens();
  left.removeOne(const_cast<QScreen*>(screen));
  const bool roomsOwn = audience_.isVisible() && audience_.windowHandle() != nullptr && left.size() == 1 &&
                        audience_.windowHandle()->screen() == left.first();
  if (roomsOwn && !IsCovering()) CoverAll();
}

// With two screens again and the console on its own there is nothing to ask.
void LastScreen::ScreensChanged() {
  const bool home = screens_.Home() != nullptr && screens_.First() == screens_.Home();
  if (IsCovering() && QGuiApplication::screens().size() > 1 && home) Uncover();
}

void LastScreen::CoverAll() {
  CloseOpenLists();
  covered_.start();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) Cover(*window);
  }
  qApp->installEventFilter(this);
}

void LastScreen::Cover(QWidget& window) {
  if (&window != &audience_ && window.windowType() != Qt::ToolTip) cards_.emplace_back(new Card(window));
}

void LastScreen::Uncover() {
  qApp->removeEventFilter(this);
  for (const QPointer<QWidget>& card : cards_) delete card.data();
  cards_.clear();
}

bool LastScreen::eventFilter(QObject* watched, QEvent* event) {
  // What comes up meanwhile is the operator's alone as well.
  auto* widget = qobject_cast<QWidget*>(watched);
  if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow()) Cover(*widget);
  if (!IsInput(event->type()) || !(watched->isWindowType() || widget != nullptr)) return false;
  if (Answers(*event) && covered_.elapsed() > kNotMeantMs) {
    Uncover();
    console_.activateWindow();
  }
  return true;
}

}  // namespace pawnfield
