// frmOptions: buzzer routing on its first tab, volumes, music, pictures and companion on its second.
#pragma once

#include <array>

#include "forms/volume_slider.h"
#include "platform/controls.h"

namespace pawnfield {

struct OptionsForm : Form {
  OptionsForm();

  // In the order in which they are loaded.
  std::array<VolumeSlider*, 5> Sliders() {
    return {&picEvent, &picKeyPress, &picAudioClips, &picBackground, &picAnimation};
  }

  // The two tabs, "ZR Mgnt" and "Controls".
  Frame SSTab1{*this, "SSTab1"};
  Button btnOK{*this, "btnOK"};
  Button btnApply{*this, "btnApply"};
  Button btnCancel{*this, "btnCancel"};

  // By tab: 1 is the first tab's ground.
  ControlArray<PictureBox, 2> picBG{*this, "picBG"};
  Label Label1{*this, "Label1"};
  ControlArray<Label, 2> lblBuzzer{*this, "lblBuzzer"};
  ControlArray<Label, 2> lblRingsInAs{*this, "lblRingsInAs"};
  ControlArray<Label, 20> lblNumber{*this, "lblNumber"};
  ControlArray<ComboBox, 20> cboRouting{*this, "cboRouting"};
  Button btnRoutingDefaults{*this, "btnRoutingDefaults"};

  Label lblVolume{*this, "lblVolume"};
  VolumeSlider picEvent{*this, "picEvent", "picEventSlideTMR", "lblEventVolume", "Events"};
  VolumeSlider picKeyPress{*this, "picKeyPress", "picKeyPressSlideTMR", "lblKeyPressVolume", "Key Presses"};
  VolumeSlider picAudioClips{*this, "picAudioClips", "picAudioClipsSliderTMR", "lblSoundClipVolume", "Audio Clips"};
  VolumeSlider picBackground{*this, "picBackground", "picBackgroundSliderTMR", "lblBackgroundVolume", "Background"};
  VolumeSlider picAnimation{*this, "picAnimation", "picAnimationSliderTMR", "lblAnimationVolume", "Animation"};
  Frame Line1{*this, "Line1"};
  Frame fraBackgroundMusic{*this, "fraBackgroundMusic"};
  ControlArray<OptionButton, 3> optBackgroundMusic{*this, "optBackgroundMusic"};
  Button btnBGMusic{*this, "btnBGMusic"};
  Label lblBackgroundMusic{*this, "lblBackgroundMusic"};
  Label lblRelaunch{*this, "lblRelaunch"};
  Label Label4{*this, "Label4"};
  ComboBox cboMODPictureTmr{*this, "cboMODPictureTmr"};
  Label Label21{*this, "Label21"};
  CheckBox chkFullScreenGameBoard{*this, "chkFullScreenGameBoard"};
  CheckBox chkTSSupport{*this, "chkTSSupport"};

  bool Changed = false;
  // True once the dialog has been filled; changes before that don't count.
  bool Loaded = false;
};

}  // namespace pawnfield
