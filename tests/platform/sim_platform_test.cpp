#include "platform/sim/sim_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(ScriptedDialogs, FailWhenTheScriptAndTheProgramDisagree) {
  struct Case {
    const char* what;
    std::function<void(ScriptedDialogs&)> play;
    const char* fault;
  };
  const Case cases[] = {
      {"nothing scripted", [](ScriptedDialogs& d) { d.MessageBox("Quit?", "", BoxKind::YesNo); }, "unexpected message"},
      {"other text",
       [](ScriptedDialogs& d) {
         d.ExpectMessage("Save");
         d.MessageBox("Quit?", "", BoxKind::YesNo);
       },
       "expected message \"Save\""},
      {"other kind",
       [](ScriptedDialogs& d) {
         d.ExpectFile("a.txt");
         d.MessageBox("Quit?", "", BoxKind::YesNo);
       },
       "expected file dialog"},
      {"nothing asked", [](ScriptedDialogs& d) { d.ExpectFile("a.txt"); }, "nothing asked for"},
      {"form left open",
       [](ScriptedDialogs& d) {
         Form form("frmSample");
         d.ExpectForm("frmSample", [] {});
         d.ShowModal(form);
       },
       "left open"},
  };
  for (const Case& c : cases) {
    ScriptedDialogs dialogs;
    c.play(dialogs);
    EXPECT_FALSE(dialogs.Verify()) << c.what;
    const auto faults = dialogs.TakeFaults();
    ASSERT_FALSE(faults.empty()) << c.what;
    EXPECT_THAT(faults.front(), HasSubstr(c.fault)) << c.what;
  }
  EXPECT_DEATH({ ScriptedDialogs().ExpectFile("a.txt"); }, "nothing asked for");
}

TEST(ScriptedDialogs, AnswerInOrderAndRunAFormWhileItIsShown) {
  ScriptedDialogs dialogs;
  Form form("frmSample");
  bool wasShown = false;
  dialogs.ExpectMessage("Quit", BoxAnswer::Yes);
  dialogs.ExpectFile("C:\\a.txt");
  dialogs.ExpectForm("frmSample", [&] {
    wasShown = form.Visible;
    form.Unload();
  });
  EXPECT_EQ(dialogs.MessageBox("Quit now?", "Pawnfield", BoxKind::YesNo), BoxAnswer::Yes);
  EXPECT_EQ(dialogs.ChooseFile({"Open", "", "", false}), "C:\\a.txt");
  dialogs.ShowModal(form);
  EXPECT_TRUE(wasShown);
  EXPECT_TRUE(dialogs.Verify());
}

TEST(SimFiles, FindWithoutRegardToCaseOrSeparatorAndFailByKind) {
  SimFiles files;
  files.Put("C:\\Sets\\First.TXT", "one");
  files.PutFolder("C:\\Empty");
  EXPECT_EQ(files.Read("c:/sets//first.txt"), "one");
  EXPECT_THAT(files.List("C:\\SETS\\", ".txt"), ElementsAre("First.TXT"));
  const auto errorOf = [](const std::function<void()>& act) {
    try {
      act();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(errorOf([&] { files.Read("C:\\Sets\\no.txt"); }), kErrorFileNotFound);
  EXPECT_EQ(errorOf([&] { files.Read("C:\\None\\no.txt"); }), kErrorPathNotFound);
  EXPECT_EQ(errorOf([&] { files.Write("C:\\None\\no.txt", ""); }), kErrorPathNotFound);
  EXPECT_EQ(errorOf([&] { files.Write("C:\\Empty", ""); }), kErrorPathAccess);
  files.FailNextWrite(kErrorDiskFull);
  EXPECT_EQ(errorOf([&] { files.Write("C:\\Sets\\First.txt", "two"); }), kErrorDiskFull);
  EXPECT_EQ(files.Read("C:\\Sets\\First.txt"), "one");
  EXPECT_EQ(errorOf([&] { files.Write("C:\\Sets\\First.txt", "two"); }), 0);
  files.Deny("C:\\Sets\\First.txt");
  EXPECT_FALSE(files.CanOpen("C:\\Sets\\First.txt"));
  EXPECT_EQ(errorOf([&] { files.Read("C:\\Sets\\First.txt"); }), kErrorPathAccess);
}

TEST(SimPlatform, PicturesAndTextMeasureAsLaidDown) {
  SimPlatform sim;
  EXPECT_EQ(sim.pictures.Size("C:\\Pawnfield\\images\\x-100A.bmp").Width, 100);
  sim.files.Put("C:\\Pawnfield\\bad.jpg", "text");
  EXPECT_THROW(sim.pictures.Size("C:\\Pawnfield\\bad.jpg"), RuntimeError);

  // Six letters of 550 at 10 points are 660 twips, the two words with their blank 720.
  const Font font{"Any", 10, false, false};
  EXPECT_DOUBLE_EQ(sim.text.Measure(font, "abc abc", 720).Height, 240);
  EXPECT_DOUBLE_EQ(sim.text.Measure(font, "abc abc", 719).Height, 480);
  EXPECT_DOUBLE_EQ(sim.text.Measure(font, "abc abc", 100).Width, 330);
  EXPECT_DOUBLE_EQ(sim.text.Measure({"Any", 20, false, false}, "a\r\n\r\nb", 5000).Height, 3 * 480);
}

TEST(RecordedMedia, KeepsOneOrderOverAllChannels) {
  SimPlatform sim;
  sim.platform.media.EventPlayer.SetUrl("a.wav");
  sim.platform.media.BackgroundPlayer.SetVolume(40);
  sim.platform.media.EventPlayer.Stop();
  EXPECT_THAT(sim.media.Log, ElementsAre("EventPlayer url a.wav", "BackgroundPlayer volume 40", "EventPlayer stop"));
  EXPECT_FALSE(sim.media.EventPlayer.Playing);
}

}  // namespace
}  // namespace pawnfield
