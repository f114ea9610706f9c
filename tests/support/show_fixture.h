// A show on the simulated machine, started and idle at the console, with helpers that work it as an operator would.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {

enum class Screens { One, Two };

class ShowFixture {
 public:
  explicit ShowFixture(Screens screens = Screens::Two);
  ~ShowFixture();

  // Runs the entry, the splash and the console's load. Devices are plugged in before; messages other
  // than the manual mode's must be expected before.
  void Start();

  void Preset(const std::string& key, const std::string& value) {
    sim.settings.Preset("Pawnfield", "Settings", key, value);
  }

  void Exit();

  void WriteSet(const std::string& name, const std::vector<std::string>& questions);
  void WriteNumberedSet(const std::string& name, int count);
  void ChooseSet(const std::string& name);
  void Claim(int row, int column);
  std::string Scores();
  // The console's bottom line.
  Label& StatusBar();

  Show& show() { return show_; }
  MainForm& form() { return show_.frmMain; }
  FSMainForm& audience() { return show_.frmFSMain; }

  SimPlatform sim;

 private:
  Show show_;
};

}  // namespace pawnfield
