#include "sim/sim_platform.h"

namespace pawnfield {

namespace {

void PutImages(SimFiles& files, const std::string& folder) {
  for (const char* piece : {"X", "O", "T"}) {
    for (const char* face : {"a", "b"}) {
      files.Put(folder + "\\" + piece + "-100" + face + ".bmp", SimPictures::PictureBytes(100, 100));
    }
  }
  files.Put(folder + "\\Blank.bmp", SimPictures::PictureBytes(100, 100));
  for (const char* box : {"scorebox.bmp", "scoreboxred.bmp"}) {
    files.Put(folder + "\\" + box, SimPictures::PictureBytes(200, 60));
  }
}

}  // namespace

SimPlatform::SimPlatform(Folders where)
    : platform{clock,           dialogs,  media.Channels(), settings, files,  text,    pictures,
               mediaFiles,      displays, processes,        random,   hid,    devices, printing,
               pages,           serial,   network,          records,  sheets, bundles, spelling,
               std::move(where)} {
  media.Deck.Time = &clock;
  const std::string app = platform.folders.App;
  PutImages(files, app + "\\Images");
  files.PutFolder(app + "\\Trivia Sets");
  files.PutFolder(app + "\\Sounds");
}

}  // namespace pawnfield
