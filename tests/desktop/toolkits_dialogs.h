// The dialogs that are the toolkit's own, as the program opens them.
#pragma once

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>

namespace pawnfield {

struct ToolkitsDialogs {
  explicit ToolkitsDialogs(const QString& folder) : Files(nullptr, "Open", folder) {
    Files.setOption(QFileDialog::DontUseNativeDialog);
    Fonts.setOption(QFontDialog::DontUseNativeDialog);
    Colors.setOption(QColorDialog::DontUseNativeDialog);
  }

  QFileDialog Files;
  QFontDialog Fonts;
  QColorDialog Colors;
};

}  // namespace pawnfield
