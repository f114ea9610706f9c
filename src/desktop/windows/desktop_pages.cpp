#include "desktop/windows/desktop_pages.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace pawnfield {

bool DesktopPages::Open(const std::string& address) {
  const QString where = QString::fromStdString(address);
  if (where.startsWith("http")) return QDesktopServices::openUrl(QUrl(where));
  if (!window_) window_ = new ManualWindow(folder_);
  // A modal window lets its own children be worked and no others.
  QWidget* modal = QApplication::activeModalWidget();
  if (window_->parentWidget() != modal) window_->setParent(modal, Qt::Window);
  return window_->ShowPage(where);
}

QString ManualFolder() {
  const QString beside = QCoreApplication::applicationDirPath();
  for (const QString& folder : {beside + "/Manual", beside + "/../share/pawnfield/Manual"}) {
    if (QFileInfo(folder).isDir()) return QDir::cleanPath(folder);
  }
  return PAWNFIELD_MANUAL_DIR;
}

}  // namespace pawnfield
