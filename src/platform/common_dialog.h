// The model of a file dialog, owned by the form or the show that asks with it.
#pragma once

#include <string>

namespace pawnfield {

// What a file dialog is asked with, and the name that was chosen last.
struct CommonDialog {
  std::string FileName;
  std::string Filter;
  std::string InitialFolder;
};

}  // namespace pawnfield
