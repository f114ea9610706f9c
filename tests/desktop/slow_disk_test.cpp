// A game over a disk that takes half a second for each access: the screens don't wait for it.

#include "slow_disk.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QTemporaryDir>
#include <cstdio>

#include "desktop/windows/audience_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "show_driver.h"

namespace pawnfield {
namespace {

constexpr int kAccessMs = 500;
constexpr int kGrid = 5;
constexpr int kClaims = 20;
// Between a press and the screen: a busy test machine takes its time, and the file a square needs may not be read then.
constexpr qint64 kSlowestMs = 4 * kAccessMs;

// Tells when a window has been painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QObject& watched) { watched.installEventFilter(this); }
  int Paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paints;
    return false;
  }
};

// Every other question is a picture of its own.
void WriteSet(const QString& folder) {
  QByteArray lines;
  for (int i = 1; i <= kClaims + 1; ++i) {
    const QString picture = QString("%1/photo%2.jpg").arg(folder).arg(i);
    if (i % 2 == 0) {
      EXPECT_TRUE(QImage(1600, 1200, QImage::Format_RGB32).save(picture));
    }
    lines += i % 2 == 0 ? QString(picture).replace('/', '\\').toLatin1() + "\r\nAnswer\r\nP\r\n"
                        : "Which is number " + QByteArray::number(i) + "?\r\nAnswer\r\nT\r\n";
  }
  QFile set(folder + "/Slow.txt");
  EXPECT_TRUE(set.open(QIODevice::WriteOnly) && set.write(lines) == lines.size());
}

TEST(SlowDisk, AGameOfTwentyClaimsNeverWaitsForIt) {
  const QTemporaryDir folder;
  ShowDriver driver(folder.path());
  WriteSet(driver.AppFolder() + "/Trivia Sets");
  ASSERT_TRUE(driver.Start());
  MainForm& form = driver.TheShow().frmMain;
  ASSERT_TRUE(driver.Press("optGameType_2"));
  const std::vector<std::string> watched{driver.AppFolder().toStdString()};
  SlowDown(watched, 0);
  ASSERT_TRUE(driver.Choose("cboList", "Slow"));
  EXPECT_FALSE(MainThreadAccesses().empty()) << "a set's load is seen, as each access in the game would be";
  ASSERT_TRUE(driver.WaitFor([&] { return form.btnStart.Enabled.Get(); }));
  driver.Pause(2000);
  ASSERT_TRUE(driver.Press("btnStart"));
  PaintWatch painted(driver.Program().Audience().Screen());
  SlowDown(watched, kAccessMs);
  qint64 slowest = 0;
  for (int claim = 0; claim < kClaims; ++claim) {
    ASSERT_TRUE(driver.WaitFor([&] { return form.btnQuestionCorrect.IsShown() && form.btnQuestionCorrect.Enabled; }))
        << claim;
    ASSERT_TRUE(driver.Press("btnQuestionCorrect")) << claim;
    ASSERT_TRUE(driver.WaitFor([&] { return !form.picCorrect.Visible; })) << claim;
    QElapsedTimer elapsed;
    painted.Paints = 0;
    elapsed.start();
    ASSERT_TRUE(driver.PressSquare(claim / kGrid, claim % kGrid)) << claim;
    while (painted.Paints == 0 && elapsed.elapsed() < 60'000) QCoreApplication::processEvents();
    slowest = std::max(slowest, elapsed.elapsed());
    if (driver.WaitFor([&] { return form.btnContinue.IsReachable(); }, 500)) driver.Press("btnContinue");
  }
  const std::vector<std::string> accesses = MainThreadAccesses();
  SlowDown({}, 0);
  std::printf("%d claims, the slowest on the audience's screen after %lld ms; %zu accesses by the main thread\n",
              kClaims, static_cast<long long>(slowest), accesses.size());
  EXPECT_LT(slowest, kSlowestMs);
  for (const std::string& path : accesses) ADD_FAILURE() << "waited for " << path;
}

}  // namespace
}  // namespace pawnfield
