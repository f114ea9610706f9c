#include "desktop/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

#include "desktop/desktop_program.h"

namespace pawnfield {

namespace {

void Describe(QCommandLineParser& parser) {
  parser.setApplicationDescription("Runs a live trivia game on an operator's console and an audience's screen.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("set", "The set of questions to load: a .txt file, or a packed .pawnset.", "[set]");
}

bool IsQuestion(const QString& argument) {
  return QStringList{"-h", "--help", "--help-all", "-v", "--version"}.contains(argument);
}

}  // namespace

void AnswerQuestions(int& argc, char** argv) {
  const bool asked = std::any_of(argv + 1, argv + argc,
                                 [](const char* argument) { return IsQuestion(QString::fromLocal8Bit(argument)); });
  if (!asked) return;
  const QCoreApplication application(argc, argv);
  NameApplication();
  QCommandLineParser parser;
  Describe(parser);
  parser.process(application);
}

std::optional<QString> SetToLoad(const QCoreApplication& application) {
  QCommandLineParser parser;
  Describe(parser);
  parser.process(application);
  const QStringList files = parser.positionalArguments();
  if (files.isEmpty()) return std::nullopt;
  return QFileInfo(files.first()).absoluteFilePath();
}

}  // namespace pawnfield
