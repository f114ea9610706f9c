#include "show_driver.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <map>

#include "data/color_sight.h"
#include "data/house_colors.h"
#include "desktop/files/native_path.h"
#include "desktop/files/user_copy.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/hold_button.h"
#include "desktop/windows/model_widgets.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "program/program.h"

namespace pawnfield {

namespace {

// A picture's colours are few enough to be worked out once each, in steps that no eye tells apart.
QImage AsSeen(QImage picture, Sight sight) {
  std::map<QRgb, QRgb> seen;
  picture.convertTo(QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb rounded = line[x] & 0xFFFCFCFC;
      const auto [entry, isNew] = seen.try_emplace(rounded, 0);
      if (isNew) entry->second = ToQColor(SeenBy(sight, FromRgb(static_cast<int>(rounded & 0xFFFFFF)))).rgb();
      line[x] = entry->second;
    }
  }
  return picture;
}

constexpr int kStepMs = 20;
// A slow display is given that long to show what the program has just let be pressed.
constexpr int kPressableMs = 60000;
constexpr int kStartMs = 120000;
// A key whose window closes at its press may never be seen to go up.
constexpr int kKeyMs = 5000;

// With frames and what else is in front.
QPixmap AsDisplayed(QScreen& screen, const QRect& area) {
  const QPoint corner = area.topLeft() - screen.geometry().topLeft();
  return screen.grabWindow(0, corner.x(), corner.y(), area.width(), area.height());
}

// Waits for a key that the display server was given: it has come through when it is seen to go up.
class KeyUp : public QObject {
 public:
  KeyUp() { qApp->installEventFilter(this); }
  bool Seen() const { return seen_; }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyRelease || !event->spontaneous()) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    seen_ = seen_ || (key != Qt::Key_Control && key != Qt::Key_Shift && key != Qt::Key_Alt);
    return false;
  }

 private:
  bool seen_ = false;
};

DesktopPlaces With(std::function<std::vector<SerialAdapter>()> adapters, DesktopPlaces places) {
  places.serialAdapters = std::move(adapters);
  return places;
}

}  // namespace

DesktopPlaces PlacesBelow(const QString& folder) {
  DesktopPlaces places;
  const QString shared = NativePath(places.folders.App);
  UpdateUserCopy(shared, folder + "/app");
  places.folders.App = SpelledPath(folder + "/app");
  places.folders.DataRoot = SpelledPath(folder + "/Ostara Show Kit Data");
  places.configFolder = folder + "/config";
  places.runtimeFolder = folder + "/run";
  return places;
}

ShowDriver::ShowDriver(const QString& workFolder, std::function<std::vector<SerialAdapter>()> adapters)
    : folder_(QDir(workFolder).absolutePath()), program_(With(std::move(adapters), PlacesBelow(folder_ + "/home"))) {
  // A box stops the caller in a loop of its own, so it is answered from a timer.
  auto* answerer = new QTimer(&program_.Console());
  QObject::connect(answerer, &QTimer::timeout, answerer, [this] { AnswerBox(); });
  answerer->start(kStepMs * 2);
}

void ShowDriver::AnswerBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  if (box != box_) boxStands_.start();
  box_ = box;
  if (boxStands_.elapsed() < boxStandsMs_) return;
  boxTexts_.append(box->text());
  boxStandsMs_ > 0 ? Save(AsDisplayed(*box->screen(), box->frameGeometry()), "box") : SaveWindow(*box, "box");
  QAbstractButton* button = box->button(QMessageBox::Ok);
  if (button == nullptr) button = box->button(QMessageBox::Yes);
  if (button != nullptr) button->click();
}

bool ShowDriver::Start() {
  // The wait below needs a loop to run in, and the entry returns at once.
  Main(TheShow());
  const bool up = WaitFor([this] { return program_.Console().isVisible(); }, kStartMs);
  Pause(300);
  return up;
}

bool ShowDriver::WaitFor(const std::function<bool()>& condition, int milliseconds) {
  QElapsedTimer elapsed;
  elapsed.start();
  while (!condition() && elapsed.elapsed() < milliseconds) QTest::qWait(kStepMs);
  return condition();
}

void ShowDriver::Pause(int milliseconds) { QTest::qWait(milliseconds); }

bool ShowDriver::Press(const QString& widget) {
  auto* target = program_.Console().findChild<QWidget*>(widget);
  if (target == nullptr || !BecomesPressable(*target)) return false;
  if (qobject_cast<HoldButton*>(target) != nullptr) {
    QTest::mousePress(target, Qt::LeftButton);
    Pause(kHoldMs + 150);
    QTest::mouseRelease(target, Qt::LeftButton);
    return true;
  }
  // An option is hit on its mark, which stands at the left.
  const bool marked = target->inherits("QRadioButton") || target->inherits("QCheckBox");
  QTest::mouseClick(target, Qt::LeftButton, {}, marked ? QPoint(8, target->height() / 2) : QPoint());
  Pause(kStepMs);
  return true;
}

bool ShowDriver::BecomesPressable(QWidget& widget) {
  return WaitFor([&widget] { return widget.isVisible() && widget.isEnabled(); }, kPressableMs);
}

bool ShowDriver::ClickCanvas(Canvas& canvas, const Control* square) {
  if (square == nullptr) return false;
  const auto centre = [&] { return canvas.PixelRect(*square).center().toPoint(); };
  if (!WaitFor([&] { return canvas.isVisible() && canvas.At(centre()) == square; }, kPressableMs)) return false;
  QTest::mouseClick(&canvas, Qt::LeftButton, {}, centre());
  return true;
}

bool ShowDriver::PressSquare(int row, int column) {
  return ClickCanvas(program_.Console().Board(), TheShow().frmMain.img.At(row, column));
}

bool ShowDriver::PressAudienceSquare(int row, int column) {
  return ClickCanvas(program_.Audience().Screen(), TheShow().frmFSMain.img.At(row, column));
}

bool ShowDriver::Choose(const QString& combo, const QString& item) {
  auto* box = program_.Console().findChild<ModelComboBox*>(combo);
  if (box == nullptr || !BecomesPressable(*box)) return false;
  // A slow display may take the list away before it is clicked; an operator opens it anew.
  for (int tries = 0; tries < 3; ++tries) {
    if (PickFrom(*box, item)) return true;
  }
  return false;
}

bool ShowDriver::PickFrom(QComboBox& box, const QString& item) {
  constexpr int kChosenMs = 3000;
  const QSignalSpy chosen(&box, &QComboBox::activated);
  QTest::mouseClick(&box, Qt::LeftButton);
  WaitFor([&box] { return box.view()->isVisible(); }, kKeyMs);
  Pause(200);
  // The list may have been filled for this look at it.
  const int row = box.findText(item);
  if (row < 0) {
    box.hidePopup();
    return false;
  }
  QAbstractItemView* view = box.view();
  const QModelIndex index = box.model()->index(row, 0);
  view->scrollTo(index);
  // A list that has just opened takes a press for the end of the click that opened it.
  Pause(QApplication::doubleClickInterval() + 50);
  const QPoint place = view->visualRect(index).center();
  QTest::mouseMove(view->viewport(), place);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
  WaitFor([&chosen] { return !chosen.isEmpty(); }, kChosenMs);
  Pause(100);
  box.hidePopup();
  return !chosen.isEmpty();
}

FormWindow* ShowDriver::Form(const QString& name) {
  for (FormWindow* window : program_.Windows()) {
    if (window->objectName() == name) return window;
  }
  return nullptr;
}

void ShowDriver::SaveWindow(QWidget& window, const QString& name) { Save(window.grab(), name); }

void ShowDriver::Save(const QPixmap& picture, const QString& name) {
  QDir().mkpath(folder_);
  const QString path = QString("%1/%2-%3.png").arg(folder_).arg(++pictureCount_, 2, 10, QChar('0')).arg(name);
  if (picture.save(path)) QTextStream(stdout) << path << '\n';
}

void ShowDriver::TakeDisplay(const QString& name) {
  QScreen& screen = *QGuiApplication::primaryScreen();
  Save(AsDisplayed(screen, screen.geometry()), name);
}

bool ShowDriver::PictureOfForm(const QString& form, const std::function<void()>& open) {
  constexpr int kSettledMs = 300;
  FormWindow* window = Form(form);
  if (window == nullptr) return false;
  bool opened = false;
  // A modal form stops the caller until it is closed, so its picture is taken from a timer.
  QTimer::singleShot(kSettledMs, window, [&] {
    opened = window->isVisible();
    if (!opened) return;
    SaveWindow(*window, window->objectName());
    window->close();
  });
  open();
  Pause(kSettledMs + kStepMs);
  return opened;
}

bool ShowDriver::DragMouse(const QPoint& from, const QPoint& to) {
  constexpr int kSteps = 10;
  const auto moved = [](const QPoint& place) {
    return QStringList{"mousemove", QString::number(place.x()), QString::number(place.y()), "sleep", "0.2"};
  };
  // What is dragged runs in a loop of its own, so that all of it is told beforehand, slowly enough for a busy machine.
  QStringList steps = moved(from) + QStringList{"mousedown", "1", "sleep", "0.3"};
  for (int i = 0; i <= kSteps; ++i) steps += moved(from + (to - from) * i / kSteps);
  QProcess mouse;
  mouse.start("xdotool", steps + QStringList{"sleep", "0.8", "mouseup", "1"});
  return WaitFor([&mouse] { return mouse.state() == QProcess::NotRunning; }) && mouse.exitCode() == 0;
}

bool ShowDriver::Type(const QStringList& keys) {
  for (const QString& key : keys) {
    const KeyUp up;
    if (QProcess::execute("xdotool", {"key", "--clearmodifiers", key}) != 0) return false;
    WaitFor([&up] { return up.Seen(); }, kKeyMs);
    Pause(kStepMs * 2);
  }
  return true;
}

void ShowDriver::TakePictures(const QString& name) {
  Pause(120);
  QDir().mkpath(folder_);
  const QString start = QString("%1/%2-%3").arg(folder_).arg(++pictureCount_, 2, 10, QChar('0')).arg(name);
  QTextStream out(stdout);
  const QString console = start + "-console.png";
  if (program_.Console().grab().save(console)) out << console << '\n';
  if (!program_.Audience().isVisible()) return;
  const QString audience = start + "-audience.png";
  if (program_.Audience().grab().save(audience)) out << audience << '\n';
}

void ShowDriver::TakePicturesAsSeen(const QString& name) {
  const std::pair<Sight, const char*> sights[] = {
      {Sight::NoRed, "no-red"}, {Sight::NoGreen, "no-green"}, {Sight::NoBlue, "no-blue"}};
  const QString start = QString("%1/%2-%3").arg(folder_).arg(++pictureCount_, 2, 10, QChar('0')).arg(name);
  QTextStream out(stdout);
  for (const auto& [sight, seen] : sights) {
    for (QWidget* window : {static_cast<QWidget*>(&program_.Console()), static_cast<QWidget*>(&program_.Audience())}) {
      const QString file = start + '-' + seen + (window == &program_.Console() ? "-console.png" : "-audience.png");
      if (AsSeen(window->grab().toImage(), sight).save(file)) out << file << '\n';
    }
  }
}

void ShowDriver::TakePicture(QWidget& window, const QString& name) {
  Pause(120);
  SaveWindow(window, name);
}

}  // namespace pawnfield
