// A show whose files, settings and printing are the desktop's own, below one folder; the rest of its machine is
// simulated, so that it needs no display.
#pragma once

#include <QString>

#include "desktop/files/qt_file_system.h"
#include "desktop/files/qt_settings_store.h"
#include "desktop/files/record_writer.h"
#include "desktop/files/sheet_reader.h"
#include "desktop/media/media_files.h"
#include "desktop/painting/picture_cache.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield::faults {

// Answers Yes to every question, chooses one file in every dialog, and records what the operator was shown.
class RecordingDialogs : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string& text, const std::string& title, BoxKind kind) override;
  std::string ChooseFile(const FileDialogRequest&) override { return Chosen; }
  std::optional<Font> ChooseFont(const Font&) override { return std::nullopt; }
  std::optional<Color> ChooseColor(Color) override { return std::nullopt; }
  void ShowModal(Form& form) override { form.Unload(); }
  ModalKind Modal() const override { return ModalKind::None; }

  std::string Chosen;
  std::vector<std::string> Messages;
};

// Prints to a file as if the operator had chosen it in the dialog.
class FilePrinting : public Printing {
 public:
  std::optional<int> ChoosePrinter() override { return 1; }
  void Print(const PrintDocument& document, int copies) override;

  QString File;
};

// Packs and unpacks without a bar beside it.
class PlainBundles : public Bundles {
 public:
  bool Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
            const std::vector<PackedFile>& media) override;
  BundleContents Look(const std::string& path) const override;
  bool Unpack(const std::string& path, const std::string& folder) override;
};

// Where things lie below the folder; MakeFolders makes these.
struct Places {
  explicit Places(QString root) : Root(std::move(root)) {}
  void MakeFolders() const;
  QString App() const { return Root + "/app"; }
  QString Data() const { return Root + "/data"; }
  QString Config() const { return Root + "/config"; }
  QString Runtime() const { return Root + "/run"; }
  QString Copy() const { return Root + "/copy"; }

  QString Root;
};

struct Rig {
  explicit Rig(const QString& root);
  Rig(const Rig&) = delete;
  Rig& operator=(const Rig&) = delete;

  Places places;
  SimPlatform sim;
  RecordingDialogs dialogs;
  QtFileSystem files;
  QtSettingsStore settings;
  PictureCache pictures;
  MediaFiles mediaFiles;
  FilePrinting printing;
  RecordWriter records;
  SheetReader sheets;
  PlainBundles bundles;
  Platform platform;
  Show show;
};

// The program's start up to the idle console.
void Start(Rig& rig);

// What a start of the program below that folder says beside its greeting, and the set names that are no set's.
std::vector<std::string> NextStart(const QString& root);

}  // namespace pawnfield::faults
