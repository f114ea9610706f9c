// Tells assistive devices what the two canvases show, and announces what changes in a show: a question, who rings in,
// the verdict, a claim, the scores, standby. The answer is told on the console and nowhere else. While no assistive
// device listens a change costs nothing.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QTimer>
#include <array>
#include <memory>

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

class AudienceWindow;
class ConsoleWindow;
class Canvas;
struct Show;

class ShowSpeaker : public QObject, public Observer, public QAccessible::ActivationObserver {
 public:
  // All three outlive it.
  ShowSpeaker(Show& show, ConsoleWindow& console, AudienceWindow& audience);
  ~ShowSpeaker() override;
  ShowSpeaker(const ShowSpeaker&) = delete;
  ShowSpeaker& operator=(const ShowSpeaker&) = delete;

  void Changed(Control& control, PropertyId id) override;
  // Who begins to listen in the middle of a show hears what changes from then on.
  void accessibilityActiveChanged(bool active) override;

 private:
  // What has been told last.
  struct Told {
    QString question, winner;
    int answers = 0, verdicts = 0;
    bool standby = false;
    std::array<std::array<int, 7>, 7> board{};
    std::array<QString, kPlayers> scores;
  };
  Told Now() const;
  void Announce();

  Show& show_;
  Canvas& console_;
  bool isHeard_ = false;
  // Up to date while it is heard.
  Told told_;
  // Held by what is asked of a canvas, too.
  std::shared_ptr<QString> announcement_ = std::make_shared<QString>();
  QTimer soon_;
};

}  // namespace pawnfield
