// Folders of a test's own, below a temporary one, the program that runs in them, and its dialogs.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
#include "desktop/windows/console_window.h"

namespace pawnfield {

// In Polish, Greek, Russian and Japanese.
inline const QStringList kForeignNames{QString::fromUtf8("Za\u017C\u00F3\u0142\u0107 g\u0119\u015Bl\u0105"),
                                       QString::fromUtf8("\u039E\u03AD\u03BD\u03B7 \u03BB\u03AD\u03BE\u03B7"),
                                       QString::fromUtf8("\u0417\u0430\u0433\u0440\u0443\u0437\u043A\u0438"),
                                       QString::fromUtf8("\u30C0\u30A6\u30F3\u30ED\u30FC\u30C9 \u65E5\u672C")};

inline DesktopPlaces PlacesIn(const QTemporaryDir& folder) {
  DesktopPlaces places;
  places.folders.DataRoot = SpelledPath(folder.path() + "/data");
  places.configFolder = folder.path() + "/config";
  places.runtimeFolder = folder.path() + "/run";
  return places;
}

// A slow machine is given that long.
inline constexpr int kSlowMachineMs = 120000;

// Does the work once such a dialog is up, from within its own loop.
template <typename Dialog>
void WhenUp(const std::function<void(Dialog&)>& work) {
  auto* look = new QTimer(qApp);
  QObject::connect(look, &QTimer::timeout, look, [look, work] {
    auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    look->stop();
    look->deleteLater();
    work(*dialog);
  });
  look->start(20);
}

class FolderTest : public testing::Test {
 protected:
  QString Native(const QString& name) const { return folder_.path() + '/' + name; }
  std::string Spelled(const std::string& tail) const { return SpelledPath(folder_.path()) + tail; }
  // Makes the file and its folder anew, and tells where it is.
  QString Make(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(Native(name)).path());
    QFile::remove(Native(name));
    QFile file(Native(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << name.toStdString();
    return Native(name);
  }

  QTemporaryDir folder_;
};

class ProgramTest : public FolderTest {
 protected:
  FormWindow& Window(const Form& form) {
    for (FormWindow* window : program_.Windows()) {
      if (window->objectName() == QString::fromStdString(form.Name())) return *window;
    }
    throw std::runtime_error("no window of " + form.Name());
  }
  template <typename T>
  T& Widget(const char* name) {
    return *program_.Console().findChild<T*>(name);
  }

  DesktopProgram program_{PlacesIn(folder_)};
  Show& show_ = program_.TheShow();
  MainForm& form_ = show_.frmMain;
};

}  // namespace pawnfield
