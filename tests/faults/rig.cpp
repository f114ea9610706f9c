#include "rig.h"

#include <QDir>
#include <QFile>
#include <QPrinter>
#include <optional>

#include "desktop/files/bundle_file.h"
#include "desktop/files/bundle_rules.h"
#include "desktop/files/native_path.h"
#include "desktop/files/whole_file.h"
#include "desktop/system/qt_printing.h"
#include "forms/main_form.h"
#include "program/handlers.h"
#include "program/program.h"

namespace pawnfield::faults {

namespace {

bool Goes(double) { return true; }

Folders FoldersOf(const Places& places) { return {SpelledPath(places.App()), SpelledPath(places.Data())}; }

}  // namespace

BoxAnswer RecordingDialogs::MessageBox(const std::string& text, const std::string&, BoxKind kind) {
  if (kind == BoxKind::YesNo || kind == BoxKind::YesNoCancel) return BoxAnswer::Yes;
  Messages.push_back(text);
  return BoxAnswer::Ok;
}

void FilePrinting::Print(const PrintDocument& document, int copies) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(File);
  PrintOn(printer, document, copies);
}

bool PlainBundles::Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
                        const std::vector<PackedFile>& media) {
  return WriteBundle(NativePath(path), setName, setBytes, media, Goes);
}

BundleContents PlainBundles::Look(const std::string& path) const {
  return LookInto(ZipReader::OfFile(NativePath(path).toStdString()));
}

bool PlainBundles::Unpack(const std::string& path, const std::string& folder) {
  return UnpackBundle(NativePath(path), NativePath(folder), Goes);
}

void Places::MakeFolders() const {
  for (const QString& folder : {App() + "/Trivia Sets", App() + "/Sounds", Data(), Config(), Runtime(), Copy()}) {
    QDir().mkpath(folder);
  }
  QFile::link(PAWNFIELD_IMAGES_DIR, App() + "/Images");
}

Rig::Rig(const QString& root)
    : places(root),
      settings(places.Config()),
      records(places.Data() + "/Pawnfield/Shows"),
      platform{sim.clock,        dialogs,      sim.media.Channels(), settings,   files,   sim.text,    pictures,
               mediaFiles,       sim.displays, sim.processes,        sim.random, sim.hid, sim.devices, printing,
               sim.pages,        sim.serial,   sim.network,          records,    sheets,  bundles,     sim.spelling,
               FoldersOf(places)},
      show(platform) {
  AttachHandlers(show);
}

void Start(Rig& rig) {
  Main(rig.show);
  rig.sim.clock.Advance(10000);
}

std::vector<std::string> NextStart(const QString& root) {
  Rig rig(root);
  // A start keeps by itself that missing hardware has been told; what is tried here shall find its own files alone.
  const QString settings = rig.places.Config() + "/pawnfield.ini";
  QFile file(settings);
  const std::optional<QByteArray> before = file.open(QFile::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
  file.close();
  Start(rig);
  before ? ReplaceFile(settings, {before->data(), static_cast<std::size_t>(before->size())})
         : static_cast<void>(QFile::remove(settings));
  std::vector<std::string> odd;
  for (const std::string& text : rig.dialogs.Messages) {
    if (text.find("No hardware was detected") == std::string::npos) odd.push_back(text);
  }
  for (const std::string& name : rig.show.frmMain.cboList.List.Get()) {
    if (name != "Select Game Set" && !name.starts_with("Show")) odd.push_back("a set named " + name);
  }
  if (!rig.show.frmMain.Visible) odd.push_back("no console");
  return odd;
}

}  // namespace pawnfield::faults
