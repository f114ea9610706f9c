#include "platform/errors.h"

namespace pawnfield {

namespace {
constexpr int kApplicationError = 5;
}

std::string UntrappedErrorText(int number, const std::string& description, const std::string& location,
                               const std::string& procedure, const std::string& filename) {
  std::string text =
      "An untrapped error has occurred. Please make a "
      "note of the following information: \r\n";
  text += "Error Number: " + std::to_string(number) + "\r\n";
  text += "Description: " + description + "\r\n";
  text += "Location: " + location + "\r\n";
  text += "Procedure: " + procedure + "\r\n";
  if (!filename.empty()) text += "Filename: " + filename + "\r\n";
  return text;
}

std::string NotedErrorText(const RuntimeError& error, const std::string& location, const std::string& procedure,
                           const std::string& filename) {
  std::string text = UntrappedErrorText(error.Number(), error.what(), location, procedure, filename);
  const std::string colon = "information: ";
  return text.replace(text.find(colon), colon.size(), "information.");
}

void ReportError(Dialogs& dialogs, const RuntimeError& error, const std::string& location, const std::string& procedure,
                 const std::string& filename) {
  dialogs.MessageBox(UntrappedErrorText(error.Number(), error.what(), location, procedure, filename), "Pawnfield",
                     BoxKind::Critical);
}

void RunGuarded(Dialogs& dialogs, const std::function<void()>& handler, const std::string& location,
                const std::string& procedure) {
  try {
    handler();
  } catch (const RuntimeError& error) {
    ReportError(dialogs, error, location, procedure);
  } catch (const std::exception& error) {
    ReportError(dialogs, RuntimeError(kApplicationError, error.what()), location, procedure);
  }
}

}  // namespace pawnfield
