#include "monkey/monkey.h"

#include <algorithm>
#include <array>
#include <utility>

#include "controllers/pad_map.h"
#include "devices/transceiver.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "monkey/random_world.h"
#include "program/handlers.h"
#include "program/program.h"
#include "record/history.h"

namespace pawnfield {

namespace {

constexpr const char* kSets = "C:\\Pawnfield\\Trivia Sets\\";

// The exit ends the run; btnCorrect is worked by the program and has no button in the window.
bool IsLeftAlone(const Control& control) { return control.Name() == "mnuFileExit" || control.Name() == "btnCorrect"; }

bool Acts(const Control& control) {
  return !IsLeftAlone(control) && control.IsReachable() && (control.OnClick || control.OnDblClick) &&
         control.Kind() != ControlKind::ComboBox && control.Kind() != ControlKind::TextBox;
}

std::vector<Control*> ControlsThatAct(Form& form) {
  std::vector<Control*> controls;
  for (Control* control : form.Controls()) {
    if (Acts(*control)) controls.push_back(control);
  }
  return controls;
}

std::vector<Control*> ReachableOfKind(Form& form, ControlKind kind) {
  std::vector<Control*> controls;
  for (Control* control : form.Controls()) {
    if (control->Kind() == kind && control->IsReachable()) controls.push_back(control);
  }
  return controls;
}

}  // namespace

std::string Describe(const Action& action) {
  static constexpr std::array kNames = {"click", "select", "type", "key", "wait", "sleep", "world", "device", "walk"};
  return std::string(kNames[static_cast<std::size_t>(action.Kind)]) + " " + action.Form + " " + action.Target + " " +
         std::to_string(action.Value) + " seed " + std::to_string(action.Seed);
}

void MonkeyDialogs::LetTimePass(ModalKind kind) {
  const ModalKind outer = std::exchange(modal_, kind);
  if (Clock != nullptr && depth_ < 3 && chance_.OneIn(2)) {
    ++depth_;
    Clock->Advance(static_cast<std::int64_t>(chance_.Below(4000)));
    --depth_;
  }
  modal_ = outer;
}

std::optional<Font> MonkeyDialogs::ChooseFont(const Font& start) {
  LetTimePass(ModalKind::Box);
  if (chance_.OneIn(3)) return std::nullopt;
  return Font{chance_.OneIn(2) ? "Courier New" : start.Name, static_cast<double>(chance_.Below(200)), chance_.OneIn(2),
              chance_.OneIn(2)};
}

std::optional<Color> MonkeyDialogs::ChooseColor(Color start) {
  LetTimePass(ModalKind::Box);
  if (chance_.OneIn(3)) return std::nullopt;
  return chance_.OneIn(2) ? start : static_cast<Color>(chance_.Next() & 0xffffff);
}

BoxAnswer MonkeyDialogs::MessageBox(const std::string& text, const std::string&, BoxKind kind) {
  if (text.starts_with("An untrapped error") && !IsExpectedError(text)) errors_.push_back(text);
  LetTimePass(ModalKind::Box);
  const std::size_t pick = chance_.Below(3);
  if (kind == BoxKind::YesNo) return pick == 0 ? BoxAnswer::No : BoxAnswer::Yes;
  if (kind == BoxKind::YesNoCancel) return std::array{BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}[pick];
  return BoxAnswer::Ok;
}

std::string MonkeyDialogs::ChooseFile(const FileDialogRequest& request) {
  LetTimePass(ModalKind::Box);
  if (chance_.OneIn(3)) return {};
  const std::string number = std::to_string(chance_.Below(5));
  return (request.InitialFolder.empty() ? kSets : request.InitialFolder + "\\") + number + ".txt";
}

void MonkeyDialogs::ShowModal(Form& form) {
  form.Visible = true;
  ++depth_;
  for (std::size_t actions = chance_.Below(12); actions > 0 && form.Visible && depth_ < 4; --actions) {
    LetTimePass(ModalKind::Window);
    const auto controls = ControlsThatAct(form);
    if (!controls.empty()) controls[chance_.Below(controls.size())]->Click();
    const auto boxes = ReachableOfKind(form, ControlKind::TextBox);
    if (!boxes.empty() && chance_.OneIn(2)) {
      static_cast<TextBox*>(boxes[chance_.Below(boxes.size())])->Type(kWords[chance_.Below(kWords.size())]);
    }
  }
  --depth_;
  if (form.Visible) form.Unload();
}

std::vector<std::string> MonkeyDialogs::TakeErrors() {
  std::vector<std::string> errors;
  errors.swap(errors_);
  return errors;
}

MonkeyShow::MonkeyShow(std::uint32_t seed) : show_(sim_.platform), second_({{0, 0, 1280, 800}, {1280, 0, 3200, 1080}}) {
  sim_.dialogs.Instead = &dialogs_;
  Chance chance(seed);
  dialogs_.Reseed(chance.Next());
  PutWorld(chance);
  Main(show_);
  sim_.clock.Advance(12000);
  dialogs_.Clock = &sim_.clock;
}

void MonkeyShow::PutWorld(Chance& chance) {
  if (!chance.OneIn(4)) sim_.displays.Monitors = {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
  if (chance.OneIn(2)) sim_.hid.PlugTransceiver(kTransceiverShort);
  if (chance.OneIn(2)) {
    sim_.serial.Plug();
    sim_.files.Put("C:\\Ostara Show Kit Data\\MFMap.dat", FormatPadMap({101, 102, 103}));
  }
  for (int i = 0; i < 5; ++i) sim_.files.Put(kSets + std::to_string(i) + ".txt", RandomSet(chance));
  sim_.files.Put(std::string(kSets) + "there.jpg", SimPictures::PictureBytes(640, 480));
  sim_.files.Put(std::string(kSets) + "there.wav", "RIFF");
}

void MonkeyShow::ChangeMonitors(Chance& chance) {
  static const std::array<std::vector<MonitorInfo>, 4> kSetUps = {std::vector<MonitorInfo>{{0, 0, 1280, 800}},
                                                                  {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}},
                                                                  {{0, 0, 1280, 800}, {-1920, 0, 0, 1080}},
                                                                  {{0, 0, 1920, 1080}, {0, -2160, 3840, 0}}};
  sim_.displays.Change(kSetUps[chance.Below(kSetUps.size())]);
}

void MonkeyShow::UseDevice(const Action& action) {
  Chance chance(static_cast<std::uint32_t>(action.Value));
  const auto anyByte = [&chance] { return static_cast<char>(chance.Below(256)); };
  if (action.Target == "press remote") {
    const auto remote = static_cast<char>(chance.OneIn(10) ? anyByte() : static_cast<char>(1 + chance.Below(4)));
    sim_.hid.Reports.push_back({'\0', chance.OneIn(20) ? anyByte() : '\0', remote});
  } else if (action.Target == "press pad") {
    const auto pad = static_cast<char>(100 + chance.Below(6));
    sim_.serial.Feed(std::string("MF\0\4\xFD\0\0", 7) + pad);
  } else if (action.Target == "noise") {
    std::string noise;
    for (std::size_t length = chance.Below(400); length > 0; --length) noise += anyByte();
    sim_.serial.Feed(noise);
    sim_.hid.Reports.push_back(noise.substr(0, 33));
  } else if (action.Target == "monitors") {
    ChangeMonitors(chance);
  } else {
    sim_.hid.Pull();
    sim_.serial.Pull();
  }
}

Form& MonkeyShow::FormNamed(const std::string& name) {
  for (Form* form : AllForms(show_)) {
    if (form->Name() == name) return *form;
  }
  return show_.frmMain;
}

Action MonkeyShow::ChooseClick(Chance& chance) {
  const bool onAudience = chance.OneIn(10) && show_.state.DualScreen;
  Form& form = onAudience ? static_cast<Form&>(show_.frmFSMain) : show_.frmMain;
  std::vector<Control*> controls = ControlsThatAct(form);
  if (!chance.OneIn(3)) {
    const auto moving =
        std::stable_partition(controls.begin(), controls.end(), [](Control* c) { return MovesOn(c->Name()); });
    if (moving != controls.begin()) controls.erase(moving, controls.end());
  }
  if (controls.empty()) return {};
  return {ActionKind::Click, form.Name(), controls[chance.Below(controls.size())]->Name(), 0, 0};
}

Action MonkeyShow::ChooseChange(Chance& chance) {
  MainForm& form = show_.frmMain;
  switch (chance.Below(3)) {
    case 0: {
      const auto boxes = ReachableOfKind(form, ControlKind::ComboBox);
      if (boxes.empty()) return {};
      const std::string name = chance.OneIn(2) ? "cboList" : boxes[chance.Below(boxes.size())]->Name();
      return {ActionKind::Select, form.Name(), name, static_cast<std::int64_t>(chance.Below(12)), 0};
    }
    case 1: {
      const auto boxes = ReachableOfKind(form, ControlKind::TextBox);
      if (boxes.empty()) return {};
      const std::string text = kWords[chance.Below(kWords.size())];
      return {ActionKind::Type, form.Name(), boxes[chance.Below(boxes.size())]->Name() + "=" + text, 0, 0};
    }
    default: {
      static constexpr std::string_view kKeys = "123456789\r\r\x1b\x0e\x13\x15\x15\x19\x1a ABCDEabcdeynYN";
      const auto key =
          chance.OneIn(4) ? chance.Below(256) : static_cast<unsigned char>(kKeys[chance.Below(kKeys.size())]);
      return {ActionKind::Key, form.Name(), "", static_cast<std::int64_t>(key), 0};
    }
  }
}

Action MonkeyShow::Choose(Chance& chance) {
  static constexpr std::array<std::int64_t, 8> kWaits = {1, 10, 40, 150, 600, 1500, 3200, 6000};
  Action action;
  if (chance.OneIn(200)) return {ActionKind::Walk, "", "", 0, chance.Next()};
  const std::size_t kind = chance.Below(100);
  if (kind < 50) {
    action = ChooseClick(chance);
  } else if (kind < 68) {
    action = ChooseChange(chance);
  } else if (kind < 92) {
    action = {ActionKind::Wait, "", "", kWaits[chance.Below(kWaits.size())], 0};
  } else if (kind < 98) {
    static constexpr std::array kUses = {"press remote", "press pad", "press pad", "noise", "monitors", "pull"};
    action = {ActionKind::Device, "", kUses[chance.Below(chance.OneIn(30) ? 6 : 5)],
              static_cast<std::int64_t>(chance.Next()), 0};
  } else if (kind < 99) {
    action = {ActionKind::Sleep, "", "", static_cast<std::int64_t>(chance.Below(12)) * 3600000, 0};
  } else {
    static constexpr std::array kChanges = {"lose picture", "lose sound", "find both",
                                            "disk full",    "new set",    "lose set"};
    action = {ActionKind::World, "", kChanges[chance.Below(kChanges.size())], static_cast<std::int64_t>(chance.Next()),
              0};
  }
  action.Seed = chance.Next();
  return action;
}

void MonkeyShow::ChangeWorld(const Action& action) {
  Chance chance(static_cast<std::uint32_t>(action.Value));
  const std::string set = kSets + std::to_string(chance.Below(5)) + ".txt";
  if (action.Target == "lose picture") sim_.files.Remove(std::string(kSets) + "there.jpg");
  if (action.Target == "lose sound") sim_.files.Remove(std::string(kSets) + "there.wav");
  if (action.Target == "find both") {
    sim_.files.Put(std::string(kSets) + "there.jpg", SimPictures::PictureBytes(640, 480));
    sim_.files.Put(std::string(kSets) + "there.wav", "RIFF");
  }
  if (action.Target == "disk full") sim_.files.FailNextWrite(kErrorDiskFull);
  if (action.Target == "new set") sim_.files.Put(set, RandomSet(chance));
  if (action.Target == "lose set") sim_.files.Remove(set);
}

void MonkeyShow::Perform(const Action& action) {
  Form& form = FormNamed(action.Form);
  const std::string name = action.Target.substr(0, action.Target.find('='));
  Control* control = form.Find(name);
  switch (action.Kind) {
    case ActionKind::Click:
      if (control != nullptr) control->Click();
      break;
    case ActionKind::Select:
      if (auto* box = dynamic_cast<ComboBox*>(control); box != nullptr && box->IsReachable()) {
        box->DropDown();
        if (!box->List->empty())
          box->Select(static_cast<int>(action.Value % static_cast<std::int64_t>(box->List->size())));
      }
      break;
    case ActionKind::Type:
      if (auto* box = dynamic_cast<TextBox*>(control); box != nullptr && box->IsReachable()) {
        box->Type(action.Target.substr(name.size() + 1));
      }
      break;
    case ActionKind::Key:
      form.KeyPress(static_cast<int>(action.Value));
      break;
    case ActionKind::Wait:
      sim_.clock.Advance(action.Value);
      break;
    case ActionKind::Sleep:
      sim_.clock.Sleep(action.Value);
      sim_.clock.Advance(1);
      break;
    case ActionKind::World:
      ChangeWorld(action);
      break;
    case ActionKind::Device:
      UseDevice(action);
      break;
    case ActionKind::Walk:
      break;
  }
}

std::string MonkeyShow::Do(const Action& action) {
  dialogs_.Reseed(action.Seed);
  if (action.Kind == ActionKind::Walk) {
    TakeSnapshot(show_);
    if (std::string fault = WalkHistory(show_); !fault.empty()) return fault;
  }
  lastAction_.Before(show_);
  Perform(action);
  const auto errors = dialogs_.TakeErrors();
  if (!errors.empty()) return "unexpected error box: " + errors.front();
  std::string broken = BrokenInvariant(show_);
  if (broken.empty()) broken = second_.Compare(show_, sim_);
  return broken.empty() ? lastAction_.Broken(show_) : broken;
}

}  // namespace pawnfield
