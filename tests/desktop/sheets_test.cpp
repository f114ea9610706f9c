// Sheets of spreadsheet programs and packed sets as files of the disk: what is read of them, and what is refused.

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zip.h>

#include <QCoreApplication>
#include <QProcess>
#include <filesystem>

#include "desktop/files/bundle_file.h"
#include "desktop/files/bundle_rules.h"
#include "desktop/files/sheet_reader.h"
#include "desktop/files/sheet_xml.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "desktop/system/zip_bundles.h"
#include "places.h"
#include "platform/escapes.h"
#include "sets/question_import.h"

namespace {
// The files that were brought to the disk, by the names that they had then.
std::vector<std::string> synced;
}  // namespace

extern "C" int fsync(int file) {
  using Real = int (*)(int);
  static const auto real = reinterpret_cast<Real>(dlsym(RTLD_NEXT, "fsync"));
  synced.push_back(QFile::symLinkTarget("/proc/self/fd/" + QString::number(file)).toStdString());
  return real(file);
}

namespace pawnfield {
namespace {

bool Goes(double) { return true; }

void WriteZipFile(const QString& path, const std::vector<ZipContent>& contents) {
  std::FILE* file = std::fopen(QFile::encodeName(path), "wb");
  WriteZip(file, contents, Goes);
  std::fclose(file);
}

// Writes a table of UTF-8 as files of other kinds, each by the library that its own programs use.
constexpr const char* kWriter = R"(
import csv, sys
import openpyxl
from odf.opendocument import OpenDocumentSpreadsheet
from odf.table import Table, TableCell, TableRow
from odf.text import P, S
rows = list(csv.reader(open(sys.argv[1], encoding='utf-8-sig', newline='')))
book = openpyxl.Workbook()
for row in rows:
    book.active.append(row)
book.save(sys.argv[1] + '.xlsx')
document = OpenDocumentSpreadsheet()
table = Table(name='Questions')
for row in rows:
    line = TableRow()
    for cell in row:
        box = TableCell(valuetype='string')
        for paragraph in cell.split('\n'):
            text = P()
            for i, part in enumerate(paragraph.split(' ')):
                if i:
                    text.addElement(S())
                text.addText(part)
            box.addElement(text)
        line.addElement(box)
    table.addElement(line)
table.addElement(TableRow(numberrowsrepeated=1048000))
document.spreadsheet.addElement(table)
document.save(sys.argv[1] + '.ods')
with open(sys.argv[1] + '.tsv', 'w', encoding='utf-16', newline='') as file:
    csv.writer(file, delimiter='\t').writerows(rows)
with open(sys.argv[1] + '.semicolons.csv', 'w', encoding='utf-8', newline='') as file:
    csv.writer(file, delimiter=';').writerows(rows)
)";

// A hundred questions as hosts write them: quotation marks, breaks, umlauts, Greek and Hebrew.
Sheet HundredQuestions() {
  const QString odd[] = {
      QString::fromUtf8("Who said \"Wir schaffen das\"; and what, then, was \u00BBdas\u00AB?"),
      QString::fromUtf8("Which of these is it?\nFirst line, second line\n\nfourth line"),
      QString::fromUtf8("\u00C4rger \u00FCber \u00D6l, stra\u00DFenweise"),
      QString::fromUtf8("\u03A0\u03BF\u03B9\u03B1 \u03B5\u03AF\u03BD\u03B1\u03B9 \u03B7 \u03C0\u03CC\u03BB\u03B7;"),
      QString::fromUtf8("\u05DE\u05D4 \u05D4\u05D1\u05D9\u05E8\u05D4?"),
      QString::fromUtf8("  Blanks at both ends  "),
  };
  Sheet sheet{{"Question", "Answer"}};
  for (int i = 0; i < 100; ++i) {
    const QString number = QString::number(i + 1);
    sheet.push_back({EscapeLines(odd[i % 6] + (i % 6 == 5 ? "" : " " + number)),
                     EscapeLines("\"Answer\" " + number + QString::fromUtf8(i % 2 == 0 ? " \u03B1" : " \u05D0"))});
  }
  return sheet;
}

class SheetsTest : public FolderTest {
 protected:
  static Sheet Read(const QString& path) { return SheetReader().Read(SpelledPath(path)); }
  // What a refusal says; "taken" for none.
  static std::string Refusal(const std::function<void()>& step) {
    try {
      step();
      return "taken";
    } catch (const RuntimeError& error) {
      return error.what();
    }
  }
};

TEST_F(SheetsTest, AHundredQuestionsReadAlikeFromEveryKindOfSheetAndGoBack) {
  const Sheet sheet = HundredQuestions();
  const QString csv = Native("quiz.csv");
  SheetReader().Write(SpelledPath(csv), sheet);
  EXPECT_EQ(Read(csv), sheet);
  QProcess writer;
  writer.start("/usr/bin/python3", {"-c", kWriter, csv});
  ASSERT_TRUE(writer.waitForFinished(60000) && writer.exitCode() == 0) << writer.readAllStandardError().toStdString();
  for (const char* kind : {".xlsx", ".ods", ".tsv", ".semicolons.csv"}) {
    EXPECT_EQ(Read(csv + kind), sheet) << kind;
  }
  // Through a set and out again, byte for byte.
  const auto same = [](const std::string& name) { return name; };
  TriviaSet set;
  const auto rows = ReadQuestions(sheet, {0, 1, true}, kSetCapacity, same);
  ASSERT_EQ(rows.size(), 100U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].Problem, "") << i;
    set[i] = rows[i].Question;
  }
  EXPECT_EQ(BytesOf(WriteQuestions(set, same)), BytesOf(sheet));
}

TEST_F(SheetsTest, CellsAreReadAsTheSpreadsheetShowsThem) {
  const auto worksheet = [](const char* cells) {
    return ParseWorksheet(QByteArray("<worksheet><sheetData><row r=\"1\">") + cells + "</row></sheetData></worksheet>",
                          {"first", "second"});
  };
  const std::pair<const char*, std::vector<std::string>> cells[] = {
      {R"(<c r="A1" t="s"><v>1</v></c><c r="C1"><v>1969</v></c>)", {"second", "", "1969"}},
      {R"(<c t="b"><v>1</v></c><c t="str"><f>A1</f><v>made</v></c>)", {"TRUE", "made"}},
      {R"(<c t="inlineStr"><is><r><t>a </t></r><r><t>b</t></r><rPh><t>x</t></rPh></is></c>)", {"a b"}},
      {R"(<c t="inlineStr"><is><t>a_x000D_b _x12</t></is></c>)", {"a" + EscapeOf('\r') + "b _x12"}},
      {R"(<c t="s"><v>9</v></c><c r="B1"><v>2</v></c><c r="ZZZ1"><v>3</v></c>)", {"", "2"}},
  };
  for (const auto& [xml, row] : cells) EXPECT_EQ(worksheet(xml), Sheet{row}) << xml;
  const QByteArray document =
      "<content xmlns:t='t' xmlns:x='x'><t:table><t:table-row t:number-rows-repeated='2'>"
      "<t:table-cell t:number-columns-repeated='2'><x:p>a<x:s x:c='2'/>b</x:p><x:p>c<x:line-break/>d</x:p>"
      "<annotation><x:p>note</x:p></annotation></t:table-cell></t:table-row>"
      "<t:table-row t:number-rows-repeated='1048574'><t:table-cell/></t:table-row></t:table><t:table/></content>";
  const std::string cell = "a  b" + EscapeOf('\n') + "c" + EscapeOf('\n') + "d";
  EXPECT_EQ(ParseOpenDocument(document), (Sheet{{cell, cell}, {cell, cell}}));
}

TEST_F(SheetsTest, BombsAndWhatIsNoSheetAreRefused) {
  const QByteArray entities =
      "<!DOCTYPE a [<!ENTITY b 'bbbbbbbb'><!ENTITY c "
      "'&b;&b;&b;'>]><table><table-row><table-cell><p>&c;</p></table-cell>"
      "</table-row></table>";
  EXPECT_EQ(Refusal([&] { ParseOpenDocument(entities); }), "It defines entities, which no sheet needs");
  EXPECT_EQ(Refusal([&] { ParseSharedStrings(entities); }), "It defines entities, which no sheet needs");
  EXPECT_EQ(Refusal([] { ParseWorksheet("<worksheet><row r='2000000000'/></worksheet>", {}); }),
            "It has too many rows");
  EXPECT_EQ(Refusal([] {
              ParseOpenDocument(
                  "<table><table-row number-rows-repeated='99999'><table-cell><p>a</p></table-cell>"
                  "</table-row></table>");
            }),
            "It has too many rows");
  EXPECT_EQ(Refusal([] { ParseWorksheet("<worksheet><row>", {}); }), "It is broken");
  // 80 MB of blanks in some kilobytes.
  const QString bomb = Native("bomb.xlsx");
  WriteZipFile(bomb, {{"content.xml", "", std::string(80U << 20U, ' ')}});
  EXPECT_EQ(Refusal([&] { Read(bomb); }), "\"content.xml\" is too large");
  Make("film.xlsx", QByteArray("PK\x03\x04 and no more", 16));
  EXPECT_EQ(Refusal([&] { Read(Native("film.xlsx")); }), "It is no zip file, or a broken one");
  Make("film.csv", QByteArray("\x01\x02\x00\x00\x00\x00", 6));
  EXPECT_EQ(Refusal([&] { Read(Native("film.csv")); }), "It is neither a table nor a sheet");
  EXPECT_EQ(Refusal([&] { Read(Native("gone.csv")); }), "File not found");
}

class BundleTest : public SheetsTest {
 protected:
  static constexpr const char* kSet = "Who?\r\nMe\r\nT\r\n";
  std::string Path(const char* name = "quiz.pawnset") const { return Spelled(std::string("\\") + name); }
  QString Write(const std::vector<ZipContent>& contents) {
    const QString path = Native("quiz.pawnset");
    WriteZipFile(path, contents);
    return path;
  }
  // All files below the test's folder, sorted.
  std::string Tree() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path().toStdString())) {
      names.push_back(std::filesystem::relative(entry.path(), folder_.path().toStdString()).string());
    }
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) text += name + "|";
    return text;
  }
};

TEST_F(BundleTest, WhatIsPackedIsUnpackedWithNamesOfAnyAlphabet) {
  const QString dog = Make(QString::fromUtf8("\u03C3\u03BA\u03CD\u03BB\u03BF\u03C2.jpg"), QByteArray(300000, 'd'));
  ZipBundles bundles;
  const std::string name = Escape(QFileInfo(dog).fileName());
  ASSERT_TRUE(bundles.Pack(Path(), "Quiz", kSet, {{SpelledPath(dog), name}, {SpelledPath(dog), "Dog.jpg"}}));
  const BundleContents contents = bundles.Look(Path());
  EXPECT_EQ(contents.SetName + contents.SetBytes, std::string("Quiz") + kSet);
  EXPECT_EQ(contents.Media, (std::vector<std::string>{name, "Dog.jpg"}));
  ASSERT_TRUE(bundles.Unpack(Path(), Spelled("\\Media\\Quiz")));
  EXPECT_EQ(QFile(NativePath(Spelled("\\Media\\Quiz\\" + name))).size(), 300000);
  EXPECT_EQ(Refusal([&] { bundles.Unpack(Path(), Spelled("\\Media\\Quiz")); }),
            "A folder of that name is there already");
  EXPECT_EQ(Refusal([&] { bundles.Pack(Path("none\\b.pawnset"), "Quiz", kSet, {}); }),
            "The folder can't be written to");
  EXPECT_EQ(Tree().find(".part"), std::string::npos);
}

// A cut of the power after the new name is there finds the bytes there too.
TEST_F(BundleTest, AllOfABundleIsOnTheDiskBeforeItHasItsName) {
  const PackedFile dog{SpelledPath(Make("dog.jpg", QByteArray(300000, 'd'))), "Dog.jpg"};
  const auto hasSynced = [](const std::string& beginning, const std::string& ending) {
    return std::any_of(synced.begin(), synced.end(), [&](const std::string& name) {
      return name.find(beginning) != std::string::npos && name.ends_with(ending);
    });
  };
  synced.clear();
  ASSERT_TRUE(ZipBundles().Pack(Path(), "Quiz", kSet, {dog}));
  EXPECT_TRUE(hasSynced("/.quiz.pawnset.", ".part"));
  ASSERT_TRUE(ZipBundles().Unpack(Path(), Spelled("\\Media\\Quiz")));
  EXPECT_TRUE(hasSynced("/.pawnset-", "/Dog.jpg"));
}

TEST_F(BundleTest, WhatIsStoppedLeavesTheOldOneAndADeadProcessLeavesNothing) {
  const QString bundle = Make("quiz.pawnset", "old"), dog = Make("dog.jpg", QByteArray(300000, 'd'));
  const PackedFile medium{SpelledPath(dog), "Dog.jpg"};
  const auto stops = [](double) { return false; };
  EXPECT_FALSE(WriteBundle(bundle, "Quiz", kSet, {medium}, stops));
  EXPECT_EQ(ReadFile(bundle), "old");
  ASSERT_TRUE(WriteBundle(bundle, "Quiz", kSet, {medium}, Goes));
  EXPECT_FALSE(UnpackBundle(bundle, Native("Media/Quiz"), stops));
  EXPECT_EQ(Tree(), "Media|dog.jpg|quiz.pawnset|");
  const pid_t dead = fork();
  if (dead == 0) _exit(0);
  waitpid(dead, nullptr, 0);
  const QString aside = Native("Media/.pawnset-"), own = QString::number(QCoreApplication::applicationPid());
  for (const QString& owner : {QString::number(dead), own}) QDir().mkpath(aside + owner + "-abcdef/half");
  ASSERT_TRUE(UnpackBundle(bundle, Native("Media/Quiz"), Goes));
  EXPECT_EQ(QDir(Native("Media")).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({".pawnset-" + own + "-abcdef", "Quiz"}));
}

TEST_F(BundleTest, WhatNoBundleShouldHoldIsRefusedAndNothingIsWritten) {
  std::vector<ZipContent> many{{"Quiz.txt", "", kSet}};
  for (int i = 0; i < 1000; ++i) many.push_back({std::to_string(i) + ".jpg", "", "x"});
  const auto with = [](const std::string& name) {
    return std::vector<ZipContent>{{"Quiz.txt", "", kSet}, {name, "", "x"}};
  };
  const std::pair<std::vector<ZipContent>, std::string> cases[] = {
      {with("../dog.jpg"), "It holds \"../dog.jpg\", which is no plain file name"},
      {with("/etc/dog.jpg"), "It holds \"/etc/dog.jpg\", which is no plain file name"},
      {with("C:dog.jpg"), "It holds \"C:dog.jpg\", which is no plain file name"},
      {with("..\\dog.jpg"), "It holds \"..\\dog.jpg\", which is no plain file name"},
      {with("Media/dog.jpg"), "It holds \"Media/dog.jpg\", which is no plain file name"},
      {with(".hidden.jpg"), "It holds \".hidden.jpg\", which is no plain file name"},
      {with("dog\n.jpg"), "It holds \"dog .jpg\", which is no plain file name"},
      {with("run.desktop"), "It holds \"run.desktop\", which is neither a picture nor a sound"},
      {with("Second.TXT"), "It holds more than one set"},
      {{{"dog.jpg", "", "x"}, {"DOG.jpg", "", "x"}, {"Quiz.txt", "", kSet}}, "It holds a file twice: \"DOG.jpg\""},
      {{{"dog.jpg", "", "x"}}, "It holds no set"},
      {{{"Quiz.txt", "", std::string(5U << 20U, 'a')}}, "\"Quiz.txt\" is too large"},
      {many, "It holds more than 1,000 files"},
  };
  ZipBundles bundles;
  for (const auto& [contents, reason] : cases) {
    Write(contents);
    EXPECT_EQ(Refusal([&] { bundles.Look(Path()); }), reason);
    EXPECT_EQ(Refusal([&] { bundles.Unpack(Path(), Spelled("\\Media\\Quiz")); }), reason);
    EXPECT_EQ(Tree(), "Media|quiz.pawnset|") << reason;
  }
  Make("quiz.pawnset", "no zip at all");
  EXPECT_EQ(Refusal([&] { bundles.Look(Path()); }), "It is no zip file, or a broken one");
}

TEST_F(BundleTest, ALinkAndASizeThatLiesAreRefused) {
  const QString path = Write({{"Quiz.txt", "", kSet}, {"dog.jpg", "", "/etc/passwd"}});
  int error = 0;
  zip* archive = zip_open(path.toUtf8().constData(), 0, &error);
  zip_file_set_external_attributes(archive, 1, 0, ZIP_OPSYS_UNIX, 0120777U << 16U);
  zip_close(archive);
  EXPECT_EQ(Refusal([&] { ZipBundles().Look(Path()); }), "It holds a link, \"dog.jpg\"");

  // 3 GB as the directory says it; the bytes that come count too.
  QFile file(Write({{"Quiz.txt", "", kSet}, {"dog.jpg", "", std::string(5000, 'x')}}));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  QByteArray bytes = file.readAll();
  const qsizetype entry = bytes.lastIndexOf("PK\x01\x02");
  bytes.replace(entry + 24, 4, QByteArray("\x00\x00\x00\xC0", 4));
  file.seek(0);
  file.write(bytes);
  file.close();
  EXPECT_EQ(Refusal([&] { ZipBundles().Look(Path()); }), "It holds more than 2 GB");
}

}  // namespace
}  // namespace pawnfield
