#include "media/optional_headers.h"

#include <gtest/gtest.h>

#include "media/header_file.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

const std::string kPath = "C:\\Ostara Show Kit Data\\Headers.txt";
const std::string kFile =
    "#2026-03-01 20:00:00#\r\n"
    "\"Welcome to the show\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n"
    "\"Sponsor, and friends\",\"\",24,#FALSE#,#TRUE#,255,0\r\n"
    "\"\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n"
    "\"\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n";

class Headers : public testing::Test {
 protected:
  void Begin(const std::string& file, LocalTime now = {2026, 3, 1, 20, 0, 0}) {
    fixture.sim.clock.Calendar = now;
    fixture.sim.files.Put(kPath, file);
    fixture.Start();
  }
  // What both screens show after each of so many rotations: a text, or "-" for the base header.
  std::string Rotate(int ticks) {
    std::string seen;
    for (int i = 0; i < ticks; ++i) {
      fixture.sim.clock.Advance(5000);
      const bool base = fixture.form().imgHeader.Visible;
      EXPECT_NE(base, fixture.form().txtOptionalHeading.Visible.Get());
      EXPECT_EQ(base, fixture.audience().imgHeader.Visible.Get());
      EXPECT_NE(base, fixture.audience().txtOptionalHeading.Visible.Get());
      seen += base ? "-" : fixture.form().txtOptionalHeading.Text->substr(0, 1);
    }
    return seen;
  }
  void InDialog(const std::function<void(OptionalHeadersForm&)>& act) {
    fixture.sim.dialogs.ExpectForm("frmOptionalHeaders", [&] { act(fixture.show().frmOptionalHeaders); });
    ShowOptionalHeaders(fixture.show());
  }
  void Fill(std::initializer_list<const char*> texts) {
    std::size_t i = 0;
    for (const char* text : texts) fixture.show().frmOptionalHeaders.txtOptionalHeader[i++].Type(text);
  }

  ShowFixture fixture;
};

TEST_F(Headers, RotateOnBothScreensWithTheBaseBetween) {
  Begin(kFile);
  fixture.show().state.OptionalHeaderIndex = 0;
  EXPECT_EQ(Rotate(8), "WS-WS-WS");
  const TextBox& console = fixture.form().txtOptionalHeading;
  const TextBox& audience = fixture.audience().txtOptionalHeading;
  EXPECT_EQ(console.Text.Get(), "Sponsor, and friends");
  EXPECT_EQ(console.Font.Get(), (Font{"MS Sans Serif", 24, false, true}));
  EXPECT_EQ(audience.Font.Get(), (Font{"MS Sans Serif", 48, false, true}));
  EXPECT_EQ(audience.ForeColor, kRed);
  EXPECT_EQ(audience.BackColor, kBlack);
}

TEST_F(Headers, WithoutTheBaseTheyFollowOneAnother) {
  fixture.sim.settings.Preset("Pawnfield", "Settings", "ShowBaseHeader", "False");
  Begin(kFile);
  const std::string seen = Rotate(4);
  EXPECT_TRUE(seen == "WSWS" || seen == "SWSW") << seen;
}

TEST_F(Headers, AgeOfSixHoursEndsThem) {
  const std::pair<LocalTime, bool> cases[] = {{{2026, 3, 2, 1, 59, 0}, true},
                                              {{2026, 3, 2, 1, 59, 59}, true},
                                              {{2026, 3, 2, 2, 0, 0}, false},
                                              {{2027, 3, 1, 20, 0, 0}, false},
                                              {{2026, 3, 1, 19, 0, 0}, true}};
  for (const auto& [now, loads] : cases) {
    ShowFixture fresh;
    fresh.sim.clock.Calendar = now;
    fresh.sim.files.Put(kPath, kFile);
    fresh.Start();
    EXPECT_EQ(fresh.show().state.OptionalHeadersOn, loads) << now.Hour << ":" << now.Minute;
    EXPECT_EQ(fresh.show().state.OptionalHeaderCount, loads ? 2 : 0);
  }
}

TEST_F(Headers, DamagedFilesLeaveWhatCannotBeRead) {
  const OptionalHeader kept{"kept", "Arial", 9, true, true, "1", "2"};
  const std::pair<std::string, OptionalHeader> cases[] = {
      {"\"a\",\"Arial\",10.5,#TRUE#,#FALSE#,3,4", {"a", "Arial", 10, true, false, "3", "4"}},
      {"\"a\",\"Arial\",11.5,#true#,#false#,3,4", {"a", "Arial", 12, true, false, "3", "4"}},
      {"\"say \"hi\" now\",\"Arial\",8,#TRUE#,#FALSE#,3,4", {"say ", "Arial", 8, true, false, "3", "4"}},
      {"plain, Arial , 8 ,#TRUE#,#FALSE#,3,4,5", {"plain", "Arial", 8, true, false, "3", "4"}},
      {"\"a\",\"Arial\",8,#TRUE#,#FALSE#,3", kept},
      {"\"a\",\"Arial\",40000,#TRUE#,#FALSE#,3,4", kept},
      {"\"a\",\"Arial\",8,yes,#FALSE#,3,4", kept},
      {"\"never closed,8,#TRUE#,#FALSE#,3,4", kept},
      {"", kept}};
  for (const auto& [line, wanted] : cases) {
    HeaderRecords records{kept, kept, kept, kept};
    ReadHeaderRecords("#stamp#\r\n" + line + "\r\n", records);
    EXPECT_EQ(records[0], wanted) << line;
    EXPECT_EQ(records[1], kept);
  }
  for (const char* stamp : {"", "#2026-03-01 20:00:00", "#2026-13-01 20:00:00#", "#2026-02-30 20:00:00#",
                            "#2026-03-01 24:00:00#", "2026-03-01", "#99999-03-01 20:00:00#"}) {
    EXPECT_EQ(HeaderFileStamp(stamp), std::nullopt) << stamp;
  }
}

TEST_F(Headers, TheDialogWritesTheBoxesAndEndsAtTheFirstBlankOne) {
  Begin("");
  InDialog([&](OptionalHeadersForm& form) {
    Fill({" Hello ", "", "Behind"});
    fixture.sim.dialogs.ExpectFont(Font{"Liberation Sans", 10.5, false, true});
    form.btnOpt1Font[0].Click();
    fixture.sim.dialogs.ExpectColor(kRed);
    form.btnOpt1Fg[0].Click();
    fixture.sim.dialogs.ExpectColor(std::nullopt);
    form.btnOpt1Bg[0].Click();
    form.chkBaseImage.Click();
    form.btnOk.Click();
  });
  EXPECT_EQ(fixture.sim.dialogs.ColorStart, 5242880);
  EXPECT_EQ(fixture.sim.settings.Writes.back(), std::pair(std::string("ShowBaseHeader"), std::string("False")));
  EXPECT_EQ(fixture.sim.files.Read(kPath),
            "#2026-03-01 20:00:00#\r\n"
            "\" Hello \",\"Liberation Sans\",10,#FALSE#,#TRUE#,255,5242880\r\n"
            "\"\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n"
            "\"Behind\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n"
            "\"\",\"Comic Sans MS\",18,#TRUE#,#FALSE#,65535,5242880\r\n");
  EXPECT_EQ(Rotate(3), "HHH");
  ReadFromHeaderFile(fixture.show());
  EXPECT_EQ(fixture.show().state.OptionalHeaderCount, 2) << "reading counts lines that are not blank";
}

TEST_F(Headers, CancelClearsTheBoxesAndLeavesTheHeaders) {
  Begin(kFile);
  InDialog([&](OptionalHeadersForm& form) {
    EXPECT_EQ(form.txtOptionalHeader[1].Font->Size, 24);
    Fill({"Other"});
    form.btnCancel.Click();
    EXPECT_EQ(form.txtOptionalHeader[1].Text.Get(), "");
    EXPECT_EQ(form.txtOptionalHeader[1].Font.Get(), (Font{"Comic Sans MS", 18, true, false}));
  });
  EXPECT_EQ(fixture.sim.files.Read(kPath), kFile);
  EXPECT_EQ(fixture.show().state.OptionalHeaders[0].HeaderText, "Welcome to the show");
  InDialog([&](OptionalHeadersForm& form) {
    EXPECT_EQ(form.txtOptionalHeader[0].Text.Get(), "") << "a hidden form keeps its boxes";
    form.btnOk.Click();
  });
  EXPECT_FALSE(fixture.show().state.OptionalHeadersOn);
  EXPECT_EQ(Rotate(2), "--");
}

TEST_F(Headers, FilesOfTheOperatorsOwnAreOpenedAndSaved) {
  Begin("");
  fixture.sim.files.Put("D:\\old.txt", "no stamp at all\r\n\"Old\",\"Arial\",30,#TRUE#,#TRUE#,255,0\r\n");
  InDialog([&](OptionalHeadersForm& form) {
    ScriptedDialogs& dialogs = fixture.sim.dialogs;
    dialogs.ExpectFile("D:\\gone.txt");
    dialogs.ExpectMessage("Procedure: Editor Save");
    form.btnOpen.Click();
    dialogs.ExpectFile("D:\\old.txt");
    form.btnOpen.Click();
    EXPECT_EQ(form.txtOptionalHeader[0].Text.Get(), "Old");
    Fill({"Newer"});
    form.btnSave.Click();
    EXPECT_NE(fixture.sim.files.Read("D:\\old.txt").find("\"Newer\",\"Arial\",30"), std::string::npos);
    Fill({"Newest"});
    dialogs.ExpectFile("D:\\old.txt");
    dialogs.ExpectMessage("File already exists. Select Yes to overwrite", BoxAnswer::No);
    form.mnuFileSaveAs.Click();
    EXPECT_EQ(fixture.sim.files.Read("D:\\old.txt").find("Newest"), std::string::npos);
    fixture.sim.files.FailNextWrite(kErrorDiskFull);
    dialogs.ExpectMessage("Procedure: mnuFileSave");
    form.btnSave.Click();
    fixture.sim.files.FailNextWrite(kErrorDiskFull);
    dialogs.ExpectMessage("Procedure: SaveToOSKD");
    form.mnuFileExit.Click();
  });
  const FileDialogRequest& saveAs = fixture.sim.dialogs.FileRequests().back();
  EXPECT_EQ(saveAs.Title + saveAs.FileName + saveAs.DefaultExtension, "Save HeaderHeaders.txttxt");
}

TEST_F(Headers, WhatIsWrittenIsReadBack) {
  HeaderRecords records{OptionalHeader{"a, b # c", "Font, with comma", 1, true, false, "0", "16777215"},
                        {"  blanks  ", "", -5, false, true, "", ""}};
  HeaderRecords read;
  const std::string bytes = FormatHeaderFile({1999, 12, 31, 23, 59, 58}, records);
  ReadHeaderRecords(bytes, read);
  EXPECT_EQ(read, records);
  EXPECT_EQ(MinutesBetween(*HeaderFileStamp(bytes), {2000, 1, 1, 0, 0, 57}), 0);
  EXPECT_EQ(MinutesBetween(*HeaderFileStamp(bytes), {2000, 1, 1, 0, 0, 58}), 1);
}

}  // namespace
}  // namespace pawnfield
