#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "platform/text.h"
#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

using testing::HasSubstr;

constexpr const char* kSets = "C:\\Pawnfield\\Trivia Sets\\";
const std::string kQuiz = std::string(kSets) + "Quiz.txt";

class EditorFiles : public EditorFixture, public testing::Test {
 protected:
  void TypeQuestion(const std::string& text) { editor().txtEnterQuestion.Type(text); }
  std::string OnDisk(const std::string& path) {
    return sim.files.CanOpen(path) ? sim.files.Read(path).substr(0, sim.files.Read(path).find("\r\n")) : "none";
  }
  const FileDialogRequest& LastRequest() { return sim.dialogs.FileRequests().back(); }
};

TEST_F(EditorFiles, SavingAsksForANameOnceAndForAnOverwrite) {
  TypeQuestion("One?");
  EXPECT_TRUE(editor().EditDirty);
  sim.dialogs.ExpectFile("");
  editor().btnSave.Click();
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(LastRequest().Title, "Save Trivia Set");
  EXPECT_EQ(LastRequest().Filter, "Game Sets(*.txt)|*.txt");
  EXPECT_EQ(LastRequest().DefaultExtension, "txt");
  EXPECT_EQ(LastRequest().InitialFolder + "\\", kSets);
  EXPECT_TRUE(LastRequest().Save && !LastRequest().ConfirmsOverwrite);

  sim.files.Put(kQuiz, "Old\r\nA\r\nT\r\n");
  sim.dialogs.ExpectFile(std::string(kSets) + "Quiz");
  sim.dialogs.ExpectMessage("Filename already exists. Overwrite existing file?", BoxAnswer::No);
  editor().btnSave.Click();
  EXPECT_EQ(OnDisk(kQuiz), "Old");
  sim.dialogs.ExpectFile(kQuiz);
  sim.dialogs.ExpectMessage("Filename already exists.", BoxAnswer::Yes);
  editor().mnuFileSave.Click();
  EXPECT_EQ(OnDisk(kQuiz), "One?");
  EXPECT_EQ(editor().EditFileName, kQuiz);
  EXPECT_EQ(show().state.SetFolder, kSets);
  EXPECT_FALSE(editor().EditDirty);

  TypeQuestion("Two?");
  editor().btnSave.Click();
  EXPECT_EQ(OnDisk(kQuiz), "Two?");
  sim.dialogs.ExpectFile(kQuiz);
  sim.dialogs.ExpectMessage("File already exists. Do you want to overwrite?", BoxAnswer::No);
  editor().btnSaveAs.Click();
  sim.dialogs.ExpectFile(std::string(kSets) + "Other.txt");
  editor().mnuSaveAs.Click();
  EXPECT_EQ(editor().EditFileName, std::string(kSets) + "Other.txt");
}

TEST_F(EditorFiles, AFailedSaveKeepsTheChangesAndTheOldFile) {
  sim.files.Put(kQuiz, "Old\r\nA\r\nT\r\n");
  editor().EditFileName = kQuiz;
  TypeQuestion("New?");
  sim.files.FailNextWrite(kErrorDiskFull);
  sim.dialogs.ExpectMessage("Procedure: SaveFile");
  editor().btnSave.Click();
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(OnDisk(kQuiz), "Old");
  sim.dialogs.ExpectFile(std::string(kSets) + std::string(300, 'x'));
  sim.dialogs.ExpectMessage("Error with filename(s).");
  editor().btnSaveAs.Click();
  EXPECT_EQ(editor().EditFileName, kQuiz);
}

TEST_F(EditorFiles, SavingUnderItsNameGivesTheGameAllButTheSizes) {
  sim.files.Put(kQuiz, "Q1\r\nA1\r\nT#Courier New#28#True#True#16777215#\r\n");
  LoadGameSet(show(), kQuiz);
  show().EditCurrentSet = true;
  OpenEditor();
  EXPECT_EQ(editor().EditFileName, kQuiz);
  EXPECT_EQ(Shown(), "1/1 Q1");
  sim.dialogs.ExpectFont(Font{"Arial", 10.5, false, true});
  editor().btnFont.Click();
  EXPECT_EQ(sim.dialogs.FontStart, (Font{"Courier New", 28, true, true}));
  sim.dialogs.ExpectColor(255);
  editor().btnFontColor.Click();
  EXPECT_FALSE(editor().EditDirty);
  EXPECT_EQ(show().GameSet[0].FontName, "Courier New");
  editor().btnSave.Click();
  EXPECT_EQ(show().GameSet[0].FontName, "Arial");
  EXPECT_EQ(show().GameSet[0].FontColor, "255");
  EXPECT_EQ(show().GameSet[0].FontSize, "28");
  EXPECT_THAT(sim.files.Read(kQuiz), HasSubstr("Q1\r\nA1\r\nT#Arial#10.5#False#True#255#\r\n"));
  editor().btnDefault.Click();
  EXPECT_EQ(editor().txtDisplayQuestion.Font, (Font{"Courier New", 28, true, true}));
  EXPECT_EQ(record(0).FontName, "Arial");
}

TEST_F(EditorFiles, UnsavedChangesAreAskedAboutBeforeOpeningAndClosing) {
  sim.files.Put(kQuiz, "Q1\r\nA1\r\nT\r\n");
  const struct {
    BoxAnswer answer;
    std::string file;
    bool goesOn;
    const char* saved;
  } cases[] = {{BoxAnswer::Cancel, "-", false, "none"},
               {BoxAnswer::Yes, "", false, "none"},
               {BoxAnswer::No, "-", true, "none"},
               {BoxAnswer::Yes, std::string(kSets) + "Kept", true, "Mine"}};
  for (const auto& each : cases) {
    for (const bool opening : {true, false}) {
      OpenEditor();
      sim.files.Remove(std::string(kSets) + "Kept.txt");
      editor().EditFileName = std::string(kSets) + "Mine.txt";
      TypeQuestion("Mine");
      sim.dialogs.ExpectMessage("Would you like to save the changes you made?", each.answer);
      if (each.file != "-") sim.dialogs.ExpectFile(each.file);
      if (opening && each.goesOn) sim.dialogs.ExpectFile(kQuiz);
      editor().Visible = true;
      opening ? editor().btnFileOpen.Click() : editor().mnuFileExit.Click();
      EXPECT_EQ(opening ? editor().EditFileName == kQuiz : !editor().Visible, each.goesOn);
      EXPECT_EQ(OnDisk(std::string(kSets) + "Kept.txt"), each.saved);
      if (!each.file.empty()) continue;
      EXPECT_EQ(LastRequest().Title, "Save Trivia Set - " + std::string(kSets) + "Mine.txt");
      EXPECT_EQ(LastRequest().FileName, "Mine.txt");
    }
  }
  OpenEditor();
  editor().Visible = true;
  editor().mnuFileExit.Click();
  EXPECT_FALSE(editor().Visible);
}

TEST_F(EditorFiles, WhatCannotBeReadIsToldAndNotWrittenOver) {
  TypeQuestion("Mine");
  editor().EditDirty = false;
  sim.dialogs.ExpectFile(std::string(kSets) + "gone.txt");
  sim.dialogs.ExpectMessage("Procedure: OpenFile");
  editor().btnFileOpen.Click();
  EXPECT_EQ(Shown(), "1/0 ");
  EXPECT_EQ(editor().EditFileName, "");
  EXPECT_TRUE(editor().btnFileOpen.Enabled);
}

TEST_F(EditorFiles, ImportTakesThirtyRecordsWhateverTheFileHolds) {
  std::string bytes;
  for (int block = 0; block < 2; ++block) {
    bytes += "Heading\r\n";
    for (int i = 0; i < 5; ++i) {
      bytes += "Q" + std::to_string(block * 5 + i) + "\r\nA\r\nskipped\r\nT#Arial#36#False#True#255#\r\n";
    }
  }
  sim.files.Put(std::string(kSets) + "Panel.txt", bytes);
  sim.dialogs.ExpectFile(std::string(kSets) + "Panel.txt");
  editor().btnImport.Click();
  EXPECT_EQ(Shown(), "1/30 Q0");
  EXPECT_EQ(record(9).QuestionText, "Q9");
  EXPECT_EQ(record(9).FontSize, "36");
  EXPECT_EQ(record(9).QuestionType, "T");
  EXPECT_EQ(record(10).QuestionText, "");
  EXPECT_EQ(LastRequest().InitialFolder + "\\", kSets);

  sim.files.PutFolder("D:\\Program Files\\Ostara Panel Pro 4");
  sim.files.Put("D:\\Program Files\\Ostara Panel Pro 4\\Ostara Panel Pro 4.exe", "x");
  sim.platform.folders.SystemDrive = "D:";
  sim.dialogs.ExpectFile("");
  editor().btnImport.Click();
  EXPECT_EQ(LastRequest().InitialFolder, "D:\\Program Files\\Ostara Panel Pro 4\\Trivia Sets");
  EXPECT_EQ(LastRequest().Filter, "Trivia Sets (*.txt)|*.txt");
  EXPECT_EQ(Shown(), "1/0 ");
  EXPECT_EQ(record(0).QuestionText, "");
}

TEST_F(EditorFiles, PicturesAndSoundsTakeThePathAndItsLimit) {
  const std::string longest = "C:\\" + std::string(249, 'x') + ".jpg";
  sim.files.Put(longest, SimPictures::PictureBytes(100, 200));
  sim.files.Put("C:\\a.wav", "sound");
  for (const std::string& bad : {std::string("C:\\") + std::string(250, 'x') + ".jpg", std::string("C:\\a\rb.jpg")}) {
    sim.dialogs.ExpectFile(bad);
    sim.dialogs.ExpectMessage(bad.size() > 256 ? "File path exceeds 256 characters in length" : "holds a line break");
    editor().btnPicture.Click();
    EXPECT_FALSE(editor().EditDirty);
  }
  sim.dialogs.ExpectFile(longest);
  editor().btnPicture.Click();
  EXPECT_EQ(LastRequest().Filter, "Picture(*.bmp;*.jpg)|*.bmp;*.jpg");
  EXPECT_EQ(LastRequest().InitialFolder, "C:\\Pawnfield");
  EXPECT_EQ(record(0).QuestionText, longest);
  EXPECT_TRUE(editor().EditDirty && editor().picQuestionPicture.Visible && !editor().txtEnterQuestion.Visible);
  EXPECT_EQ(editor().imgQuestionPicture.Height.Get(), 7680);
  EXPECT_EQ(editor().imgQuestionPicture.Width.Get(), 3840);
  sim.dialogs.ExpectFile("C:\\a.wav");
  editor().btnSound.Click();
  EXPECT_EQ(LastRequest().Filter, "Audio(*.wav; *.mp3; *.wma)|*.wav; *.mp3; *.wma");
  EXPECT_EQ(record(0).QuestionType, "S");
  EXPECT_TRUE(editor().frmSoundButtons.Visible && !editor().picQuestionPicture.Visible && !editor().btnFont.Enabled);
  EXPECT_EQ(sim.media.SoundClipPlayer.Url, "C:\\a.wav");
  editor().btnStop.Click();
  EXPECT_FALSE(sim.media.SoundClipPlayer.Playing);
  editor().btnText.Click();
  EXPECT_EQ(record(0).QuestionType, "T");
  EXPECT_EQ(record(0).QuestionText, "C:\\a.wav");
  EXPECT_TRUE(editor().btnFont.Enabled && editor().txtEnterQuestion.Visible && !editor().frmSoundButtons.Visible);
  TypeQuestion("Words");
  EXPECT_EQ(record(0).QuestionText, "Words");

  OpenEditor("ab");
  record(1).QuestionText = "C:\\none.jpg";
  record(0).FontColor = "red";
  sim.dialogs.ExpectMessage("File not found: C:\\none.jpg");
  editor().btnForward.Click();
  EXPECT_FALSE(editor().btnFont.Enabled);
  sim.dialogs.ExpectMessage("Description: Type mismatch\r\nLocation: frmEditor");
  editor().btnBack.Click();
  EXPECT_EQ(Shown(), "1/2 a");
}

TEST_F(EditorFiles, PrintsTitleAndQuestionsOnceForEachCopy) {
  OpenEditor("ab");
  record(1).AnswerText = "B!";
  editor().btnPrint.Click();
  EXPECT_TRUE(sim.printing.Printed.empty());
  sim.printing.Copies = 2;
  editor().mnuFilePrint.Click();
  ASSERT_EQ(sim.printing.Printed.size(), 2U);
  EXPECT_EQ(sim.printing.Printed[1].Title, "Untitled");
  const std::vector<PrintBlock> blocks{{"Untitled", " "}, {"1. a", "", " "}, {"2. b", "B!", " "}};
  EXPECT_EQ(sim.printing.Printed[1].Blocks, blocks);
  editor().EditFileName = kSets + std::string("My.Quiz.txt");
  sim.printing.Broken = true;
  sim.dialogs.ExpectMessage("make a note of the following information.\r\nError Number: 482");
  editor().btnPrint.Click();
  sim.printing.Broken = false;
  editor().btnPrint.Click();
  EXPECT_EQ(sim.printing.Printed.back().Title, "My");
}

TEST_F(EditorFiles, TheConsoleAsksWhichSetToEdit) {
  show().frmMain.cboList.List = {"Select Game Set"};
  show().frmMain.cboList.ListIndex = 0;
  for (const bool current : {true, false}) {
    sim.dialogs.ExpectForm("frmEditChoice",
                           [&] { (current ? show().frmEditChoice.btnCurrent : show().frmEditChoice.New).Click(); });
    sim.dialogs.ExpectForm("frmEditor", [&] { editor().mnuFileExit.Click(); });
    show().frmMain.btnStartGame.Click();
    EXPECT_EQ(show().EditCurrentSet, current);
  }
  show().frmMain.cboList.ListIndex = -1;
  sim.dialogs.ExpectForm("frmEditor", [&] { editor().mnuFileExit.Click(); });
  show().frmMain.btnStartGame.Click();
}

TEST_F(EditorFiles, ThePreviewFitsWhileTypingAndTheRecordKeepsItsSize) {
  std::string words;
  while (words.size() < 300) words += "www ";
  TypeQuestion(words.substr(0, 255) + "www");
  EXPECT_EQ(record(0).QuestionText.size(), 256U);
  EXPECT_LT(editor().txtDisplayQuestion.Font->Size, 80);
  TypeQuestion("w");
  EXPECT_EQ(editor().txtDisplayQuestion.Font->Size, 80);
  EXPECT_EQ(record(0).FontSize, "28");
  editor().txtAnswer.Type(std::string(200, 'a'));
  EXPECT_EQ(record(0).AnswerText.size(), 174U);
  record(0).FontName = " ";
  record(0).FontColor = "";
  editor().txtEnterQuestion.LoseFocus();
  EXPECT_EQ(record(0).FontName, "Courier New");
  EXPECT_EQ(record(0).FontColor, "16777215");
}

// A random text of the characters that make trouble in a set file, and of plain ones.
std::string RandomText(std::mt19937& random, std::size_t longest) {
  static const std::string letters = "abc  ##\t\xE9\x80\n.jpgTPS0129";
  std::string text;
  for (std::size_t n = random() % (longest + 1); text.size() < n;) text += letters[random() % letters.size()];
  return text;
}

TEST_F(EditorFiles, FiveHundredRandomSetsComeBackFromBothReaders) {
  std::mt19937 random(20260321);
  for (int round = 0; round < 500; ++round) {
    editor::ResetEditSet(show());
    const std::size_t count = random() % 101;
    for (std::size_t i = 0; i < count; ++i) {
      record(i).QuestionText = "Q" + RandomText(random, kQuestionLength - 1);
      record(i).AnswerText = RandomText(random, kAnswerLength);
      record(i).QuestionType = std::string(1, "TPST"[random() % 4]);
      record(i).FontName = std::vector<std::string>{"Arial", "Courier New", "\xC9t\xE9"}[random() % 3];
      record(i).FontSize = std::to_string(10 + random() % 70);
      record(i).FontBold = random() % 2 == 0;
      record(i).FontItalic = random() % 2 == 0;
      record(i).FontColor = std::to_string(10 + random() % 16777206);
    }
    const TriviaSet written = show().EditSet;
    editor().EditFileName = kQuiz;
    editor().mnuFileSave.Click();
    sim.dialogs.ExpectFile(kQuiz);
    editor().mnuFileOpen.Click();
    ASSERT_EQ(show().NumEditQuestions, static_cast<int>(count)) << round;
    ASSERT_TRUE(LoadGameSet(show(), kQuiz));
    ASSERT_EQ(show().GameSet, show().EditSet) << round;
    sim.files.Put(kQuiz, FormatQuestions(written));
    ASSERT_TRUE(LoadGameSet(show(), kQuiz));
    for (std::size_t i = 0; i < count; ++i) {
      TriviaQuestion expected = written[i];
      expected.QuestionText = Trim(expected.QuestionText);
      expected.AnswerText = Trim(expected.AnswerText);
      const TriviaQuestion reset;
      if (expected.QuestionType != "T") {
        expected = {expected.QuestionType, expected.QuestionText, reset.FontName,  reset.FontSize,
                    reset.FontBold,        reset.FontItalic,      reset.FontColor, expected.AnswerText};
      }
      ASSERT_EQ(show().EditSet[i], expected) << round << " " << i;
      ASSERT_EQ(show().GameSet[i], expected) << round << " " << i;
    }
    ASSERT_EQ(show().NumGameQuestions, static_cast<int>(count));
    show().state.LoadedSetPath.clear();
  }
}

}  // namespace
}  // namespace pawnfield
