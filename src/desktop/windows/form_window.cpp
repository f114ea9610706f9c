#include "desktop/windows/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/picture_cache.h"
#include "desktop/system/screens.h"
#include "desktop/system/stay_in_sight.h"

namespace pawnfield {

QVBoxLayout* MakeContent(QMainWindow& window, int edge, int spacing) {
  auto* content = new QWidget(&window);
  content->setObjectName("pnlContent");
  window.setCentralWidget(content);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(edge, edge, edge, edge);
  column->setSpacing(spacing);
  return column;
}

QPushButton* MakeButton(const QString& name, const QSize& least) {
  auto* button = new QPushButton;
  button->setObjectName(name);
  button->setMinimumSize(least);
  button->setAutoDefault(true);
  return button;
}

FormWindow::FormWindow(Form& form, FormWindows& windows, Qt::WindowFlags flags)
    : QMainWindow(nullptr, flags), form_(form), windows_(windows) {
  windows_.Add(form, *this);
}

FormWindow::~FormWindow() { windows_.Remove(form_); }

void FormWindow::BindForm() {
  setObjectName(QString::fromStdString(form_.Name()));
  setWindowTitle(Unescape(form_.Caption));
  binder_ = std::make_unique<Binder>(form_, *this, windows_.Pictures());
  form_.AddObserver(*this);
  if (form_.Visible) ShowForm();
}

void FormWindow::Changed(Control&, PropertyId id) {
  if (id == PropertyId::Caption) setWindowTitle(Unescape(form_.Caption));
  if (id == PropertyId::Visible) form_.Visible ? ShowForm() : hide();
  if (id == PropertyId::Focus) activateWindow();
  if (id == PropertyId::ZOrder && isVisible()) raise();
  if (id == PropertyId::MouseIcon) {
    const QPixmap picture = windows_.Pictures().Original(form_.MouseIcon);
    picture.isNull() ? unsetCursor() : setCursor(QCursor(picture));
  }
}

void FormWindow::ShowForm() {
  QPushButton* first = form_.ActiveControl == nullptr ? DefaultButton() : nullptr;
  if (first != nullptr) first->setFocus();
  // The toolkit's own adjustment keeps a window to two thirds of the screen and would press its contents together.
  resize(sizeHint());
  if (const QScreen* screen = QApplication::primaryScreen()) {
    const QRect room = screen->availableGeometry();
    resize(size().boundedTo(room.size()));
    // Over the window that the operator works with, wherever he has put that; the full-screen one is the room's.
    const QWidget* worked = QApplication::activeWindow();
    const bool stands = WindowsHavePlaces() && worked != nullptr && worked->isVisible() && !worked->isFullScreen();
    // A tiling desktop would stretch it else.
    if (windowType() == Qt::SplashScreen) setFixedSize(size());
    move((stands ? worked->frameGeometry() : room).center() - rect().center());
  }
  show();
  raise();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (windowType() != Qt::Dialog || (!enter && event->key() != Qt::Key_Escape)) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  if (!enter) {
    close();
    return;
  }
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (button == nullptr) button = DefaultButton();
  if (button != nullptr) button->click();
}

QPushButton* FormWindow::DefaultButton() const {
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (button->isDefault()) return button;
  }
  return nullptr;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The form decides; when it ends, its own change hides this window.
  event->ignore();
  if (!form_.Visible) {
    event->accept();
    return;
  }
  bool close = true;
  if (form_.OnQueryUnload) form_.Dispatch([&] { close = form_.OnQueryUnload(); }, "Form_QueryUnload");
  if (close) form_.Unload();
}

void FormWindow::changeEvent(QEvent* event) {
  if (isModal()) StayInSight(*this, *event);
  QMainWindow::changeEvent(event);
}

}  // namespace pawnfield
