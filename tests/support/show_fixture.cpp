#include "support/show_fixture.h"

#include "forms/main_form.h"
#include "program/program.h"

namespace pawnfield {

ShowFixture::ShowFixture(Screens screens) : show_(sim.platform) {
  if (screens == Screens::Two) sim.displays.Monitors = {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
}

ShowFixture::~ShowFixture() {
  for (const std::string& error : sim.dialogs.TakeErrors()) ADD_FAILURE() << error;
}

void ShowFixture::Start() {
  if (sim.hid.Devices.empty() && sim.serial.Devices.empty()) sim.dialogs.ExpectMessage("No hardware was detected");
  Main(show_);
  sim.clock.Advance(10000);
}

void ShowFixture::Exit() {
  sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  if (show_.state.GameLoaded && show_.state.GameStarted) sim.dialogs.ExpectMessage("Is the show over?", BoxAnswer::Yes);
  form().mnuFileExit.Click();
}

void ShowFixture::WriteSet(const std::string& name, const std::vector<std::string>& questions) {
  std::string bytes;
  for (const std::string& question : questions) {
    const std::string type = question.ends_with(".jpg") ? "P" : question.ends_with(".wav") ? "S" : "T";
    bytes += question + "\r\nThe answer\r\n" + (type == "T" ? "T#Courier New#28#True#True#16777215#" : type) + "\r\n";
  }
  sim.files.Write("C:\\Pawnfield\\Trivia Sets\\" + name + ".txt", bytes);
}

void ShowFixture::WriteNumberedSet(const std::string& name, int count) {
  std::vector<std::string> questions;
  for (int i = 1; i <= count; ++i) questions.push_back("Question " + std::to_string(i) + "?");
  WriteSet(name, questions);
}

void ShowFixture::ChooseSet(const std::string& name) {
  ComboBox& list = form().cboList;
  list.DropDown();
  for (std::size_t i = 0; i < list.List->size(); ++i) {
    if (list.List.Get()[i] == name) {
      list.Select(static_cast<int>(i));
      return;
    }
  }
  ADD_FAILURE() << "no set named " << name;
}

void ShowFixture::Claim(int row, int column) { form().img.At(row, column)->Click(); }

std::string ShowFixture::Scores() {
  return form().lblP1Score.Caption.Get() + " " + form().lblP2Score.Caption.Get() + " " +
         form().lblP3Score.Caption.Get();
}

Label& ShowFixture::StatusBar() { return form().lblStatusBar; }

}  // namespace pawnfield
