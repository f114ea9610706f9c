#include "forms/editor_form.h"
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

TEST_F(EditorFiles, WhatCannotBeSavedOrReadIsToldAndNothingIsLost) {
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
  Choose(editor().btnFileOpen, kSets + "gone.txt", "Procedure: OpenFile");
  EXPECT_EQ(Shown() + editor().EditFileName, "1/0 ") << "not to be written over by an empty set";
  EXPECT_TRUE(editor().btnFileOpen.Enabled);
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
  EXPECT_FALSE(editor().EditDirty);
  EXPECT_EQ(show().GameSet[0].FontName, "Courier New");
  editor().btnSave.Click();
  EXPECT_EQ(show().GameSet[0], (TriviaQuestion{"T", "Q1", "Arial", "28", false, true, "255", "A1"}));
  EXPECT_TRUE(sim.files.Read(kQuiz).starts_with("Q1\r\nA1\r\nT#Arial#10.5#False#True#255#\r\n"));
  editor().btnDefault.Click();
  EXPECT_EQ(editor().txtDisplayQuestion.Font, (Font{"Courier New", 28, true, true}));
  EXPECT_EQ(record(0).FontName, "Arial");
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
  std::string bytes;
  for (int i = 0; i < 10; ++i) {
    bytes += std::string(i % 5 == 0 ? "Heading\r\n" : "") + "Q" + std::to_string(i) +
             "\r\nA\r\nskipped\r\nT#Arial#36#False#True#255#\r\n";
  }
  sim.files.Put(kSets + "Panel.txt", bytes);
  Choose(editor().btnImport, kSets + "Panel.txt");
  EXPECT_EQ(Shown(), "1/30 Q0");
  EXPECT_EQ(record(9), (TriviaQuestion{"T", "Q9", "Arial", "36", false, true, "255", "A"}));
  EXPECT_EQ(record(10).QuestionText, "");
  EXPECT_EQ(Asked(), "Open, Trivia Sets (*.txt)|*.txt, , C:\\Pawnfield\\Trivia Sets");

  sim.files.Put("D:\\Program Files\\Ostara Panel Pro 4\\Ostara Panel Pro 4.exe", "x");
  sim.platform.folders.SystemDrive = "D:";
  Choose(editor().btnImport, "");
  EXPECT_EQ(sim.dialogs.FileRequests().back().InitialFolder, "D:\\Program Files\\Ostara Panel Pro 4\\Trivia Sets");
  EXPECT_EQ(Shown() + record(0).QuestionText, "1/0 ");
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
  EXPECT_EQ(sim.printing.Printed.back().Title, "My");
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
