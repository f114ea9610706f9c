// The processes of this machine, the one-instance rule and the end of the program.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "platform/ports.h"

namespace pawnfield {

class DesktopProcesses : public Processes {
 public:
  // The folder is the user's own for running programs; onActivate runs when another instance asks for the front; helper
  // programs are looked for in the program's folders, in their order.
  DesktopProcesses(QString runtimeFolder, std::function<void()> onActivate, QStringList programFolders = {});

  // Runs with the path of a file that another instance hands over.
  std::function<void(const std::string& path)> OnHandedOver;

  // A RuntimeError where the mark can't be made.
  bool AnotherInstanceRuns() override;
  // This user's.
  std::vector<ProcessInfo> List() const override;
  std::int64_t CurrentId() const override;
  // Other programs' windows can't be raised from here on Linux; only 0 has an effect.
  void Activate(std::int64_t id) override;
  bool HandOver(const std::string& path) override;
  // "PadBridge.exe" is an executable "PadBridge" here. It is given the text in UTF-8, and its output goes nowhere.
  bool StartHelper(const std::string& name, const std::string& argument) override;
  void EndProgram() override;
  void Start(const std::string& path) override;

 private:
  QString SocketPath() const { return runtimeFolder_ + "/pawnfield.socket"; }
  void Listen();
  void Answer(QLocalSocket& caller);

  QString runtimeFolder_;
  std::function<void()> onActivate_;
  QStringList programFolders_;
  std::unique_ptr<QLockFile> lock_;
  QLocalServer server_;
};

}  // namespace pawnfield
