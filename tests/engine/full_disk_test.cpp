// A setting that can't be saved is reported, and what the operator asked for happens all the same.
#include <gtest/gtest.h>

#include "../support/show_fixture.h"
#include "forms/main_form.h"
#include "forms/optional_headers_form.h"
#include "media/optional_headers.h"
#include "program/interface_wizard.h"

namespace pawnfield {
namespace {

TEST(FullDisk, HeadersComeUpThoughTheirSettingIsNotSavedWhichIsReportedOnce) {
  ShowFixture fixture;
  fixture.Start();
  OptionalHeadersForm& form = fixture.show().frmOptionalHeaders;
  fixture.sim.settings.FailSaves = 2;
  fixture.sim.dialogs.ExpectForm("frmOptionalHeaders", [&] {
    form.txtOptionalHeader[0].Text = "Welcome";
    form.chkBaseImage.Click();
    fixture.sim.dialogs.ExpectMessage("Procedure: btnOk_Click");
    form.btnOk.Click();
  });
  ShowOptionalHeaders(fixture.show());
  fixture.form().btnStart.Click();
  EXPECT_TRUE(fixture.show().state.OptionalHeadersOn);
  EXPECT_TRUE(fixture.sim.files.CanOpen("C:\\Ostara Show Kit Data\\Headers.txt"));
}

TEST(FullDisk, AnInterfaceIsServedThoughItIsNotSaved) {
  ShowFixture fixture;
  fixture.Start();
  frmSetInterface_Load(fixture.show());
  fixture.sim.settings.FailSaves = 1;
  fixture.sim.dialogs.ExpectMessage("Procedure: btnOK_Click");
  frmSetInterface_btnOK_Click(fixture.show());
  EXPECT_EQ(fixture.show().state.SerialComm, InterfaceCode::PublishingKeypads);
}

}  // namespace
}  // namespace pawnfield
