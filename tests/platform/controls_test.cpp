#include "platform/controls.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "platform/errors.h"
#include "sim/sim_platform.h"

namespace pawnfield {
namespace {

struct SampleForm : Form {
  SampleForm() : Form("frmSample") {
    std::vector<OptionButton*> group{&optColor[0], &optColor[1], &optColor[2]};
    for (OptionButton* option : group) option->Group = group;
    btnGo.Container = &fraInner;
    fraInner.Container = &picOuter;
    btnGo.OnClick = [this] { log += "go "; };
  }
  PictureBox picOuter{*this, "picOuter"};
  Frame fraInner{*this, "fraInner"};
  Button btnGo{*this, "btnGo"};
  ControlArray<OptionButton, 3> optColor{*this, "optColor"};
  CheckBox chkOn{*this, "chkOn"};
  ComboBox cboList{*this, "cboList"};
  TextBox txtName{*this, "txtName"};
  std::string log;
};

TEST(Controls, ClickReachesOnlyWhatTheUserCouldReach) {
  SampleForm form;
  // Itself disabled or hidden, its container disabled, and that one's container hidden.
  for (Property<bool>* spoilt :
       {&form.btnGo.Enabled, &form.btnGo.Visible, &form.fraInner.Enabled, &form.picOuter.Visible}) {
    *spoilt = false;
    form.btnGo.Click();
    EXPECT_EQ(form.log, "");
    *spoilt = true;
  }
  form.btnGo.Click();
  EXPECT_EQ(form.log, "go ");
}

struct Watcher : Observer {
  explicit Watcher(Control& control) { control.AddObserver(*this); }
  void Changed(Control& control, PropertyId id) override {
    ++changes[id];
    if (onChange) onChange(control);
  }
  std::map<PropertyId, int> changes;
  std::function<void(Control&)> onChange;
};

using Changes = std::map<PropertyId, int>;

TEST(Controls, EachObserverHearsOfEachChangeByItsName) {
  SampleForm form;
  Watcher first(form.btnGo);
  const Watcher second(form.btnGo);
  form.btnGo.AddObserver(first);
  form.btnGo.Caption = "Go";
  form.btnGo.Caption = "Go";
  form.btnGo.Enabled = true;
  form.btnGo.MoveTo(0, 0, 10, 0);
  EXPECT_EQ(first.changes, (Changes{{PropertyId::Caption, 1}, {PropertyId::Width, 1}}));
  EXPECT_EQ(second.changes, first.changes);
  MediaPlayer player(form, "player");
  const Watcher film(player);
  player.URL = std::string("film.avi");
  player.uiMode = std::string("full");
  player.stretchToFit = true;
  player.Volume = 0;
  player.PlayState = 3;
  EXPECT_EQ(film.changes, (Changes{{PropertyId::URL, 1},
                                   {PropertyId::UiMode, 1},
                                   {PropertyId::StretchToFit, 1},
                                   {PropertyId::Volume, 1},
                                   {PropertyId::PlayState, 1}}));
}

TEST(Controls, ObserversComeAndGoWhileAChangeIsAnnounced) {
  auto form = std::make_unique<SampleForm>();
  auto gone = std::make_unique<Watcher>(form->btnGo);
  Watcher leaver(form->btnGo);
  auto victim = std::make_unique<Watcher>(form->btnGo);
  Watcher last(form->btnGo);
  std::unique_ptr<Watcher> newcomer;
  gone.reset();
  leaver.onChange = [&](Control& button) {
    button.RemoveObserver(leaver);
    victim.reset();
    newcomer = std::make_unique<Watcher>(button);
    button.Visible = false;
  };
  form->btnGo.Caption = "Go";
  EXPECT_EQ(leaver.changes, (Changes{{PropertyId::Caption, 1}}));
  EXPECT_EQ(last.changes, (Changes{{PropertyId::Caption, 1}, {PropertyId::Visible, 1}}));
  EXPECT_EQ(newcomer->changes, (Changes{{PropertyId::Visible, 1}}));
  // The observers outlive what they watched.
  form.reset();
}

TEST(Controls, AnObserverThatThrowsLeavesTheOthersTheNextChange) {
  SampleForm form;
  Watcher thrower(form.btnGo);
  Watcher other(form.btnGo);
  thrower.onChange = [&](Control& button) {
    button.RemoveObserver(thrower);
    throw std::runtime_error("no device");
  };
  EXPECT_THROW(form.btnGo.Caption = "Go", std::runtime_error);
  form.btnGo.Visible = false;
  EXPECT_EQ(thrower.changes.size() + other.changes.size(), 2U);
}

TEST(Controls, OnlyAUsersEditOfWhatCanBeReachedRunsItsHandler) {
  SampleForm form;
  const auto options = [&] {
    for (std::size_t i = 0; i < 3; ++i) form.log += form.optColor[i].Value ? '1' : '0';
    form.log += ' ';
  };
  for (std::size_t i = 0; i < 3; ++i) form.optColor[i].OnClick = options;
  form.chkOn.OnClick = [&] { form.log += "chk" + std::to_string(form.chkOn.Value) + " "; };
  form.cboList.OnClick = [&] { form.log += "cbo" + form.cboList.Text() + " "; };
  form.txtName.OnChange = [&] { form.log += "txt" + form.txtName.Text.Get() + " "; };
  form.cboList.AddItem("a");
  form.cboList.AddItem("b");
  // Logic sets what the user could not reach, and no handler runs.
  form.optColor[0].SelectInGroup();
  form.chkOn.Value = 1;
  form.cboList.ListIndex = 0;
  form.txtName.Text = "x";
  const auto edit = [&] {
    form.optColor[1].Click();
    form.optColor[1].Click();
    form.chkOn.Click();
    form.cboList.Select(1);
    form.cboList.Select(2);
    form.txtName.Type("y");
  };
  for (Control* control : form.Controls()) control->Enabled = false;
  edit();
  EXPECT_EQ(form.log, "");
  for (Control* control : form.Controls()) control->Enabled = true;
  edit();
  EXPECT_EQ(form.log, "010 010 chk0 cbob txty ");
  form.cboList.Clear();
  EXPECT_TRUE(form.cboList.List->empty() && form.cboList.Text().empty());
}

TEST(Controls, GuardTurnsWhatAHandlerThrowsIntoTheBox) {
  SimPlatform sim;
  SampleForm form;
  form.Guard = [&](const std::function<void()>& handler, const std::string& where, const std::string& procedure) {
    RunGuarded(sim.dialogs, handler, where, procedure);
  };
  form.btnGo.OnClick = [] { throw RuntimeError(53, "File not found"); };
  sim.dialogs.ExpectMessage("An untrapped error has occurred. ");
  form.btnGo.Click();
  form.btnGo.OnClick = [] { throw std::runtime_error("other"); };
  sim.dialogs.ExpectMessage("Error Number: 5\r\nDescription: other\r\n");
  form.btnGo.Click();
  EXPECT_EQ(sim.dialogs.Boxes().at(0).Kind, BoxKind::Critical);
  EXPECT_EQ(sim.dialogs.Boxes().at(0).Text,
            "An untrapped error has occurred. Please make a note of the following information: \r\n"
            "Error Number: 53\r\nDescription: File not found\r\nLocation: frmSample\r\nProcedure: btnGo_Click\r\n");
  EXPECT_TRUE(sim.dialogs.TakeErrors().empty());
}

}  // namespace
}  // namespace pawnfield
