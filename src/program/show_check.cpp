#include "program/show_check.h"

#include <iterator>
#include <utility>

#include "config/help.h"
#include "controllers/keyboard.h"
#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "platform/attach.h"
#include "presentation/monitors.h"
#include "presentation/test_picture.h"
#include "program/check_presses.h"
#include "program/check_rows.h"
#include "program/check_sounds.h"
#include "program/mending.h"
#include "sets/editor.h"
#include "sets/editor_history.h"
#include "sets/set_check.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_check_state.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

void EndTestPicture(Show& show) {
  show.check->TestPictureShown = false;
  show.frmShowCheck.tmrTestPicture.Enabled = false;
  HideTestPicture(show);
}

// What the machine answers is an event of its own.
template <typename Take>
void Told(Show& show, Take&& take) {
  show.frmShowCheck.Dispatch(std::forward<Take>(take), "ShowCheck");
}

// A player is made for it, which isn't done over and over.
void NameSounds(Show& show) {
  show.platform.mediaFiles.NameSoundDevices(
      [&show](const std::vector<std::string>& names) { Told(show, [&] { show.check->SoundDevices = names; }); });
}

void AskMachine(Show& show) {
  const bool before = show.SoundFound;
  LookForSound(show);
  if (show.SoundFound != before || !show.check->SoundDevices) NameSounds(show);
  show.platform.records.LookAtPlace(
      [&show](const RecordPlace& place) { Told(show, [&] { show.check->Place = place; }); });
}

void AskDesktop(Show& show) {
  show.check->Awake.reset();
  show.platform.displays.TryAwake(
      [&show](const AwakeAnswer& answer) { Told(show, [&] { show.check->Awake = answer; }); });
}

// The wordings are measured once for each set, and again when its files have all been looked at.
void CheckSetAnew(Show& show) {
  ShowCheckState& check = *show.check;
  const int files = static_cast<int>(show.mediaCheck.Errors.size());
  const bool same =
      check.CheckedCount == show.NumGameQuestions && check.CheckedFiles == files && check.Checked == show.GameSet;
  if (same) return;
  check.CheckedCount = show.NumGameQuestions;
  check.CheckedFiles = files;
  check.Checked = show.GameSet;
  check.Findings = show.state.Nature().Trivia ? CheckGameSet(show) : std::vector<SetFinding>();
}

void ShowFindings(Show& show) {
  std::vector<ListView::Row> rows;
  for (const SetFinding& finding : show.check->Findings)
    rows.push_back({std::to_string(finding.Question), finding.Sentence});
  show.frmShowCheck.lstFindings.ListItems = rows;
  show.frmShowCheck.lstFindings.Visible = !rows.empty();
}

void ShowButton(Button& button, const std::string& caption) {
  button.Visible = !caption.empty();
  if (!caption.empty()) button.Caption = caption;
}

void ShowRow(Show& show, CheckRow row) {
  ShowCheckForm& form = show.frmShowCheck;
  const RowFacts facts = FactsOf(show, row);
  Chip& light = ShowCheckForm::Of(form.chpLight, row);
  light.State = facts.Light;
  light.Caption = SignOf(facts.Light) + " " + WordOf(facts.Light);
  ShowCheckForm::Of(form.lblSentence, row).Caption = facts.Sentence;
  ShowButton(ShowCheckForm::Of(form.btnMend, row), facts.Mend);
  ShowButton(ShowCheckForm::Of(form.btnTry, row), facts.Try);
}

void ShowPressBoxes(Show& show) {
  ShowCheckForm& form = show.frmShowCheck;
  const PressTrial& trial = show.check->Presses;
  const bool tried = trial.Running || trial.Boxes[1].Came;
  for (int player = 1; player <= kPlayers; ++player) {
    Label& box = form.lblPress[static_cast<std::size_t>(player - 1)];
    box.Visible = tried && Plays(show.state, player);
    box.Caption = PressBoxText(show, player);
    box.BackColor = trial.Boxes[player].Came ? kGreen : kBlack;
  }
  form.lblPressNote.Visible = !trial.Note.empty();
  form.lblPressNote.Caption = trial.Note;
}

// The monitor may have changed beneath it.
void FollowTestPicture(Show& show) {
  ShowCheckState& check = *show.check;
  if (!check.TestPictureShown) return;
  if (HasSecondMonitor(show)) {
    ShowTestPicture(show, check.TestLineSize);
  } else {
    EndTestPicture(show);
  }
}

void ShowRows(Show& show) {
  CheckSetAnew(show);
  FollowTestPicture(show);
  for (std::size_t i = 0; i < kCheckRows; ++i) ShowRow(show, static_cast<CheckRow>(i));
  show.frmShowCheck.lblReady.Caption = ReadyText(show.frmShowCheck.chpLight);
  ShowPressBoxes(show);
  ShowFindings(show);
}

void ToggleTestPicture(Show& show) {
  ShowCheckState& check = *show.check;
  if (check.TestPictureShown) {
    EndTestPicture(show);
    return;
  }
  check.TestLineSize = SmallestSizeUsed(show.platform.text, show.GameSet, show.NumGameQuestions, RoomForWordings(show));
  check.TestPictureShown = true;
  show.frmShowCheck.tmrTestPicture.Restart();
  ShowTestPicture(show, check.TestLineSize);
}

void OpenFinding(Show& show) {
  const std::vector<SetFinding>& findings = show.check->Findings;
  if (findings.empty()) return;
  const int picked = show.frmShowCheck.lstFindings.SelectedItem;
  const bool known = picked >= 0 && picked < std::ssize(findings);
  show.EditCurrentSet = true;
  const int number = findings[known ? static_cast<std::size_t>(picked) : 0].Question;
  editor::ShowEditor(show, [&show, number] {
    show.frmEditor.EditQuestionNumber = number;
    editor::DisplayEditQuestion(show);
    editor::ShowEditorLists(show);
  });
}

void MendSet(Show& show) {
  if (show.state.GameLoaded) {
    OpenFinding(show);
  } else {
    show.frmMain.btnSelectGame.Click();
  }
}

void btnTry_Click(Show& show, int index) {
  switch (static_cast<CheckRow>(index)) {
    case CheckRow::Audience:
      return ToggleTestPicture(show);
    case CheckRow::Buzzers:
      return show.check->Presses.Running ? EndPressTrial(show) : BeginPressTrial(show);
    case CheckRow::Sound:
      return show.check->Channel > 0 ? EndSounds(show) : BeginSounds(show);
    case CheckRow::Awake:
      return AskDesktop(show);
    case CheckRow::Disk:
      return AskMachine(show);
    case CheckRow::Emergency:
      return OpenHelpPage(show, kEmergencyPage);
    case CheckRow::Set:
    case CheckRow::Questions:
      return;
  }
}

void btnMend_Click(Show& show, int index) {
  switch (static_cast<CheckRow>(index)) {
    case CheckRow::Audience:
      return show.frmMain.mnuHelpProjector.Click();
    case CheckRow::Buzzers:
      return OpenBuzzers(show);
    case CheckRow::Sound:
      return OpenSound(show);
    case CheckRow::Set:
      return MendSet(show);
    case CheckRow::Disk:
      return OpenHelpPage(show, kTroublePage);
    case CheckRow::Questions:
    case CheckRow::Awake:
    case CheckRow::Emergency:
      return;
  }
}

// What it said goes to the record with the game that follows.
void TakeResult(Show& show) {
  const ShowCheckForm& form = show.frmShowCheck;
  std::vector<CheckedRow>& rows = show.record->Checked;
  rows.clear();
  for (std::size_t i = 0; i + 1 < kCheckRows; ++i)
    rows.push_back({form.lblThing[i].Caption, WordOf(form.chpLight[i].State), form.lblSentence[i].Caption});
}

void EndCheck(Show& show) {
  TakeResult(show);
  EndTestPicture(show);
  EndSounds(show);
  EndPressTrial(show);
  show.check->Presses = {};
  show.frmShowCheck.tmrLook.Enabled = false;
}

}  // namespace

bool MayCheck(const Show& show) { return IsPhase(show, PhaseKind::Idle) || IsPhase(show, PhaseKind::Ready); }

void mnuFileShowCheck_Click(Show& show) {
  if (!MayCheck(show)) {
    show.frmMain.lblStatusBar.Caption = "The show check is for before a game: the chips above say what is missing now.";
    return;
  }
  ShowCheckForm& form = show.frmShowCheck;
  if (!form.Visible) {
    show.check->SoundDevices.reset();
    AskMachine(show);
    AskDesktop(show);
    form.tmrLook.Enabled = true;
  }
  ShowRows(show);
  form.Visible = true;
  form.BringToFront();
}

void OpenShowCheckAt(Show& show, CheckRow row) {
  mnuFileShowCheck_Click(show);
  ShowCheckForm& form = show.frmShowCheck;
  Button& mend = ShowCheckForm::Of(form.btnMend, row);
  Button& attempt = ShowCheckForm::Of(form.btnTry, row);
  if (form.Visible) (attempt.Visible ? attempt : mend).SetFocus();
}

void FollowShowCheck(Show& show) {
  ShowCheckForm& form = show.frmShowCheck;
  if (!form.Visible) return;
  if (MayCheck(show)) {
    ShowRows(show);
    return;
  }
  // Not by Unload, which is an event of its own and would lead back here.
  EndCheck(show);
  form.Visible = false;
}

void AttachShowCheck(Show& show) {
  ShowCheckForm& form = show.frmShowCheck;
  OnClick(show, show.frmMain.mnuFileShowCheck, mnuFileShowCheck_Click);
  OnClick(show, form.btnTry, btnTry_Click);
  OnClick(show, form.btnMend, btnMend_Click);
  form.btnClose.OnClick = [&form] { form.Unload(); };
  form.lstFindings.OnDblClick = [&show] { OpenFinding(show); };
  form.chkInFront.OnClick = [&show] {
    show.platform.displays.SetTopMost(show.frmShowCheck, show.frmShowCheck.chkInFront.Value == 1);
  };
  form.OnUnload = [&show] { EndCheck(show); };
  form.OnKeyPress = [&show](int keyAscii) { TriesKey(show, keyAscii); };
  OnTimer(show, form.tmrTestPicture, EndTestPicture);
  OnTimer(show, form.tmrSounds, StepSounds);
  OnTimer(show, form.tmrLook, AskMachine);
}

}  // namespace pawnfield
