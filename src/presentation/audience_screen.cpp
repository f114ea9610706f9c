#include "presentation/audience_screen.h"

#include "forms/connect_to_projector_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "presentation/audience_step.h"
#include "presentation/both_screens.h"
#include "presentation/monitors.h"
#include "presentation/screen_pairs.h"
#include "show/settings.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kScreenLost = "Audience screen lost";
constexpr int kMinimised = 1;
constexpr int kNormal = 0;

void LoadSecondScreen(Show& show) {
  show.frmSS.Left = show.state.FSLeft;
  show.frmSS.Top = show.state.FSTop;
  show.frmFSMain.Visible = false;
  show.platform.displays.SetTopMost(show.frmSS, true);
  show.frmSS.Visible = true;
}

void LoadAudienceScreen(Show& show) {
  show.AudienceLoaded = true;
  show.frmFSMain.Left = show.state.FSLeft;
  show.frmFSMain.Top = show.state.FSTop;
  PaintGB(show);
}

void SecondScreenResized(Show& show) {
  if (!HasSecondMonitor(show)) {
    show.frmSS.Visible = false;
    return;
  }
  show.frmFSMain.WindowState = show.frmSS.WindowState == kMinimised ? kMinimised : kNormal;
}

// The window can't be dragged off its monitor.
void SecondScreenMoved(Show& show) {
  if (show.frmSS.WindowState != kNormal) return;
  show.frmSS.Left = show.state.FSLeft;
  show.frmFSMain.Left = show.state.FSLeft;
}

// What happens on this timer is announced by the monitors as well; nothing is polled.
void tmrRePaint_Timer(Show& show) {
  show.frmFSMain.tmrRePaint.Enabled = false;
  PaintGB(show);
}

void mnuHelpProjector_Click(Show& show) {
  constexpr int kCornerRadius = 10;
  ConnectToProjectorForm& form = show.frmConnectToProjector;
  form.imgProjector.Picture = PicturePath(show, "\\Images\\Projector.jpg");
  form.imgExit.Picture = PicturePath(show, "\\Images\\Exit.png");
  show.platform.displays.RoundWindow(form, kCornerRadius);
  show.platform.dialogs.ShowModal(form);
}

void AudienceScreenFound(Show& show) {
  Label& status = show.frmMain.lblStatusBar;
  if (status.Caption == kScreenLost) status.Caption = "";
  if (!show.state.DualScreen) {
    show.state.DualScreen = true;
    BringAudienceInStep(show);
  }
  ShowAudienceScreen(show, show.state.FullScreenGameBoard ? 0 : show.state.FSLeft);
  PaintGB(show);
  show.frmSS.Left = show.state.FSLeft;
}

void AudienceScreenLost(Show& show) {
  if (!show.frmSS.Visible) return;
  show.frmSS.Visible = false;
  show.frmMain.lblStatusBar.Caption = kScreenLost;
}

// The start brings the audience screen up by itself, and a monitor that goes before the console is up was none of the
// show's.
void MonitorsChangedAtStart(Show& show) {
  const bool second = HasSecondMonitor(show);
  if (second && show.AudienceLoaded) {
    AudienceScreenFound(show);
    return;
  }
  show.state.DualScreen = second;
  if (second) CopyPairs(show);
  if (!second) show.frmSS.Visible = false;
}

}  // namespace

void AttachAudienceHandlers(Show& show) {
  FSMainForm& form = show.frmFSMain;
  FollowConsole(show);
  form.tmrRePaint.OnTimer = [&show] { tmrRePaint_Timer(show); };
  for (std::size_t i = 0; i < 3; ++i) {
    form.lblPlayer[i].OnDblClick = [&show, i] { show.frmMain.lblPlayer1[i].DblClick(); };
  }
  show.frmMain.mnuHelpProjector.OnClick = [&show] { mnuHelpProjector_Click(show); };
  show.frmConnectToProjector.imgExit.OnClick = [&show] { show.frmConnectToProjector.Unload(); };
  show.frmSS.OnResize = [&show] { SecondScreenResized(show); };
  show.frmSS.OnMove = [&show] { SecondScreenMoved(show); };
  show.platform.displays.OnChanged(
      [&show] { show.frmSS.Dispatch([&show] { MonitorsChanged(show); }, "MonitorsChanged"); });
}

void ShowAudienceScreen(Show& show, int left) {
  if (!show.AudienceLoaded) LoadAudienceScreen(show);
  show.frmFSMain.Left = left;
  show.frmFSMain.Visible = true;
}

void PaintGB(Show& show) {
  if (show.AudienceLoaded && HasSecondMonitor(show) && !show.frmSS.Visible) LoadSecondScreen(show);
}

void KeepAwakeWhileShowing(Show& show) {
  const bool showing = show.frmMain.Visible && !show.frmMain.picStandby.Visible;
  if (showing == show.AwakeHeld) return;
  show.AwakeHeld = showing;
  show.platform.displays.KeepAwake(showing);
}

void UnloadAudienceScreen(Show& show) {
  if (show.AwakeHeld) show.platform.displays.KeepAwake(false);
  show.AwakeHeld = false;
  show.frmFSMain.tmrRePaint.Enabled = false;
  if (!show.AudienceLoaded) return;
  show.AudienceLoaded = false;
  show.frmSS.Visible = false;
  show.frmFSMain.Visible = false;
  SaveSetting(show, "SecondaryLeft", std::to_string(static_cast<int>(show.frmFSMain.Left)));
  SaveSetting(show, "SecondaryTop", std::to_string(static_cast<int>(show.frmFSMain.Top)));
}

void MonitorsChanged(Show& show) {
  FindAudiencePlace(show);
  show.frmFSMain.tmrRePaint.Enabled = true;
  if (!show.frmMain.Visible) {
    MonitorsChangedAtStart(show);
    return;
  }
  HasSecondMonitor(show) ? AudienceScreenFound(show) : AudienceScreenLost(show);
}

}  // namespace pawnfield
