// The editor's list of all questions, and what Undo and Redo bring back, worked by the form's controls.
#include "sets/editor_list.h"

#include "forms/editor_form.h"
#include "sets/editor_history.h"
#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

class EditorList : public EditorFixture, public testing::Test {
 protected:
  // The set as the letters of its questions, open in the editor and saved.
  void Open(const std::string& letters) {
    OpenEditor(letters);
    editor::BeginHistory(show());
  }
  // What an operator does, a word each; the names of buttons and the rows of the list.
  void Do(const std::string& steps) {
    std::istringstream words(steps);
    for (std::string word; words >> word;) {
      std::string argument;
      if (word == "row" || word == "type" || word == "answer" || word == "find") words >> argument;
      if (word == "row") editor().lstQuestions.Select(std::stoi(argument) - 1);
      if (word == "type") editor().txtEnterQuestion.Type(argument == "-" ? "" : argument);
      if (word == "answer") editor().txtAnswer.Type(argument);
      if (word == "find") editor().txtFind.Type(argument == "-" ? "" : argument);
      if (word == "delete") editor().lstQuestions.Delete();
      if (word == "duplicate") editor().lstQuestions.Duplicate();
      if (word == "undo") editor().btnUndo.Click();
      if (word == "redo") editor().mnuEditRedo.Click();
      if (word == "next") editor().btnNext.Click();
      if (word == "forward") editor().btnForward.Click();
      if (word == "insert") editor().btnInsertQuestion.Click();
      if (word == "again") editor().btnFindNext.Click();
      if (word == "drag") {
        int from = 0, to = 0;
        words >> from >> to;
        editor().lstQuestions.Move(from - 1, to - 1);
      }
    }
  }
  // The list's rows as the operator reads them, the shown one in brackets.
  std::string Listed() {
    std::string text;
    const auto& rows = editor().lstQuestions.ListItems.Get();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const std::string words = rows[i][2].empty() ? "_" : rows[i][2];
      text += editor().lstQuestions.SelectedItem == static_cast<int>(i) ? "[" + words + "]" : words;
    }
    return text;
  }
};

TEST_F(EditorList, EachChangeMovesTheListAndUndoBringsItBackAndRedoAgain) {
  // The set, what is done, what stands then, and what Undo is called.
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"abcd", "drag 1 3", "bc[a]d", "Undo: Move question 1 to 3"},
      {"abcd", "drag 4 1", "[d]abc", "Undo: Move question 4 to 1"},
      {"abcd", "row 2 delete", "a[c]d", "Undo: Delete question 2"},
      {"abcd", "row 4 delete", "ab[c]", "Undo: Delete question 4"},
      {"a", "delete", "[_]", "Undo: Delete question 1"},
      {"abcd", "row 2 duplicate", "ab[b]cd", "Undo: Duplicate question 2"},
      {"abcd", "row 3 insert", "ab[_]cd", "Undo: Insert question 3"},
      {"abcd", "row 3 type new", "ab[new]d", "Undo: Wording of question 3"},
      // A wording is one step however many letters it took, and what is written after a look elsewhere is another.
      {"ab", "type n type ne type new", "[new]b", "Undo: Wording of question 1"},
      {"ab", "next type x next type new", "ax[new]", "Undo: Wording of question 3"},
  };
  for (const auto& [set, done, listed, undo] : cases) {
    Open(set);
    const std::string before = Letters();
    Do(done);
    EXPECT_EQ(Listed(), listed) << done;
    EXPECT_EQ(editor().btnUndo.ToolTipText, undo) << done;
    EXPECT_TRUE(editor().EditDirty) << done;
    const std::string after = Letters();
    while (editor().btnUndo.Enabled) Do("undo");
    EXPECT_EQ(Letters(), before) << "undone " << done;
    EXPECT_FALSE(editor().EditDirty) << "undone " << done;
    while (editor().btnRedo.Enabled) Do("redo");
    EXPECT_EQ(Letters(), after) << "again " << done;
    EXPECT_TRUE(editor().EditDirty);
  }
}

TEST_F(EditorList, UndoGoesToTheQuestionAndANewChangeEndsRedo) {
  Open("abcd");
  Do("row 3 type new row 1 type old row 4 undo");
  EXPECT_EQ(Listed(), "[a]bnewd");
  EXPECT_EQ(editor().mnuEditRedo.Caption, "&Redo: Wording of question 1");
  Do("undo");
  EXPECT_EQ(Listed(), "ab[c]d");
  EXPECT_EQ(editor().txtEnterQuestion.Text, "c");
  Do("type other");
  EXPECT_FALSE(editor().btnRedo.Enabled || editor().mnuEditRedo.Enabled);
  Do("undo");
  EXPECT_EQ(Letters(), "abcd");
}

TEST_F(EditorList, TheQuestionBeforeACloseNamesWhatIsNotSaved) {
  const auto asked = [this] {
    std::string text;
    sim.dialogs.ExpectMessage("Would you like to save the changes you made?", BoxAnswer::Cancel);
    editor().mnuFileExit.Click();
    return editor::UnsavedLines(show(), 3);
  };
  Open("abcd");
  Do("row 2 type new answer yes drag 1 4");
  EXPECT_EQ(asked(), "\r\nWording of question 2\r\nAnswer of question 2\r\nMove question 1 to 4");
  Do("delete");
  EXPECT_EQ(asked(), "\r\nWording of question 2\r\nAnswer of question 2\r\nMove question 1 to 4\r\nand 1 more");
  sim.dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Mine.txt");
  editor().btnSave.Click();
  EXPECT_FALSE(editor().EditDirty);
  EXPECT_EQ(editor::UnsavedLines(show(), 3), "");
  Do("undo");
  EXPECT_TRUE(editor().EditDirty) << "the file holds what was undone";
  EXPECT_EQ(asked(), "\r\nUndone: Delete question 4");
  Do("redo");
  EXPECT_FALSE(editor().EditDirty);
  // What was saved is out of reach once another change takes its place.
  Do("undo type x undo");
  EXPECT_TRUE(editor().EditDirty);
}

TEST_F(EditorList, WhatTheCheckFindsStandsInTheListOnceABoxIsLeft) {
  Open("abc");
  const auto found = [this](std::size_t row) { return editor().lstQuestions.ListItems.Get()[row][4]; };
  EXPECT_EQ(found(0) + "|" + found(2), "No answer|No answer");
  Do("answer yes");
  EXPECT_EQ(found(0), "No answer") << "the box is not left yet";
  editor().txtAnswer.LoseFocus();
  EXPECT_EQ(found(0), "");
  Do("row 3 answer yes type a row 2");
  EXPECT_EQ(found(2), "The same as question 1");
  Do("undo undo row 1");
  EXPECT_EQ(found(2), "No answer");

  // What the disk says of a file is listed when it comes, and anew of one that is chosen again.
  const std::string torn = "C:\\m\\torn.jpg";
  sim.files.Put(torn, "no picture");
  sim.pictures.Slow = true;
  OpenEditor("abc");
  record(0).QuestionText = torn;
  record(1).QuestionText = "C:\\m\\lost.wav";
  editor::BeginHistory(show());
  EXPECT_EQ(found(0) + "|" + found(1), "No answer|No such file, or no sound; No answer");
  sim.pictures.Answer();
  EXPECT_EQ(found(0) + "|" + found(2), "No picture, or too large a one; No answer|No answer");
  sim.files.Put(torn, SimPictures::PictureBytes(400, 300));
  sim.dialogs.ExpectFile(torn);
  editor().btnPicture.Click();
  sim.pictures.Answer();
  EXPECT_EQ(found(0), "No answer");
}

TEST_F(EditorList, AQuestionLeftUnwrittenIsGoneFromTheList) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"abcd", "row 2 insert row 5", "abc[d]"},
      {"abcd", "row 2 insert row 1", "[a]bcd"},
      {"ab", "row 2 next row 1", "[a]b"},
      {"ab", "row 2 next answer yes row 1", "[a]b_"},
      {"ab", "row 9", "[a]b"},
  };
  for (const auto& [set, done, listed] : cases) {
    Open(set);
    Do(done);
    EXPECT_EQ(Listed(), listed) << done;
    EXPECT_TRUE(editor().btnNext.Enabled && editor().btnSave.Enabled) << done;
  }
}

TEST_F(EditorList, FindGoesFromHereOnAndRoundAndReadsAnswersToo) {
  Open("abcd");
  for (std::size_t i = 0; i < 4; ++i) record(i).AnswerText = i % 2 == 1 ? "The River" : "Hill";
  Do("find RIVER");
  EXPECT_EQ(Listed() + editor().lblFound.Caption.Get(), "a[b]cd1 of 2");
  Do("again");
  EXPECT_EQ(Listed() + editor().lblFound.Caption.Get(), "abc[d]2 of 2");
  Do("again");
  EXPECT_EQ(Listed() + editor().lblFound.Caption.Get(), "a[b]cd1 of 2");
  Do("find sea");
  EXPECT_EQ(Listed() + editor().lblFound.Caption.Get(), "a[b]cdNot found");
  Do("find -");
  EXPECT_EQ(editor().lblFound.Caption, "");
  EXPECT_FALSE(editor().btnFindNext.Enabled || editor().EditDirty);
}

TEST_F(EditorList, AFullSetTakesNoCopyAndAnImportIsOneStep) {
  Open(std::string(100, 'q'));
  EXPECT_FALSE(editor().btnDuplicateQuestion.Enabled || editor().mnuEditDuplicate.Enabled);
  Do("duplicate");
  EXPECT_EQ(Letters().size(), 100u);

  Open("ab");
  editor().SetFile("C:\\Mine.txt");
  editor::BeginHistory(show());
  std::string bytes;
  for (int i = 0; i < 30; ++i) bytes += std::string(i % 5 == 0 ? "Heading\r\n" : "") + "Q\r\nA\r\nskipped\r\nT\r\n";
  sim.files.Put("C:\\Other.txt", bytes);
  sim.dialogs.ExpectFile("C:\\Other.txt");
  editor().btnImport.Click();
  EXPECT_EQ(Letters() + editor().EditFileName, std::string(30, 'Q'));
  Do("undo");
  EXPECT_EQ(Letters() + editor().EditFileName, "abC:\\Mine.txt");
  EXPECT_FALSE(editor().EditDirty);
}

}  // namespace
}  // namespace pawnfield
