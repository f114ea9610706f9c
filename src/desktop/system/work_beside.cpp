#include "desktop/system/work_beside.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>
#include <exception>
#include <thread>

#include "desktop/system/qt_dialogs.h"

namespace pawnfield {

namespace {

constexpr int kShownAfterMs = 400;
constexpr int kLookedAtMs = 50;

}  // namespace

bool WorkBeside(const QString& what, const std::function<bool(WorkProgress&)>& work) {
  WorkProgress progress;
  std::exception_ptr fault;
  bool done = false;
  std::atomic<bool> finished = false;
  QProgressDialog bar(what, "Stop", 0, 1000, OperatorsWindow());
  bar.setWindowTitle("Pawnfield");
  bar.setWindowModality(Qt::ApplicationModal);
  bar.setMinimumDuration(kShownAfterMs);
  bar.setAutoClose(false);
  bar.setAutoReset(false);
  std::thread thread([&] {
    try {
      done = work(progress);
    } catch (...) {
      fault = std::current_exception();
    }
    finished = true;
  });
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (bar.wasCanceled()) progress.Stop();
    bar.setValue(progress.Permille());
    if (finished) loop.quit();
  });
  look.start(kLookedAtMs);
  loop.exec();
  thread.join();
  if (fault) std::rethrow_exception(fault);
  return done;
}

}  // namespace pawnfield
