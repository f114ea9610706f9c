// Media that are meant to do harm: lists that name hosts, whatever they are called and however they begin.

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "desktop/media/media_files.h"
#include "desktop/media/mpv_video.h"
#include "places.h"
#include "sound_rig.h"

namespace pawnfield {
namespace {

QByteArray Utf16(const QString& text) {
  const QString marked = QChar(0xFEFF) + text;
  return {reinterpret_cast<const char*>(marked.utf16()), static_cast<int>(marked.size()) * 2};
}

// A player of which is known whether it holds anything at all, be it the file or what a list named.
class WatchedChannel : public MpvChannel {
 public:
  bool IsIdle() const {
    int idle = 0;
    mpv_get_property(Handle(), "idle-active", MPV_FORMAT_FLAG, &idle);
    return idle != 0;
  }
};

class HostileMediaTest : public FolderTest {
 protected:
  // What the loopback's server is asked, in its own words; a caller that says nothing counts too.
  HostileMediaTest() {
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { ++requests_; });
    host_ = QString("127.0.0.1:%1").arg(server_.serverPort());
  }

  QTcpServer server_;
  QString host_;
  int requests_ = 0;
};

TEST_F(HostileMediaTest, NoListMakesAPlayerAskAHost) {
  const QString url = "http://" + host_ + "/a.mp3";
  const QString m3u = "#EXTM3U\n#EXTINF:10,\n" + url + "\n";
  const QString hls = "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:10,\n" + url + "\n#EXT-X-ENDLIST\n";
  const QString mpd =
      "<?xml version=\"1.0\"?><MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" type=\"static\" "
      "mediaPresentationDuration=\"PT9S\"><Period><AdaptationSet mimeType=\"audio/mp4\"><Representation "
      "id=\"1\" bandwidth=\"1\"><BaseURL>" +
      url + "</BaseURL></Representation></AdaptationSet></Period></MPD>";
  const QByteArray control(1, '\x01');
  const std::pair<const char*, QByteArray> files[] = {
      {"list.mp3", m3u.toLatin1() + control},
      {"wide.mp3", Utf16(m3u)},
      {"hls.mp4", hls.toLatin1() + control},
      {"concat.wav", "ffconcat version 1.0\nfile '" + url.toLatin1() + "'\n" + control},
      {"pls.wma", "[playlist]\nFile1=" + url.toLatin1() + "\nNumberOfEntries=1\n" + control},
      {"edl.avi", "# mpv EDL v0\n" + url.toLatin1() + "\n" + control},
      {"dash.mov", mpd.toLatin1() + control},
      {"asx.wmv", "<ASX version=\"3\"><Entry><Ref href=\"" + url.toLatin1() + "\"/></Entry></ASX>" + control},
      {"sdp.mpg",
       "v=0\nc=IN IP4 127.0.0.1\nm=audio " + QByteArray::number(server_.serverPort()) + " RTP/AVP 0\n" + control},
      {"ref.asf", "[Reference]\nRef1=" + url.toLatin1() + "\n" + control},
  };
  MpvChannel sound;
  MpvVideo film;
  for (const auto& [name, bytes] : files) {
    Make(name, bytes);
    for (MpvChannel* player : {&sound, static_cast<MpvChannel*>(&film)}) {
      player->SetUrl(Spelled(std::string("\\") + name));
      QTest::qWait(150);
      EXPECT_FALSE(player->IsPlaying()) << name;
    }
    EXPECT_EQ(requests_, 0) << name;
    requests_ = 0;
  }
}

// A list is no sound, even when all that it names is a sound of the same folder.
TEST_F(HostileMediaTest, AListOfSoundsIsNotFollowed) {
  // One that were followed would sound for longer than anybody waits here.
  Make("tone.wav", ToneFile(440, 60000));
  Make("list.mp3", "#EXTM3U\ntone.wav\n\x01");
  Make("wide.mp3", Utf16("#EXTM3U\ntone.wav\n"));
  Make("concat.mp3", "ffconcat version 1.0\nfile 'tone.wav'\n\x01");
  WatchedChannel sound;
  for (const char* name : {"\\list.mp3", "\\wide.mp3", "\\concat.mp3"}) {
    sound.SetUrl(Spelled(name));
    QTest::qWait(150);
    EXPECT_TRUE(QTest::qWaitFor([&] { return sound.IsIdle(); }, kSlowMachineMs)) << name;
  }
  sound.SetUrl(Spelled("\\tone.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return sound.IsPlaying(); }, kSlowMachineMs));
}

// What can't be heard is named when a set is loaded, and not when its question is up.
TEST_F(HostileMediaTest, WhatIsNoSoundIsFoundBeforeTheShow) {
  const QByteArray tone = ToneFile(440, 20000);
  QByteArray noise;
  for (int i = 0; i < 5000; ++i) noise += static_cast<char>(i * i % 251);
  const std::tuple<const char*, QByteArray, bool> files[] = {
      {"tone.wav", tone, true},           {"cut.wav", tone.left(tone.size() / 2), true},
      {"head.wav", tone.left(30), false}, {"noise.wav", noise, false},
      {"renamed.mp3", tone, true},        {"zeros.mp3", QByteArray(9000, 0), false},
      {"words.wma", "words", false},      {"list.mp3", "#EXTM3U\ntone.wav\n\x01", false},
  };
  MediaFiles media;
  for (const auto& [name, bytes, sounds] : files) {
    Make(name, bytes);
    std::optional<bool> answer;
    media.Check(Spelled(std::string("\\") + name), [&](bool plays) { answer = plays; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, kSlowMachineMs)) << name;
    EXPECT_EQ(*answer, sounds) << name;
  }
  // The room's own sound waits for none of a whole set that is being checked.
  constexpr int kChecks = 200;
  int checked = 0;
  std::optional<int> before;
  for (int i = 0; i < kChecks; ++i) media.Check(Spelled("\\tone.wav"), [&](bool) { ++checked; });
  media.Look(Spelled("\\tone.wav"), [&](bool) { before = checked; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return before.has_value(); }, 60000));
  EXPECT_LT(*before, kChecks / 2);
}

// What a player offers to people at a terminal is of no use here, and each script would be a thread of every player.
TEST(PlayerThreads, NoPlayerRunsAScript) {
  const MpvChannel sound;
  const MpvVideo film;
  for (const QString& thread : QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile name("/proc/self/task/" + thread + "/comm");
    ASSERT_TRUE(name.open(QIODevice::ReadOnly));
    EXPECT_FALSE(name.readAll().contains("lua")) << thread.toStdString();
  }
}

}  // namespace
}  // namespace pawnfield
