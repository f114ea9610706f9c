#include "program/main_load.h"

#include <algorithm>
#include <array>

#include "controllers/pages_switch.h"
#include "controllers/ring_in.h"
#include "controllers/zr610.h"
#include "engine/game_flow.h"
#include "engine/turn_order.h"
#include "forms/board_labels.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "media/background_music.h"
#include "media/optional_headers.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "outward/companion.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "presentation/audience_screen.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "program/interface_file.h"
#include "program/wireless.h"
#include "record/history.h"
#include "sets/set_file.h"
#include "show/settings.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The pictures that the forms are made with: squares, labels, panels.
void SetDesignPictures(Show& show) {
  const auto picture = [&show](const std::string& tail) { return PicturePath(show, "\\Images\\" + tail); };
  MainForm& form = show.frmMain;
  form.imgBkgnd.Picture = picture("Blank.bmp");
  form.imgStandardStandby.Picture = picture("Standby.jpg");
  form.imgStandardBonus.Picture = picture("Bonus.jpg");
  form.imgStandardHeader.Picture = picture("Header.png");
  form.imgSound.Picture = picture("Sound.jpg");
  form.picWinner.Picture = picture("Winner.jpg");
  const std::array cursors{"CursorNeutral.png", "CursorX.png", "CursorO.png", "CursorT.png"};
  for (std::size_t i = 0; i < cursors.size(); ++i) form.imgCursor[i].Picture = picture(cursors[i]);
  for (std::size_t i = 0; i < 5; ++i) {
    ColumnLabels(form)[i]->Picture = picture(std::string("Col") + static_cast<char>('A' + i) + ".png");
    RowLabels(form)[i]->Picture = picture("Row" + std::to_string(i + 1) + ".png");
  }
  if (show.state.DualScreen) show.frmFSMain.picHideQuestion.Picture = picture("Cover.jpg");
}

// Numbers 0, 10 .. 100.
void FillPointLists(MainForm& form) {
  for (std::size_t i = 0; i < 2; ++i) {
    form.cbxScore[i].Clear();
    for (int points = 0; points <= 100; points += 10) form.cbxScore[i].AddItem(std::to_string(points));
  }
}

void ShowPoints(Show& show) {
  FillPointLists(show.frmMain);
  show.frmMain.cbxScore[0].ListIndex = show.state.Scoring;
  show.frmMain.cbxScore[1].ListIndex = show.state.Bonus;
}

void LoadScreenPictures(Show& show) {
  MainForm& form = show.frmMain;
  const FileSystem& files = show.platform.files;
  const std::array own{show.AppPath("\\pawnfield.bmp"), show.AppPath("\\bonus.bmp"), show.AppPath("\\header.bmp")};
  const bool custom = files.CanOpen(own[0]) && files.CanOpen(own[1]) && files.CanOpen(own[2]);
  form.imgStandby.Picture = custom ? own[0] : form.imgStandardStandby.Picture.Get();
  form.imgBonus.Picture = custom ? own[1] : form.imgStandardBonus.Picture.Get();
  form.imgHeader.Picture = custom ? own[2] : form.imgStandardHeader.Picture.Get();
}

void ShowGameType(Show& show) {
  MainForm& form = show.frmMain;
  const GameNature& type = show.state.Nature();
  form.optGameType[RowOf(type.Mode)].SelectInGroup();
  form.btnStart.Enabled = !type.Trivia;
  form.btnSelectGame.Visible = type.Trivia;
  form.cboList.Enabled = type.Trivia;
  form.cboTimedResponse.Enabled = type.Offer.TimedResponse;
  form.lblTimedResponse.Enabled = type.Offer.TimedResponse;
  form.cboAutoContinue.Enabled = type.Offer.AutoContinue;
  form.lblAutoContinuePrompt.Enabled = type.Offer.AutoContinue;
  form.chkHideQuestion.Enabled = type.Offer.HideQuestion;
  form.lblHidequestionOption.Enabled = type.Offer.HideQuestion;
  form.btnEnableAllBuzzers.Enabled = type.RingIn;
  for (Control* option :
       {static_cast<Control*>(&form.chkAnimation), static_cast<Control*>(&form.lblShowAnimation),
        static_cast<Control*>(&form.chkIncorrectPenalty), static_cast<Control*>(&form.lblLose100Points)}) {
    option->Enabled = type.Trivia;
  }
  form.lblSelectPlayer.Visible = type.RingIn;
  form.btnNextPlayer.Visible = type.Offer.NextPlayer;
  for (int player = 1; player <= kPlayers; ++player) {
    form.btnSelectPlayer[PlayerIndex(player)].Enabled = type.Offer.SelectPlayer;
  }
}

void LoadGameOptions(Show& show) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  ShowGameType(show);
  form.optGridControl[static_cast<std::size_t>(state.GridSize - kGridSizes.Low)].SelectInGroup();
  BuildGrid(show, state.GridSize);
  form.optPlayers[static_cast<std::size_t>(state.Players - kPlayerCounts.Low)].SelectInGroup();
  ApplyPlayerLayout(show, state.Players);
}

void Fill(ComboBox& box, const std::vector<std::string>& items, int index) {
  box.Clear();
  box.List = items;
  box.ListIndex = index;
}

template <std::size_t N>
int IndexOf(const std::array<int, N>& choices, int value) {
  return static_cast<int>(std::find(choices.begin(), choices.end(), value) - choices.begin());
}

void LoadPlayOptions(Show& show) {
  const GameState& state = show.state;
  MainForm& form = show.frmMain;
  form.chkHideQuestion.Value = state.HideQuestion ? 1 : 0;
  form.chkAnimation.Value = state.Animation ? 1 : 0;
  Fill(form.cboAutoContinue, {"3 Seconds", "4 Seconds", "5 Seconds", "User Advances"},
       state.AutoContinue - kAutoContinues.Low);
  Fill(form.cboTimedResponse, {"None", "3", "5", "7", "10"}, IndexOf(kTimedResponses, state.TimedResponse));
  Fill(show.frmPlayerNames.cboPenaltyPoints, {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "20"},
       IndexOf(kPenaltyChoices, state.PenaltyPoints));
}

void LoadSounds(Show& show) {
  if (!LoadSoundTable(show)) FillDefaultSounds(show);
  if (show.state.SoundSet >= 1 && show.state.SoundSet <= 3) {
    show.frmMain.optSoundBank[static_cast<std::size_t>(show.state.SoundSet - 1)].SelectInGroup();
  }
}

void ShowRulesAndVolumes(Show& show) {
  const GameState& state = show.state;
  MainForm& form = show.frmMain;
  form.chkExtKeyboardCtrl.Value = state.KeyControl ? 1 : 0;
  form.txtDJCommand.Visible = state.KeyControl;
  form.optGameEnds[state.GameEnds ? 0 : 1].SelectInGroup();
  form.chkIncorrectPenalty.Value = state.IncorrectPenalty ? 1 : 0;
  for (int player = 1; player <= kPlayers; ++player) {
    show.frmPlayerNames.PenaltyBox(player).Value = state.PlayerPenalty[player] ? 1 : 0;
  }
  LoadVolumes(show);
}

void ShowIdleBoard(Show& show) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  state.GridCols = state.GridSize;
  state.GridRows = state.GridSize;
  form.tmrArrowsTimer.Enabled = true;
  state.CurrentPlayer = 0;
  SetBuzzerStates(show, false);
  form.btnCorrect.Enabled = false;
  form.imgDJEntry.Picture = PicturePath(show, "\\Images\\Neutral.bmp");
  HidePanel(show, Panel::Question);
  ShowPanel(show, Panel::Standby);
  const GameNature& type = state.Nature();
  form.btnStandbyMode.Enabled = type.OffersHideAtLoad;
  form.btnPlayMode.Enabled = !type.OffersHideAtLoad;
  if (type.OffersHideAtLoad) form.txtDJCommand.BackColor = kRed;
  HidePanel(show, Panel::Sound);
  HidePanel(show, Panel::QuestionPicture);
  state.CurrentQuestion = 0;
  form.btnQuestionCorrect.Visible = false;
  form.btnQuestionIncorrect.Visible = false;
  state.PlacementOpen = false;
  form.tmrOptionalHeaders.Enabled = true;
  state.GameLoaded = false;
  state.GameInProgress = false;
  form.btnReset.Enabled = false;
  form.btnEndGame.Enabled = false;
}

// All six are tried before the first that is missing is reported.
void LoadPieces(Show& show) {
  MainForm& form = show.frmMain;
  std::string missing;
  // The disk isn't asked for these in the show.
  for (const char* verdict : {"\\Images\\Correct.jpg", "\\Images\\Incorrect.jpg"}) PicturePath(show, verdict);
  const auto load = [&](Image& face, const std::string& tail) {
    face.Picture = PicturePath(show, tail);
    if (face.Picture->empty() && missing.empty()) missing = show.AppPath(tail);
  };
  load(form.imgXa, "\\Images\\X-100a.bmp");
  load(form.imgXb, "\\Images\\X-100b.bmp");
  load(form.imgOa, "\\Images\\O-100a.bmp");
  load(form.imgOb, "\\Images\\O-100b.bmp");
  load(form.imgTa, "\\Images\\T-100a.bmp");
  load(form.imgTb, "\\Images\\T-100b.bmp");
  if (!missing.empty()) throw RuntimeError(kErrorFileNotFound, "File not found: " + missing);
}

void RunStep(Show& show, void (*step)(Show&)) {
  RunGuarded(
      show.platform.dialogs, [&] { step(show); }, "frmMain", "Form_Load");
}

void StartForm(Show& show) {
  GameState& state = show.state;
  if (state.SerialComm == InterfaceCode::Wireless) {
    show.frmMain.lblStatusBar.Caption = "System Initialized";
    show.frmMain.tmrMainTimer.Enabled = false;
  }
  state.SetsFolder = show.AppPath("\\Trivia Sets");
  show.frmMain.Form::Caption = kAppTitle;
}

void ShowAudience(Show& show) {
  if (!show.state.DualScreen) return;
  ShowAudienceScreen(show, show.state.FullScreenGameBoard ? 0 : show.state.FSLeft);
}

void ShowConsole(Show& show) {
  show.frmMain.Visible = true;
  if (!show.state.TSSupport) return;
  show.state.C2CValue = 0;
  ReportPlayers(show, kWhite);
  show.frmMain.tmrMainTimer.Enabled = true;
}

}  // namespace

void ShowStandbyFirst(Show& show) {
  if (!show.state.DualScreen || show.AudienceLoaded) return;
  SetDesignPictures(show);
  LoadScreenPictures(show);
  ShowPanel(show, Panel::Standby);
  ShowAudience(show);
}

void LoadMainForm(Show& show) {
  // Each step reports its own failure, so that one bad value or file leaves the rest of the load whole.
  for (const auto step : {SetDesignPictures,   LoadSettings,       LoadInterfaceFile,
                          LoadZR610,           CreateTransceiver,  ShowPoints,
                          StartForm,           LoadScreenPictures, FillSetList,
                          LoadGameOptions,     LoadPlayOptions,    LoadSounds,
                          ShowRulesAndVolumes, DecideOnMusic,      StartMusic,
                          LoadOptionalHeaders, ShowIdleBoard,      ShowAudience,
                          ShowConsole,         LoadPieces,         LoadPages}) {
    RunStep(show, step);
  }
  BeginSavingSettings(show);
  LightScoreBox(show, 0);
  if (show.frmMain.OnResize) show.frmMain.OnResize();
  BeginHistory(show);
}

}  // namespace pawnfield
