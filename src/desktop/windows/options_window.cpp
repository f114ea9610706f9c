#include "desktop/windows/options_window.h"

#include <array>

#include "desktop/windows/volume_slider_view.h"
#include "forms/options_form.h"
#include "ui_frm_options.h"

namespace pawnfield {

OptionsWindow::OptionsWindow(OptionsForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmOptions>(*this);
  BindForm();
  constexpr std::array kViews{"pnlEvent", "pnlKeyPress", "pnlAudioClips", "pnlBackground", "pnlAnimation"};
  const auto sliders = form.Sliders();
  for (std::size_t i = 0; i < sliders.size(); ++i) {
    VolumeSlider& slider = *sliders[i];
    findChild<VolumeSliderView*>(kViews[i])->Attach(slider);
    // One view paints the four pictures.
    Bindings()->Hold(
        {slider.RealBackground.Name(), slider.RealSlider.Name(), slider.Background.Name(), slider.FakeSlider.Name()});
  }
}

}  // namespace pawnfield
