#include "desktop/windows/speller.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <hunspell.hxx>

namespace pawnfield {

namespace {

// The dictionary's file without its ending; empty where there is none.
QString FindDictionary(const QStringList& folders, const QString& pattern) {
  for (const QString& folder : folders) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({pattern + ".aff"}, QDir::Files, QDir::Name)) {
      QString base = file.path() + '/' + file.completeBaseName();
      if (QFileInfo::exists(base + ".dic")) return base;
    }
  }
  return {};
}

QString ChooseDictionary(const QStringList& folders, const QStringList& languages) {
  QStringList patterns;
  for (QString language : languages) patterns.append(language.replace('-', '_'));
  for (const QString& language : languages) patterns.append(language.section('-', 0, 0) + "_*");
  patterns.append({"en_US", "en_*", "*"});
  for (const QString& pattern : patterns) {
    QString found = FindDictionary(folders, pattern);
    if (!found.isEmpty()) return found;
  }
  return {};
}

// The letters that words of the language are written in.
QChar::Script ScriptOf(const QString& language) {
  switch (QLocale(language).script()) {
    case QLocale::GreekScript:
      return QChar::Script_Greek;
    case QLocale::CyrillicScript:
      return QChar::Script_Cyrillic;
    case QLocale::HebrewScript:
      return QChar::Script_Hebrew;
    case QLocale::ArabicScript:
      return QChar::Script_Arabic;
    default:
      return QChar::Script_Latin;
  }
}

}  // namespace

QStringList DictionaryFolders() {
  QStringList folders = qEnvironmentVariable("DICPATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
  for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
    folders.append({data + "/hunspell", data + "/myspell/dicts", data + "/myspell"});
  }
  return folders;
}

Speller::Speller(QStringList folders, QStringList languages)
    : folders_(std::move(folders)), languages_(std::move(languages)) {}

Speller::~Speller() = default;

std::string Speller::Problem() const {
  return Language().isEmpty() ? "No dictionary is installed (a package such as hunspell-en-us)." : "";
}

QString Speller::Language() const { return QFileInfo(ChooseDictionary(folders_, languages_)).fileName(); }

void Speller::Open() {
  if (dictionary_) return;
  const QString base = ChooseDictionary(folders_, languages_);
  if (base.isEmpty()) return;
  dictionary_ = std::make_unique<Hunspell>(QFile::encodeName(base + ".aff"), QFile::encodeName(base + ".dic"));
  const std::string encoding = dictionary_->get_dict_encoding();
  encoder_ = std::make_unique<QStringEncoder>(encoding.c_str());
  decoder_ = std::make_unique<QStringDecoder>(encoding.c_str());
  script_ = ScriptOf(QFileInfo(base).fileName());
}

std::string Speller::Bytes(const QString& word) {
  const QByteArray bytes = encoder_->isValid() ? QByteArray((*encoder_)(word)) : word.toLatin1();
  return bytes.toStdString();
}

bool Speller::IsRight(const QString& word) {
  Open();
  const auto isForeign = [this](QChar letter) {
    return letter.isDigit() || (letter.isLetter() && letter.script() != script_);
  };
  if (!dictionary_ || word.size() < 2 || std::any_of(word.begin(), word.end(), isForeign)) return true;
  QString plain = word;
  // A dictionary has its apostrophes upright.
  plain.replace(QChar(0x2019), '\'');
  return dictionary_->spell(Bytes(plain));
}

QStringList Speller::Suggestions(const QString& word) {
  constexpr std::size_t kMost = 6;
  QStringList words;
  Open();
  if (!dictionary_) return words;
  for (const std::string& one : dictionary_->suggest(Bytes(word))) {
    if (words.size() == static_cast<qsizetype>(kMost)) break;
    words.append(decoder_->isValid() ? QString((*decoder_)(one)) : QString::fromLatin1(one));
  }
  return words;
}

}  // namespace pawnfield
