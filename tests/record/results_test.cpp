#include "record/results.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "engine/game_flow.h"
#include "forms/main_form.h"
#include "forms/results_form.h"
#include "platform/escapes.h"
#include "platform/ports.h"
#include "presentation/both_screens.h"
#include "record/results_window.h"
#include "show/show_record.h"
#include "support/game_player.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> Lines(const ListView& list) {
  std::vector<std::string> lines;
  for (const ListView::Row& row : list.ListItems.Get()) {
    std::string& line = lines.emplace_back();
    for (const std::string& cell : row) line += (&cell == &row[0] ? "" : " | ") + cell;
  }
  return lines;
}

ResultsForm& Open(GamePlayer& player) {
  player.Do("wait 60 ms");
  player.form().mnuFileResults.Click();
  return player.show().frmResults;
}

TEST(Results, TellWhoRangInByHowMuchAndWhatBecameOfIt) {
  GamePlayer player("Trivia C, pads, user advances, penalty");
  player.Do(
      "wait 840 ms, pad 1, wait 30 ms, pad 2, correct, claim A1, continue, wait 500 ms, pad 2, wait 310 ms, pad 3");
  player.Do("incorrect, wait 400 ms, pad 3, correct, claim B1, continue, skip");
  ResultsForm& form = Open(player);
  EXPECT_THAT(form.lblShown.Caption.Get(), HasSubstr(": Long"));
  EXPECT_THAT(Lines(form.lstQuestions),
              ElementsAre("20:00:00 | 1 | Question 1? | The answer | PLAYER 1, PLAYER 2 +30 ms (\xB1"
                          "21) | Correct for PLAYER 1 | "
                          "PLAYER 1 50, PLAYER 2 0, PLAYER 3 0",
                          "20:00:00 | 2 | Question 2? | The answer | PLAYER 2, PLAYER 3 +310 ms (\xB1"
                          "21); PLAYER 3 | Incorrect "
                          "for PLAYER 2, -100; Correct for PLAYER 3 | PLAYER 1 50, PLAYER 2 -100, PLAYER 3 50",
                          "20:00:00 | 3 | Question 3? | The answer |  | Skipped | PLAYER 1 50, PLAYER 2 -100, PLAYER 3 "
                          "50"));
  EXPECT_THAT(Lines(form.lstTotals),
              ElementsAre("PLAYER 1 | 1 | 0 | 0.84 s | +30 ms | 50", "PLAYER 2 | 0 | 1 | 0.50 s | +310 ms | -100",
                          "PLAYER 3 | 1 | 0 | 0.40 s |  | 50"));
}

// A number behind such a name would stand before it, and its sign on its other side.
TEST(Results, ANameFromRightToLeftTakesNoNumberAlong) {
  GamePlayer player("Trivia C, pads, user advances, penalty");
  const std::string david = EscapeOf(0x5D3) + EscapeOf(0x5D5) + EscapeOf(0x5D3);
  const std::string apart = EscapeOf(0x2068) + david + EscapeOf(0x2069);
  SetPlayerName(player.show(), 2, david);
  player.Do("pad 1, wait 30 ms, pad 2, incorrect, wait 30 ms, pad 2, incorrect");
  const ResultsForm& form = Open(player);
  const std::string row = Lines(form.lstQuestions).at(0);
  EXPECT_THAT(row, HasSubstr("PLAYER 1, " + apart + " +30 ms"));
  EXPECT_THAT(row, HasSubstr("Incorrect for " + apart + ", -100 | PLAYER 1 -100, " + apart + " -100"));
  EXPECT_EQ(form.lstTotals.ListItems.Get().at(1).at(0), david);
  player.fixture().sim.dialogs.ExpectFile("C:\\Shows\\Results.csv");
  player.show().frmResults.btnSaveTable.Click();
  EXPECT_THAT(player.fixture().sim.files.Read("C:\\Shows\\Results.csv"),
              HasSubstr("Incorrect for \u05D3\u05D5\u05D3, -100"));
}

TEST(Results, WhatWasTakenBackCountsAsNeverDone) {
  GamePlayer player("Trivia C, user advances");
  player.Do("player 1 rings in, correct, wait 60 ms, undo, incorrect, player 2 rings in, correct, claim A1");
  const ResultsForm& form = Open(player);
  EXPECT_THAT(Lines(form.lstTotals),
              ElementsAre("PLAYER 1 | 0 | 1 |  |  | 0", "PLAYER 2 | 1 | 0 |  |  | 50", "PLAYER 3 | 0 | 0 |  |  | 0"));
}

TEST(Results, CountEachGameOfAShowOnceAlsoOneThatWasBroughtBack) {
  GamePlayer player("Trivia C, user advances");
  player.Do("player 1 rings in, correct, claim A1, wait 60 ms, choose the set, start, player 2 rings in, correct");
  player.Do("claim A1, wait 60 ms, press mnuFileBringBack, continue, player 1 rings in, correct, claim B1");
  const ResultsForm& form = Open(player);
  const auto lines = Lines(form.lstQuestions);
  EXPECT_EQ(lines.size(), 5U) << "two games with their names, of one and two questions";
  EXPECT_THAT(Lines(form.lstTotals),
              ElementsAre("PLAYER 1 | 2 | 0 |  |  | 100", "PLAYER 2 | 1 | 0 |  |  | 50", "PLAYER 3 | 0 | 0 |  |  | 0"));
}

TEST(Results, AGameWithoutQuestionsTellsItsClaims) {
  GamePlayer player("Challenge A");
  player.Do("claim B2, claim A1");
  const ResultsForm& form = Open(player);
  EXPECT_THAT(Lines(form.lstQuestions),
              ElementsAre(HasSubstr("PLAYER 1 takes B2, +50 | PLAYER 1 50, PLAYER 2 0, PLAYER 3 0"),
                          HasSubstr("PLAYER 2 takes A1, +50 | PLAYER 1 50, PLAYER 2 50, PLAYER 3 0")));
}

TEST(Results, TheShowsOnRecordAreListedAndABrokenOneIsTold) {
  ShowFixture fixture;
  fixture.sim.records.Files["Show 2025-12-31 19-30-00.jsonl"] = "broken";
  fixture.Start();
  fixture.form().mnuFileResults.Click();
  ResultsForm& form = fixture.show().frmResults;
  EXPECT_THAT(Lines(form.lstShows), ElementsAre("2025-12-31 19:30"));
  EXPECT_EQ(form.lblShown.Caption.Get(), "This record can't be read.");
  EXPECT_FALSE(form.btnSaveTable.Enabled);
  EXPECT_FALSE(form.btnPrint.Enabled);
}

// A whole game whose names and questions hold whatever breaks a table.
class ResultsTable : public testing::Test {
 protected:
  ResultsTable() : player_("Trivia C, pads, user advances") {
    Show& show = player_.show();
    SetPlayerName(show, 1, "Ann, \"the\r\nfirst\"");
    SetPlayerName(show, 2, "J\xF6rg; \x80");
    show.Asked.AnswerText = "\"Quoted\"";
    for (TriviaQuestion& question : show.GameSet) question.QuestionText += ", \"why\"\r\nnot;=1+1?";
    for (int square = 0; square < 9; ++square) {
      const std::string name{static_cast<char>('A' + square % 3), static_cast<char>('1' + square / 3)};
      player_.Do("wait 700 ms, pad " + std::to_string(1 + square % 3) + ", wait 45 ms, pad " +
                 std::to_string(1 + (square + 1) % 3) + ", correct, claim " + name);
      if (square < 8) player_.Do("continue");
    }
    player_.Do("wait 12 s");
    Open(player_);
  }

  std::string Save() {
    player_.fixture().sim.dialogs.ExpectFile("C:\\Shows\\Results.csv");
    player_.show().frmResults.btnSaveTable.Click();
    return player_.fixture().sim.files.Read("C:\\Shows\\Results.csv");
  }

  GamePlayer player_;
};

TEST_F(ResultsTable, OfAWholeGameIsOpenedAgainAsItWasShown) {
  const Table table = ReadTable(Save());
  EXPECT_EQ(player_.show().frmResults.lblResultsStatus.Caption.Get(), "Saved as Results.csv.");
  ASSERT_EQ(table.size(), 1U + 9U + 1U + 1U + 3U);
  const Table wanted = TableOf(player_.show().record->Results);
  EXPECT_EQ(table, wanted);
  EXPECT_EQ(table[2][3], "Question 2?, \"why\"\r\nnot;=1+1?");
  EXPECT_EQ(table[2][5],
            "J\xC3\xB6rg; \xE2\x82\xAC, PLAYER 3 +45 ms (\xC2\xB1"
            "21)");
  EXPECT_EQ(table[1][8], "Ann, \"the\r\nfirst\"");
  EXPECT_EQ(table[12],
            (TableRow{"Ann, \"the\r\nfirst\"", "3", "0", "700", "45", "200", "", "", "", "", "", "", "", ""}));
}

// Another program's reader of such tables, which takes a line's end within quotation marks as part of the cell.
TEST_F(ResultsTable, SurvivesAnotherReader) {
  if (std::system("python3 -c 'import csv' 2>/dev/null") != 0) GTEST_SKIP() << "no Python";
  const std::string path = testing::TempDir() + "results_table.csv";
  std::ofstream(path, std::ios::binary) << Save();
  const std::string command =
      "python3 -c \"import csv,sys\nfor row in csv.reader(open(sys.argv[1], newline='', encoding='utf-8-sig'), "
      "strict=True):\n print('|'.join(c.encode().hex() for c in row))\" " +
      path;
  std::string read;
  FILE* pipe = popen(command.c_str(), "r");
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) read += static_cast<char>(c);
  EXPECT_EQ(pclose(pipe), 0);
  std::string wanted;
  for (const TableRow& row : TableOf(player_.show().record->Results)) {
    for (const std::string& cell : row) {
      if (&cell != &row[0]) wanted += "|";
      for (const char c : cell) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
        wanted += digits;
      }
    }
    wanted += "\n";
  }
  EXPECT_EQ(read, wanted);
}

TEST_F(ResultsTable, IsPrintedAndAFullDiskIsTold) {
  SimPlatform& sim = player_.fixture().sim;
  ResultsForm& form = player_.show().frmResults;
  form.btnPrint.Click();
  EXPECT_TRUE(sim.printing.Printed.empty()) << "cancelled";
  sim.printing.Copies = 2;
  form.btnPrint.Click();
  ASSERT_EQ(sim.printing.Printed.size(), 2U);
  const PrintDocument& document = sim.printing.Printed[0];
  EXPECT_THAT(document.Title, HasSubstr("Results of the show of 20"));
  ASSERT_EQ(document.Blocks.size(), 2U + 9U);
  EXPECT_THAT(document.Blocks[0][3], HasSubstr(": 200 points, 3 right, 0 wrong, fastest 0.70 s, ahead by 45 ms"));
  EXPECT_THAT(document.Blocks[3], testing::Contains("Answer: The answer"));
  sim.dialogs.ExpectFile("C:\\Shows\\Full.csv");
  sim.files.FailNextWrite(kErrorDiskFull);
  sim.dialogs.ExpectMessage("Error Number: 61");
  form.btnSaveTable.Click();
}

}  // namespace
}  // namespace pawnfield
