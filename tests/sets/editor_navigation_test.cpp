#include <gtest/gtest.h>

#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

struct Step {
  const char* letters;
  int from;
  const char* button;
  const char* shown;
};

std::string Long(int count, int blank = 0) {
  std::string letters(static_cast<std::size_t>(count), 'q');
  if (blank > 0) letters[static_cast<std::size_t>(blank) - 1] = ' ';
  return letters;
}

TEST(EditorNavigation, EveryButtonAtEveryEdge) {
  EditorFixture fixture;
  const std::string n99 = Long(99), n100 = Long(100), blankEnd = Long(100, 100), blankMiddle = Long(30, 15);
  const Step steps[] = {
      {"", 1, "btnBack", "1/0 "},
      {"", 1, "btnBack10", "1/0 "},
      {"", 1, "btnForward", "1/0 "},
      {"", 1, "btnForward10", "1/0 "},
      {"", 1, "btnNext", "1/0 "},
      {"a", 1, "btnBack", "1/1 a"},
      {"a", 1, "btnBack10", "1/1 a"},
      {"a", 1, "btnForward", "1/1 a"},
      {"a", 1, "btnForward10", "1/1 a"},
      {"a", 1, "btnNext", "2/2 "},
      {"abcde", 1, "btnBack", "5/5 e"},
      {"abcde", 2, "btnBack", "1/5 a"},
      {"abcde", 5, "btnForward", "1/5 a"},
      {"abcde", 4, "btnForward", "5/5 e"},
      {"abcde", 2, "btnNext", "3/5 c"},
      {"abcdefghijklmn", 11, "btnBack10", "1/14 a"},
      {"abcdefghijklmn", 12, "btnBack10", "2/14 b"},
      {"abcdefghijklmn", 10, "btnBack10", "1/14 a"},
      {"abcdefghijklmn", 4, "btnForward10", "14/14 n"},
      {"abcdefghijklmn", 5, "btnForward10", "14/14 n"},
      {"abcdefghijklmn", 3, "btnForward10", "13/14 m"},
      {n99.c_str(), 99, "btnNext", "100/100 "},
      {n99.c_str(), 99, "btnForward", "1/99 q"},
      {n99.c_str(), 1, "btnBack", "99/99 q"},
      {n99.c_str(), 89, "btnForward10", "99/99 q"},
      {n100.c_str(), 100, "btnNext", "1/100 q"},
      {n100.c_str(), 99, "btnForward", "100/100 q"},
      {n100.c_str(), 100, "btnForward", "1/100 q"},
      {n100.c_str(), 1, "btnBack", "100/100 q"},
      {n100.c_str(), 95, "btnForward10", "100/100 q"},
      {n100.c_str(), 100, "btnBack10", "90/100 q"},
      // A blank question that is left counts no more, but for Forward 10 and for Forward to the next one.
      {"abc ", 4, "btnBack", "3/3 c"},
      {"abc ", 4, "btnForward", "1/3 a"},
      {"abc ", 4, "btnNext", "4/4 "},
      {"abc ", 4, "btnBack10", "1/3 a"},
      {"abc ", 4, "btnForward10", "4/4 "},
      {"a cd", 2, "btnBack", "1/3 a"},
      {"a cd", 2, "btnForward", "3/4 c"},
      {"a cd", 2, "btnNext", "2/4 "},
      {" bcd", 1, "btnBack", "3/3 c"},
      {" bcd", 1, "btnBack10", "1/3 "},
      {blankMiddle.c_str(), 15, "btnBack10", "5/29 q"},
      {blankMiddle.c_str(), 15, "btnForward10", "25/30 q"},
      {blankEnd.c_str(), 100, "btnNext", "100/100 "},
      {blankEnd.c_str(), 100, "btnForward", "1/99 q"},
      {blankEnd.c_str(), 100, "btnBack", "99/99 q"},
  };
  for (const Step& step : steps) {
    fixture.OpenEditor(step.letters);
    if (*step.letters != '\0') fixture.GoTo(step.from);
    fixture.editor().Find(step.button)->Click();
    EXPECT_EQ(fixture.Shown(), step.shown) << step.button << " from " << step.from << " of " << step.letters;
  }
}

TEST(EditorNavigation, InsertAndDeleteMoveWholeRecords) {
  EditorFixture fixture;
  const std::string n100 = Long(100), n99 = Long(99);
  const struct {
    const char* letters;
    int from;
    const char* button;
    std::string after;
    const char* shown;
  } cases[] = {
      {"abc", 2, "btnInsertQuestion", "a bc", "2/4 "},
      {"abc", 1, "btnInsertQuestion", " abc", "1/4 "},
      {"abc", 3, "btnInsertQuestion", "ab c", "3/4 "},
      {"", 1, "btnInsertQuestion", "", "1/0 "},
      {"abc", 4, "btnInsertQuestion", "abc", "4/3 "},
      {n99.c_str(), 1, "btnInsertQuestion", " " + n99, "1/100 "},
      {n100.c_str(), 5, "btnInsertQuestion", n100, "5/100 q"},
      {"abc", 2, "btnDeleteQuestion", "ac", "2/2 c"},
      {"abc", 3, "btnDeleteQuestion", "ab", "2/2 b"},
      {"abc", 1, "btnDeleteQuestion", "bc", "1/2 b"},
      {"abc", 4, "btnDeleteQuestion", "abc", "4/3 "},
      {"", 1, "btnDeleteQuestion", "", "1/0 "},
      {n100.c_str(), 100, "btnDeleteQuestion", n99, "99/99 q"},
  };
  for (const auto& each : cases) {
    fixture.OpenEditor(each.letters);
    fixture.record(0).FontName = "Own";
    fixture.GoTo(each.from);
    fixture.editor().Find(each.button)->Click();
    EXPECT_EQ(fixture.Letters(), each.after) << each.button << " " << each.from;
    EXPECT_EQ(fixture.Shown(), each.shown) << each.button << " " << each.from;
    EXPECT_FALSE(fixture.editor().EditDirty);
  }
  fixture.OpenEditor("abc");
  fixture.record(1).FontName = "Own";
  fixture.GoTo(2);
  fixture.editor().btnInsertQuestion.Click();
  EXPECT_EQ(fixture.record(1).FontName, "Courier New");
  EXPECT_EQ(fixture.record(1).QuestionType, "T");
  EXPECT_EQ(fixture.record(2).FontName, "Own");
  EXPECT_FALSE(fixture.editor().btnNext.Enabled);
  EXPECT_FALSE(fixture.editor().mnuFileSave.Enabled);
  fixture.editor().txtAnswer.Type("x");
  EXPECT_TRUE(fixture.editor().btnNext.Enabled);
}

TEST(EditorNavigation, WhatTheSetDoesNotHaveIsToldAndLeavesAnEmptyEditorThatWorks) {
  EditorFixture fixture;
  fixture.OpenEditor("a");
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
  fixture.OpenEditor("a");
  fixture.editor().btnNext.Click();
  EXPECT_TRUE(fixture.editor().btnBack.Enabled);
  EXPECT_EQ(fixture.editor().ActiveControl, &fixture.editor().txtEnterQuestion);
  for (const char* name : {"btnImport", "btnInsertQuestion", "btnBack10", "btnForward", "btnForward10", "btnNext",
                           "btnNewFile", "btnFileOpen", "btnSave", "btnSaveAs", "btnPrint", "mnuFileNew", "mnuFileOpen",
                           "mnuFileSave", "mnuSaveAs", "mnuFilePrint"}) {
    EXPECT_FALSE(fixture.editor().Find(name)->Enabled) << name;
  }
  fixture.editor().txtEnterQuestion.Type("   ");
  EXPECT_FALSE(fixture.editor().btnSave.Enabled);
  fixture.editor().txtEnterQuestion.Type(" x ");
  EXPECT_TRUE(fixture.editor().btnSave.Enabled);
  EXPECT_EQ(fixture.record(1).QuestionText, "x");
}

}  // namespace
}  // namespace pawnfield
