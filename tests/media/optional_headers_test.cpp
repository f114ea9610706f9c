#include "media/optional_headers.h"

#include <gmock/gmock.h>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/optional_headers_form.h"
#include "media/header_file.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using testing::HasSubstr;

const std::string kPath = "C:\\Ostara Show Kit Data\\Headers.txt";
const std::string kBlank = "\"\",\"Segoe UI\",18,#TRUE#,#FALSE#,65535,5242880\r\n";
const std::string kFile =
    "#2026-03-01 20:00:00#\r\n"
    "\"Welcome to the show\",\"Segoe UI\",18,#TRUE#,#FALSE#,65535,5242880\r\n"
    "\"Sponsor, and friends\",\"\",24,#FALSE#,#TRUE#,255,0\r\n" +
    kBlank + kBlank;

class Headers : public GamePlayer, public testing::Test {
 protected:
  Headers() : GamePlayer("Trivia C, user advances, not started") {}
  void Begin(const std::string& file) {
    sim.clock.Calendar = {2026, 3, 1, 20, 0, 0};
    sim.files.Put(kPath, file);
    ReadFromHeaderFile(show());
  }
  // What both screens show after each of so many rotations: a text, or "-" for the base header.
  std::string Rotate(int ticks) {
    std::string seen;
    for (int i = 0; i < ticks; ++i) {
      sim.clock.Advance(5000);
      const bool base = form().imgHeader.Visible;
      EXPECT_NE(base, form().txtOptionalHeading.Visible.Get());
      EXPECT_NE(base, fixture().audience().txtOptionalHeading.Visible.Get());
      seen += base ? "-" : form().txtOptionalHeading.Text->substr(0, 1);
    }
    return seen;
  }
  void InDialog(const std::string& words) { Do("at the headers: " + words); }

  SimPlatform& sim = fixture().sim;
  OptionalHeadersForm& dialog = show().frmOptionalHeaders;
};

TEST_F(Headers, RotateOnBothScreensWithTheBaseBetweenOrWithoutIt) {
  Begin(kFile);
  show().state.OptionalHeaderIndex = 0;
  EXPECT_EQ(Rotate(8), "WS-WS-WS");
  const TextBox& shown = fixture().audience().txtOptionalHeading;
  EXPECT_EQ(form().txtOptionalHeading.Text.Get(), "Sponsor, and friends");
  EXPECT_EQ(form().txtOptionalHeading.Font.Get(), (Font{"Segoe UI", 24, false, true}));
  EXPECT_EQ(shown.Font.Get(), (Font{"Segoe UI", 48, false, true}));
  EXPECT_TRUE(shown.ForeColor == kRed && shown.BackColor == kBlack);
  show().state.ShowBaseHeader = false;
  EXPECT_EQ(Rotate(4), "WSWS");
}

TEST_F(Headers, AgeOfSixHoursEndsThem) {
  const std::pair<LocalTime, int> cases[] = {{{2026, 3, 2, 1, 59, 59}, 2},
                                             {{2026, 3, 2, 2, 0, 0}, 0},
                                             {{2027, 3, 1, 20, 0, 0}, 0},
                                             {{2026, 3, 1, 19, 0, 0}, 2}};
  Begin(kFile);
  for (const auto& [now, count] : cases) {
    sim.clock.Calendar = now;
    show().state.OptionalHeadersOn = false;
    ReadFromHeaderFile(show());
    EXPECT_EQ(show().state.OptionalHeadersOn, count > 0) << now.Hour << ":" << now.Minute;
    EXPECT_EQ(show().state.OptionalHeaderCount, count);
  }
}

TEST_F(Headers, DamagedFilesLeaveWhatCannotBeRead) {
  const OptionalHeader kept{"kept", "Arial", 9, true, true, "1", "2"};
  const std::pair<std::string, OptionalHeader> cases[] = {
      {"\"a\",\"Arial\",10.5,#TRUE#,#FALSE#,3,4", {"a", "Arial", 10, true, false, "3", "4"}},
      {"\"a\",\"Arial\",11.5,#true#,#false#,3,4", {"a", "Arial", 12, true, false, "3", "4"}},
      {"\"say \"hi\" now\",\"Arial\",8,#TRUE#,#FALSE#,3,4", {"say ", "Arial", 8, true, false, "3", "4"}},
      {"plain, Arial , 8 ,#TRUE#,#FALSE#,3,4,5", {"plain", "Arial", 8, true, false, "3", "4"}},
      {"\"a, b # c\",\"Font, 2\",-5,#FALSE#,#TRUE#,,", {"a, b # c", "Font, 2", -5, false, true, "", ""}},
      {"\"a\",\"Arial\",8,#TRUE#,#FALSE#,3", kept},
      {"\"a\",\"Arial\",40000,#TRUE#,#FALSE#,3,4", kept},
      {"\"a\",\"Arial\",8,yes,#FALSE#,3,4", kept},
      {"\"never closed,8,#TRUE#,#FALSE#,3,4", kept},
      {"", kept}};
  for (const auto& [line, wanted] : cases) {
    HeaderRecords records{kept, kept, kept, kept};
    ReadHeaderRecords("#stamp#\r\n" + line + "\r\n", records);
    EXPECT_EQ(records, (HeaderRecords{wanted, kept, kept, kept})) << line;
  }
  for (const char* stamp : {"", "#2026-03-01 20:00:00", "#2026-13-01 20:00:00#", "#2026-02-30 20:00:00#",
                            "#2026-03-01 24:00:00#", "#99999-03-01 20:00:00#"}) {
    EXPECT_EQ(HeaderFileStamp(stamp), std::nullopt) << stamp;
  }
  const auto stamp = HeaderFileStamp("#1999-12-31 23:59:58#\r\n");
  EXPECT_EQ(MinutesBetween(stamp.value(), {2000, 1, 1, 0, 0, 57}), 0);
  EXPECT_EQ(MinutesBetween(stamp.value(), {2000, 1, 1, 0, 0, 58}), 1);
}

TEST_F(Headers, TheDialogWritesTheBoxesAndEndsAtTheFirstBlankOne) {
  Begin("");
  sim.dialogs.ExpectForm("frmOptionalHeaders", [&] {
    dialog.txtOptionalHeader[0].Type(" Hello ");
    dialog.txtOptionalHeader[2].Type("Behind");
    sim.dialogs.ExpectFont(Font{"Liberation Sans", 10.5, false, true});
    dialog.btnOpt1Font[0].Click();
    sim.dialogs.ExpectColor(kRed);
    dialog.btnOpt1Fg[0].Click();
    sim.dialogs.ExpectColor(std::nullopt);
    dialog.btnOpt1Bg[0].Click();
    dialog.chkBaseImage.Click();
    dialog.btnOk.Click();
  });
  form().mnuFileOptionalHeaders.Click();
  EXPECT_EQ(sim.dialogs.ColorStart, 5242880);
  EXPECT_EQ(sim.settings.Writes.back(), std::pair(std::string("ShowBaseHeader"), std::string("False")));
  EXPECT_EQ(sim.files.Read(kPath),
            "#2026-03-01 20:00:00#\r\n\" Hello \",\"Liberation Sans\",10,#FALSE#,#TRUE#,255,5242880\r\n" + kBlank +
                "\"Behind\",\"Segoe UI\",18,#TRUE#,#FALSE#,65535,5242880\r\n" + kBlank);
  EXPECT_EQ(Rotate(3), "HHH");
  ReadFromHeaderFile(show());
  EXPECT_EQ(show().state.OptionalHeaderCount, 2) << "reading counts lines that are not blank";
}

TEST_F(Headers, WhatIsCancelledOrClosedIsGoneAndTheHeadersAreInTheBoxesAgain) {
  Begin(kFile);
  for (const bool closes : {false, true}) {
    sim.dialogs.ExpectForm("frmOptionalHeaders", [&] {
      dialog.txtOptionalHeader[0].Type("Other");
      dialog.btnClearAll.Click();
      dialog.txtOptionalHeader[2].Type("Typed and not taken");
      closes ? dialog.Unload() : dialog.btnCancel.Click();
    });
    form().mnuFileOptionalHeaders.Click();
    EXPECT_EQ(sim.files.Read(kPath) + show().state.OptionalHeaders[0].HeaderText, kFile + "Welcome to the show");
    // OK after it writes what rotates, and no empty boxes over it.
    InDialog("header 1 is Welcome to the show; header 3 is empty; press btnOk");
    EXPECT_EQ(Rotate(3), "WS-") << closes;
    EXPECT_THAT(sim.files.Read(kPath), HasSubstr("\"Sponsor, and friends\""));
    sim.files.Put(kPath, kFile);
  }
  sim.files.Remove(kPath);
  show().state.OptionalHeadersOn = false;
  sim.dialogs.ExpectForm("frmOptionalHeaders", [&] {
    dialog.txtOptionalHeader[3].Type("Never taken");
    dialog.Unload();
  });
  form().mnuFileOptionalHeaders.Click();
  InDialog("header 4 is empty; press Cancel");
}

TEST_F(Headers, TheFontOfAnOpenedFileIsTheOneToChangeFrom) {
  sim.files.Put("D:\\old.txt", "no stamp\r\n\"Old\",\"Arial\",30,#TRUE#,#TRUE#,255,0\r\n");
  sim.dialogs.ExpectForm("frmOptionalHeaders", [&] {
    sim.dialogs.ExpectFile("D:\\old.txt");
    dialog.btnOpen.Click();
    sim.dialogs.ExpectFont(std::nullopt);
    dialog.btnOpt1Font[0].Click();
    dialog.btnCancel.Click();
  });
  form().mnuFileOptionalHeaders.Click();
  EXPECT_EQ(sim.dialogs.FontStart, (Font{"Arial", 30, true, true}));
}

TEST_F(Headers, FilesOfTheOperatorsOwnAreOpenedAndSaved) {
  sim.files.Put("D:\\old.txt", "no stamp at all\r\n\"Old\",\"Arial\",30,#TRUE#,#TRUE#,255,0\r\n");
  InDialog(
      "file D:\\gone.txt; expect Procedure: Editor Save; press Open; file D:\\old.txt; press Open; header 1 is Old; "
      "header 1 typed Newer; press Save; header 1 typed Newest; file D:\\old.txt; "
      "answer No to File already exists. Select Yes to overwrite; press Save As; press Cancel");
  EXPECT_THAT(sim.files.Read("D:\\old.txt"), HasSubstr("\"Newer\",\"Arial\",30"));
  const FileDialogRequest& saveAs = sim.dialogs.FileRequests().back();
  EXPECT_EQ(saveAs.Title + saveAs.FileName + saveAs.DefaultExtension, "Save HeaderHeaders.txttxt");
  sim.files.FailNextWrite(kErrorDiskFull);
  InDialog("expect Procedure: mnuFileSave; press Save; press Cancel");
  sim.files.FailNextWrite(kErrorDiskFull);
  InDialog("expect Procedure: SaveToOSKD; press Exit");
}

}  // namespace
}  // namespace pawnfield
