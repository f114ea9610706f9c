// Questions out of sheets: what the preview says of each row, what is taken, and what an export gives back.
#include "sets/question_import.h"

#include "forms/editor_form.h"
#include "forms/import_form.h"
#include "platform/escapes.h"
#include "sets/editor_history.h"
#include "sets/set_parser.h"
#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

const std::string kSheet = "C:\\Quizzes\\Quiz.xlsx";
const std::string kAlpha = EscapeOf(0x3B1), kAlef = EscapeOf(0x5D0), kBreak = EscapeOf('\n'), kBlank = EscapeOf(' ');

std::string Repeat(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(QuestionImport, FindsTheColumnsByTheirHeadingOrAsTheyWereTheLastTime) {
  const std::tuple<Sheet, const char*, ImportColumns> cases[] = {
      {{{"No.", "QUESTION", "Points", "Answer "}, {"1", "Who?", "5", "Me"}}, "0,1,0", {1, 3, true}},
      {{{"Answers", "Questions"}, {"Me", "Who?"}}, "", {1, 0, true}},
      {{{"Who?", "Me"}}, "", {0, 1, false}},
      {{{"Who?"}}, "", {0, -1, false}},
      {{{"5", "Me", "Who?"}}, "2,1,0", {2, 1, false}},
      {{{"5", "Who?"}}, "1,-1,1", {1, -1, true}},
      // What was remembered of a wider sheet, or is no choice at all, counts for nothing.
      {{{"Who?", "Me"}}, "4,1,0", {0, 1, false}},
      {{{"Who?", "Me"}}, "-1,1,0", {0, 1, false}},
      {{{"Who?", "Me"}}, "1,0", {0, 1, false}},
      {{}, "1,0,0", {0, -1, false}},
  };
  for (const auto& [sheet, remembered, found] : cases) {
    const ImportColumns columns = GuessColumns(sheet, remembered);
    EXPECT_EQ(ColumnsText(columns), ColumnsText(found)) << remembered << (sheet.empty() ? "" : sheet[0][0]);
  }
  EXPECT_EQ(ColumnNames({{"Question", ""}, {"a", "b", "c"}}), (std::vector<std::string>{"A: Question", "B", "C"}));
}

TEST(QuestionImport, EachRowIsTakenWholeOrLeftOutWithItsReason) {
  const std::tuple<std::string, std::string, const char*> cases[] = {
      {"Who?", "Me", ""},
      {std::string(256, 'q'), std::string(174, 'a'), ""},
      {std::string(257, 'q'), "Me", "Question too long: 257 bytes, 256 fit"},
      {"Who?", std::string(175, 'a'), "Answer too long: 175 bytes, 174 fit"},
      // A letter of another alphabet takes five bytes of the file.
      {Repeat(kAlpha, 51), "Me", ""},
      {Repeat(kAlpha, 52), "Me", "Question too long: 260 bytes, 256 fit"},
      {"", "Me", "No question"},
      {"   ", "Me", "No question"},
      {"Who?", "", ""},
  };
  for (const auto& [question, answer, problem] : cases) {
    const auto rows = ReadQuestions({{question, answer}}, {}, 1, [](const std::string& name) { return name; });
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].Problem, problem) << question.size();
  }
  // Blank rows are none, rows are counted as the spreadsheet does, and what is left out takes no room.
  const Sheet sheet{{"Question", "Answer"}, {"a", "1"}, {"", " "}, {"", "2"}, {"b", "3"}, {"c", "4"}};
  const auto rows = ReadQuestions(sheet, {0, 1, true}, 2, [](const std::string& name) { return name; });
  std::string read;
  for (const ImportRow& row : rows) {
    read += std::to_string(row.Row) + row.Question.QuestionText + (row.Problem.empty() ? "+ " : "- ");
  }
  EXPECT_EQ(read, "2a+ 4- 5b+ 6c- ");
  EXPECT_EQ(rows.back().Problem, "The set is full: 101 questions");
}

TEST(QuestionImport, AnExportGivesBackEachCellAlsoThroughASavedFile) {
  const Sheet sheet{{"Question", "Answer"},
                    {"\"Who\", she said; 'what'?", "#1\t#2"},
                    {"Two" + kBreak + "lines", kAlpha + kAlef},
                    {"  blanks ", " at the ends  "},
                    {"No answer", ""},
                    {"dog.jpg", "A dog"},
                    {"D:\\Sounds\\tune.mp3", "A tune"}};
  const auto same = [](const std::string& name) { return name; };
  TriviaSet set;
  const auto rows = ReadQuestions(sheet, {0, 1, true}, kSetCapacity, same);
  for (std::size_t i = 0; i < rows.size(); ++i) set[i] = rows[i].Question;
  EXPECT_EQ(set[4].QuestionType + set[5].QuestionType + set[0].QuestionType, "PST");
  EXPECT_EQ(WriteQuestions(set, same), sheet);
  TriviaSet read;
  ParseSet(FormatSet(set), read);
  EXPECT_EQ(WriteQuestions(read, same), sheet);
}

class ImportPreview : public EditorFixture, public testing::Test {
 protected:
  // The preview is open while the routine runs.
  void Import(const Sheet& sheet, const std::function<void(ImportForm&)>& look) {
    sim.sheets.Sheets[kSheet] = sheet;
    sim.dialogs.ExpectFile(kSheet);
    sim.dialogs.ExpectForm("frmImport", [this, look] {
      look(show().frmImport);
      if (show().frmImport.Visible) show().frmImport.btnCancel.Click();
    });
    editor().mnuImport.Click();
  }
  static std::string Checks(const ImportForm& form) {
    std::string text;
    for (const auto& row : form.lstRows.ListItems.Get()) text += row[0] + row[2] + ":" + row[4] + "|";
    return text + form.lblSummary.Caption.Get() + "|" + form.btnTake.Caption.Get();
  }
};

TEST_F(ImportPreview, ThePreviewFollowsTheChoicesAndImportTakesWhatFits) {
  OpenEditor("abc");
  editor::BeginHistory(show());
  const Sheet sheet{{"Me", "Who?", "x"}, {"You", "", "y"}, {"He", "Where?", "z"}};
  Import(sheet, [](ImportForm& form) {
    EXPECT_EQ(form.lblFile.Caption, "Quiz.xlsx, 3 rows");
    EXPECT_EQ(Checks(form), "1Me:|2You:|3He:|All rows fit.|Import 3 Questions");
    form.cboQuestion.Select(1);
    form.cboAnswer.Select(1);
    EXPECT_EQ(Checks(form),
              "1Who?:|2:No question|3Where?:|1 of 3 rows can't be taken and are left out.|"
              "Import 2 Questions");
    EXPECT_EQ(form.lstRows.ListItems.Get()[2][3], "He");
    form.chkHeading.Click();
    EXPECT_EQ(form.btnTake.Caption, "Import 1 Question");
    form.chkHeading.Click();
    form.btnTake.Click();
  });
  EXPECT_EQ(Letters() + "|" + Shown(), "abcWho?Where?|4/5 Who?");
  EXPECT_EQ(record(4).AnswerText + show().state.ImportColumns, "He1,0,0");
  EXPECT_EQ(editor().btnUndo.ToolTipText, "Undo: Import questions from Quiz.xlsx");
  editor().btnUndo.Click();
  EXPECT_EQ(Letters(), "abc");
  EXPECT_FALSE(editor().EditDirty);

  // The columns are remembered; what is looked at and left changes nothing.
  Import(sheet, [](ImportForm& form) { EXPECT_EQ(form.cboQuestion.ListIndex, 1); });
  EXPECT_EQ(Letters(), "abc");
  Import(sheet, [](ImportForm& form) {
    form.optReplace.Click();
    form.btnTake.Click();
  });
  EXPECT_EQ(Letters() + "|" + Shown(), "Who?Where?|1/2 Who?");
}

TEST_F(ImportPreview, ASetTakesAHundredAndOneAndSaysWhichRowsAreLeft) {
  Sheet sheet;
  for (int i = 1; i <= 103; ++i) sheet.push_back({"Question " + std::to_string(i), "Answer"});
  Import(sheet, [](ImportForm& form) {
    EXPECT_FALSE(form.optAdd.Enabled) << "there is nothing to add to";
    EXPECT_EQ(form.btnTake.Caption, "Import 101 Questions");
    EXPECT_EQ(form.lstRows.ListItems.Get()[101][4], "The set is full: 101 questions");
    EXPECT_EQ(form.lstRows.ListItems.Get()[100][4], "");
    form.btnTake.Click();
  });
  EXPECT_EQ(show().NumEditQuestions, 101);
  EXPECT_EQ(record(100).QuestionText, "Question 101");
  Import(sheet, [](ImportForm& form) { EXPECT_FALSE(form.btnTake.Enabled); });
}

TEST_F(ImportPreview, WhatLiesBesideTheSheetOrAmongTheSetsMediaIsFoundAndGoesBackByItsName) {
  const std::string media = "C:\\Pawnfield\\Trivia Sets\\Media\\";
  for (const std::string& path : {"C:\\Quizzes\\dog.jpg"s, media + "dog.jpg", media + "owl.jpg"})
    sim.files.Put(path, SimPictures::PictureBytes(9, 9));
  const Sheet sheet{{"Question", "Answer"}, {"dog.jpg", "A dog"}, {"cat.jpg", "A cat"}, {"owl.jpg", "An owl"}};
  Import(sheet, [](ImportForm& form) { form.btnTake.Click(); });
  EXPECT_EQ(record(0).QuestionText + "|" + record(1).QuestionText, "C:\\Quizzes\\dog.jpg|cat.jpg");
  EXPECT_EQ(record(2).QuestionText, media + "owl.jpg");
  sim.dialogs.ExpectFile("C:\\Quizzes\\Out.csv");
  editor().mnuExport.Click();
  EXPECT_EQ(sim.sheets.Sheets["C:\\Quizzes\\Out.csv"], sheet);
  // Where the name alone would lead to another file, the path goes with it.
  sim.files.Put("D:\\Stick\\owl.jpg", SimPictures::PictureBytes(9, 9));
  sim.dialogs.ExpectFile("D:\\Stick\\Out.csv");
  editor().mnuExport.Click();
  const Sheet& moved = sim.sheets.Sheets["D:\\Stick\\Out.csv"];
  EXPECT_EQ(moved[1][0] + "|" + moved[3][0], "C:\\Quizzes\\dog.jpg|" + media + "owl.jpg");
}

TEST_F(ImportPreview, AFileThatIsNoSheetIsRefusedAndTheSetStays) {
  OpenEditor("abc");
  sim.files.Put("C:\\film.xlsx", "no sheet");
  sim.dialogs.ExpectMessage("\"film.xlsx\" was not opened. This file is no sheet.");
  editor().DropFile("C:\\film.xlsx");
  EXPECT_EQ(Letters(), "abc");
}

}  // namespace
}  // namespace pawnfield
