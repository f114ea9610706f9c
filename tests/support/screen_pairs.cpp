#include "support/screen_pairs.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <sstream>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/picture_question.h"

namespace pawnfield {

namespace {

// Controls of the audience's that have another name on the console; the others have the same.
const std::map<std::string, std::string> kOtherNames = {
    {"lblPlayer(0)", "lblPlayer1(0)"},   {"lblPlayer(1)", "lblPlayer1(1)"},   {"lblPlayer(2)", "lblPlayer1(2)"},
    {"Label11(0)", "lblP1Score"},        {"Label11(1)", "lblP2Score"},        {"Label11(2)", "lblP3Score"},
    {"picPlayer(0)", "picPlayer1"},      {"picPlayer(1)", "picPlayer2"},      {"picPlayer(2)", "picPlayer3"},
    {"picPlayer1Score", "picP1Score"},   {"picPlayer2Score", "picP2Score"},   {"picPlayer3Score", "picP3Score"},
    {"lblDJCommand", "txtDJCommand"},    {"lblBandName(0)", "lblPlayer1(0)"}, {"lblBandName(1)", "lblPlayer1(1)"},
    {"lblBandName(2)", "lblPlayer1(2)"}, {"lblBandScore(0)", "lblP1Score"},   {"lblBandScore(1)", "lblP2Score"},
    {"lblBandScore(2)", "lblP3Score"},   {"picBandPlayer(0)", "picPlayer1"},  {"picBandPlayer(1)", "picPlayer2"},
    {"picBandPlayer(2)", "picPlayer3"},
};

// What of the audience's form has nothing on the console that it must be like, and why.
const std::map<std::string, const char*> kUnpaired = {
    {"imgBackground", "the ground of the audience's screen alone"},
    {"imgDJEntry", "the console's hand on the board, which the audience doesn't see"},
    {"picHideQuestion", "the cover, from a ring-in to its verdict"},
    {"lblPlayerName", "on the cover"},
    {"lblWhatIsAnswer", "on the cover"},
    {"lblDJCommand.Visible", "the console's box goes with the keyboard option; the audience's text is then empty"},
    {"picPlayer1Score", "a ground without a picture, which the score stands on"},
    {"picPlayer2Score", "a ground without a picture, which the score stands on"},
    {"picPlayer3Score", "a ground without a picture, which the score stands on"},
    {"picBand", "up over a question, which hides nothing of the console's players"},
    {"picTest", "the test picture, which is the audience's screen's own"},
    {"lblTestName", "on the test picture"},
    {"lblTestSize", "on the test picture"},
    {"lblTestLine", "on the test picture"},
    {"lblTestHow", "on the test picture"},
    {"picImageResize(1).Visible", "on the console it stands in a panel of its own, picMODPicture"},
};

// What of the audience's has the console's colours, and not its own.
constexpr std::array<std::string_view, 4> kColouredAlike = {"lblQuestion(", "lblAnswerClock", "lblRightWrong",
                                                            "txtOptionalHeading"};

// Text and ground of a control that has such colours.
std::pair<Color, Color> Colours(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return {label->ForeColor, 0};
  const auto& box = static_cast<const TextBox&>(control);
  return {box.ForeColor, box.BackColor};
}

bool SameColours(const Control& console, const Control& audience) {
  const bool alike = std::any_of(kColouredAlike.begin(), kColouredAlike.end(),
                                 [&](std::string_view name) { return audience.Name().starts_with(name); });
  return !alike || !audience.IsShown() || Colours(console) == Colours(audience);
}

bool IsSquare(const std::string& name) {
  return name.size() == 5 && name.starts_with("img") && std::isdigit(name[3]) && std::isdigit(name[4]);
}

bool IsUnpaired(const std::string& what) { return kUnpaired.contains(what); }

// The console's controls by the audience's names for them.
class Counterparts {
 public:
  explicit Counterparts(const Form& console) {
    for (const Control* control : console.Controls()) byName_.emplace(control->Name(), control);
  }
  const Control* Of(const std::string& name) const {
    const auto other = kOtherNames.find(name);
    const auto found = byName_.find(other == kOtherNames.end() ? name : other->second);
    return found == byName_.end() ? nullptr : found->second;
  }

 private:
  std::unordered_map<std::string_view, const Control*> byName_;
};

}  // namespace

std::string Content(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Caption;
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->Text;
  if (const auto* image = dynamic_cast<const Image*>(&control)) return image->Picture;
  if (const auto* box = dynamic_cast<const PictureBox*>(&control)) return box->Picture;
  if (const auto* player = dynamic_cast<const MediaPlayer*>(&control)) return player->URL;
  return "";
}

std::vector<std::string> UnlikePairs(Show& show) {
  std::vector<std::string> unlike;
  const Counterparts counterparts(show.frmMain);
  const bool turning = show.frmMain.tmrFlipPlayerPiece.Enabled || show.frmFSMain.tmrFSFlipPlayerPiece.Enabled;
  for (const Control* control : show.frmFSMain.Controls()) {
    const std::string& name = control->Name();
    if (control->Kind() == ControlKind::Timer || IsUnpaired(name)) continue;
    const Control* console = counterparts.Of(name);
    if (console == nullptr) {
      unlike.push_back(name + " without a pair");
      continue;
    }
    const bool inBand = control->Container != nullptr && control->Container->Name() == "picBand";
    const bool shown = inBand ? control->Visible.Get() : control->IsShown();
    if (console->IsShown() != shown && !IsUnpaired(name + ".Visible")) unlike.push_back(name + ".Visible");
    if (turning && IsSquare(name)) continue;
    // Of a missing picture the room learns nothing.
    if (IsPictureMissing(show) && name.starts_with("lblQuestion(")) continue;
    if (Content(*console) != Content(*control)) unlike.push_back(name);
    if (!SameColours(*console, *control)) unlike.push_back(name + "'s colours");
  }
  return unlike;
}

std::vector<std::string> Appearance(const Form& form) {
  std::vector<std::string> lines;
  for (const Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::Timer || !control->IsShown()) continue;
    std::ostringstream out;
    out << control->Name();
    for (const double twips : {control->Left.Get(), control->Top.Get(), control->Width.Get(), control->Height.Get()})
      out << ' ' << twips;
    out << ' ' << Content(*control);
    if (const auto* label = dynamic_cast<const Label*>(control)) {
      const Font& font = label->Font;
      out << ' ' << label->ForeColor << ' ' << font.Name << ' ' << font.Size << ' ' << font.Bold << font.Italic;
    } else if (const auto* box = dynamic_cast<const PictureBox*>(control)) {
      out << ' ' << box->BackColor;
    }
    lines.push_back(out.str());
  }
  return lines;
}

}  // namespace pawnfield
