// "Press each once" in the real windows: wired pads on a serial line, phones on the network, remotes and keys, each
// with the time that a press waited for the program.

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QtEndian>
#include <functional>
#include <memory>

#include "check_window.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "handed_transceiver.h"
#include "pad_line.h"
#include "show/page_state.h"
#include "show/show_record.h"

namespace pawnfield {
namespace {

// A phone on a seat, as the program's own page works one: it answers pings by a clock of its own.
class SeatedPhone {
 public:
  SeatedPhone(int port, const QByteArray& pin, int seat)
      : hello_("hello phone " + pin), seat_("seat " + QByteArray::number(seat)) {
    clock_.start();
    QObject::connect(&socket_, &QTcpSocket::readyRead, &socket_, [this] { Read(); });
    socket_.connectToHost("127.0.0.1", static_cast<quint16>(port));
    socket_.waitForConnected();
    socket_.write("GET /link HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(port) +
                  "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                  "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
  }
  void Press() {
    Say("press " + Now());
    socket_.waitForBytesWritten();
  }

 private:
  // Its clock stands at something else than the program's.
  QByteArray Now() const {
    return QByteArray::number(5000000 + static_cast<double>(clock_.nsecsElapsed()) / 1e6, 'f', 3);
  }
  void Say(const QByteArray& words) {
    socket_.write(QByteArray(1, '\x81') + static_cast<char>(0x80 | words.size()) + QByteArray(4, '\0') + words);
    socket_.flush();
  }
  void Read() {
    read_ += socket_.readAll();
    const qsizetype head = read_.indexOf("\r\n\r\n");
    if (!upgraded_ && head < 0) return;
    if (!upgraded_) {
      upgraded_ = true;
      read_.remove(0, head + 4);
      Say(hello_);
      Say(seat_);
    }
    while (TakeFrame()) {
    }
  }
  bool TakeFrame() {
    if (read_.size() < 4) return false;
    const bool isLong = (read_[1] & 0x7F) == 126;
    const qsizetype start = isLong ? 4 : 2;
    const qsizetype length = isLong ? qFromBigEndian<quint16>(read_.constData() + 2) : read_[1] & 0x7F;
    if (read_.size() < start + length) return false;
    const QJsonObject told = QJsonDocument::fromJson(read_.mid(start, length)).object();
    read_.remove(0, start + length);
    const QByteArray now = Now();
    if (told["t"] == "ping") Say("pong " + QByteArray::number(told["n"].toInt()) + ' ' + now + ' ' + now);
    return true;
  }

  QByteArray hello_, seat_;
  QTcpSocket socket_;
  QElapsedTimer clock_;
  QByteArray read_;
  bool upgraded_ = false;
};

class PressTrialTest : public CheckWindow {
 protected:
  static void SetUpTestSuite() {
    line_ = new PadLine;
    Begin(kTwoMonitors, [] { return std::vector<SerialAdapter>{line_->Adapter()}; });
    if (ready_) TheShow().presses.MFMap = {101, 102, 103};
  }
  static void TearDownTestSuite() {
    ShowSuite::TearDownTestSuite();
    delete line_;
  }
  void SetUp() override {
    ShowSuite::SetUp();
    Main().mnuFileShowCheck.Click();
    ASSERT_TRUE(Wait([this] { return Window()->isVisible(); }));
  }
  void TearDown() override {
    if (Form().Visible) Form().btnClose.Click();
    EXPECT_EQ(TheShow().state.CurrentPlayer, 0);
    EXPECT_TRUE(TheShow().record->Presses.empty()) << "nobody rings in";
    EXPECT_TRUE(driver_->BoxTexts().filter("unmapped").isEmpty());
    ShowSuite::TearDown();
  }

  // The trial begins anew, with player 1.
  void Begin() {
    Push("btnTry", CheckRow::Buzzers);
    if (!IsAsked(1)) Push("btnTry", CheckRow::Buzzers);
    ASSERT_TRUE(IsAsked(1));
  }
  using ShowSuite::Begin;
  static QString Box(int player) {
    return QString::fromStdString(Form().lblPress[static_cast<std::size_t>(player - 1)].Caption);
  }
  static bool IsAsked(int player) { return Box(player).endsWith("press now"); }
  static bool IsGreen(int player) { return Form().lblPress[static_cast<std::size_t>(player - 1)].BackColor == kGreen; }
  static bool TurnsGreen(int player) {
    return Wait([player] { return IsGreen(player); });
  }
  // The milliseconds that the player's box tells, behind the way that it must name.
  static int WaitOf(int player, const QString& way) {
    const QString head = ": ok, " + way + ", ", box = Box(player);
    EXPECT_TRUE(box.contains(head) && box.endsWith(" ms")) << box.toStdString();
    return box.section(head, 1).chopped(3).toInt();
  }
  static bool IsSaid(const QString& words) {
    return Wait([&words] { return Form().lblPressNote.Visible && Note().contains(words); });
  }
  // Two presses that are too far apart on a busy machine are made again.
  static bool IsSaidOfBoth(const std::function<void()>& presses, const QString& words) {
    constexpr int kTries = 10, kSaidMs = 3000, kNotTwiceMs = 1100;
    for (int tries = 0; tries < kTries; ++tries) {
      driver_->Pause(kNotTwiceMs);
      presses();
      if (Wait([&words] { return Note().contains(words); }, kSaidMs)) return true;
    }
    return false;
  }
  static QString Note() { return QString::fromStdString(Form().lblPressNote.Caption); }
  static std::string Seated() {
    std::string all;
    for (const auto& [number, page] : TheShow().pages->Pages)
      all += std::to_string(number) + ": seat " + std::to_string(page.Seat) + (page.Clock.Known() ? " known|" : "|");
    return all;
  }
  // What is seen of a player's box, not only what its model has.
  QColor SeenBox(int player) {
    auto* box = Window()->findChild<QWidget*>(QString("lblPress_%1").arg(player - 1));
    return box->grab().toImage().pixelColor(2, box->height() / 2);
  }

  // The press's box is green, and tells about as much as the program was busy: half of it may pass before a busy
  // machine stamps the press, and it may take a phone's clock for so much another.
  template <typename PressIt>
  void WaitsWhileBusy(int player, const QString& way, PressIt press) {
    constexpr unsigned kBusyMs = 1000;
    QElapsedTimer elapsed;
    elapsed.start();
    press();
    QTest::qSleep(kBusyMs);
    ASSERT_TRUE(TurnsGreen(player)) << way.toStdString();
    EXPECT_GE(WaitOf(player, way), static_cast<int>(kBusyMs) / 2) << way.toStdString();
    EXPECT_LE(WaitOf(player, way), elapsed.elapsed() + kBusyMs / 2) << way.toStdString();
  }

  static inline PadLine* line_ = nullptr;
};

TEST_F(PressTrialTest, EachPadTurnsItsOwnBoxGreenWithItsWait) {
  EXPECT_TRUE(QString::fromStdString(ShowCheckForm::Of(Form().lblSentence, CheckRow::Buzzers).Caption)
                  .startsWith("Wired pads, 3 of 3 mapped, keys 1 to 3"));
  Begin();
  for (int player = 1; player <= 3; ++player) {
    EXPECT_FALSE(IsGreen(player));
    WaitsWhileBusy(player, QString("pad %1").arg(100 + player), [&] { line_->Write(Pad(100 + player)); });
    EXPECT_GT(SeenBox(player).green(), SeenBox(player).red() + 40) << player;
  }
  EXPECT_FALSE(Form().lblPressNote.Visible) << Note().toStdString();
}

TEST_F(PressTrialTest, APadThatComesTwiceForAnotherOrUnmappedIsSaid) {
  Begin();
  line_->Write(Pad(102));
  EXPECT_TRUE(IsSaid("That was the button of 2 PLAYER 2 (pad 102), but 1 PLAYER 1 was asked.")) << Note().toStdString();
  EXPECT_FALSE(IsGreen(2));
  line_->Write(Pad(77));
  EXPECT_TRUE(IsSaid("That pad isn't mapped")) << Note().toStdString();
  line_->Write(Pad(101) + Pad(101));
  EXPECT_TRUE(IsSaid("1 PLAYER 1's press came twice within")) << Note().toStdString();
  EXPECT_TRUE(Note().endsWith("by pad 101 and by pad 101.")) << Note().toStdString();
  driver_->TakePicture(*Window(), "presses-pads");
}

TEST_F(PressTrialTest, PhonesPadsRemotesAndKeysTogether) {
  Main().mnuFilePages.Click();
  PagesForm& pages = TheShow().frmPages;
  const std::vector<std::string> addresses = pages.cboAddress.List;
  pages.cboAddress.Select(
      static_cast<int>(std::find(addresses.begin(), addresses.end(), "127.0.0.1") - addresses.begin()));
  pages.btnSwitch.Click();
  ASSERT_TRUE(TheShow().pages->On) << pages.lblPagesStatus.Caption.Get();
  const int port = TheShow().pages->Place.Port;
  std::vector<std::unique_ptr<SeatedPhone>> phones;
  for (int seat = 1; seat <= 3; ++seat)
    phones.push_back(std::make_unique<SeatedPhone>(port, QByteArray::fromStdString(TheShow().pages->Pin), seat));
  const auto allKnown = [] {
    const PageState& state = *TheShow().pages;
    return std::all_of(state.Seats.begin(), state.Seats.end(), [&](const PhoneSeat& seat) {
      const auto page = state.Pages.find(seat.Page);
      return page != state.Pages.end() && page->second.Clock.Known();
    });
  };
  ASSERT_TRUE(Wait(allKnown, 60000)) << Seated();
  EXPECT_TRUE(Wait([] {
    return ShowCheckForm::Of(Form().lblSentence, CheckRow::Buzzers).Caption->find("phones on 3 of 3 seats") !=
           std::string::npos;
  }));
  Begin();
  WaitsWhileBusy(1, "the phone of seat 1", [&] { phones[0]->Press(); });
  EXPECT_GT(SeenBox(1).green(), SeenBox(1).red() + 40);
  phones[2]->Press();
  EXPECT_TRUE(IsSaid("That was the button of 3 PLAYER 3 (the phone of seat 3), but 2 PLAYER 2 was asked."))
      << Note().toStdString();
  EXPECT_FALSE(IsGreen(3));
  // What a finger's bounce repeats is passed over in the game too; a second press is not.
  WaitsWhileBusy(2, "the phone of seat 2", [&] {
    phones[1]->Press();
    phones[1]->Press();
  });
  EXPECT_FALSE(Form().lblPressNote.Visible) << Note().toStdString();
  const auto pressTwice = [&] {
    phones[1]->Press();
    QTest::qSleep(300);
    phones[1]->Press();
  };
  EXPECT_TRUE(IsSaidOfBoth(pressTwice, "by the phone of seat 2 and by the phone of seat 2.")) << Note().toStdString();
  driver_->Pause(1100);
  WaitsWhileBusy(3, "the phone of seat 3", [&] { phones[2]->Press(); });
  // One button that is heard by two ways.
  Begin();
  const auto pressByTwo = [&] {
    phones[0]->Press();
    QTest::qSleep(50);
    line_->Write(Pad(101));
  };
  EXPECT_TRUE(IsSaidOfBoth(pressByTwo, "by the phone of seat 1 and by pad 101.")) << Note().toStdString();
  HandedTransceiver remotes(TheShow());
  remotes.Press(2);
  ASSERT_TRUE(TurnsGreen(2));
  EXPECT_GE(WaitOf(2, "remote 2"), 0);
  const auto pressRemoteAndKey = [&] {
    remotes.Press(2);
    driver_->Pause(60);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_2);
  };
  EXPECT_TRUE(IsSaidOfBoth(pressRemoteAndKey, "by remote 2 and by key 2.")) << Note().toStdString();
  driver_->TakePicture(*Window(), "presses-all-ways");
  phones.clear();
  pages.btnSwitch.Click();
  pages.btnClose.Click();
}

}  // namespace
}  // namespace pawnfield
