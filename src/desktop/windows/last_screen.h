// One screen left, and it was the room's: the console comes up there only when the operator says so. Until then a card
// covers it and every other window of the program, with nothing on it that the room may not read.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <vector>

class QScreen;
class QWidget;

namespace pawnfield {

class Screens;

class LastScreen : public QObject {
 public:
  // Both windows outlive it.
  LastScreen(QWidget& console, QWidget& audience, Screens& screens);
  ~LastScreen() override;
  LastScreen(const LastScreen&) = delete;
  LastScreen& operator=(const LastScreen&) = delete;

  bool IsCovering() const { return !cards_.empty(); }
  // While it covers, keys and clicks are its own: the first that is meant for it takes the cards away.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ScreenRemoved(const QScreen* screen);
  void ScreensChanged();
  void CoverAll();
  void Cover(QWidget& window);
  void Uncover();

  QWidget& console_;
  QWidget& audience_;
  Screens& screens_;
  std::vector<QPointer<QWidget>> cards_;
  QElapsedTimer covered_;
};

}  // namespace pawnfield
