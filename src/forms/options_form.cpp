#include "forms/options_form.h"

namespace pawnfield {

OptionsForm::OptionsForm() : Form("frmOptions") {
  constexpr int kShortestHold = 5;
  constexpr int kLongestHold = 20;
  Form::Caption = "Options";
  btnOK.Caption = "OK";
  btnApply.Caption = "Apply";
  btnApply.Enabled = false;
  btnCancel.Caption = "Cancel";
  Label1.Caption =
      "ZR Management allows you to adjust any K7 or K8 buzzer system, such as ZR-620, ZR-610, ZR-640 and Kestrel";
  for (std::size_t i = 0; i < 2; ++i) {
    lblBuzzer[i].Caption = "Buzzer";
    lblRingsInAs[i].Caption = "Rings in As";
  }
  std::vector<std::string> numbers;
  for (int n = 1; n <= 20; ++n) numbers.push_back(std::to_string(n));
  for (std::size_t i = 0; i < 20; ++i) {
    lblNumber[i].Caption = numbers[i];
    cboRouting[i].List = numbers;
  }
  btnRoutingDefaults.Caption = "Defaults";
  lblVolume.Caption = "Volume";
  fraBackgroundMusic.Caption = " Background Music ";
  const std::array modes{"No Background Music", "Background Music Folder", "Single File"};
  for (std::size_t i = 0; i < 3; ++i) {
    optBackgroundMusic[i].Caption = modes[i];
    optBackgroundMusic[i].Group = {&optBackgroundMusic[0], &optBackgroundMusic[1], &optBackgroundMusic[2]};
  }
  btnBGMusic.Caption = "Background Music";
  lblBackgroundMusic.Caption = "BG Music Filename";
  lblRelaunch.Caption = "Begins with the next track or game.";
  Label4.Caption = "Media On Demand Pictures Time Hold";
  Label21.Caption = "Seconds";
  for (int seconds = kShortestHold; seconds <= kLongestHold; ++seconds) {
    cboMODPictureTmr.AddItem(std::to_string(seconds));
  }
  chkFullScreenGameBoard.Caption = "Full Screen Game Board";
  chkFullScreenGameBoard.ToolTipText = "Saved with the settings. The room's screen always fills its monitor.";
  chkTSSupport.Caption = "Companion Support";
}

}  // namespace pawnfield
