#include "engine/game_flow.h"
#include "engine/question_cycle.h"
#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "platform/large_file.h"
#include "sets/missing_media.h"
#include "sets/set_file.h"
#include "support/editor_fixture.h"
#include "support/seen.h"

namespace pawnfield {
namespace {

const std::string kSets = "C:\\Pawnfield\\Trivia Sets\\";
const std::string kQuiz = kSets + "Quiz.txt";

class EditorFiles : public EditorFixture, public testing::Test {
 protected:
  void TypeQuestion(const std::string& text) { editor().txtEnterQuestion.Type(text); }
  void Choose(Button& button, const std::string& file, const std::string& box = "", BoxAnswer answer = BoxAnswer::Ok) {
    sim.dialogs.ExpectFile(file);
    if (!box.empty()) sim.dialogs.ExpectMessage(box, answer);
    button.Click();
  }
  std::string OnDisk(const std::string& path) {
    return sim.files.CanOpen(path) ? sim.files.Read(path).substr(0, sim.files.Read(path).find("\r\n")) : "none";
  }
  static std::string PanelSet(int questions) {
    std::string bytes;
    for (int i = 0; i < questions; ++i) {
      bytes += std::string(i % 5 == 0 ? "Heading\r\n" : "") + "Q" + std::to_string(i) +
               "\r\nA\r\nskipped\r\nT#Arial#36#False#True#255#\r\n";
    }
    return bytes;
  }
  // What the last file dialog showed.
  std::string Asked() {
    const FileDialogRequest& request = sim.dialogs.FileRequests().back();
    return request.Title + ", " + request.Filter + ", " + request.FileName + ", " + request.InitialFolder;
  }
};

TEST_F(EditorFiles, SavingAsksForANameOnceAndForAnOverwrite) {
  TypeQuestion("One?");
  Choose(editor().btnSave, "");
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(Asked(), "Save Trivia Set, Game Sets(*.txt)|*.txt, , C:\\Pawnfield\\Trivia Sets");
  const FileDialogRequest& request = sim.dialogs.FileRequests().back();
  EXPECT_TRUE(request.Save && !request.ConfirmsOverwrite && request.DefaultExtension == "txt");

  sim.files.Put(kQuiz, "Old\r\nA\r\nT\r\n");
  Choose(editor().btnSave, kSets + "Quiz", "Filename already exists. Overwrite existing file?", BoxAnswer::No);
  EXPECT_EQ(OnDisk(kQuiz), "Old");
  sim.dialogs.ExpectFile(kQuiz);
  sim.dialogs.ExpectMessage("Filename already exists.", BoxAnswer::Yes);
  editor().mnuFileSave.Click();
  EXPECT_EQ(OnDisk(kQuiz) + editor().EditFileName + show().state.SetFolder, "One?" + kQuiz + kSets);
  EXPECT_FALSE(editor().EditDirty);

  TypeQuestion("Two?");
  editor().btnSave.Click();
  EXPECT_EQ(OnDisk(kQuiz), "Two?");
  Choose(editor().btnSaveAs, kQuiz, "File already exists. Do you want to overwrite?", BoxAnswer::No);
  sim.dialogs.ExpectFile(kSets + "Other.txt");
  editor().mnuSaveAs.Click();
  EXPECT_EQ(editor().EditFileName, kSets + "Other.txt");
}

TEST_F(EditorFiles, WhatCannotBeSavedOrReadIsReportedAndNothingIsLost) {
  sim.files.Put(kQuiz, "Old\r\nA\r\nT\r\n");
  editor().EditFileName = kQuiz;
  TypeQuestion("New?");
  sim.files.FailNextWrite(kErrorDiskFull);
  sim.dialogs.ExpectMessage("Procedure: SaveFile");
  editor().btnSave.Click();
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(OnDisk(kQuiz), "Old");
  Choose(editor().btnSaveAs, kSets + std::string(300, 'x'), "Error with filename(s).");
  EXPECT_EQ(editor().EditFileName, kQuiz);
  editor().EditDirty = false;
  sim.files.Put(kSets + "huge.txt", std::string(kLargestRead + 1, 'q'));
  const std::pair<const char*, const char*> unread[] = {
      {"gone.txt", "Procedure: OpenFile"},
      {"huge.txt", "\"huge.txt\" was not opened. The file has 4.1 MB, and 4 MB are the limit."}};
  for (const auto& [name, message] : unread) {
    for (Button* button : {&editor().btnFileOpen, &editor().btnImport}) {
      Choose(*button, kSets + name, message);
      EXPECT_EQ(Shown() + editor().EditFileName, "1/0 New?" + kQuiz) << "what was open stays";
    }
  }
}

TEST_F(EditorFiles, ASetWithoutAFileAsksForANameAndWritesOverNoOther) {
  const std::string fifteen = "Q1\r\nA1\r\nT\r\n";
  sim.files.Put(kSets + "Panel.txt", PanelSet(30));
  // How the editor comes by its set while Quiz.txt is, or was, open.
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"new", [&] { editor().btnNewFile.Click(); }},
      {"imported", [&] { Choose(editor().btnImport, kSets + "Panel.txt"); }},
      {"the game's, which was reset", [&] {
         show().state.GameLoaded = true;
         btnReset_Click(show());
         show().EditCurrentSet = true;
         OpenEditor();
       }}};
  for (const auto& [way, come] : ways) {
    sim.files.Put(kQuiz, fifteen);
    LoadGameSet(show(), kQuiz);
    show().EditCurrentSet = true;
    OpenEditor();
    EXPECT_EQ(editor().EditFileName, kQuiz);
    come();
    TypeQuestion("Mine?");
    Choose(editor().btnSave, "");
    EXPECT_TRUE(Asked().starts_with("Save Trivia Set, ")) << way;
    EXPECT_EQ(sim.files.Read(kQuiz), fifteen) << way;
  }
  EXPECT_EQ(Shown(), "1/0 Mine?") << "nothing is left of a set that was reset";
}

TEST_F(EditorFiles, TheFileBeforeTheLastSaveIsKeptBesideIt) {
  for (const char* question : {"One?", "Two?", "Three?", "Three?"}) {
    editor().EditFileName = kQuiz;
    TypeQuestion(question);
    editor().btnSave.Click();
  }
  EXPECT_EQ(OnDisk(kQuiz) + OnDisk(kSets + "Quiz.bak"), "Three?Two?")
      << "a save that changes nothing costs no old file";
  sim.files.Deny(kSets + "Quiz.bak");
  TypeQuestion("Four?");
  sim.dialogs.ExpectMessage("Unable to save to the specified directory.");
  editor().btnSave.Click();
  EXPECT_EQ(OnDisk(kQuiz), "Three?");
  EXPECT_TRUE(editor().EditDirty);
}

TEST_F(EditorFiles, SavingUnderItsNameGivesTheGameAllButTheSizes) {
  sim.files.Put(kQuiz, "Q1\r\nA1\r\nT#Courier New#28#True#True#16777215#\r\n");
  LoadGameSet(show(), kQuiz);
  show().EditCurrentSet = true;
  OpenEditor();
  EXPECT_EQ(editor().EditFileName + Shown(), kQuiz + "1/1 Q1");
  sim.dialogs.ExpectFont(Font{"Arial", 10.5, false, true});
  editor().btnFont.Click();
  EXPECT_EQ(sim.dialogs.FontStart, (Font{"Courier New", 28, true, true}));
  sim.dialogs.ExpectColor(255);
  editor().btnFontColor.Click();
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(show().GameSet[0].FontName, "Courier New");
  editor().btnSave.Click();
  EXPECT_EQ(show().GameSet[0], (TriviaQuestion{"T", "Q1", "Arial", "28", false, true, "255", "A1"}));
  EXPECT_TRUE(sim.files.Read(kQuiz).starts_with("Q1\r\nA1\r\nT#Arial#10.5#False#True#255#\r\n"));
  editor().btnDefault.Click();
  EXPECT_EQ(editor().txtDisplayQuestion.Font, (Font{"Courier New", 28, true, true}));
  EXPECT_EQ(record(0).FontName, "Arial");
}

TEST_F(EditorFiles, OnlyTheSetThatTheGamePlaysGoesToItAndTheGameKeepsItsPlace) {
  WriteNumberedSet("Quiz", 8);
  WriteNumberedSet("Other", 3);
  Start();
  ChooseSet("Quiz");
  form().btnStart.Click();
  show().state.CurrentQuestion = 2;
  Choose(editor().btnFileOpen, kSets + "Other.txt");
  TypeQuestion("Another set's?");
  editor().btnSave.Click();
  EXPECT_EQ(show().GameSet[0].QuestionText, "Question 1?");

  Choose(editor().btnFileOpen, kSets + "QUIZ.txt");
  editor().btnInsertQuestion.Click();
  TypeQuestion("First of all?");
  editor().btnSave.Click();
  EXPECT_EQ(show().GameSet[0].QuestionText + "/" + std::to_string(show().state.CurrentQuestion), "First of all?/3");
  EXPECT_EQ(show().GameSet[3].QuestionText, "Question 3?") << "the one that was being asked";
  EXPECT_EQ(show().NumGameQuestions, 9);
  GoTo(4);
  TypeQuestion("Question three?");
  editor().btnSave.Click();
  EXPECT_EQ(show().state.CurrentQuestion, 3) << "a new wording leaves the number";
}

TEST_F(EditorFiles, EveryChangeCountsAndIsAskedAbout) {
  const auto kept = [&] { return Letters() + (editor().EditDirty ? " unsaved" : ""); };
  const std::pair<std::function<void()>, const char*> changes[] = {
      {[&] { editor().btnInsertQuestion.Click(); }, " ab unsaved"},
      {[&] {
         sim.dialogs.ExpectMessage("Would you like to delete question 1?", BoxAnswer::Yes);
         editor().btnDeleteQuestion.Click();
       },
       "b unsaved"},
      {[&] {
         sim.dialogs.ExpectMessage("Would you like to delete question 1?", BoxAnswer::No);
         editor().btnDeleteQuestion.Click();
       },
       "ab"},
      {[&] {
         sim.dialogs.ExpectFont(Font{"Arial", 10, false, true});
         editor().btnFont.Click();
       },
       "ab unsaved"},
      {[&] {
         sim.dialogs.ExpectFont(editor().txtDisplayQuestion.Font);
         editor().btnFont.Click();
       },
       "ab"},
      {[&] {
         sim.dialogs.ExpectColor(255);
         editor().btnFontColor.Click();
       },
       "ab unsaved"},
      {[&] {
         sim.dialogs.ExpectColor(kWhite);
         editor().btnFontColor.Click();
       },
       "ab"},
      {[&] {
         record(0).QuestionType = "P";
         editor().btnText.Click();
       },
       "ab unsaved"}};
  for (const auto& [change, left] : changes) {
    OpenEditor("ab");
    record(0).QuestionType = "T";
    change();
    EXPECT_EQ(kept(), left);
  }
  // New and Import take nothing away unasked, and a cancel leaves all as it was.
  for (Button* button : {&editor().btnNewFile, &editor().btnImport}) {
    OpenEditor("ab");
    editor().EditFileName = kQuiz;
    TypeQuestion("Mine");
    for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No}) {
      if (answer == BoxAnswer::No && button == &editor().btnNewFile) continue;
      sim.dialogs.ExpectMessage("Would you like to save the changes you made?", answer);
      if (answer == BoxAnswer::No) sim.dialogs.ExpectFile("");
      button->Click();
      EXPECT_EQ(kept() + Shown() + editor().EditFileName, "Mineb unsaved1/2 Mine" + kQuiz);
    }
  }
}

TEST_F(EditorFiles, ASaveBeforeClosingAsksAboutTheNameWithItsEnding) {
  sim.files.Put(kSets + "Notes.text.txt", "Old\r\nA\r\nT\r\n");
  TypeQuestion("Mine");
  sim.dialogs.ExpectMessage("Would you like to save the changes you made?", BoxAnswer::Yes);
  sim.dialogs.ExpectFile(kSets + "Notes.text");
  sim.dialogs.ExpectMessage("File already exists. Do you want to overwrite?", BoxAnswer::No);
  editor().btnNewFile.Click();
  EXPECT_EQ(OnDisk(kSets + "Notes.text.txt") + Shown(), "Old1/0 Mine");
}

TEST_F(EditorFiles, MediaBelowTheFolderOfSetsAreWrittenWithoutIt) {
  const std::string set = ".\\Media\\Flag.jpg\r\nA\r\nP\r\nD:\\own.wav\r\nA\r\nS\r\n.\\a.jpg\r\nA\r\nT\r\n";
  for (const char* path : {"Media\\Flag.jpg", "new.jpg"}) sim.files.Put(kSets + path, SimPictures::PictureBytes(9, 9));
  for (const char* path : {"D:\\own.wav", "D:\\own.txt"}) sim.files.Put(path, "x");
  // Whatever way the set was read, and wherever it lies.
  for (const std::string& path : {kQuiz, std::string("D:\\own.txt")}) {
    for (const bool current : {true, false}) {
      sim.files.Put(path, set);
      LoadGameSet(show(), path);
      ScanSetForMissingMedia(show());
      show().EditCurrentSet = current;
      OpenEditor();
      if (!current) {
        editor().EditDirty = false;
        Choose(editor().btnFileOpen, path);
      }
      EXPECT_EQ(editor().imgQuestionPicture.Picture.Get(), kSets + "Media\\Flag.jpg");
      editor().txtAnswer.Type("A flag");
      editor().btnSave.Click();
      EXPECT_TRUE(sim.files.Read(path).starts_with(
          ".\\Media\\Flag.jpg\r\nA flag\r\nP\r\nD:\\own.wav\r\nA\r\nS\r\n.\\a.jpg\r\nA\r\nT#"));
      EXPECT_EQ(show().GameSet[0].QuestionText, kSets + "Media\\Flag.jpg") << "the game keeps a path that opens";
    }
  }
  Choose(editor().btnPicture, "c:\\pawnfield/TRIVIA sets\\new.jpg");
  editor().btnSave.Click();
  EXPECT_TRUE(sim.files.Read("D:\\own.txt").starts_with(".\\new.jpg\r\n"));
}

TEST_F(EditorFiles, ThePreviewShowsTheFaceOfTheShow) {
  WriteNumberedSet("Quiz", 4);
  Start();
  ChooseSet("Quiz");
  show().GameSet[1] = {"T", "b", "Arial", "30", false, false, "255", "A"};
  show().GameSet[2] = {"T", "c", "", "30", false, false, "", "A"};
  show().EditCurrentSet = true;
  OpenEditor();
  form().btnStart.Click();
  for (int number = 1; number <= 3; ++number) {
    GoTo(number);
    show().state.CurrentQuestion = number - 1;
    ShowQuestion(show(), number - 1);
    const Font preview = editor().txtDisplayQuestion.Font, shown = form().lblQuestion[0].Font;
    EXPECT_EQ(preview.Name + (preview.Bold ? " bold" : ""), shown.Name + (shown.Bold ? " bold" : "")) << number;
    EXPECT_EQ(editor().txtDisplayQuestion.ForeColor, form().lblQuestion[0].ForeColor) << number;
  }
  show().EditCurrentSet = false;
  OpenEditor();
  EXPECT_EQ(editor().txtDisplayQuestion.Font->Name, "Courier New") << "of a new set too";
}

TEST_F(EditorFiles, UnsavedChangesAreAskedAboutBeforeOpeningAndClosing) {
  sim.files.Put(kQuiz, "Q1\r\nA1\r\nT\r\n");
  // The answer, the file chosen then ("-" for no dialog), whether it goes on, and what is saved.
  const std::tuple<BoxAnswer, std::string, bool, const char*> cases[] = {
      {BoxAnswer::Cancel, "-", false, "none"},
      {BoxAnswer::Yes, "", false, "none"},
      {BoxAnswer::No, "-", true, "none"},
      {BoxAnswer::Yes, kSets + "Kept", true, "Mine"}};
  for (const auto& [answer, file, goesOn, saved] : cases) {
    for (const bool opening : {true, false}) {
      OpenEditor();
      sim.files.Remove(kSets + "Kept.txt");
      editor().EditFileName = kSets + "Mine.txt";
      TypeQuestion("Mine");
      sim.dialogs.ExpectMessage("Would you like to save the changes you made?", answer);
      if (file != "-") sim.dialogs.ExpectFile(file);
      if (opening && goesOn) sim.dialogs.ExpectFile(kQuiz);
      editor().Visible = true;
      opening ? editor().btnFileOpen.Click() : editor().mnuFileExit.Click();
      EXPECT_EQ(opening ? editor().EditFileName == kQuiz : !editor().Visible, goesOn);
      EXPECT_EQ(OnDisk(kSets + "Kept.txt"), saved);
      if (!file.empty()) continue;
      EXPECT_TRUE(Asked().starts_with("Save Trivia Set - " + kSets + "Mine.txt, ")) << Asked();
      EXPECT_EQ(sim.dialogs.FileRequests().back().FileName, "Mine.txt");
    }
  }
  OpenEditor();
  editor().Visible = true;
  editor().mnuFileExit.Click();
  EXPECT_FALSE(editor().Visible);
}

TEST_F(EditorFiles, ImportTakesThirtyRecordsWhateverTheFileHolds) {
  sim.files.Put(kSets + "Panel.txt", PanelSet(10));
  Choose(editor().btnImport, kSets + "Panel.txt");
  EXPECT_EQ(Shown(), "1/30 Q0");
  EXPECT_EQ(record(9), (TriviaQuestion{"T", "Q9", "Arial", "36", false, true, "255", "A"}));
  EXPECT_EQ(record(10).QuestionText, "");
  EXPECT_EQ(Asked(), "Open, Trivia Sets (*.txt)|*.txt, , C:\\Pawnfield\\Trivia Sets");

  sim.files.Put("D:\\Program Files\\Ostara Panel Pro 4\\Ostara Panel Pro 4.exe", "x");
  sim.platform.folders.SystemDrive = "D:";
  editor().EditDirty = false;
  Choose(editor().btnImport, "");
  EXPECT_EQ(sim.dialogs.FileRequests().back().InitialFolder, "D:\\Program Files\\Ostara Panel Pro 4\\Trivia Sets");
  // A file of another form is refused whole: its answers stand where the formats should.
  const std::string own = "Q1\r\nA1\r\nT#Arial#36#True#True#255#\r\n";
  for (const std::string& other :
       {own + own + own, std::string("\r\n\r\n"), std::string(), std::string("One\nTwo\n")}) {
    sim.files.Put(kSets + "Panel.txt", other);
    Choose(editor().btnImport, kSets + "Panel.txt",
           "This file is no trivia set of Ostara Panel. Nothing was imported.");
    EXPECT_EQ(Shown(), "1/30 Q0");
    EXPECT_FALSE(editor().EditDirty);
  }
}

TEST_F(EditorFiles, PicturesAndSoundsTakeThePathAndItsLimit) {
  const auto see = [&](const char* states) { ExpectSeen(show(), states, " a choice", &editor()); };
  const std::string longest = "C:\\" + std::string(249, 'x') + ".jpg";
  sim.files.Put(longest, SimPictures::PictureBytes(100, 200));
  sim.files.Put("C:\\a.wav", "sound");
  for (const std::string& bad : {"C:\\" + std::string(250, 'x') + ".jpg", std::string("C:\\a\rb.jpg")}) {
    Choose(editor().btnPicture, bad,
           bad.size() > 256 ? "File path exceeds 256 characters in length" : "holds a line break");
    EXPECT_FALSE(editor().EditDirty);
  }
  Choose(editor().btnPicture, longest);
  EXPECT_EQ(Asked(), "Open, Picture(*.bmp;*.jpg)|*.bmp;*.jpg, , C:\\Pawnfield");
  see("txtEnterQuestion=- picQuestionPicture=up imgQuestionPicture.Height=7680 frmSoundButtons=- btnFont=on");
  EXPECT_TRUE(editor().EditDirty);
  EXPECT_EQ(editor().imgQuestionPicture.Width.Get(), 3840);
  EXPECT_EQ(record(0).QuestionType + record(0).QuestionText, "P" + longest);
  Choose(editor().btnSound, "C:\\a.wav");
  EXPECT_EQ(sim.dialogs.FileRequests().back().Filter, "Audio(*.wav; *.mp3; *.wma)|*.wav; *.mp3; *.wma");
  see("txtEnterQuestion=- picQuestionPicture=- frmSoundButtons=up btnFont=off");
  EXPECT_EQ(record(0).QuestionType + sim.media.SoundClipPlayer.Url, "SC:\\a.wav");
  editor().btnStop.Click();
  EXPECT_FALSE(sim.media.SoundClipPlayer.Playing);
  Choose(editor().btnPicture, longest);
  see("picQuestionPicture=up frmSoundButtons=-");
  Choose(editor().btnSound, "C:\\a.wav");
  editor().btnText.Click();
  see("txtEnterQuestion= picQuestionPicture=- frmSoundButtons=- btnFont=on");
  TypeQuestion("Words");
  EXPECT_EQ(record(0).QuestionType + record(0).QuestionText, "TWords");

  OpenEditor("ab");
  record(1).QuestionText = "C:\\none.jpg";
  sim.pictures.Slow = true;
  editor().btnForward.Click();
  editor().btnBack.Click();
  // The disk answers when the operator has gone on: no box over another question.
  sim.pictures.Answer();
  sim.pictures.Slow = false;
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
  editor().EditFileName = kSets + "My.Quiz.txt";
  sim.printing.Broken = true;
  sim.dialogs.ExpectMessage("make a note of the following information.\r\nError Number: 482");
  editor().btnPrint.Click();
  sim.printing.Broken = false;
  editor().btnPrint.Click();
  EXPECT_EQ(sim.printing.Printed.back().Title, "My.Quiz");
  record(0).QuestionText = "D:\\Shows\\Pics\\dog.jpg";
  editor().btnPrint.Click();
  EXPECT_EQ(sim.printing.Printed.back().Blocks[1][0], "1. dog.jpg");
}

TEST_F(EditorFiles, TheConsoleAsksWhichSetToEdit) {
  form().cboList.List = {"Select Game Set"};
  EditChoiceForm& choice = show().frmEditChoice;
  for (Button* button : {&choice.btnCurrent, &choice.New, static_cast<Button*>(nullptr)}) {
    form().cboList.ListIndex = button != nullptr ? 0 : -1;
    if (button != nullptr) sim.dialogs.ExpectForm("frmEditChoice", [button] { button->Click(); });
    sim.dialogs.ExpectForm("frmEditor", [&] { editor().mnuFileExit.Click(); });
    form().btnStartGame.Click();
    EXPECT_EQ(show().EditCurrentSet, button == &choice.btnCurrent);
  }
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
  EXPECT_EQ(record(0).FontName + record(0).FontColor, "Courier New16777215");
}

}  // namespace
}  // namespace pawnfield
