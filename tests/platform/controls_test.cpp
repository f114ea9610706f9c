#include "platform/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/errors.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct SampleForm : Form {
  SampleForm() : Form("frmSample") {
    std::vector<OptionButton*> group{&optColor[0], &optColor[1], &optColor[2]};
    for (OptionButton* option : group) option->Group = group;
    btnGo.Container = &fraInner;
    fraInner.Container = &picOuter;
    btnGo.OnClick = [this] { ++clicks; };
  }
  PictureBox picOuter{*this, "picOuter"};
  Frame fraInner{*this, "fraInner"};
  Button btnGo{*this, "btnGo"};
  ControlArray<OptionButton, 3> optColor{*this, "optColor"};
  CheckBox chkOn{*this, "chkOn"};
  ComboBox cboList{*this, "cboList"};
  TextBox txtName{*this, "txtName"};
  int clicks = 0;
};

struct CountingMirror : Mirror {
  void Changed(Control& control, PropertyId) override { names.push_back(control.Name()); }
  std::vector<std::string> names;
};

TEST(Controls, ClickReachesOnlyWhatTheUserCouldReach) {
  struct Case {
    const char* what;
    Property<bool>& (*spoil)(SampleForm&);
  };
  const Case cases[] = {
      {"itself disabled", [](SampleForm& f) -> Property<bool>& { return f.btnGo.Enabled; }},
      {"itself hidden", [](SampleForm& f) -> Property<bool>& { return f.btnGo.Visible; }},
      {"container disabled", [](SampleForm& f) -> Property<bool>& { return f.fraInner.Enabled; }},
      {"container's container hidden", [](SampleForm& f) -> Property<bool>& { return f.picOuter.Visible; }},
  };
  for (const Case& c : cases) {
    SampleForm form;
    c.spoil(form) = false;
    form.btnGo.Click();
    EXPECT_EQ(form.clicks, 0) << c.what;
    c.spoil(form) = true;
    form.btnGo.Click();
    EXPECT_EQ(form.clicks, 1) << c.what;
  }
}

TEST(Controls, OnlyAChangeIsToldToTheMirror) {
  SampleForm form;
  CountingMirror mirror;
  form.btnGo.SetMirror(&mirror);
  form.btnGo.Caption = "Go";
  form.btnGo.Caption = "Go";
  form.btnGo.Enabled = true;
  form.btnGo.MoveTo(0, 0, 10, 0);
  EXPECT_THAT(mirror.names, ElementsAre("btnGo", "btnGo"));
}

TEST(Controls, OptionGroupHoldsOneSelectionAndAClickOnItStillCounts) {
  SampleForm form;
  int handled = 0;
  form.optColor[1].OnClick = [&] { ++handled; };
  form.optColor[0].SelectInGroup();
  form.optColor[1].Click();
  form.optColor[1].Click();
  EXPECT_EQ(handled, 2);
  EXPECT_FALSE(form.optColor[0].Value);
  EXPECT_TRUE(form.optColor[1].Value);
  form.optColor[2].Enabled = false;
  form.optColor[2].Click();
  EXPECT_TRUE(form.optColor[1].Value);
}

TEST(Controls, UserEditsRunHandlersAndLogicDoesNot) {
  SampleForm form;
  std::vector<std::string> seen;
  form.chkOn.OnClick = [&] { seen.push_back("chk" + std::to_string(form.chkOn.Value)); };
  form.cboList.OnClick = [&] { seen.push_back("cbo" + form.cboList.Text()); };
  form.txtName.OnChange = [&] { seen.push_back("txt" + form.txtName.Text.Get()); };
  form.cboList.AddItem("a");
  form.cboList.AddItem("b");
  form.chkOn.Value = 1;
  form.cboList.ListIndex = 0;
  form.txtName.Text = "x";
  EXPECT_THAT(seen, IsEmpty());
  form.chkOn.Click();
  form.cboList.Select(1);
  form.cboList.Select(2);
  form.txtName.Type("y");
  EXPECT_THAT(seen, ElementsAre("chk0", "cbob", "txty"));
  form.cboList.Clear();
  EXPECT_EQ(form.cboList.Text(), "");
}

TEST(Controls, GuardTurnsWhatAHandlerThrowsIntoTheBox) {
  SimPlatform sim;
  SampleForm form;
  form.Guard = [&](const std::function<void()>& handler, const std::string& where, const std::string& procedure) {
    RunGuarded(sim.dialogs, handler, where, procedure);
  };
  form.btnGo.OnClick = [] { throw RuntimeError(53, "File not found"); };
  sim.dialogs.ExpectMessage(
      "Error Number: 53\r\nDescription: File not found\r\nLocation: frmSample\r\n"
      "Procedure: btnGo_Click");
  form.btnGo.Click();
  form.btnGo.OnClick = [] { throw std::out_of_range("index"); };
  sim.dialogs.ExpectMessage("Description: index");
  form.btnGo.Click();
  EXPECT_EQ(sim.dialogs.Boxes().at(0).Kind, BoxKind::Critical);
  EXPECT_THAT(sim.dialogs.Boxes().at(0).Text, testing::Not(HasSubstr("Filename")));
  EXPECT_THAT(sim.dialogs.TakeFaults(), IsEmpty());
}

}  // namespace
}  // namespace pawnfield
