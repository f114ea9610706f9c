#include "forms/winner_panel.h"

#include "data/house_colors.h"

namespace pawnfield {

namespace {

// In shares of the panel's height or width.
constexpr double kHeadTop = 0.07, kHeadHeight = 0.10;
constexpr double kNamesTop = 0.18, kNamesHeight = 0.40;
constexpr double kWordTop = 0.59, kWordHeight = 0.14;
constexpr double kCardTop = 0.79, kCardHeight = 0.13;
constexpr double kCardWidth = 0.315, kCardGap = 0.015;
constexpr double kSide = 0.05;
constexpr double kTwipsPerPoint = 20;

// Of a line of letters in a box of that height.
Font LetteringFor(double boxHeight, double share) {
  return {"Segoe UI", boxHeight * share / kTwipsPerPoint, true, false};
}

}  // namespace

WinnerPanel::WinnerPanel(Form& form, PictureBox& panel)
    : lblWinnerHead(form, "lblWinnerHead"),
      lblWinnerName(form, "lblWinnerName"),
      lblWinnerWord(form, "lblWinnerWord"),
      picFinal(form, "picFinal"),
      lblFinalName(form, "lblFinalName"),
      lblFinalScore(form, "lblFinalScore"),
      panel_(panel) {
  lblWinnerHead.ForeColor = kQuietText;
  lblWinnerWord.ForeColor = kGold;
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t i = PlayerIndex(player);
    lblWinnerName[i].ForeColor = kPlayerColors[player];
    lblFinalName[i].ForeColor = kPlayerColors[player];
    for (Control* part : {static_cast<Control*>(&lblWinnerName[i]), static_cast<Control*>(&picFinal[i]),
                          static_cast<Control*>(&lblFinalName[i]), static_cast<Control*>(&lblFinalScore[i])}) {
      part->Container = &panel;
    }
  }
  lblWinnerHead.Container = &panel;
  lblWinnerWord.Container = &panel;
}

void WinnerPanel::PlaceTexts(std::size_t winners) {
  const double width = panel_.Width;
  const double height = panel_.Height;
  const double lineHeight = height * kNamesHeight / static_cast<double>(winners);
  lblWinnerHead.MoveTo(width * kSide, height * kHeadTop, width * (1 - 2 * kSide), height * kHeadHeight);
  lblWinnerHead.Font = LetteringFor(height * kHeadHeight, 0.62);
  lblWinnerWord.MoveTo(width * kSide, height * kWordTop, width * (1 - 2 * kSide), height * kWordHeight);
  lblWinnerWord.Font = LetteringFor(height * kWordHeight, 0.75);
  double top = height * kNamesTop;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    lblWinnerName[i].MoveTo(width * kSide, top, width * (1 - 2 * kSide), lineHeight);
    lblWinnerName[i].Font = LetteringFor(lineHeight, winners == 1 ? 0.5 : 0.75);
    if (lblWinnerName[i].Visible) top += lineHeight;
  }
}

void WinnerPanel::PlaceCards(const std::vector<int>& order) {
  const auto count = static_cast<double>(order.size());
  const double width = panel_.Width * kCardWidth;
  const double gap = panel_.Width * kCardGap;
  const double height = panel_.Height * kCardHeight;
  const double top = panel_.Height * kCardTop;
  double left = (panel_.Width - count * width - (count - 1) * gap) / 2;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    for (Control* part : {static_cast<Control*>(&picFinal[i]), static_cast<Control*>(&lblFinalName[i]),
                          static_cast<Control*>(&lblFinalScore[i])}) {
      part->Visible = false;
    }
  }
  for (const int player : order) {
    const std::size_t i = PlayerIndex(player);
    picFinal[i].MoveTo(left, top, width, height);
    // The sign, which ends at half of the height, and the card's edge keep a little room.
    lblFinalName[i].MoveTo(left + height * 0.6, top, width * 0.67 - height * 0.6, height);
    lblFinalScore[i].MoveTo(left + width * 0.67, top, width * 0.275, height);
    lblFinalName[i].Font = LetteringFor(height, 0.28);
    lblFinalScore[i].Font = LetteringFor(height, 0.38);
    picFinal[i].Visible = lblFinalName[i].Visible = lblFinalScore[i].Visible = true;
    left += width + gap;
  }
}

}  // namespace pawnfield
