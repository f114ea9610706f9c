// What stays of a file that is replaced: its owner, group and rights, a link to it, and the bytes under its other
// names.
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cstdio>

#include "modes.h"
#include "writers.h"

namespace pawnfield::faults {

namespace {

constexpr uid_t kNobody = 65534;
constexpr mode_t kRights = 0640;

QByteArray Coded(const QString& path) { return QFile::encodeName(path); }

QByteArray Bytes(const QString& path) {
  QFile file(path);
  return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// One file of a writer's, which has been moved to a name of the greatest length and is reached by a link.
class LinkedFile {
 public:
  LinkedFile(const QString& path, int number)
      : path_(path),
        target_(QFileInfo(path).path() + "/t" + QString::number(number).rightJustified(254, 'n')),
        second_(QFileInfo(path).path() + "/s" + QString::number(number).rightJustified(254, 'n')) {
    QFile::rename(path_, target_);
    QFile::link(target_, path_);
    [[maybe_unused]] const int linked = link(Coded(target_).constData(), Coded(second_).constData());
    [[maybe_unused]] const int owned = chown(Coded(target_).constData(), Owner(), Group());
    chmod(Coded(target_).constData(), kRights);
    old_ = Bytes(target_);
  }

  // What is not as it was; empty for nothing.
  std::string Fault() const {
    struct stat now {};
    if (stat(Coded(target_).constData(), &now) != 0) return "the link's target has gone";
    if (!QFileInfo(path_).isSymLink()) return "the link has gone";
    if (now.st_uid != Owner() || now.st_gid != Group()) return "another owner or group";
    if ((now.st_mode & 07777) != kRights) return "other rights";
    if (Bytes(second_) != old_) return "another name's bytes have changed";
    return Bytes(target_) == old_ ? "not written" : "";
  }

 private:
  static uid_t Owner() { return geteuid() == 0 ? kNobody : geteuid(); }
  static gid_t Group() { return geteuid() == 0 ? kNobody : getegid(); }

  QString path_, target_, second_;
  QByteArray old_;
};

}  // namespace

int RunKept(const QString& root) {
  std::printf("OWNER, GROUP, RIGHTS, LINKS, LONG NAMES\n");
  int faults = 0;
  for (const Writer& writer : AllWriters()) {
    Rig rig(root + '/' + QString::fromStdString(writer.Kind));
    rig.places.MakeFolders();
    // Twice, so that the copy of the file before the last save is there too.
    for (int variant = 0; variant < 2; ++variant) writer.Write(rig, variant);
    std::vector<LinkedFile> files;
    for (const QString& file : writer.Files) {
      files.emplace_back(rig.places.Root + '/' + writer.Folder + '/' + file, static_cast<int>(files.size()));
    }
    writer.Write(rig, 2);
    std::string fault = rig.dialogs.Messages.empty() ? "" : rig.dialogs.Messages.front();
    for (const LinkedFile& file : files) {
      if (fault.empty()) fault = file.Fault();
    }
    std::printf("%-24s %s\n", writer.Kind.c_str(), fault.empty() ? "kept" : ("fault: " + fault).c_str());
    faults += fault.empty() ? 0 : 1;
  }
  return faults;
}

}  // namespace pawnfield::faults
