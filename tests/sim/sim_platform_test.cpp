// What the other tests lean on: that a script which goes wrong is reported, and that files fail as a disk's would.
#include "sim/sim_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace pawnfield {
namespace {

TEST(ScriptedDialogs, FailWhenTheScriptAndTheProgramDisagree) {
  const auto quit = [](ScriptedDialogs& d) { d.MessageBox("Quit?", "", BoxKind::YesNo); };
  Form form("frmSample");
  struct Case {
    const char* error;
    std::function<void(ScriptedDialogs&)> expect;
    std::function<void(ScriptedDialogs&)> happens;
  };
  const Case cases[] = {
      {"unexpected message", [](auto&) {}, quit},
      {"expected message \"Save\"", [](auto& d) { d.ExpectMessage("Save"); }, quit},
      {"expected file dialog", [](auto& d) { d.ExpectFile("Quit"); }, quit},
      {"nothing asked for", [](auto& d) { d.ExpectFile("a.txt"); }, [](auto&) {}},
      {"left open", [](auto& d) { d.ExpectForm("frmSample", [] {}); }, [&](auto& d) { d.ShowModal(form); }},
  };
  for (const Case& c : cases) {
    ScriptedDialogs dialogs;
    c.expect(dialogs);
    c.happens(dialogs);
    EXPECT_FALSE(dialogs.Verify()) << c.error;
    EXPECT_THAT(dialogs.TakeErrors(), testing::Contains(testing::HasSubstr(c.error)));
  }
  EXPECT_DEATH({ ScriptedDialogs().ExpectFile("a.txt"); }, "nothing asked for");
}

TEST(SimFiles, FindWithoutRegardToCaseOrSeparatorAndFailByKind) {
  SimFiles files;
  files.Put("C:\\Sets\\First.TXT", "one");
  files.PutFolder("C:\\Empty");
  files.Put("C:\\Denied.txt", "");
  files.Deny("C:\\Denied.txt");
  EXPECT_EQ(files.Read("c:/sets//first.txt"), "one");
  EXPECT_EQ(files.List("C:\\SETS\\", ".Txt"), std::vector<std::string>{"First.TXT"});
  EXPECT_FALSE(files.CanOpen("C:\\Denied.txt"));
  const std::pair<std::function<void()>, int> cases[] = {
      {[&] { files.Read("C:\\Sets\\no.txt"); }, kErrorFileNotFound},
      {[&] { files.Read("C:\\None\\no.txt"); }, kErrorPathNotFound},
      {[&] { files.Read("C:\\Denied.txt"); }, kErrorPathAccess},
      {[&] { files.Write("C:\\None\\no.txt", ""); }, kErrorPathNotFound},
      {[&] { files.Write("C:\\Empty", ""); }, kErrorPathAccess},
      {[&] { files.FailNextWrite(kErrorDiskFull), files.Write("C:\\Sets\\First.txt", "two"); }, kErrorDiskFull},
  };
  for (const auto& [act, number] : cases) {
    try {
      act();
      ADD_FAILURE() << "no error " << number;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), number);
    }
  }
  EXPECT_EQ(files.Read("C:\\Sets\\First.txt"), "one");
  files.Write("C:\\Sets\\First.txt", "two");
  EXPECT_EQ(files.Read("C:\\Sets\\First.txt"), "two");
}

TEST(LinearTextMeasurer, WrapsByWholeWords) {
  // Six letters of 550 at 10 points are 660 twips, the two words with their blank 720.
  const Font font{"Any", 10, false, false};
  const LinearTextMeasurer text;
  EXPECT_DOUBLE_EQ(text.Measure(font, "abc abc", 720).Height, 240);
  EXPECT_DOUBLE_EQ(text.Measure(font, "abc abc", 719).Height, 480);
  EXPECT_DOUBLE_EQ(text.Measure(font, "abc abc", 100).Width, 330);
  EXPECT_DOUBLE_EQ(text.Measure(font, "a\r\n\r\nb", 5000).Height, 3 * 240);
}

}  // namespace
}  // namespace pawnfield
