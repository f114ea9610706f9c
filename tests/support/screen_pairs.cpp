#include "support/screen_pairs.h"

#include <sstream>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"

namespace pawnfield {

namespace {

// Pairs by one name, or by the console's and the audience's.
const std::string kPictures =
    "imgA imgB imgC imgD imgE img1 img2 img3 img4 img5 imgStandby imgBonus imgHeader imgSound imgQuestionBackground "
    "imgCorrect lblRightWrong lblWinner ";
const std::string kContents =
    "lblPlayer1(0):lblPlayer(0) lblPlayer1(1):lblPlayer(1) lblPlayer1(2):lblPlayer(2) lblP1Score:Label11(0) "
    "lblP2Score:Label11(1) lblP3Score:Label11(2) picPlayer1:picPlayer(0) picPlayer2:picPlayer(1) "
    "picPlayer3:picPlayer(2) txtDJCommand:lblDJCommand txtOptionalHeading ";
const std::string kPanels =
    "picQuestion picQuestionPicture picSound picBonus picCorrect picWinner picStandby picMOD picPlayer1:picPlayer(0) "
    "picPlayer2:picPlayer(1) picPlayer3:picPlayer(2) picPlayer1:lblPlayer(0) picPlayer2:lblPlayer(1) "
    "picPlayer3:lblPlayer(2) picPlayer1:Label11(0) picPlayer2:Label11(1) picPlayer3:Label11(2) ";

std::string Visible(const Control& control) { return control.Visible ? "visible" : "hidden"; }

}  // namespace

std::string Content(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Caption;
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->Text;
  if (const auto* image = dynamic_cast<const Image*>(&control)) return image->Picture;
  if (const auto* box = dynamic_cast<const PictureBox*>(&control)) return box->Picture;
  return "";
}

std::vector<std::string> UnlikePairs(Show& show) {
  std::vector<std::string> unlike;
  const auto compare = [&](const std::string& pairs, std::string (*what)(const Control&), const char* property) {
    std::istringstream in(pairs);
    for (std::string pair; in >> pair;) {
      const Control* console = show.frmMain.Find(pair.substr(0, pair.find(':')));
      const Control* audience = show.frmFSMain.Find(pair.substr(pair.find(':') + 1));
      if (what(*console) != what(*audience)) unlike.push_back(audience->Name() + property);
    }
  };
  const bool turning = show.frmMain.tmrFlipPlayerPiece.Enabled || show.frmFSMain.tmrFSFlipPlayerPiece.Enabled;
  std::string squares;
  show.frmMain.img.ForEach([&](const Image& square) { squares += square.Name() + " "; });
  const bool question = show.frmMain.picQuestion.Visible;
  compare(squares + kPictures + kPanels + (question ? "lblQuestion(1)" : ""), Visible, ".Visible");
  compare((turning ? "" : squares) + kPictures + kContents + (question ? "lblQuestion(0)" : ""), Content, "");
  if (show.frmMain.picQuestionPicture.Visible) compare("picImageResize(0)", Content, "");
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
