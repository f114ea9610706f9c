#include "desktop/windows/options_window.h"

#include <QShortcut>
#include <QTabWidget>
#include <array>

#include "desktop/windows/volume_slider_view.h"
#include "forms/options_form.h"
#include "ui_frm_options.h"

namespace pawnfield {

OptionsWindow::OptionsWindow(OptionsForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmOptions>(*this);
  BindForm();
  TurnTabsByKey();
  constexpr std::array kViews{"pnlEvent", "pnlKeyPress", "pnlAudioClips", "pnlBackground", "pnlAnimation"};
  auto view = kViews.begin();
  for (VolumeSlider* slider : form.Sliders()) {
    findChild<VolumeSliderView*>(*view++)->Attach(*slider);
    // One view paints the four pictures.
    Bindings()->Hold({slider->RealBackground.Name(), slider->RealSlider.Name(), slider->Background.Name(),
                      slider->FakeSlider.Name()});
  }
}

// The tabs turn by the usual keys wherever the focus is; the toolkit's own do while it is within the tabs.
void OptionsWindow::TurnTabsByKey() {
  auto* tabs = findChild<QTabWidget*>("SSTab1");
  for (const auto& [keys, step] : {std::pair{"Ctrl+Tab", 1}, {"Ctrl+Shift+Tab", -1}}) {
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, tabs, [tabs, step = step] {
      tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
    });
  }
}

}  // namespace pawnfield
