#include "sets/set_file.h"

#include <gmock/gmock.h>

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;

const std::string kSets = "C:\\Pawnfield\\Trivia Sets\\";
const std::string kPath = kSets + "quiz.txt";

class SetFile : public ShowFixture, public testing::Test {
 protected:
  bool LoadBytes(const std::string& bytes) {
    sim.files.Put(kPath, bytes);
    return LoadGameSet(show(), kPath);
  }
  // The first question, the count, and whether the headers rotate.
  std::string Loaded() {
    EXPECT_EQ(show().GameSet[0].QuestionType.empty(), show().NumGameQuestions == 0);
    return show().GameSet[0].QuestionText + " " + std::to_string(show().NumGameQuestions) +
           (headerTimer ? " headers" : "");
  }

  Property<bool>& headerTimer = form().tmrOptionalHeaders.Enabled;
};

TEST_F(SetFile, LoadingFillsTheSetAndClearsTheBoard) {
  show().state.Board[5][5] = 3;
  EXPECT_TRUE(LoadBytes("Q\r\nA\r\nP\r\n"));
  EXPECT_EQ(Loaded(), "Q 1 headers");
  EXPECT_EQ(show().state.LoadedSetPath + show().state.SetFolder, kPath + kSets);
  EXPECT_EQ(show().state.Board[5][5], 0);
  EXPECT_TRUE(LoadBytes(""));
  EXPECT_EQ(Loaded(), " 0 headers");

  LoadBytes("Q\r\nA\r\nP\r\n");
  headerTimer = false;
  EXPECT_FALSE(LoadGameSet(show(), "   ")) << "a blank path empties the set without a word";
  EXPECT_EQ(Loaded(), " 0 headers");

  LoadBytes("Q\r\nA\r\nP\r\n");
  sim.dialogs.ExpectMessage("Procedure: LoadGameSet");
  EXPECT_FALSE(LoadGameSet(show(), kSets + "gone.txt"));
  EXPECT_EQ(show().GameSet[0], TriviaQuestion());
  EXPECT_FALSE(headerTimer);
  for (const char* part : {"Error Number: 53\r\n", "Location: frmMain\r\n", "gone.txt"}) {
    EXPECT_THAT(sim.dialogs.Boxes().at(0).Text, testing::HasSubstr(part));
  }
}

TEST_F(SetFile, TheStatusBarTellsWhatIsWrongWithAFilesBytes) {
  const std::string lineEnds = "No carriage returns found in this set: save it with CR LF line ends.";
  const std::string encoding = "This set is saved as UTF-8: save it as Windows-1252 (ANSI) text.";
  const std::pair<std::string, std::string> cases[] = {{"Q\nA\nP\n", lineEnds},
                                                       {"\xEF\xBB\xBFQ\r\nA\r\nP\r\n", encoding},
                                                       {"Caf\xC3\xA9?\r\nA\r\nP\r\n", encoding},
                                                       {"Q\r\nA\xF0\x9F\x8E\xB2\r\nP\r\n", encoding},
                                                       {"Caf\xE9?\r\nA\r\nP\r\n", ""},
                                                       {"Caf\xE9 \xC3\xA9\r\nA\r\nP\r\n", ""},
                                                       {"Q\r\nA\r\nP\r\n\xC3", ""},
                                                       {"Q", ""}};
  for (const auto& [bytes, advice] : cases) {
    LoadBytes(bytes);
    EXPECT_EQ(form().lblStatusBar.Caption.Get(), advice) << bytes;
  }
  form().lblStatusBar.Caption = "System Initialized";
  LoadBytes("Q\r\nA\r\nP\r\n");
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "System Initialized");
}

TEST_F(SetFile, TheListOffersTheFolderByNameBehindItsFirstEntry) {
  for (const char* name : {"zoo.txt", "Animals.TXT", "b.c.txt", "notes.doc"}) sim.files.Put(kSets + name, "");
  FillSetList(show());
  EXPECT_THAT(form().cboList.List.Get(), ElementsAre("Select Game Set", "Animals", "b", "zoo"));
  EXPECT_EQ(form().cboList.ListIndex, 0);
}

TEST_F(SetFile, SavingNormalisesThePathAndReadsBackOrLeavesTheOldFileWhole) {
  const std::pair<std::string, std::string> cases[] = {{"  " + kSets + "new  ", kSets + "new.txt"},
                                                       {kSets + "nul" + std::string(2, '\0'), kSets + "nul.txt"},
                                                       {kSets + "x.TXT", kSets + "x.TXT"},
                                                       {kSets + "x.text", kSets + "x.text.txt"}};
  for (const auto& [given, normal] : cases) {
    TriviaSet set;
    set[1].QuestionText = "Moved up";
    std::string path = given;
    EXPECT_TRUE(SaveSetFile(show(), set, path));
    EXPECT_EQ(path, normal);
    EXPECT_TRUE(LoadGameSet(show(), normal));
    EXPECT_EQ(show().NumGameQuestions, 1);
  }
  const std::pair<int, const char*> failures[] = {
      {kErrorPathAccess,
       "Unable to save to the specified directory.\r\nYou may not have permission to write to this file/directory.\r\n"
       "Contact your system administrator or save in \"My Documents\".\r\n"
       "Contact Pawnfield support at support@pawnfield.invalid"},
      {kErrorDiskFull, "Procedure: SaveFile"}};
  for (const auto& [number, message] : failures) {
    sim.files.Put(kPath, "Old\r\nA\r\nP\r\n");
    sim.files.FailNextWrite(number);
    sim.dialogs.ExpectMessage(message);
    TriviaSet set;
    std::string path = kPath;
    EXPECT_FALSE(SaveSetFile(show(), set, path));
    EXPECT_EQ(sim.files.Read(kPath), "Old\r\nA\r\nP\r\n");
    EXPECT_EQ(sim.dialogs.Boxes().back().Title, "Pawnfield");
  }
}

}  // namespace
}  // namespace pawnfield
