#include "desktop/windows/console_arrangement.h"

#include <QBoxLayout>
#include <QFile>
#include <QMainWindow>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "desktop/windows/key_button.h"

namespace pawnfield {

namespace {

constexpr double kGrowsFrom = 1600, kFullHd = 1920, kLargest = 2560;
constexpr double kFullHdGrowth = 1.25, kMostGrowth = 1.5;
// Logical pixels of height in which the right column stands with all its panels, and with closer rows.
constexpr int kWholeHeight = 836, kClosedHeight = 744;
constexpr double kLineInOneRow = 1500;
constexpr double kCloser = 0.84;
constexpr int kLeastHit = 24;

// A length of the look in pixels, as it is at that growth. Hair lines stay.
int Grown(int length, double growth) { return length <= 1 ? length : static_cast<int>(std::lround(length * growth)); }

// A mark is round when it is as wide as its two radii, which lengths that are rounded one by one need not be.
QString RoundMarks(double growth) {
  const int radius = static_cast<int>(7 * growth);
  const int edge = Grown(4, growth);
  const QString mark =
      "QRadioButton::indicator%1 { width: %2px; height: %2px; border-radius: %3px; border-width: %4px; }";
  return mark.arg("").arg(2 * radius - 2).arg(radius).arg(1) +
         mark.arg(":checked").arg(2 * (radius - edge)).arg(radius).arg(edge);
}

QString LookAt(double growth) {
  QFile file(":/look/look.qss");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString look = QString::fromUtf8(file.readAll());
  static const QRegularExpression lengths("(\\d+)px");
  QString grown;
  qsizetype from = 0;
  for (auto found = lengths.globalMatch(look); found.hasNext();) {
    const QRegularExpressionMatch length = found.next();
    grown += look.mid(from, length.capturedStart() - from);
    const int pixels = length.captured(1).toInt();
    // A radius that is rounded up beyond half of what it rounds leaves it square.
    const bool radius = look.mid(0, length.capturedStart()).endsWith("radius: ");
    grown += QString::number(radius ? static_cast<int>(pixels * growth) : Grown(pixels, growth)) + "px";
    from = length.capturedEnd();
  }
  return grown + look.mid(from) + RoundMarks(growth);
}

int Closer(int height) { return height < kLeastHit ? height : std::max(kLeastHit, Grown(height, kCloser)); }

bool IsFree(int most) { return most >= QWIDGETSIZE_MAX; }

}  // namespace

ConsoleArrangement::ConsoleArrangement(QMainWindow& window) : window_(window) {
  for (QWidget* widget : window.centralWidget()->findChildren<QWidget*>()) {
    const bool sized =
        !widget->minimumSize().isNull() || !IsFree(widget->maximumWidth()) || !IsFree(widget->maximumHeight());
    if (sized) sized_.push_back({widget, widget->minimumSize(), widget->maximumSize()});
  }
  for (QLayout* layout : window.centralWidget()->findChildren<QLayout*>()) {
    spaced_.push_back({layout, layout->contentsMargins(), layout->spacing()});
  }
}

double ConsoleArrangement::GrowthIn(const QSize& room) {
  double growth = 1;
  if (room.width() >= kFullHd) {
    growth = kFullHdGrowth + (room.width() - kFullHd) / (kLargest - kFullHd) * (kMostGrowth - kFullHdGrowth);
  } else if (room.width() >= kGrowsFrom) {
    growth = 1 + (room.width() - kGrowsFrom) / (kFullHd - kGrowsFrom) * (kFullHdGrowth - 1);
  }
  growth = std::min({growth, kMostGrowth, static_cast<double>(room.height()) / kWholeHeight});
  // In steps, so that a window that is being dragged isn't dressed anew at each pixel.
  constexpr double kSteps = 20;
  return std::max(1.0, std::floor(growth * kSteps + 0.001) / kSteps);
}

ConsoleArrangement::Plan ConsoleArrangement::PlanFor(const QSize& room) {
  Plan plan;
  plan.Growth = GrowthIn(room);
  plan.Folded = room.height() < kClosedHeight;
  plan.Close = room.height() < kWholeHeight;
  plan.Stacked = room.width() < kLineInOneRow * plan.Growth;
  return plan;
}

void ConsoleArrangement::Fit(const QSize& room) {
  const Plan plan = PlanFor(room);
  if (plan == plan_) return;
  if (plan.Folded != plan_.Folded) FoldScores(plan.Folded);
  if (plan.Growth != plan_.Growth || plan.Close != plan_.Close) Restyle(plan);
  Resize(plan);
  plan_ = plan;
  window_.centralWidget()->layout()->activate();
}

void ConsoleArrangement::Resize(const Plan& plan) {
  const double growth = plan.Growth;
  for (const Sized& item : sized_) {
    const bool close = plan.Close && !KeepsRoom(plan, item.Widget);
    const auto height = [&](int length) { return close ? Closer(length) : Grown(length, growth); };
    item.Widget->setMinimumSize(Grown(item.Least.width(), growth), height(item.Least.height()));
    item.Widget->setMaximumSize(IsFree(item.Most.width()) ? QWIDGETSIZE_MAX : Grown(item.Most.width(), growth),
                                IsFree(item.Most.height()) ? QWIDGETSIZE_MAX : height(item.Most.height()));
  }
  for (const Spaced& item : spaced_) {
    const QWidget* place = item.Layout->parentWidget();
    // The edge around the start button would close up with it.
    const bool closer = plan.Close && !KeepsRoom(plan, place) && place->objectName() != "pnlStart";
    const double gap = closer ? 0.7 : growth;
    const QMargins& m = item.Margins;
    item.Layout->setContentsMargins(Grown(m.left(), growth), Grown(m.top(), gap), Grown(m.right(), growth),
                                    Grown(m.bottom(), gap));
    if (item.Spacing > 0) item.Layout->setSpacing(Grown(item.Spacing, gap));
  }
  if (auto* line = window_.findChild<QBoxLayout*>("pnlShowLineParts")) {
    line->setDirection(plan.Stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    // A lower row that has nothing to say would keep its share, and the upper one would not stand in the middle.
    line->setStretch(1, plan.Stacked ? 0 : 1);
    if (!plan.Stacked) line->setSpacing(Grown(14, growth));
    // As high as with all its parts, so that the board stays where it is when one comes or goes.
    line->parentWidget()->setMinimumHeight(Grown(plan.Stacked ? (plan.Close ? 49 : 54) : 38, growth));
  }
}

bool ConsoleArrangement::KeepsRoom(const Plan& plan, const QWidget* widget) const {
  const auto* right = window_.findChild<const QWidget*>("pnlRight");
  return plan.Folded && (widget == right || right->isAncestorOf(widget));
}

void ConsoleArrangement::FoldScores(bool folded) {
  for (int player = 1; player <= 3; ++player) {
    const QString number = QString::number(player);
    auto* keys = window_.findChild<QWidget*>("pnlScoreKeys" + number);
    auto* home = window_.findChild<QWidget*>((folded ? "pnlPlayer" : "pnlScoreRow") + number);
    home->layout()->addWidget(keys);
  }
  window_.findChild<QWidget*>("pnlScores")->setVisible(!folded);
}

void ConsoleArrangement::Restyle(const Plan& plan) {
  QString look = plan.Growth > 1 ? LookAt(plan.Growth) : QString();
  if (plan.Close) look += "QRadioButton { min-height: 22px; }";
  window_.setStyleSheet(look);
  for (KeyButton* button : window_.findChildren<KeyButton*>()) button->SetGrowth(plan.Growth);
}

}  // namespace pawnfield
