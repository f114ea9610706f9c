// A show on the simulated machine, started and idle at the console, with helpers that work it as an operator would.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "program/program.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {

enum class Screens { One, Two };

class ShowFixture {
 public:
  explicit ShowFixture(Screens screens = Screens::Two) : show_(sim.platform) {
    if (screens == Screens::Two) sim.displays.Monitors = {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
  }
  ~ShowFixture() {
    for (const std::string& error : sim.dialogs.TakeErrors()) ADD_FAILURE() << error;
  }

  // Runs the entry, the splash and the console's load. Devices are plugged in before; messages other
  // than the manual mode's must be expected before.
  void Start() {
    if (sim.hid.Devices.empty() && sim.serial.Devices.empty()) sim.dialogs.ExpectMessage("No hardware was detected");
    Main(show_);
    sim.clock.Advance(10000);
  }

  void Preset(const std::string& key, const std::string& value) {
    sim.settings.Preset("Pawnfield", "Settings", key, value);
  }

  void Exit() {
    sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
    form().mnuFileExit.Click();
  }

  void WriteSet(const std::string& name, const std::vector<std::string>& questions) {
    std::string bytes;
    for (const std::string& question : questions) {
      const std::string type = question.ends_with(".jpg") ? "P" : question.ends_with(".wav") ? "S" : "T";
      bytes += question + "\r\nThe answer\r\n" + (type == "T" ? "T#Courier New#28#True#True#16777215#" : type) + "\r\n";
    }
    sim.files.Write("C:\\Pawnfield\\Trivia Sets\\" + name + ".txt", bytes);
  }

  void WriteNumberedSet(const std::string& name, int count) {
    std::vector<std::string> questions;
    for (int i = 1; i <= count; ++i) questions.push_back("Question " + std::to_string(i) + "?");
    WriteSet(name, questions);
  }

  void ChooseSet(const std::string& name) {
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

  void Claim(int row, int column) { form().img.At(row, column)->Click(); }

  std::string Scores() {
    return form().lblP1Score.Caption.Get() + " " + form().lblP2Score.Caption.Get() + " " +
           form().lblP3Score.Caption.Get();
  }

  Show& show() { return show_; }
  MainForm& form() { return show_.frmMain; }
  FSMainForm& audience() { return show_.frmFSMain; }

  SimPlatform sim;

 private:
  Show show_;
};

}  // namespace pawnfield
