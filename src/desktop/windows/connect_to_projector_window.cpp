#include "desktop/windows/connect_to_projector_window.h"

#include "forms/connect_to_projector_form.h"

namespace pawnfield {

namespace {
constexpr int kTwipsPerPixel = 15;
}

ConnectToProjectorWindow::ConnectToProjectorWindow(ConnectToProjectorForm& form, FormWindows& windows,
                                                   PictureCache& pictures)
    : FormWindow(form, windows, Qt::Dialog | Qt::FramelessWindowHint) {
  auto* canvas = new Canvas(pictures, this);
  canvas->setObjectName("pnlCanvas");
  canvas->SetLogicalSize(form.Width, form.Height);
  canvas->Add(form.imgProjector);
  ItemStyle sign;
  sign.IsSign = true;
  canvas->Add(form.imgExit, sign);
  setCentralWidget(canvas);
  setFixedSize(static_cast<int>(form.Width / kTwipsPerPixel), static_cast<int>(form.Height / kTwipsPerPixel));
  BindForm();
  Bindings()->AddCanvas(*canvas);
}

}  // namespace pawnfield
