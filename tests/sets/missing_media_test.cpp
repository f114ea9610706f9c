#include "sets/missing_media.h"

#include <gtest/gtest.h>

#include <vector>

#include "sets/set_file.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kSet = "C:\\Pawnfield\\Trivia Sets\\Media.txt";
const std::string kHere = "C:\\Pawnfield\\Trivia Sets\\here.jpg";

class MissingMedia : public ShowFixture, public testing::Test {
 protected:
  MissingMedia() {
    Start();
    sim.files.Put(kHere, "picture");
  }
  // A set of pictures, those of the given indices missing, chosen from the list. act runs in the dialog.
  void Load(const std::vector<int>& missing, const std::function<void()>& act, int count = 100) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
      const bool gone = std::find(missing.begin(), missing.end(), i) != missing.end();
      bytes += (gone ? ".\\gone" + std::to_string(i) + ".jpg" : ".\\here.jpg") + "\r\nA\r\nP\r\n";
    }
    sim.files.Put(kSet, bytes);
    if (act) sim.dialogs.ExpectForm("frmDialog2", act);
    ChooseSet("Media");
  }
  std::string Text(std::size_t index) { return show().GameSet.at(index).QuestionText; }
  MissingMediaForm& dialog() { return show().frmDialog2; }
};

TEST_F(MissingMedia, TheScanEndsWhereItWouldGoRoundAndNamesTheLastItFound) {
  const struct {
    std::vector<int> missing;
    int question;
  } cases[] = {{{0}, 1},    {{1}, 2},    {{3}, 4},    {{4}, 5},    {{5}, 6},        {{50}, 51},
               {{99}, 100}, {{1, 3}, 2}, {{1, 4}, 2}, {{1, 7}, 8}, {{0, 5, 60}, 6}, {{50, 60}, 51}};
  for (const auto& each : cases) {
    int asked = 0;
    Load(each.missing, [&] {
      asked = show().MissingQuestion;
      EXPECT_EQ(dialog().txtLocation.Text.Get(), Text(static_cast<std::size_t>(asked - 1)));
      EXPECT_TRUE(dialog().btnRepair.Enabled && dialog().btnCancel.Enabled && !dialog().btnFinished.Enabled);
      dialog().btnCancel.Click();
    });
    EXPECT_EQ(asked, each.question);
    EXPECT_EQ(show().MissingQuestion, 1);
    EXPECT_TRUE(form().btnStart.Enabled);
  }
  Load({}, nullptr);
  EXPECT_EQ(Text(99), kHere);
}

TEST_F(MissingMedia, OnlyTheLetterMakesAMedium) {
  sim.files.Put(kSet, "none.jpg\r\nA\r\nT\r\nnone.wav\r\nA\r\n\r\nnone.bmp\r\nA\r\nP#\r\n");
  ChooseSet("Media");
  sim.files.Put(kSet, "Q\r\nA\r\nT\r\nnothing\r\nA\r\nS\r\n");
  sim.dialogs.ExpectForm("frmDialog2", [&] {
    sim.dialogs.ExpectFile("");
    dialog().btnRepair.Click();
    // An unknown ending keeps the filter of before.
    EXPECT_EQ(sim.dialogs.FileRequests().back().Filter, "");
    dialog().Unload();
  });
  ChooseSet("Media");
}

TEST_F(MissingMedia, OneFileIsRepairedAndTheSetWrittenBackWhereItCameFrom) {
  const struct {
    std::vector<int> missing;
    std::string chosen;
    std::string repaired;
    std::string location;
  } cases[] = {
      {{2}, kHere, kHere, kHere},
      {{2}, "", "C:\\Pawnfield\\Trivia Sets\\gone2.jpg", "C:\\Pawnfield\\Trivia Sets\\gone2.jpg"},
      {{2}, "C:\\vanished.jpg", "C:\\Pawnfield\\Trivia Sets\\gone2.jpg", "C:\\Pawnfield\\Trivia Sets\\gone2.jpg"},
      {{2, 3, 4}, kHere, kHere, "C:\\Pawnfield\\Trivia Sets\\gone4.jpg"},
  };
  for (const auto& each : cases) {
    Load(
        each.missing,
        [&] {
          sim.dialogs.ExpectFile(each.chosen);
          dialog().btnRepair.Click();
          const FileDialogRequest& request = sim.dialogs.FileRequests().back();
          EXPECT_EQ(request.Filter, "Picture Files(*bmp; *jpg)|*.bmp; *.jpg");
          EXPECT_EQ(request.InitialFolder, "C:\\Pawnfield\\Trivia Sets\\");
          EXPECT_EQ(request.FileName, "gone2.jpg");
          EXPECT_TRUE(!dialog().btnRepair.Enabled && dialog().btnFinished.Enabled);
          EXPECT_EQ(dialog().txtLocation.Text.Get(), each.location);
          dialog().btnFinished.Click();
        },
        8);
    EXPECT_EQ(Text(2), each.repaired);
    // Three lines for each question and none more.
    const std::string bytes = sim.files.Read(kSet);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 24);
    TriviaSet again;
    EXPECT_EQ(ParseSet(bytes, again), 8);
    EXPECT_EQ(again[2].QuestionText, each.repaired);
    EXPECT_EQ(show().MissingQuestion, 1);
  }
}

TEST_F(MissingMedia, ASetThatCannotBeWrittenIsTold) {
  const auto finish = [&] {
    sim.dialogs.ExpectFile(kHere);
    dialog().btnRepair.Click();
    sim.files.FailNextWrite(kErrorDiskFull);
    sim.dialogs.ExpectMessage("Procedure: SaveFile");
    dialog().btnFinished.Click();
  };
  Load({0}, finish, 3);
  EXPECT_EQ(sim.files.Read(kSet).substr(0, 11), ".\\gone0.jpg");
  Load({0}, [&] {
    sim.files.Remove(kSet);
    sim.dialogs.ExpectMessage("We encountered an error trying to fix the file. Please report if this error continues.");
    SaveRepairedSet(show());
    dialog().btnCancel.Click();
  });
  // A set of the file dialog goes back to its file, and one of the list never to that.
  sim.files.Put("C:\\Shows\\Own.txt", ".\\gone.wav\r\nA\r\nS\r\n");
  sim.dialogs.ExpectFile("C:\\Shows\\Own.txt");
  sim.dialogs.ExpectForm("frmDialog2", [&] {
    sim.dialogs.ExpectFile(kHere);
    dialog().btnRepair.Click();
    EXPECT_EQ(sim.dialogs.FileRequests().back().Filter, "Picture Files(*wav; *mp3; *.wma)|*.wav; *.mp3; *.wma");
    dialog().btnFinished.Click();
  });
  form().btnSelectGame.Click();
  EXPECT_EQ(sim.files.Read("C:\\Shows\\Own.txt"), kHere + "\r\nA\r\nS\r\n");
  Load(
      {0}, [&] { dialog().btnRepair.Enabled = true, SaveRepairedSet(show()), dialog().btnCancel.Click(); }, 3);
  EXPECT_EQ(sim.files.Read("C:\\Shows\\Own.txt"), kHere + "\r\nA\r\nS\r\n");
}

}  // namespace
}  // namespace pawnfield
