#include "support/game_player.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>

#include "devices/transceiver.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "program/handlers.h"
#include "support/operator_words.h"
#include "support/screen_pairs.h"
#include "support/seen.h"

namespace pawnfield {

namespace {

using std::string_literals::operator""s;

// The controls that set what a letter of the setup asks for.
const std::map<char, std::string> kOptions = {
    {'p', "chkIncorrectPenalty"}, {'a', "chkAnimation"}, {'m', "cboAutoContinue:3"}, {'0', "cbxScore(0):0"}};

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

std::string Indexed(const std::string& name, int index) { return name + "(" + std::to_string(index) + ")"; }

std::string Spaced(std::string text) {
  std::replace(text.begin(), text.end(), '_', ' ');
  return text;
}

std::string FileName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

}  // namespace

GamePlayer::GamePlayer(const std::string& setup, Screens monitors) : fixture_(monitors), shown_(&fixture_.form()) {
  int type = 0, players = 0, grid = 0;
  std::string ending, options;
  std::istringstream in(SetupOfWords(setup));
  in >> type >> players >> grid >> ending >> options;
  for (std::string setting; in >> setting;) {
    fixture_.Preset(setting.substr(0, setting.find('=')), setting.substr(setting.find('=') + 1));
  }
  const auto has = [&](char option) { return options.find(option) != std::string::npos; };
  fixture_.WriteNumberedSet("Long", has('7') ? 7 : 30);
  if (has('k')) fixture_.WriteSet("Long", {"Which one?", "C:\\Shows\\photo.jpg", "C:\\Shows\\clip.WAV"});
  PrepareMachine(options);
  fixture_.Start();
  CheckEveryEvent();
  Press(Indexed("optGameType", type - 1));
  Press(Indexed("optPlayers", players - 2));
  Press(Indexed("optGridControl", grid - 3));
  Press(Indexed("optGameEnds", ending == "row" ? 0 : 1));
  for (const auto& [option, control] : kOptions) {
    if (has(option)) Press(control);
  }
  if (has('i')) return;
  if (type >= 3) fixture_.ChooseSet("Long");
  Press("btnStart");
}

void GamePlayer::PrepareMachine(const std::string& options) {
  for (const char* cursor : {"Neutral", "X", "O", "T"}) {
    fixture_.sim.files.Put("C:\\Pawnfield\\Images\\Cursor"s + cursor + ".png", "");
  }
  for (const char* picture : {"Neutral.bmp", "Correct.jpg", "Incorrect.jpg", "ColA.png", "Row1.png"}) {
    fixture_.sim.files.Put("C:\\Pawnfield\\Images\\"s + picture, "");
  }
  fixture_.sim.files.Put("C:\\Shows\\photo.jpg", SimPictures::PictureBytes(800, 600));
  fixture_.sim.files.Put("C:\\Shows\\clip.WAV", "sound");
  wired_ = options.find('l') != std::string::npos;
  if (wired_) {
    fixture_.sim.serial.Plug();
    fixture_.sim.files.Put("C:\\Ostara Show Kit Data\\MFMap.dat", FormatPadMap({101, 102, 103, 104}));
  }
  if (options.find('w') != std::string::npos) fixture_.sim.hid.PlugTransceiver(kTransceiverShort);
  if (options.find('W') != std::string::npos) fixture_.sim.hid.PlugTransceiver();
}

void GamePlayer::Do(const std::string& words) { Play(StepsOfWords(words)); }

void GamePlayer::Play(const std::string& script) {
  std::istringstream steps(script);
  for (std::string step; steps >> step;) {
    played_ += " " + step;
    std::string within;
    if (step == "[") {
      std::getline(steps, within, ']');
      fixture_.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [this, within] { Play(within); });
      form().mnuFileExit.Click();
    } else if (const std::size_t at = step.find("@frm"); at != std::string::npos) {
      std::getline(steps, within, '}');
      PlayInForm(step.substr(0, at), step.substr(at + 1), within.substr(within.find('{') + 1));
    } else {
      Step(step);
    }
  }
}

void GamePlayer::PlayInForm(const std::string& opener, const std::string& name, const std::string& script) {
  const auto forms = AllForms(show());
  const auto shown = std::find_if(forms.begin(), forms.end(), [&](const Form* f) { return f->Name() == name; });
  fixture_.sim.dialogs.ExpectForm(name, [&] {
    shown_ = *shown;
    Play(script);
    shown_ = &form();
  });
  Press(opener);
}

void GamePlayer::Step(const std::string& step) {
  const RecordedMedia& media = fixture_.sim.media;
  const std::map<std::string, const RecordedChannel*> players{
      {"event", &media.EventPlayer}, {"clip", &media.SoundClipPlayer}, {"verdict", &media.CorrectIncorrectPlayer}};
  const auto player = players.find(step.substr(0, step.find('=')));
  if (player != players.end()) {
    EXPECT_EQ(player->first + "=" + FileName(player->second->Url), step) << "after" << played_;
  } else if (step[0] == '?') {
    const bool no = step.starts_with("?No:");
    fixture_.sim.dialogs.ExpectMessage(Spaced(step.substr(no ? 4 : 1)), no ? BoxAnswer::No : BoxAnswer::Ok);
  } else if (step.starts_with("file:")) {
    fixture_.sim.dialogs.ExpectFile(Spaced(step.substr(5)));
  } else if (step == "set") {
    fixture_.ChooseSet("Long");
  } else if (step.starts_with("keys:")) {
    Type(step.substr(5));
  } else if (step[0] == '*') {
    fixture_.sim.serial.Feed("MF\0\2\xB4"s + static_cast<char>(step[1] - '0'));
  } else if (step[0] == '#') {
    RingIn(std::stoi(step.substr(1)));
  } else if (step.find('=') != std::string::npos) {
    ExpectSeen(show(), step, played_, shown_);
  } else if (step[0] == '>') {
    fixture_.sim.clock.Advance(std::stoi(step.substr(1)));
  } else if (IsDigit(step[0])) {
    step.size() == 1 ? RingIn((wired_ ? 100 : 0) + step[0] - '0') : Claim(step);
  } else {
    Press(step);
  }
}

void GamePlayer::Claim(const std::string& step) {
  const int row = step[0] - '0', column = step[1] - '0';
  step.ends_with('\'') ? fixture_.audience().img.At(row, column)->Click() : fixture_.Claim(row, column);
  if (step.size() > 2) return;
  fixture_.sim.clock.Advance(1000);
}

void GamePlayer::RingIn(int code) {
  const char high = static_cast<char>(code >> 8), low = static_cast<char>(code);
  if (wired_) {
    fixture_.sim.serial.Feed("MF\0\4\xFD\0"s + high + low);
  } else {
    fixture_.sim.hid.Reports.push_back({'\0', high, low});
  }
}

void GamePlayer::Type(const std::string& keys) {
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const bool control = keys[i] == '^' && keys[++i] != '^';
    form().KeyPress(control ? keys[i] - '@' : keys[i]);
  }
}

void GamePlayer::Press(const std::string& name) {
  const std::size_t colon = std::min(name.find(':'), name.size());
  Control* control = shown_->Find(name.substr(0, colon));
  ASSERT_TRUE(control != nullptr && control->IsReachable()) << name << " can't be pressed after" << played_;
  const std::string value = name.substr(std::min(colon + 1, name.size()));
  if (auto* box = dynamic_cast<TextBox*>(control)) {
    box->Type(Spaced(value));
  } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
    list->Select(std::stoi(value));
  } else {
    control->Click();
  }
}

// Every event of a form runs through its guard, timers too.
void GamePlayer::CheckEveryEvent() {
  for (Form* form : AllForms(show())) {
    form->Guard = [this, guard = form->Guard](const auto& handler, const auto& location, const auto& procedure) {
      guard(handler, location, procedure);
      ExpectBothScreensAlike(procedure);
    };
  }
}

void GamePlayer::ExpectBothScreensAlike(const std::string& event) {
  if (!show().state.DualScreen) return;
  for (const std::string& pair : UnlikePairs(show())) {
    ADD_FAILURE() << pair << " differs after " << event << " after" << played_;
  }
  const bool cursorPaired = event == "btnQuestionCorrect_Click" || event == "tmrWinner_Timer";
  if (!cursorPaired) return;
  EXPECT_EQ(form().MouseIcon.Get(), fixture_.audience().MouseIcon.Get()) << "after " << event;
}

std::string WordStoryTest::Name(const testing::TestParamInfo<WordStory>& story) {
  std::string name;
  bool first = true;
  for (const char c : std::string(story.param.claim)) {
    const bool letter = std::isalnum(static_cast<unsigned char>(c)) != 0;
    if (letter) name += first ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
    first = !letter;
  }
  return name;
}

}  // namespace pawnfield
