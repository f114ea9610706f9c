#include "forms/editor_form.h"
#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

std::string Long(int count, int blank = 0) {
  std::string letters(static_cast<std::size_t>(count), 'q');
  if (blank > 0) letters[static_cast<std::size_t>(blank) - 1] = ' ';
  return letters;
}

TEST(EditorNavigation, EveryButtonAtEveryEdge) {
  EditorFixture fixture;
  const std::string n14 = "abcdefghijklmn", n99 = Long(99), n100 = Long(100);
  const std::string blankEnd = Long(100, 100), blankMiddle = Long(30, 15);
  // The questions' letters, where the editor stands, the buttons, and for each what it shows then.
  using Shown = std::vector<std::pair<const char*, const char*>>;
  const std::tuple<std::string, int, Shown> cases[] = {
      {"", 1, {{"Back", "1/0 "}, {"Back10", "1/0 "}, {"Forward", "1/0 "}, {"Forward10", "1/0 "}, {"Next", "1/0 "}}},
      {"a", 1, {{"Back", "1/1 a"}, {"Back10", "1/1 a"}, {"Forward", "1/1 a"}, {"Next", "2/2 "}}},
      {"abcde", 1, {{"Back", "5/5 e"}}},
      {"abcde", 2, {{"Back", "1/5 a"}, {"Next", "3/5 c"}}},
      {"abcde", 5, {{"Forward", "1/5 a"}}},
      {n14, 11, {{"Back10", "1/14 a"}}},
      {n14, 10, {{"Back10", "1/14 a"}}},
      {n14, 4, {{"Forward10", "14/14 n"}}},
      {n14, 5, {{"Forward10", "14/14 n"}}},
      {n99, 99, {{"Next", "100/100 "}, {"Forward", "1/99 q"}}},
      {n100, 100, {{"Next", "1/100 q"}, {"Forward", "1/100 q"}, {"Back10", "90/100 q"}}},
      {n100, 95, {{"Forward10", "100/100 q"}}},
      // A blank question that is left counts no more, but for Forward 10 and for Forward to the next one.
      {"abc ", 4, {{"Back", "3/3 c"}, {"Forward", "1/3 a"}, {"Next", "4/4 "}, {"Back10", "1/3 a"}}},
      {"abc ", 4, {{"Forward10", "4/4 "}}},
      {"a cd", 2, {{"Back", "1/3 a"}, {"Forward", "3/4 c"}, {"Next", "2/4 "}}},
      {" bcd", 1, {{"Back", "3/3 c"}, {"Back10", "1/3 "}}},
      {blankMiddle, 15, {{"Back10", "5/29 q"}, {"Forward10", "25/30 q"}}},
      {blankEnd, 100, {{"Next", "100/100 "}, {"Forward", "1/99 q"}, {"Back", "99/99 q"}}}};
  for (const auto& [letters, from, buttons] : cases) {
    for (const auto& [button, shown] : buttons) {
      fixture.OpenEditor(letters);
      if (!letters.empty()) fixture.GoTo(from);
      fixture.editor().Find(std::string("btn") + button)->Click();
      EXPECT_EQ(fixture.Shown(), shown) << button << " from " << from << " of " << letters;
    }
  }
}

TEST(EditorNavigation, InsertAndDeleteMoveWholeRecords) {
  EditorFixture fixture;
  EditorForm& editor = fixture.editor();
  const std::string n100 = Long(100), n99 = Long(99);
  const std::tuple<std::string, int, Button*, std::string, const char*> cases[] = {
      {"abc", 2, &editor.btnInsertQuestion, "a bc", "2/4 "}, {"abc", 1, &editor.btnInsertQuestion, " abc", "1/4 "},
      {"abc", 3, &editor.btnInsertQuestion, "ab c", "3/4 "}, {"", 1, &editor.btnInsertQuestion, "", "1/0 "},
      {"abc", 4, &editor.btnInsertQuestion, "abc", "4/3 "},  {n99, 1, &editor.btnInsertQuestion, " " + n99, "1/100 "},
      {n100, 5, &editor.btnInsertQuestion, n100, "5/100 q"}, {"abc", 2, &editor.btnDeleteQuestion, "ac", "2/2 c"},
      {"abc", 3, &editor.btnDeleteQuestion, "ab", "2/2 b"},  {"abc", 4, &editor.btnDeleteQuestion, "abc", "4/3 "},
      {"", 1, &editor.btnDeleteQuestion, "", "1/0 "},        {n100, 100, &editor.btnDeleteQuestion, n99, "99/99 q"}};
  for (const auto& [letters, from, button, after, shown] : cases) {
    fixture.OpenEditor(letters);
    fixture.GoTo(from);
    const bool deletes = button == &editor.btnDeleteQuestion && from <= static_cast<int>(letters.size());
    if (deletes) fixture.sim.dialogs.ExpectMessage("Would you like to delete question", BoxAnswer::Yes);
    button->Click();
    EXPECT_EQ(fixture.Letters() + "|" + fixture.Shown(), after + "|" + shown) << button->Name() << " " << from;
    EXPECT_EQ(editor.EditDirty, fixture.Letters() != letters);
  }
  fixture.OpenEditor("");
  editor.txtEnterQuestion.Type("new");
  editor.btnInsertQuestion.Click();
  EXPECT_EQ(fixture.Shown() + "|" + fixture.record(1).QuestionText, "1/2 |new") << "the only question of a new set";
  fixture.OpenEditor("abc");
  fixture.record(1).FontName = "Own";
  fixture.GoTo(2);
  editor.ActiveControl = &editor.btnInsertQuestion;
  editor.btnInsertQuestion.Click();
  EXPECT_EQ(editor.ActiveControl, &editor.txtEnterQuestion) << "the next letters are a wording";
  EXPECT_EQ(fixture.record(1).QuestionType + fixture.record(1).FontName, "TCourier New");
  EXPECT_EQ(fixture.record(2).FontName, "Own");
  EXPECT_FALSE(editor.btnNext.Enabled || editor.mnuFileSave.Enabled);
  editor.txtAnswer.Type("x");
  EXPECT_TRUE(editor.btnNext.Enabled);
}

TEST(EditorNavigation, WhatTheSetDoesNotHaveIsReportedAndLeavesAnEmptyEditorThatWorks) {
  EditorFixture fixture;
  fixture.OpenEditor("a");
  fixture.sim.dialogs.ExpectMessage("Would you like to delete question 1?", BoxAnswer::Yes);
  fixture.sim.dialogs.ExpectMessage("Error Number: 9\r\nDescription: Subscript out of range\r\nLocation: frmEditor");
  fixture.editor().btnDeleteQuestion.Click();
  EXPECT_EQ(fixture.Shown(), "1/0 ");
  EXPECT_TRUE(fixture.editor().btnFileOpen.Enabled);
  fixture.editor().txtEnterQuestion.Type("new");
  fixture.editor().btnNext.Click();
  EXPECT_EQ(fixture.Shown(), "2/2 ");

  // An answer alone frees the buttons, and the only question then drops out under the step back.
  fixture.OpenEditor("a");
  fixture.editor().txtAnswer.Type("answer");
  fixture.editor().txtEnterQuestion.Type("");
  fixture.sim.dialogs.ExpectMessage("Procedure: btnBack_Click");
  fixture.editor().btnBack.Click();
  EXPECT_EQ(fixture.Shown(), "1/0 ");
}

TEST(EditorNavigation, ABlankQuestionBlocksAllButTheWayBack) {
  EditorFixture fixture;
  EditorForm& editor = fixture.editor();
  for (const char* before : {"C:\\tune.wav", "C:\\flag.jpg", "words"}) {
    fixture.sim.files.Put("C:\\flag.jpg", SimPictures::PictureBytes(9, 9));
    fixture.OpenEditor("abc");
    fixture.record(0).QuestionText = before;
    fixture.record(1).QuestionText.clear();
    fixture.GoTo(1);
    editor.btnForward.Click();
    EXPECT_TRUE(editor.btnBack.Enabled && !editor.btnForward.Enabled && !editor.btnSave.Enabled) << "behind " << before;
    EXPECT_TRUE(editor.txtEnterQuestion.Visible);
  }
  fixture.OpenEditor("a");
  editor.btnNext.Click();
  EXPECT_EQ(editor.ActiveControl, &editor.txtEnterQuestion);
  std::string enabled;
  for (const Control* control : editor.Controls()) {
    const bool acts = control->Kind() == ControlKind::Button || control->Kind() == ControlKind::Menu;
    if (acts && control->Enabled) enabled += control->Name() + " ";
  }
  EXPECT_EQ(
      enabled,
      "mnuFile mnuImport mnuExport mnuPackSet mnuFileExit mnuEdit mnuEditFind btnText btnPicture btnSound btnFont "
      "btnFontColor btnDefault btnPlay btnStop btnBack btnDeleteQuestion ");
  editor.txtEnterQuestion.Type("   ");
  EXPECT_FALSE(editor.btnSave.Enabled);
  editor.txtEnterQuestion.Type(" x ");
  EXPECT_TRUE(editor.btnSave.Enabled);
  EXPECT_EQ(fixture.record(1).QuestionText, "x");
}

}  // namespace
}  // namespace pawnfield
