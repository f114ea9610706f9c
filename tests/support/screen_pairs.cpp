#include "support/screen_pairs.h"

#include <sstream>

namespace pawnfield {

namespace {

class Pairs {
 public:
  template <typename T>
  void Same(const std::string& name, const T& console, const T& audience) {
    if (!(console == audience)) unlike.push_back(name);
  }
  std::vector<std::string> unlike;
};

void CompareBoard(Show& show, Pairs& pairs) {
  const bool turning = show.frmMain.tmrFlipPlayerPiece.Enabled || show.frmFSMain.tmrFSFlipPlayerPiece.Enabled;
  show.frmMain.img.ForEach([&](Image& square) {
    const Control* twin = show.frmFSMain.Find(square.Name());
    pairs.Same(square.Name() + ".Visible", square.Visible.Get(), twin->Visible.Get());
    if (!turning) pairs.Same(square.Name(), square.Picture.Get(), static_cast<const Image*>(twin)->Picture.Get());
  });
}

void CompareImages(Show& show, Pairs& pairs) {
  for (const char* name : {"imgA", "imgB", "imgC", "imgD", "imgE", "img1", "img2", "img3", "img4", "img5", "imgStandby",
                           "imgBonus", "imgHeader", "imgSound", "imgQuestionBackground", "imgCorrect"}) {
    const auto* console = static_cast<const Image*>(show.frmMain.Find(name));
    const auto* audience = static_cast<const Image*>(show.frmFSMain.Find(name));
    pairs.Same(name, console->Picture.Get(), audience->Picture.Get());
    pairs.Same(name + std::string(".Visible"), console->Visible.Get(), audience->Visible.Get());
  }
}

void ComparePlayers(Show& show, Pairs& pairs) {
  for (std::size_t i = 0; i < 3; ++i) {
    const int player = static_cast<int>(i) + 1;
    const std::string number = std::to_string(player);
    const PictureBox& box = show.frmMain.PlayerBox(player);
    pairs.Same("name " + number, show.frmMain.lblPlayer1[i].Caption.Get(), show.frmFSMain.lblPlayer[i].Caption.Get());
    pairs.Same("score " + number, show.frmMain.Score(player).Caption.Get(), show.frmFSMain.Label11[i].Caption.Get());
    pairs.Same("box " + number, box.Picture.Get(), show.frmFSMain.picPlayer[i].Picture.Get());
    for (const Control* part : {static_cast<const Control*>(&show.frmFSMain.picPlayer[i]),
                                static_cast<const Control*>(&show.frmFSMain.lblPlayer[i]),
                                static_cast<const Control*>(&show.frmFSMain.Label11[i])}) {
      pairs.Same(part->Name() + ".Visible", box.Visible.Get(), part->Visible.Get());
    }
  }
}

void ComparePanels(Show& show, Pairs& pairs) {
  for (const char* panel : {"picQuestion", "picQuestionPicture", "picSound", "picBonus", "picCorrect", "picWinner",
                            "picStandby", "picMOD", "lblRightWrong", "lblWinner"}) {
    pairs.Same(panel, show.frmMain.Find(panel)->Visible.Get(), show.frmFSMain.Find(panel)->Visible.Get());
  }
  MainForm& console = show.frmMain;
  FSMainForm& audience = show.frmFSMain;
  if (console.picQuestion.Visible) {
    pairs.Same("lblQuestion(0)", console.lblQuestion[0].Caption.Get(), audience.lblQuestion[0].Caption.Get());
    pairs.Same("outline", console.lblQuestion[1].Visible.Get(), audience.lblQuestion[1].Visible.Get());
  }
  if (console.picQuestionPicture.Visible) {
    pairs.Same("picture", console.picImageResize[0].Picture.Get(), audience.picImageResize[0].Picture.Get());
  }
  pairs.Same("verdict", console.lblRightWrong.Caption.Get(), audience.lblRightWrong.Caption.Get());
  if (console.picWinner.Visible) {
    pairs.Same("winner", console.lblWinner.Caption.Get(), audience.lblWinner.Caption.Get());
  }
  pairs.Same("lblDJCommand", console.txtDJCommand.Text.Get(), audience.lblDJCommand.Caption.Get());
  pairs.Same("heading", console.txtOptionalHeading.Text.Get(), audience.txtOptionalHeading.Text.Get());
}

void DescribeFont(std::ostream& out, const Font& font) {
  out << ' ' << font.Name << ' ' << font.Size << ' ' << font.Bold << font.Italic;
}

}  // namespace

std::vector<std::string> UnlikePairs(Show& show) {
  Pairs pairs;
  CompareBoard(show, pairs);
  CompareImages(show, pairs);
  ComparePlayers(show, pairs);
  ComparePanels(show, pairs);
  return pairs.unlike;
}

std::vector<std::string> Appearance(const Form& form) {
  std::vector<std::string> lines;
  for (const Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::Timer || !control->IsShown()) continue;
    std::ostringstream out;
    out << control->Name() << ' ' << control->Left << ' ' << control->Top << ' ' << control->Width << ' '
        << control->Height;
    if (const auto* label = dynamic_cast<const Label*>(control)) {
      out << ' ' << label->Caption.Get() << ' ' << label->ForeColor;
      DescribeFont(out, label->Font);
    } else if (const auto* image = dynamic_cast<const Image*>(control)) {
      out << ' ' << image->Picture.Get();
    } else if (const auto* box = dynamic_cast<const PictureBox*>(control)) {
      out << ' ' << box->Picture.Get() << ' ' << box->BackColor;
    } else if (const auto* text = dynamic_cast<const TextBox*>(control)) {
      out << ' ' << text->Text.Get();
    }
    lines.push_back(out.str());
  }
  return lines;
}

}  // namespace pawnfield
