// A random operator: works a show on the simulated machine by whatever can be reached, and checks after each action
// what must always hold.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "monkey/chance.h"
#include "monkey/invariants.h"
#include "monkey/second_show.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {

enum class ActionKind { Click, Select, Type, Key, Wait, Sleep, World, Device, Walk };

// Stands on its own, so that a list of actions means the same when some are left out. What can't be done is skipped.
struct Action {
  ActionKind Kind = ActionKind::Wait;
  std::string Form;
  // A control's name, a text to type after it ("txtPlayerName(0)=Ann"), or what happens to the world or a device.
  std::string Target;
  std::int64_t Value = 0;
  // Decides what dialogs answer while this action runs.
  std::uint32_t Seed = 0;
};

std::string Describe(const Action& action);

// Answers every dialog at random. Error boxes are kept, for the check that none was unexpected.
class MonkeyDialogs : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string& text, const std::string& title, BoxKind kind) override;
  std::string ChooseFile(const FileDialogRequest& request) override;
  std::optional<Font> ChooseFont(const Font& start) override;
  std::optional<Color> ChooseColor(Color start) override;
  void ShowModal(Form& form) override;
  ModalKind Modal() const override { return modal_; }

  void Reseed(std::uint32_t seed) { chance_ = Chance(seed); }
  std::vector<std::string> TakeErrors();
  VirtualClock* Clock = nullptr;

 private:
  void LetTimePass(ModalKind kind);

  ModalKind modal_ = ModalKind::None;
  Chance chance_{1};
  std::vector<std::string> errors_;
  int depth_ = 0;
};

// One show from its start. The world it starts in is decided by the seed.
class MonkeyShow {
 public:
  explicit MonkeyShow(std::uint32_t seed);

  Action Choose(Chance& chance);
  // Does it and returns what no longer holds, empty when all is well.
  std::string Do(const Action& action);

 private:
  void PutWorld(Chance& chance);
  Action ChooseClick(Chance& chance);
  Action ChooseChange(Chance& chance);
  void Perform(const Action& action);
  void ChangeWorld(const Action& action);
  void UseDevice(const Action& action);
  void ChangeMonitors(Chance& chance);
  Form& FormNamed(const std::string& name);

  MonkeyDialogs dialogs_;
  SimPlatform sim_;
  Show show_;
  SecondShow second_;
  LastAction lastAction_;
};

}  // namespace pawnfield
