#include "sets/set_bundles.h"

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "forms/editor_form.h"
#include "platform/escapes.h"
#include "platform/set_ports.h"
#include "platform/text.h"
#include "sets/file_dialogs.h"
#include "sets/media_paths.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "sets/sheet_names.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kLongestName = 60;
constexpr std::size_t kMissingNamed = 5;
constexpr const char* kBundleFilter = "Packed sets(*.pawnset)|*.pawnset";

void Say(Show& show, const std::string& text) {
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Exclamation);
}

std::string Ending(const std::string& name) {
  const std::size_t point = name.rfind('.');
  return point == std::string::npos ? "" : name.substr(point);
}

// A name that every system takes, whatever stands in this one's.
std::string PlainName(const std::string& name) {
  const std::string ending = Ending(name);
  const std::string base = FirstLetters(name.substr(0, name.size() - ending.size()), kLongestName);
  std::string plain;
  for (std::size_t at = 0; at < base.size();) {
    const auto code = EscapeAt(base, at);
    const bool isOdd = code ? *code < 0x80
                            : static_cast<unsigned char>(base[at]) < ' ' || base[at] == kEscapeMark ||
                                  std::string("/\\:*?\"<>|").find(base[at]) != std::string::npos;
    const std::size_t length = code ? kEscapeLength : 1;
    plain += isOdd ? "_" : base.substr(at, length);
    at += length;
  }
  if (plain.empty() || plain.front() == '.' || plain.front() == ' ') plain.insert(0, "_");
  if (ending.empty() && (plain.back() == '.' || plain.back() == ' ')) plain += "_";
  return plain + ending;
}

// The files of a set that is being packed, each once, under names that differ.
class PackedMedia {
 public:
  explicit PackedMedia(Show& show) : show_(show) {}

  // The name that the set has for the medium in the bundle; what isn't there keeps its name.
  std::string Add(const std::string& path) {
    const auto known = names_.find(ToLower(path));
    if (known != names_.end()) return known->second;
    std::string name = FreeName(PlainName(ExtractFileName("\\" + path)));
    if (FileExists(show_, path)) {
      taken_.insert(ToLower(name));
      Files.push_back({path, name});
    } else {
      Missing.push_back(ExtractFileName("\\" + path));
    }
    names_[ToLower(path)] = name;
    return name;
  }

  std::vector<PackedFile> Files;
  std::vector<std::string> Missing;

 private:
  std::string FreeName(const std::string& name) const {
    const std::string ending = Ending(name), base = name.substr(0, name.size() - ending.size());
    std::string free = name;
    for (int n = 2; taken_.contains(ToLower(free)); ++n) {
      free = base;
      free.append(" (").append(std::to_string(n)).append(")").append(ending);
    }
    return free;
  }

  Show& show_;
  std::map<std::string, std::string> names_;
  std::set<std::string> taken_;
};

bool PackWithout(Show& show, const std::vector<std::string>& missing) {
  if (missing.empty()) return true;
  const std::string text = "These files are missing:\r\n" + FirstLines(missing, kMissingNamed);
  return show.platform.dialogs.Ask({text + "\r\n\r\nWould you like to pack the set without them?", BoxKind::YesNo,
                                    BoxAnswer::No, "Pack Without", "Don't Pack"},
                                   kAppTitle) == BoxAnswer::Yes;
}

std::string AskBundlePath(Show& show) {
  const std::string file = ExtractFileName(show.frmEditor.EditFileName);
  const std::string name = (file.empty() ? "Untitled" : SetName(file)) + kBundleEnding;
  const std::string path = Trim(ShowFileDialog(show, {FileDialogMode::SaveAskingOverwrite, "Pack Set", kBundleFilter,
                                                      std::string(kBundleEnding).substr(1), name, ""}));
  return path.empty() || IsBundleName(path) ? path : path + kBundleEnding;
}

std::string FileCount(std::size_t count) {
  return count == 1 ? "1 picture or sound" : std::to_string(count) + " pictures and sounds";
}

std::string SetsFolder(const Show& show) { return show.AppPath("\\Trivia Sets"); }

// The name, or the name with a number, under which nothing of a set is there.
std::string FreeSetName(Show& show, const std::string& name) {
  const auto isTaken = [&show](const std::string& one) {
    const std::string media = SetsFolder(show) + "\\Media\\" + one;
    return FileExists(show, SetsFolder(show) + "\\" + one + ".txt") || show.platform.files.FolderExists(media) ||
           FileExists(show, media);
  };
  std::string free = name;
  for (int n = 2; isTaken(free); ++n) free = name + " (" + std::to_string(n) + ")";
  return free;
}

bool WantsBundle(Show& show, const BundleContents& contents, const std::string& name) {
  const std::string what =
      "\"" + contents.SetName + "\"" + (contents.Media.empty() ? "" : " with " + FileCount(contents.Media.size()));
  const std::string text = name == contents.SetName ? "Would you like to add the set " + what + " to your sets?"
                                                    : "You have a set \"" + contents.SetName +
                                                          "\" already. Would you like to add this one, " + what +
                                                          ", beside it as \"" + name + "\"?";
  return show.platform.dialogs.Ask({text, BoxKind::YesNo, BoxAnswer::No, "Add", "Don't Add"}, kAppTitle) ==
         BoxAnswer::Yes;
}

// A medium is one of the bundle's or else only a name: a set from elsewhere leads to no other file of this computer.
void PointAtMedia(TriviaSet& set, const BundleContents& contents, const std::string& folder) {
  for (TriviaQuestion& question : set) {
    if (!IsMedium(question)) continue;
    const std::string name = ExtractFileName("\\" + Trim(question.QuestionText));
    const auto found = std::find_if(contents.Media.begin(), contents.Media.end(),
                                    [&name](const std::string& one) { return ToLower(one) == ToLower(name); });
    question.QuestionText = found == contents.Media.end() ? name : folder + "\\" + *found;
  }
}

std::optional<std::string> Unpack(Show& show, const std::string& path, const BundleContents& contents) {
  const std::string name = FreeSetName(show, contents.SetName);
  if (!WantsBundle(show, contents, name)) return std::nullopt;
  const std::string folder = SetsFolder(show) + "\\Media\\" + name;
  TriviaSet set;
  ParseSet(contents.SetBytes, set);
  PointAtMedia(set, contents, folder);
  if (!contents.Media.empty() && !show.platform.bundles.Unpack(path, folder)) return std::nullopt;
  std::string file = SetsFolder(show) + "\\" + name + ".txt";
  return SaveSetFile(show, set, file) ? std::optional(file) : std::nullopt;
}

}  // namespace

namespace editor {

void mnuPackSet_Click(Show& show) {
  TriviaSet set = show.EditSet;
  PackedMedia media(show);
  for (TriviaQuestion& question : set) {
    if (IsMedium(question)) question.QuestionText = media.Add(WholePath(show, Trim(question.QuestionText)));
  }
  if (!PackWithout(show, media.Missing)) return;
  const std::string path = AskBundlePath(show);
  if (path.empty()) return;
  const std::string file = ExtractFileName("\\" + path);
  const std::string name = PlainName(file.substr(0, file.size() - std::string(kBundleEnding).size()) + ".txt");
  try {
    if (!show.platform.bundles.Pack(path, SetName(name), FormatSet(set), media.Files)) return;
    show.platform.dialogs.MessageBox("\"" + file + "\" holds the set and " + FileCount(media.Files.size()) +
                                         ". A double click on it brings them to another computer's sets.",
                                     kAppTitle, BoxKind::Plain);
  } catch (const RuntimeError& error) {
    Say(show, "\"" + file + "\" was not packed. " + error.what() + ".");
  }
}

}  // namespace editor

std::optional<std::string> OfferBundle(Show& show, const std::string& path) {
  try {
    return Unpack(show, path, show.platform.bundles.Look(path));
  } catch (const RuntimeError& error) {
    Say(show, "\"" + ExtractFileName("\\" + path) + "\" was not opened. " + error.what() + ".");
    return std::nullopt;
  }
}

}  // namespace pawnfield
