#include "writers.h"

#include <QDir>
#include <QFile>

#include "desktop/files/native_path.h"
#include "desktop/files/user_copy.h"
#include "forms/editor_form.h"
#include "forms/missing_media_form.h"
#include "forms/optional_headers_form.h"
#include "forms/press_forms.h"
#include "forms/sound_effects_form.h"
#include "outward/shared_key.h"
#include "platform/errors.h"
#include "program/interface_file.h"
#include "program/start_up.h"
#include "sets/missing_media.h"
#include "show/settings.h"

namespace pawnfield::faults {

namespace {

// A text whose length and letters go with the variant and the place.
std::string Words(int variant, int place, int longest) {
  const int length = 1 + (variant * 53 + place * 17) % longest;
  return std::string(static_cast<std::size_t>(length), static_cast<char>('a' + (variant + place) % 26));
}

int QuestionsOf(int variant) { return 1 + (variant * 37) % 100; }

void FillSet(TriviaSet& set, int variant) {
  set.fill({});
  for (int i = 0; i < QuestionsOf(variant); ++i) {
    TriviaQuestion& question = set[static_cast<std::size_t>(i)];
    question.QuestionType = "T";
    question.QuestionText = Words(variant, i, 250);
    question.AnswerText = Words(variant, i + 1, 170);
  }
}

void Press(Form& form, Control& control) {
  form.Visible = true;
  control.Enabled = true;
  control.Visible = true;
  control.Click();
}

std::string Spelled(const QString& path) { return SpelledPath(path); }
std::string SetPath(const Rig& rig, const char* name) { return Spelled(rig.places.App() + "/Trivia Sets/" + name); }

void SaveSet(Rig& rig, int variant) {
  FillSet(rig.show.EditSet, variant);
  rig.show.frmEditor.EditFileName = SetPath(rig, "Show saved.txt");
  Press(rig.show.frmEditor, rig.show.frmEditor.mnuFileSave);
}

void SaveSetAs(Rig& rig, int variant) {
  FillSet(rig.show.EditSet, variant);
  rig.dialogs.Chosen = SetPath(rig, "Show saved as.txt");
  Press(rig.show.frmEditor, rig.show.frmEditor.mnuSaveAs);
}

void RepairSet(Rig& rig, int variant) {
  FillSet(rig.show.GameSet, variant);
  rig.show.consoleDialog.FileName = SetPath(rig, "Show repaired.txt");
  Press(rig.show.frmDialog2, rig.show.frmDialog2.btnFinished);
}

void ExportSet(Rig& rig, int variant) {
  FillSet(rig.show.EditSet, variant);
  rig.dialogs.Chosen = Spelled(rig.places.Data() + "/Questions.csv");
  Press(rig.show.frmEditor, rig.show.frmEditor.mnuExport);
}

// With one of the pictures that are shipped, each time another.
void PackSet(Rig& rig, int variant) {
  constexpr const char* kPictures[] = {"Correct.jpg", "Cover.jpg", "FiveLeft.jpg"};
  FillSet(rig.show.EditSet, variant);
  TriviaQuestion& picture = rig.show.EditSet[0];
  picture.QuestionType = "P";
  picture.QuestionText = Spelled(QString(PAWNFIELD_IMAGES_DIR "/") + kPictures[variant % std::size(kPictures)]);
  rig.dialogs.Chosen = Spelled(rig.places.Data() + "/Packed.pawnset");
  Press(rig.show.frmEditor, rig.show.frmEditor.mnuPackSet);
  // That it worked is no refusal.
  std::erase_if(rig.dialogs.Messages,
                [](const std::string& text) { return text.find("holds the set and") != std::string::npos; });
}

void PrintSet(Rig& rig, int variant) {
  FillSet(rig.show.EditSet, variant);
  rig.show.NumEditQuestions = QuestionsOf(variant);
  rig.printing.File = rig.places.Data() + "/Printed.pdf";
  Press(rig.show.frmEditor, rig.show.frmEditor.mnuFilePrint);
}

// The grid shows the table, since an empty cell empties its entry.
void FillSounds(Show& show, int variant) {
  for (std::size_t bank = 1; bank <= 3; ++bank) {
    for (std::size_t row = 1; row <= 34; ++row) {
      show.soundBanks[bank][row] = Words(variant, static_cast<int>(bank * row), 120);
    }
  }
  Grid& grid = show.frmSoundEffects.Grid1;
  for (int row = 1; row < kSoundGridRows; ++row) {
    for (int column = 1; column < kSoundGridColumns; ++column) grid.SetCell(row, column, "x");
  }
}

void SaveSounds(Rig& rig, int variant) {
  FillSounds(rig.show, variant);
  rig.show.frmSoundEffects.Loaded = true;
  Press(rig.show.frmSoundEffects, rig.show.frmSoundEffects.btnSaveExit);
}

void ExportSounds(Rig& rig, int variant) {
  FillSounds(rig.show, variant);
  rig.dialogs.Chosen = Spelled(rig.places.Data() + "/Exported.dat");
  Press(rig.show.frmSoundEffects, rig.show.frmSoundEffects.btnExport);
}

void FillHeaders(Show& show, int variant) {
  for (int i = 0; i < 4; ++i) {
    show.frmOptionalHeaders.txtOptionalHeader[static_cast<std::size_t>(i)].Text = Words(variant, i, 900);
  }
}

void SaveHeaders(Rig& rig, int variant) {
  FillHeaders(rig.show, variant);
  Press(rig.show.frmOptionalHeaders, rig.show.frmOptionalHeaders.btnOk);
}

void SaveHeadersAs(Rig& rig, int variant) {
  FillHeaders(rig.show, variant);
  rig.dialogs.Chosen = Spelled(rig.places.Data() + "/My headers.txt");
  Press(rig.show.frmOptionalHeaders, rig.show.frmOptionalHeaders.mnuFileSaveAs);
}

void SavePadMap(Rig& rig, int variant) {
  std::vector<ListView::Row> rows;
  for (int i = 0; i < 20; ++i) rows.push_back({std::to_string(i + 1), std::to_string(variant * 1000 + i + 1)});
  rig.show.frmMapMF.lstControllers.ListItems = rows;
  Press(rig.show.frmMapMF, rig.show.frmMapMF.cmdOK);
}

// The fields' texts have lengths of their own.
void FillInterface(Show& show, int variant) {
  for (std::size_t i = 0; i < show.presses.InterfaceFields.size(); ++i) {
    show.presses.InterfaceFields[i] = (variant + static_cast<int>(i)) % 16;
  }
}

void SaveInterface(Rig& rig, int variant) {
  FillInterface(rig.show, variant);
  RunGuarded(
      rig.dialogs, [&] { SaveInterfaceFile(rig.show); }, "frmMain", "fileExit");
}

void SaveOneSetting(Rig& rig, int variant) {
  RunGuarded(
      rig.dialogs, [&] { SaveSetting(rig.show, "BgMusicFileName", Words(variant, 1, 200)); }, "frmMain", "one setting");
}

void SaveEverySetting(Rig& rig, int variant) {
  rig.show.state.BgMusicFileName = Words(variant, 1, 200);
  rig.show.state.Players = variant;
  rig.show.state.PenaltyPoints = 100 * variant;
  for (ScreenStyle& style : rig.show.state.ScreenFonts) style.FontName = Words(variant, 2, 40);
  RunGuarded(
      rig.dialogs, [&] { SaveAllSettings(rig.show); }, "frmMain", "fileExit");
}

void SaveSharedKey(Rig& rig, int variant) {
  WriteSharedKey(rig.show, "10", Words(variant, 1, 60));
  FlushSharedKey(rig.show);
  // Told once in a show; here each refusal counts.
  rig.show.SharedKeyFails = false;
}

QStringList ShippedFiles() {
  QStringList files;
  for (int i = 1; i <= 5; ++i) files << QString("Images/%1.bmp").arg(i) << QString("Trivia Sets/Show %1.txt").arg(i);
  return files;
}

// A version of what is shipped, made once beside everything else.
QString ShippedVersion(int variant) {
  const QString folder = QDir::tempPath() + QString("/pawnfield-shipped-%1").arg(variant);
  if (QDir(folder).exists()) return folder;
  for (const QString& name : ShippedFiles()) {
    QDir().mkpath(QFileInfo(folder + '/' + name).path());
    QFile file(folder + '/' + name);
    if (!file.open(QFile::WriteOnly)) continue;
    file.write(
        QByteArray(1000 + 1700 * variant + 10 * static_cast<int>(name.size()), static_cast<char>('a' + variant)));
  }
  return folder;
}

void UpdateCopy(Rig& rig, int variant) {
  const auto failure = UpdateUserCopy(ShippedVersion(variant), rig.places.Copy());
  if (failure) ReportCopyFailure(rig.dialogs, *failure);
}

constexpr const char* kUnableToSave = "Unable to save to the specified directory.";

}  // namespace

std::vector<Writer> AllWriters() {
  return {
      {"set, saved",
       "app/Trivia Sets",
       {"Show saved.txt", "Show saved.bak"},
       SaveSet,
       "SaveFile",
       kUnableToSave,
       JudgeSet},
      {"set, saved as",
       "app/Trivia Sets",
       {"Show saved as.txt", "Show saved as.bak"},
       SaveSetAs,
       "SaveFile",
       kUnableToSave,
       JudgeSet},
      {"set, repaired",
       "app/Trivia Sets",
       {"Show repaired.txt", "Show repaired.bak"},
       RepairSet,
       "SaveFile",
       "",
       JudgeSet},
      {"set, printed to a file", "data", {"Printed.pdf"}, PrintSet, "mnuFilePrint", "", JudgePages},
      {"set, exported", "data", {"Questions.csv"}, ExportSet, "", "", JudgeFiles, false, "was not written"},
      {"set, packed", "data", {"Packed.pawnset"}, PackSet, "", "", JudgeBundle, false, "was not packed"},
      {"sounds", "data", {"Sounds.dat"}, SaveSounds, "Form_Unload"},
      {"sounds, exported", "data", {"Exported.dat"}, ExportSounds, "btnExportSoundFiles"},
      {"headers", "data", {"Headers.txt"}, SaveHeaders, "SaveToOSKD"},
      {"headers, saved as", "data", {"My headers.txt"}, SaveHeadersAs, "mnuFileSaveAs"},
      {"pad map", "data", {"MFMap.dat"}, SavePadMap, "cmdOK_Click"},
      {"interface", "data", {"Interface.txt"}, SaveInterface, "fileExit"},
      {"settings, one", "config", {"pawnfield.ini"}, SaveOneSetting, "one setting", "", JudgeFiles, true},
      {"settings, all", "config", {"pawnfield.ini"}, SaveEverySetting, "fileExit", "", JudgeFiles, true},
      {"keyboard program's key", "config", {"padbridge.ini"}, SaveSharedKey, "WriteSharedKey", "", JudgeFiles, true},
      {"user's copy", "copy", ShippedFiles() << "Shipped.lst", UpdateCopy, "UpdateUserCopy", "", JudgeCopy, true},
  };
}

}  // namespace pawnfield::faults
