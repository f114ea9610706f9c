// Tells assistive devices what the two canvases show, and announces what changes in a show: a question, who rings in,
// the verdict, a claim, the scores, standby. The answer is told on the console and nowhere else.
#pragma once

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

class ShowSpeaker : public QObject, public Observer {
 public:
  // All three outlive it.
  ShowSpeaker(Show& show, ConsoleWindow& console, AudienceWindow& audience);
  ~ShowSpeaker() override;
  ShowSpeaker(const ShowSpeaker&) = delete;
  ShowSpeaker& operator=(const ShowSpeaker&) = delete;

  void Changed(Control& control, PropertyId id) override;

 private:
  // What has been told last.
  struct Told {
    QString question, verdict, winner;
    int answers = 0;
    bool standby = false;
    std::array<std::array<int, 7>, 7> board{};
    std::array<QString, kPlayers> scores;
  };
  Told Now() const;
  void Announce();

  Show& show_;
  Canvas& console_;
  Told told_;
  // Held by what is asked of a canvas, too.
  std::shared_ptr<QString> announcement_ = std::make_shared<QString>();
  QTimer soon_;
};

}  // namespace pawnfield
