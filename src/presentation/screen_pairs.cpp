#include "presentation/screen_pairs.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "data/players.h"
#include "forms/board_labels.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "show/show.h"

namespace pawnfield {

namespace {

class PairTable {
 public:
  explicit PairTable(std::function<bool()> condition = {}) : condition_(std::move(condition)) {}

  template <typename T>
  PairTable& Pair(Property<T>& console, Property<T>& audience) {
    rows_.push_back({&console.Owner(), console.Id(), [&console, &audience] { audience = console; }, condition_});
    return *this;
  }
  // An element that comes and goes, and what it shows.
  void Picture(Image& console, Image& audience) {
    Pair(console.Visible, audience.Visible).Pair(console.Picture, audience.Picture);
  }
  void Text(Label& console, Label& audience) {
    Pair(console.Visible, audience.Visible).Pair(console.Caption, audience.Caption);
  }
  void Append(PairTable&& other) { rows_.insert(rows_.end(), other.rows_.begin(), other.rows_.end()); }
  std::vector<ScreenPair> Rows() { return std::move(rows_); }

 private:
  std::function<bool()> condition_;
  std::vector<ScreenPair> rows_;
};

// A turning square is drawn by each screen for itself, as tall as its own squares are.
PairTable SquarePictures(Show& show) {
  PairTable table(
      [&show] { return !show.frmMain.tmrFlipPlayerPiece.Enabled && !show.frmFSMain.tmrFSFlipPlayerPiece.Enabled; });
  show.frmMain.img.ForEach([&](Image& square) {
    auto& audience = static_cast<Image&>(*show.frmFSMain.Find(square.Name()));
    table.Pair(square.Picture, audience.Picture);
  });
  return table;
}

void AddBoard(PairTable& table, MainForm& console, FSMainForm& audience) {
  // Each screen shows the squares and labels of the grid that it builds for itself.
  for (std::size_t i = 0; i < 6; ++i) {
    table.Pair(ColumnLabels(console)[i]->Picture, ColumnLabels(audience)[i]->Picture)
        .Pair(RowLabels(console)[i]->Picture, RowLabels(audience)[i]->Picture);
  }
  table.Picture(console.imgHeader, audience.imgHeader);
  table.Pair(console.txtOptionalHeading.Visible, audience.txtOptionalHeading.Visible)
      .Pair(console.txtOptionalHeading.Text, audience.txtOptionalHeading.Text)
      .Pair(console.txtOptionalHeading.ForeColor, audience.txtOptionalHeading.ForeColor)
      .Pair(console.txtOptionalHeading.BackColor, audience.txtOptionalHeading.BackColor)
      .Pair(console.txtDJCommand.Text, audience.lblDJCommand.Caption);
}

// A player's box on the console holds all that the audience has in four places.
void AddPlayer(PairTable& table, MainForm& console, FSMainForm& audience, int player) {
  const std::size_t index = PlayerIndex(player);
  PictureBox& box = console.PlayerBox(player);
  table.Pair(box.Visible, audience.picPlayer[index].Visible)
      .Pair(box.Visible, audience.ScoreBox(player).Visible)
      .Pair(box.Visible, audience.lblPlayer[index].Visible)
      .Pair(box.Visible, audience.Label11[index].Visible)
      .Pair(box.Picture, audience.picPlayer[index].Picture)
      .Pair(console.lblPlayer1[index].Caption, audience.lblPlayer[index].Caption)
      .Pair(console.Score(player).Caption, audience.Label11[index].Caption)
      .Pair(box.Visible, audience.picBandPlayer[index].Visible)
      .Pair(box.Visible, audience.lblBandName[index].Visible)
      .Pair(box.Visible, audience.lblBandScore[index].Visible)
      .Pair(box.Picture, audience.picBandPlayer[index].Picture)
      .Pair(console.lblPlayer1[index].Caption, audience.lblBandName[index].Caption)
      .Pair(console.Score(player).Caption, audience.lblBandScore[index].Caption);
}

void AddPanels(PairTable& table, MainForm& console, FSMainForm& audience) {
  table.Pair(console.picQuestion.Visible, audience.picQuestion.Visible);
  table.Pair(console.imgQuestionBackground.Picture, audience.imgQuestionBackground.Picture);
  for (std::size_t i = 0; i < 5; ++i) {
    table.Pair(console.lblQuestion[i].Caption, audience.lblQuestion[i].Caption)
        .Pair(console.lblQuestion[i].ForeColor, audience.lblQuestion[i].ForeColor);
  }
  table.Text(console.lblAnswerClock, audience.lblAnswerClock);
  table.Pair(console.lblAnswerClock.ForeColor, audience.lblAnswerClock.ForeColor);
  table.Pair(console.picQuestionPicture.Visible, audience.picQuestionPicture.Visible);
  table.Pair(console.picImageResize[0].Picture, audience.picImageResize[0].Picture);
  table.Pair(console.picSound.Visible, audience.picSound.Visible);
  table.Pair(console.imgSound.Picture, audience.imgSound.Picture);
  table.Pair(console.picBonus.Visible, audience.picBonus.Visible);
  table.Pair(console.imgBonus.Picture, audience.imgBonus.Picture);
  table.Pair(console.picCorrect.Visible, audience.picCorrect.Visible);
  table.Pair(console.imgCorrect.Picture, audience.imgCorrect.Picture);
  table.Text(console.lblRightWrong, audience.lblRightWrong);
  table.Pair(console.lblRightWrong.ForeColor, audience.lblRightWrong.ForeColor);
  table.Pair(console.picWinner.Visible, audience.picWinner.Visible)
      .Pair(console.picWinner.Picture, audience.picWinner.Picture);
  table.Text(console.lblWinner, audience.lblWinner);
  table.Pair(console.picStandby.Visible, audience.picStandby.Visible);
  table.Pair(console.imgStandby.Picture, audience.imgStandby.Picture);
}

void AddMedia(PairTable& table, MainForm& console, FSMainForm& audience) {
  table.Pair(console.picMODVideo.Visible, audience.picMODVideo.Visible)
      .Pair(console.MediaPlayer1.URL, audience.MediaPlayer1.URL)
      .Pair(console.MediaPlayer1.PlayState, audience.MediaPlayer1.PlayState)
      .Pair(console.picMODPicture.Visible, audience.picImageResize[1].Visible)
      .Pair(console.picImageResize[1].Picture, audience.picImageResize[1].Picture)
      .Pair(console.picMOD.Visible, audience.picMOD.Visible);
}

bool IsPaired(const ScreenPair& pair) { return !pair.Condition || pair.Condition(); }

class PairFollower : public Observer {
 public:
  PairFollower(Show& show, ScreenPair pair) : show_(show), pair_(std::move(pair)) { pair_.Console->AddObserver(*this); }
  void Changed(Control&, PropertyId id) override {
    if (id == pair_.What && show_.state.DualScreen && IsPaired(pair_)) pair_.Copy();
  }

 private:
  Show& show_;
  ScreenPair pair_;
};

// The band is up while a panel of a question is seen, and standby covers it like all else.
class BandFollower : public Observer {
 public:
  explicit BandFollower(Show& show) : show_(show) {
    for (PictureBox* panel : QuestionPanels()) panel->AddObserver(*this);
    show.frmFSMain.picStandby.AddObserver(*this);
  }
  void Changed(Control&, PropertyId id) override {
    if (id != PropertyId::Visible) return;
    FSMainForm& form = show_.frmFSMain;
    const auto panels = QuestionPanels();
    const bool question =
        std::any_of(panels.begin(), panels.end(), [](PictureBox* panel) { return panel->Visible.Get(); });
    const bool up = question && !form.picStandby.Visible;
    if (form.picBand.Visible == up) return;
    form.SetBand(up);
    if (show_.state.DualScreen) FitMedia(show_);
  }

 private:
  std::array<PictureBox*, 5> QuestionPanels() const {
    FSMainForm& form = show_.frmFSMain;
    return {&form.picQuestion, &form.picQuestionPicture, &form.picSound, &form.picHideQuestion, &form.picCorrect};
  }
  Show& show_;
};

}  // namespace

std::vector<ScreenPair> ScreenPairs(Show& show) {
  PairTable table;
  AddBoard(table, show.frmMain, show.frmFSMain);
  table.Append(SquarePictures(show));
  for (int player = 1; player <= kPlayers; ++player) AddPlayer(table, show.frmMain, show.frmFSMain, player);
  AddPanels(table, show.frmMain, show.frmFSMain);
  AddMedia(table, show.frmMain, show.frmFSMain);
  return table.Rows();
}

void FollowConsole(Show& show) {
  show.Observers.clear();
  for (ScreenPair& pair : ScreenPairs(show)) {
    show.Observers.push_back(std::make_unique<PairFollower>(show, std::move(pair)));
  }
  show.Observers.push_back(std::make_unique<BandFollower>(show));
}

void CopyPairs(Show& show) {
  for (const ScreenPair& pair : ScreenPairs(show)) pair.Copy();
}

}  // namespace pawnfield
