// What the program is started with: --help, --version, and a set to load.
#pragma once

#include <QString>
#include <optional>

class QCoreApplication;

namespace pawnfield {

// Answers --help and --version, which need no display, and ends the process then. To be called before the application
// object is made.
void AnswerQuestions(int& argc, char** argv);

// The set's file, as a whole path, or nothing. What can't be understood is reported on standard error and ends the
// process. The application has taken its own options out.
std::optional<QString> SetToLoad(const QCoreApplication& application);

}  // namespace pawnfield
