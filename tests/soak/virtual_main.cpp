// A long show in virtual time: pawnfield_soak_virtual HOURS. Logs at each tenth what the process holds, and fails when
// that grows after the first.
#include <cstdio>
#include <cstdlib>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "program/program.h"
#include "sim/sim_platform.h"
#include "soak/gauge.h"
#include "soak/operator.h"

namespace {

using namespace pawnfield;

constexpr int kParts = 10;
constexpr std::int64_t kHourMs = 3600000;
// What the allocator keeps of a busy moment may differ by some pages; a game that leaves a kilobyte behind shows.
constexpr Reading kBound{256, 16, 0, 0};

// Answers as a calm operator would, closes each form at once, and counts what should not have come.
class CalmDialogs : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string& text, const std::string&, BoxKind kind) override {
    if (text.starts_with("An untrapped error")) {
      std::printf("error box: %s\n", text.c_str());
      ++Errors;
    }
    return kind == BoxKind::YesNo || kind == BoxKind::YesNoCancel ? BoxAnswer::Yes : BoxAnswer::Ok;
  }
  std::string ChooseFile(const FileDialogRequest&) override { return {}; }
  std::optional<Font> ChooseFont(const Font&) override { return std::nullopt; }
  std::optional<Color> ChooseColor(Color) override { return std::nullopt; }
  void ShowModal(Form& form) override {
    form.Visible = true;
    form.Unload();
  }
  ModalKind Modal() const override { return ModalKind::None; }

  int Errors = 0;
};

class VirtualHands : public Hands {
 public:
  VirtualHands(SimPlatform& sim, Show& show) : sim_(sim), show_(show) {}

  bool Press(Control& control) override {
    const bool reachable = control.IsReachable();
    control.Click();
    return reachable;
  }
  bool Choose(ComboBox& list, const std::string& item) override {
    for (std::size_t i = 0; i < list.List->size(); ++i) {
      if (list.List.Get()[i] == item) list.Select(static_cast<int>(i));
    }
    return list.Text() == item;
  }
  bool Visit(Control& opener) override { return Press(opener); }
  void Type(char key) override { show_.frmMain.KeyPress(key); }
  void PressRemote(int remote) override { sim_.hid.Reports.push_back({'\0', '\0', static_cast<char>(remote)}); }
  void Wait(int ms) override {
    sim_.clock.Advance(ms);
    EndFilm();
    ForgetRecords();
  }

 private:
  // The simulation's player doesn't report its end.
  void EndFilm() {
    RecordedChannel& film = sim_.media.MediaPlayer1;
    if (film.Playing && film.CurrentPosition() >= film.Duration()) film.Report(PlayState::Stopped);
  }
  // What the simulation notes for tests grows with the show.
  void ForgetRecords() {
    sim_.media.Log = {};
    sim_.hid.Writes = {};
    sim_.settings.Writes = {};
    sim_.displays.TopMost = {};
    sim_.processes.HelperArguments = {};
  }

  SimPlatform& sim_;
  Show& show_;
};

void PutFiles(SimPlatform& sim) {
  const std::string font = "T#Courier New#28#True#True#16777215#\r\n";
  std::string questions;
  for (int i = 0; i < 60; ++i) questions += "What comes after " + std::to_string(i) + "?\r\nThe next\r\n" + font;
  const std::string sets = "C:\\Pawnfield\\Trivia Sets\\";
  sim.files.Put(sets + "Numbers.txt", questions);
  const std::string media = ".\\there.jpg\r\nA picture\r\nP\r\n.\\there.wav\r\nA sound\r\nS\r\n";
  sim.files.Put(sets + "Media.txt", media + questions + media);
  sim.files.Put(sets + "there.jpg", SimPictures::PictureBytes(640, 480));
  sim.files.Put(sets + "there.wav", "RIFF");
  for (const char* name : {"C:\\sound.wav", "C:\\film.mp4", "C:\\music.mp3"}) sim.files.Put(name, "media");
  sim.files.Put("C:\\picture.jpg", SimPictures::PictureBytes(800, 600));
  sim.media.Deck.Durations = {{"C:\\film.mp4", 8}, {"C:\\music.mp3", 200}};
  sim.media.Deck.Time = &sim.clock;
}

}  // namespace

int main(int argc, char** argv) {
  const double hours = argc == 2 ? std::atof(argv[1]) : 0;
  if (hours <= 0) {
    std::fprintf(stderr, "usage: pawnfield_soak_virtual HOURS\n");
    return 2;
  }
  CalmDialogs dialogs;
  SimPlatform sim;
  sim.dialogs.Instead = &dialogs;
  sim.displays.Monitors = {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
  sim.hid.PlugTransceiver(kTransceiverShort);
  PutFiles(sim);
  Show show(sim.platform);
  Main(show);
  sim.clock.Advance(12000);
  VirtualHands hands(sim, show);
  Operator person(show, hands, {600, 150});
  person.Prepare({"C:\\sound.wav", "C:\\picture.jpg", "C:\\film.mp4", "C:\\music.mp3"});
  Gauge gauge(kBound);
  for (int part = 1; part <= kParts; ++part) {
    const double until = hours * kHourMs * part / kParts;
    while (static_cast<double>(sim.clock.NowMs()) < until) person.PlayGame();
    person.Rest();
    char moment[80];
    std::snprintf(moment, sizeof moment, "%.1f hours, %d games", static_cast<double>(sim.clock.NowMs()) / kHourMs,
                  person.Games());
    gauge.Read(moment);
  }
  std::printf(
      "%d games, %d of them to their winner, %d squares claimed, %d media on demand, %d films of them, %d error "
      "boxes\n",
      person.Games(), person.Winners(), person.Claims(), person.MediaPlayed(), person.Films(), dialogs.Errors);
  return gauge.ReportVerdict() && person.Winners() == person.Games() && dialogs.Errors == 0 ? 0 : 1;
}
