// The spelling of words, by the dictionaries of the desktop.
#pragma once

#include <QLocale>
#include <QStringConverter>
#include <QStringList>
#include <memory>

#include "platform/set_ports.h"

class Hunspell;

namespace pawnfield {

// Where dictionaries lie on this machine.
QStringList DictionaryFolders();

class Speller : public Spelling {
 public:
  // Takes the dictionary of the first of the languages that has one, or else English, or else any.
  explicit Speller(QStringList folders = DictionaryFolders(), QStringList languages = QLocale().uiLanguages());
  ~Speller() override;

  std::string Problem() const override;
  // As the dictionary's file is named, "en_US"; empty without one.
  QString Language() const;
  // Also for what is no word of the dictionary's letters. The dictionary is read with the first word.
  bool IsRight(const QString& word);
  QStringList Suggestions(const QString& word);

 private:
  void Open();
  std::string Bytes(const QString& word);

  QStringList folders_, languages_;
  std::unique_ptr<Hunspell> dictionary_;
  std::unique_ptr<QStringEncoder> encoder_;
  std::unique_ptr<QStringDecoder> decoder_;
  QChar::Script script_ = QChar::Script_Latin;
};

}  // namespace pawnfield
