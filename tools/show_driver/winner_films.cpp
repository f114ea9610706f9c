#include "winner_films.h"

#include <QProcess>
#include <QTextStream>
#include <vector>

#include "desktop/windows/audience_window.h"
#include "forms/main_form.h"
#include "presentation/both_screens.h"

namespace pawnfield {

namespace {

constexpr const char* kLongName = "MAXIMILIANA WORTHINGTON-SMYTHEE";

// How a game ends: what the others have above or below the first player, whose last square makes two lines.
struct GameEnding {
  const char* Name;
  int Players;
  std::vector<QString> Names;
  // Of the second and third player, in points over the first.
  int Second, Third;
  // What a line pays in tens; with the square's own points 300 or more come before the winner as a bonus.
  int LinePays;
};

const std::vector<GameEnding> kEndings = {{"three-bonus", 3, {"ANNA", "BEN", "CHLOE"}, -250, -550, 15},
                                          {"three-third-wins", 3, {"ANNA", "BEN", kLongName}, -100, 200, 5},
                                          {"three-long-name", 3, {kLongName, "BEN", "CHLOE"}, -600, -50, 5},
                                          {"two-tie-bonus", 2, {"ANNA", kLongName}, 0, 0, 15},
                                          {"two-winner", 2, {"ANNA", "BEN"}, 100, 0, 5},
                                          {"three-tie", 3, {"ANNA", "BEN", "CHLOE"}, 0, 0, 5}};

// Records a part of the display while it stands.
class Film {
 public:
  Film(const QRect& area, const QString& file) {
    const QString size = QString("%1x%2").arg(area.width()).arg(area.height());
    const QString place = QString("%1+%2,%3").arg(qEnvironmentVariable("DISPLAY")).arg(area.x()).arg(area.y());
    recorder_.start("ffmpeg", {"-v",         "error",   "-y",          "-f",  "x11grab", "-draw_mouse", "0",
                               "-framerate", "20",      "-video_size", size,  "-i",      place,         "-c:v",
                               "libx264",    "-preset", "ultrafast",   "-qp", "12",      file});
  }
  ~Film() { End(); }
  bool End() {
    recorder_.write("q");
    recorder_.closeWriteChannel();
    return recorder_.waitForFinished(60000) && recorder_.exitCode() == 0;
  }

 private:
  QProcess recorder_;
};

class Films {
 public:
  Films(ShowDriver& driver, QString folder)
      : driver_(driver), show_(driver.TheShow()), form_(show_.frmMain), folder_(std::move(folder)) {}

  bool Take(const GameEnding& ending) { return Prepare(ending) && Claim(ending) && Settle(ending) && FilmEnd(ending); }

 private:
  bool Prepare(const GameEnding& ending) {
    if (!driver_.WaitFor([&] { return form_.optGameType[0].Enabled.Get(); })) return false;
    for (const QString& option : {QString("optGameType_0"), QString("optPlayers_%1").arg(ending.Players - 2),
                                  QString("optGridControl_2"), QString("optGameEnds_0")}) {
      if (!driver_.Press(option)) return false;
    }
    for (int player = 1; player <= ending.Players; ++player)
      SetPlayerName(show_, player, ending.Names[static_cast<std::size_t>(player - 1)].toStdString());
    show_.state.Bonus = ending.LinePays;
    return driver_.Press("btnStart") && (!form_.btnPlayMode.Enabled || driver_.Press("btnPlayMode"));
  }

  bool Claim(const GameEnding& ending) {
    const std::pair<int, int> squares[][3] = {
        {{2, 0}, {0, 0}, {0, 4}}, {{2, 1}, {4, 4}, {3, 1}}, {{0, 2}, {1, 0}, {4, 0}}, {{1, 2}, {4, 2}, {1, 4}}};
    for (const auto& round : squares) {
      for (int player = 0; player < ending.Players; ++player) {
        if (!driver_.PressSquare(round[player].first, round[player].second)) return false;
        if (!driver_.WaitFor([&] { return show_.state.PlacementOpen; })) return false;
      }
    }
    return true;
  }

  // The last square pays itself and two lines.
  bool Settle(const GameEnding& ending) {
    const int first = show_.state.Scoring * 10 + 2 * ending.LinePays * 10;
    SetScore(show_, 1, "0");
    SetScore(show_, 2, std::to_string(first + ending.Second));
    if (ending.Players > 2) SetScore(show_, 3, std::to_string(first + ending.Third));
    driver_.Pause(300);
    return true;
  }

  bool FilmEnd(const GameEnding& ending) {
    Film film(driver_.Program().Audience().geometry(), QString("%1/winner-%2.mp4").arg(folder_, ending.Name));
    driver_.Pause(1500);
    if (!driver_.PressSquare(2, 2)) return false;
    const bool ended = driver_.WaitFor([&] { return form_.picWinner.Visible.Get(); }) &&
                       driver_.WaitFor([&] { return form_.picStandby.Visible.Get(); });
    driver_.Pause(300);
    return ended && film.End();
  }

  ShowDriver& driver_;
  Show& show_;
  MainForm& form_;
  QString folder_;
};

}  // namespace

bool FilmWinners(ShowDriver& driver, const QString& folder) {
  Films films(driver, folder);
  for (const GameEnding& ending : kEndings) {
    if (films.Take(ending)) continue;
    QTextStream(stderr) << "did not end: " << ending.Name << '\n';
    return false;
  }
  return true;
}

}  // namespace pawnfield
