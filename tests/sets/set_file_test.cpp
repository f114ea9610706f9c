#include "sets/set_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/show.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kPath = "C:\\Pawnfield\\Trivia Sets\\quiz.txt";

class SetFile : public testing::Test {
 protected:
  ~SetFile() override { EXPECT_THAT(machine.dialogs.TakeFaults(), ElementsAre()); }

  bool LoadBytes(const std::string& bytes) {
    machine.files.Put(kPath, bytes);
    return LoadGameSet(show, kPath);
  }

  SimPlatform machine;
  Show show{machine.platform};
  Property<bool>& headerTimer = show.frmMain.tmrOptionalHeaders.Enabled;
};

TEST_F(SetFile, LoadingFillsTheSetAndClearsTheBoard) {
  show.state.Board[5][5] = 3;
  EXPECT_TRUE(LoadBytes("Q\r\nA\r\nP\r\n"));
  EXPECT_EQ(show.NumGameQuestions, 1);
  EXPECT_EQ(show.GameSet[0].QuestionText, "Q");
  EXPECT_EQ(show.state.LoadedSetPath, kPath);
  EXPECT_EQ(show.state.SetFolder, "C:\\Pawnfield\\Trivia Sets\\");
  EXPECT_EQ(show.state.Board[5][5], 0);
  EXPECT_TRUE(headerTimer);

  EXPECT_TRUE(LoadBytes(""));
  EXPECT_EQ(show.NumGameQuestions, 0);
  EXPECT_EQ(show.GameSet[0], TriviaQuestion());
}

TEST_F(SetFile, ABlankPathEmptiesTheSetWithoutAWord) {
  LoadBytes("Q\r\nA\r\nP\r\n");
  headerTimer = false;
  EXPECT_FALSE(LoadGameSet(show, "   "));
  EXPECT_EQ(show.NumGameQuestions, 0);
  EXPECT_EQ(show.GameSet[0], TriviaQuestion());
  EXPECT_TRUE(headerTimer);
}

TEST_F(SetFile, AFileThatCannotBeReadIsReportedAndHeadersStayOff) {
  LoadBytes("Q\r\nA\r\nP\r\n");
  machine.dialogs.ExpectMessage("Procedure: LoadGameSet");
  EXPECT_FALSE(LoadGameSet(show, "C:\\Pawnfield\\Trivia Sets\\gone.txt"));
  EXPECT_EQ(show.GameSet[0], TriviaQuestion());
  EXPECT_FALSE(headerTimer);
  ASSERT_EQ(machine.dialogs.Boxes().size(), 1U);
  EXPECT_THAT(machine.dialogs.Boxes()[0].Text,
              AllOf(HasSubstr("Error Number: 53\r\n"), HasSubstr("Location: frmMain\r\n"), HasSubstr("gone.txt")));
}

TEST_F(SetFile, TheStatusBarTellsWhatIsWrongWithAFilesBytes) {
  const std::string lineEnds = "No carriage returns found in this set: save it with CR LF line ends.";
  const std::string encoding = "This set is saved as UTF-8: save it as Windows-1252 (ANSI) text.";
  const std::pair<std::string, std::string> cases[] = {
      {"Q\nA\nP\n", lineEnds},
      {"\xEF\xBB\xBFQ\r\nA\r\nP\r\n", encoding},
      {"Caf\xC3\xA9?\r\nA\r\nP\r\n", encoding},
      {"Q\r\nA\xF0\x9F\x8E\xB2\r\nP\r\n", encoding},
      {"Caf\xE9?\r\nA\r\nP\r\n", ""},
      {"Caf\xE9 \xC3\xA9\r\nA\r\nP\r\n", ""},
      {"Q\r\nA\r\nP\r\n\xC3", ""},
      {"Q", ""},
  };
  for (const auto& [bytes, advice] : cases) {
    LoadBytes(bytes);
    EXPECT_EQ(show.frmMain.lblStatusBar.Caption.Get(), advice) << bytes;
  }
  show.frmMain.lblStatusBar.Caption = "System Initialized";
  LoadBytes("Q\r\nA\r\nP\r\n");
  EXPECT_EQ(show.frmMain.lblStatusBar.Caption.Get(), "System Initialized");
}

TEST_F(SetFile, TheListOffersTheFolderByNameBehindItsFirstEntry) {
  for (const char* name : {"zoo.txt", "Animals.TXT", "b.c.txt", "notes.doc"}) {
    machine.files.Put(std::string("C:\\Pawnfield\\Trivia Sets\\") + name, "");
  }
  FillSetList(show);
  EXPECT_THAT(show.frmMain.cboList.List.Get(), ElementsAre("Select Game Set", "Animals", "b", "zoo"));
  EXPECT_EQ(show.frmMain.cboList.ListIndex, 0);
}

TEST_F(SetFile, SavingNormalisesThePathAndReadsBack) {
  const std::pair<std::string, std::string> cases[] = {
      {"  C:\\Pawnfield\\Trivia Sets\\new  ", "C:\\Pawnfield\\Trivia Sets\\new.txt"},
      {std::string("C:\\Pawnfield\\Trivia Sets\\nul\0\0", 29), "C:\\Pawnfield\\Trivia Sets\\nul.txt"},
      {"C:\\Pawnfield\\Trivia Sets\\x.TXT", "C:\\Pawnfield\\Trivia Sets\\x.TXT"},
      {"C:\\Pawnfield\\Trivia Sets\\x.text", "C:\\Pawnfield\\Trivia Sets\\x.text.txt"}};
  for (const auto& [given, normal] : cases) {
    TriviaSet set;
    set[1].QuestionText = "Moved up";
    std::string path = given;
    EXPECT_TRUE(SaveSetFile(show, set, path));
    EXPECT_EQ(path, normal);
    EXPECT_TRUE(LoadGameSet(show, normal));
    EXPECT_EQ(show.NumGameQuestions, 1);
  }
}

TEST_F(SetFile, AFailedSaveIsToldAndLeavesTheOldFileWhole) {
  const std::pair<int, const char*> cases[] = {
      {kErrorPathAccess,
       "Unable to save to the specified directory.\r\nYou may not have permission to write to this file/directory.\r\n"
       "Contact your system administrator or save in \"My Documents\".\r\n"
       "Contact Pawnfield support at support@pawnfield.invalid"},
      {kErrorDiskFull, "Procedure: SaveFile"},
  };
  for (const auto& [number, message] : cases) {
    machine.files.Put(kPath, "Old\r\nA\r\nP\r\n");
    machine.files.FailNextWrite(number);
    machine.dialogs.ExpectMessage(message);
    TriviaSet set;
    std::string path = kPath;
    EXPECT_FALSE(SaveSetFile(show, set, path));
    EXPECT_EQ(machine.files.Read(kPath), "Old\r\nA\r\nP\r\n");
    EXPECT_EQ(machine.dialogs.Boxes().back().Title, "Pawnfield");
  }
}

}  // namespace
}  // namespace pawnfield
