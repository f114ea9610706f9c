#include "sets/missing_media.h"

#include "forms/missing_media_form.h"
#include "sets/set_file.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kSet = "C:\\Pawnfield\\Trivia Sets\\Media.txt";
constexpr const char* kOwn = "C:\\Shows\\Own.txt";
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
  // Chooses a file for the one that is missing, and gives the filter and the folder that were offered.
  std::string Repair(const std::string& chosen) {
    sim.dialogs.ExpectFile(chosen);
    dialog.btnRepair.Click();
    const FileDialogRequest& request = sim.dialogs.FileRequests().back();
    return request.Filter + ", " + request.InitialFolder + ", " + request.FileName;
  }
  std::string Text(int index) { return show().GameSet.at(static_cast<std::size_t>(index)).QuestionText; }

  MissingMediaForm& dialog = show().frmDialog2;
};

TEST_F(MissingMedia, TheScanEndsWhereItWouldGoRoundAndNamesTheLastItFound) {
  const std::pair<std::vector<int>, int> cases[] = {{{0}, 1},    {{1}, 2},    {{3}, 4},        {{4}, 5},
                                                    {{5}, 6},    {{50}, 51},  {{99}, 100},     {{1, 3}, 2},
                                                    {{1, 4}, 2}, {{1, 7}, 8}, {{0, 5, 60}, 6}, {{50, 60}, 51}};
  for (const auto& [missing, question] : cases) {
    int asked = 0;
    Load(missing, [&] {
      asked = show().MissingQuestion;
      EXPECT_EQ(dialog.txtLocation.Text.Get(), Text(asked - 1));
      EXPECT_TRUE(dialog.btnRepair.Enabled && dialog.btnCancel.Enabled && !dialog.btnFinished.Enabled);
      dialog.btnCancel.Click();
    });
    EXPECT_EQ(asked, question);
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
    EXPECT_TRUE(Repair("").starts_with(", ")) << "an unknown ending keeps the filter of before";
    dialog.Unload();
  });
  ChooseSet("Media");
}

TEST_F(MissingMedia, OneFileIsRepairedAndTheSetWrittenBackWhereItCameFrom) {
  const std::string sets = "C:\\Pawnfield\\Trivia Sets\\";
  const std::tuple<std::vector<int>, std::string, std::string, std::string> cases[] = {
      {{2}, kHere, kHere, kHere},
      {{2}, "", sets + "gone2.jpg", sets + "gone2.jpg"},
      {{2}, "C:\\vanished.jpg", sets + "gone2.jpg", sets + "gone2.jpg"},
      {{2, 3, 4}, kHere, kHere, sets + "gone4.jpg"}};
  for (const auto& [missing, chosen, repaired, location] : cases) {
    const auto act = [&, file = chosen, left = location] {
      EXPECT_EQ(Repair(file), "Picture Files(*bmp; *jpg)|*.bmp; *.jpg, " + sets + ", gone2.jpg");
      EXPECT_TRUE(!dialog.btnRepair.Enabled && dialog.btnFinished.Enabled);
      EXPECT_EQ(dialog.txtLocation.Text.Get(), left);
      dialog.btnFinished.Click();
    };
    Load(missing, act, 8);
    EXPECT_EQ(Text(2), repaired);
    const std::string bytes = sim.files.Read(kSet);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 24) << "three lines for each question and none more";
    TriviaSet again;
    EXPECT_EQ(ParseSet(bytes, again), 8);
    EXPECT_EQ(again[2].QuestionText, repaired);
    EXPECT_EQ(show().MissingQuestion, 1);
  }
}

TEST_F(MissingMedia, ASetThatCannotBeWrittenIsTold) {
  int error = kErrorDiskFull;
  const auto finish = [&] {
    Repair(kHere);
    if (error != 0) sim.dialogs.ExpectMessage("Procedure: SaveFile");
    sim.files.FailNextWrite(std::exchange(error, 0));
    dialog.btnFinished.Click();
  };
  Load({0}, finish, 3);
  EXPECT_TRUE(sim.files.Read(kSet).starts_with(".\\gone0.jpg"));
  Load({0}, [&] {
    sim.files.Remove(kSet);
    sim.dialogs.ExpectMessage("We encountered an error trying to fix the file. Please report if this error continues.");
    SaveRepairedSet(show());
    dialog.btnCancel.Click();
  });
  // A set of the file dialog goes back to its file, and one of the list never to that.
  sim.files.Put(kOwn, ".\\gone.wav\r\nA\r\nS\r\n");
  sim.dialogs.ExpectFile(kOwn);
  sim.dialogs.ExpectForm("frmDialog2", [&] {
    EXPECT_TRUE(Repair(kHere).starts_with("Picture Files(*wav; *mp3; *.wma)|*.wav; *.mp3; *.wma, "));
    dialog.btnFinished.Click();
  });
  form().btnSelectGame.Click();
  EXPECT_EQ(sim.files.Read(kOwn), kHere + "\r\nA\r\nS\r\n");
  Load({0}, finish, 3);
  EXPECT_TRUE(sim.files.Read(kSet).starts_with(kHere));
  EXPECT_EQ(sim.files.Read(kOwn), kHere + "\r\nA\r\nS\r\n");
}

}  // namespace
}  // namespace pawnfield
