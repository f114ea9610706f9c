#include "monkey/desktop/window_monkey.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDebug>
#include <QDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/main_form.h"
#include "monkey/random_world.h"
#include "program/program.h"

namespace pawnfield {

namespace {

constexpr std::size_t kKept = 40;
constexpr int kSilenceMs = 2000;
// The display server and its window manager may have little of a busy machine.
constexpr int kMonitorsSettleMs = 5000;
constexpr int kMostClosings = 500;

}  // namespace

WindowMonkey::WindowMonkey(WatchedApplication& application, DesktopProgram& program, World& world, Chance& chance,
                           QFile& log)
    : application_(application),
      program_(program),
      show_(program.TheShow()),
      world_(world),
      chance_(chance),
      log_(log),
      hand_(show_, chance, [this](const QString& action) { Note(action); }),
      slips_(program) {
  sinceMonitors_.start();
}

QString WindowMonkey::Run(int actions) {
  left_ = actions;
  application_.Watch([this] { event_.Before(show_); }, [this] { CheckEvent(); });
  QTimer::singleShot(0, this, &WindowMonkey::Tick);
  QTimer::singleShot(0, this, [this] { Main(show_); });
  QCoreApplication::exec();
  application_.Watch({}, {});
  world_.Leave();
  if (!ended_ && broken_.isEmpty()) Fail("the program ended");
  return broken_;
}

void WindowMonkey::Note(const QString& action) {
  last_.push_back(action);
  if (last_.size() > kKept) last_.pop_front();
  if (!log_.isOpen()) return;
  log_.write(action.toUtf8() + '\n');
  log_.flush();
}

void WindowMonkey::Fail(const QString& what) {
  if (!broken_.isEmpty()) return;
  broken_ = what;
  Note("BROKEN: " + what);
  left_ = 0;
}

int WindowMonkey::NextPause() {
  const std::size_t kind = chance_.Below(100);
  const std::size_t most = kind < 60 ? 20 : kind < 90 ? 150 : kind < 98 ? 800 : 4000;
  return static_cast<int>(chance_.Below(most));
}

void WindowMonkey::Tick() {
  if (ended_) return;
  // The next one is due while a dialog that this one opens is still up.
  QTimer::singleShot(NextPause(), this, &WindowMonkey::Tick);
  if (hand_.Holds()) return;
  const bool modalBefore = QApplication::activeModalWidget() != nullptr;
  if (!up_ && !modalBefore && depth_ == 0 && program_.Console().isVisible()) {
    up_ = true;
    world_.Join(show_);
    slips_.Watch();
    heart_.TakeLongest();
  }
  if (up_ && left_ <= 0) {
    if (CloseAll() && depth_ == 0) {
      ended_ = true;
      QCoreApplication::exit();
    }
    return;
  }
  ++depth_;
  application_.EachInside([this] { Act(); });
  --depth_;
  // A handler that waits for a dialog has not done all it does.
  if (up_ && !modalBefore && depth_ == 0 && QApplication::activeModalWidget() == nullptr) Check();
}

void WindowMonkey::Act() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr) ReadBox(*modal);
  if (!up_) {
    if (modal != nullptr) hand_.Answer(*modal, {});
    return;
  }
  --left_;
  if (QWidget* popup = QApplication::activePopupWidget()) {
    hand_.ActInPopup(*popup);
  } else if (chance_.OneIn(20)) {
    Note(world_.UseDevice(chance_));
  } else if (chance_.OneIn(100)) {
    Note(world_.ChangeFiles(chance_));
  } else if (modal != nullptr) {
    ActInModal(*modal);
  } else {
    ActOnProgram();
  }
}

void WindowMonkey::ActInModal(QWidget& modal) {
  if (qobject_cast<QDialog*>(&modal) != nullptr) {
    hand_.Answer(modal, world_.AnyFile(chance_));
  } else if (chance_.OneIn(12)) {
    Note("close " + modal.objectName());
    modal.close();
  } else {
    hand_.ActIn(modal);
  }
}

void WindowMonkey::ActOnProgram() {
  if (chance_.OneIn(250)) {
    Note(world_.ChangeMonitors(chance_));
    heart_.Excuse();
    sinceMonitors_.start();
    return;
  }
  if (!chance_.OneIn(10)) {
    hand_.ActIn(program_.Console());
    return;
  }
  std::vector<QWidget*> others;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window != &program_.Console()) others.push_back(window);
  }
  if (others.empty()) return;
  QWidget& other = *others[chance_.Below(others.size())];
  const bool closable = &other != &program_.Audience() && chance_.OneIn(4);
  if (closable) Note("close " + other.objectName());
  closable ? static_cast<void>(other.close()) : hand_.ActIn(other);
}

void WindowMonkey::ReadBox(QWidget& widget) {
  const auto* box = qobject_cast<QMessageBox*>(&widget);
  if (box == nullptr || read_ == box) return;
  read_ = &widget;
  Note("box: " + box->text().left(300).simplified());
  const std::string text = Escape(box->text().replace("\n", "\r\n"));
  if (text.starts_with("An untrapped error") && !IsExpectedError(text)) {
    Fail("unexpected error box: " + box->text().simplified());
  }
}

bool WindowMonkey::CloseAll() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    popup->close();
    return false;
  }
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) return true;
  if (++closing_ > kMostClosings) qFatal("%s does not close", qPrintable(modal->objectName()));
  auto* dialog = qobject_cast<QDialog*>(modal);
  if (qobject_cast<QMessageBox*>(modal) != nullptr) {
    hand_.Answer(*modal, {});
  } else if (dialog != nullptr) {
    dialog->reject();
  } else {
    modal->close();
  }
  return false;
}

QString WindowMonkey::AudienceInTheWay() {
  const AudienceWindow& audience = program_.Audience();
  const QWindow* console = program_.Console().windowHandle();
  if (!audience.isVisible() || console == nullptr || sinceMonitors_.elapsed() < kMonitorsSettleMs) return {};
  const QRect monitor = console->screen()->geometry();
  if (!audience.geometry().intersects(monitor)) return {};
  QString where;
  QDebug(&where) << audience.geometry() << monitor << program_.Console().geometry();
  return "the audience's window lies over the console's monitor: " + where;
}

QString WindowMonkey::WhatIsBroken() {
  const std::string fault = BrokenInvariant(show_);
  if (!fault.empty()) return Unescape(fault);
  const qint64 silence = heart_.TakeLongest();
  if (silence > kSilenceMs) return QString("the message loop was silent for %1 ms").arg(silence);
  if (!program_.Console().isVisible()) return "the console is gone";
  if (const QString slip = slips_.Seen(); !slip.isEmpty()) return slip;
  return AudienceInTheWay();
}

void WindowMonkey::CountProgress() {
  const MainForm& form = show_.frmMain;
  const bool question = form.picQuestion.Visible || form.picQuestionPicture.Visible || form.picSound.Visible;
  int claimed = 0;
  for (const auto& row : show_.state.Board)
    claimed += static_cast<int>(std::count_if(row.begin(), row.end(), [](int owner) { return owner != 0; }));
  ++came_.Checks;
  if (question && !question_) ++came_.Questions;
  if (form.picWinner.Visible && !winner_) ++came_.Winners;
  if (claimed > claimed_) came_.Claims += claimed - claimed_;
  question_ = question;
  winner_ = form.picWinner.Visible;
  claimed_ = claimed;
}

// Whatever came to the program: a hand's click, a key, a timer, a press by radio or wire.
void WindowMonkey::CheckEvent() {
  if (AfterEach) AfterEach();
  if (!up_ || ended_) return;
  ++came_.Events;
  const std::string fault = event_.Broken(show_);
  if (!fault.empty()) Fail(Unescape(fault));
}

void WindowMonkey::Check() {
  CountProgress();
  const QString fault = WhatIsBroken();
  if (!fault.isEmpty()) Fail(fault);
}

}  // namespace pawnfield
