// Fits the console's columns to the room that its window has: larger columns and type on large screens, closer rows and
// the score keys in the players' cards on small ones. The board takes what is left.
#pragma once

#include <QMargins>
#include <QSize>
#include <QString>
#include <vector>

class QBoxLayout;
class QLayout;
class QMainWindow;
class QWidget;

namespace pawnfield {

class ConsoleArrangement {
 public:
  // Of a console whose columns have just been made, in the sizes of the smallest.
  explicit ConsoleArrangement(QMainWindow& window);
  // Does nothing where that room is arranged like the one before.
  void Fit(const QSize& room);

  // How much larger than on a small screen columns and type are: 1 to 1.5.
  static double GrowthIn(const QSize& room);

 private:
  struct Sized {
    QWidget* Widget;
    QSize Least, Most;
  };
  struct Spaced {
    QLayout* Layout;
    QMargins Margins;
    int Spacing;
  };
  struct Plan {
    double Growth = 1;
    // Rows close up; score keys stand in the cards; the line has two rows.
    bool Close = false, Folded = false, Stacked = true;
    bool operator==(const Plan&) const = default;
  };
  static Plan PlanFor(const QSize& room);
  void Resize(const Plan& plan);
  void FoldScores(bool folded);
  // The right column has room to spare where the score keys have left it.
  bool KeepsRoom(const Plan& plan, const QWidget* widget) const;
  void Restyle(const Plan& plan);

  QMainWindow& window_;
  std::vector<Sized> sized_;
  std::vector<Spaced> spaced_;
  Plan plan_;
};

}  // namespace pawnfield
