// The console's left column: what is set before the show, and on demand the sounds.
#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>

#include "desktop/windows/console_parts.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {

constexpr int kRowHeight = 28;

void AddOption(QBoxLayout& into, const QString& name, const char* spoken) {
  auto* option = Add<QRadioButton>(into, name);
  option->setAccessibleName(spoken);
  option->setMinimumHeight(kRowHeight);
}

void AddGameTypes(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  QFrame* frame = AddGroup(column, "pnlGame", "GAME", group);
  group->setSpacing(0);
  Add<QLabel>(*TitleRow(*frame), "lblInPlay");
  const char* const types[] = {"Challenge Mode A", "Challenge Mode B", "Trivia Mode A", "Trivia Mode B",
                               "Trivia Mode C"};
  for (int type = 0; type < 5; ++type) {
    QHBoxLayout* row = AddRow(*group);
    AddOption(*row, Member("optGameType", type), types[type]);
    row->addStretch(1);
    if (type != 0) continue;
    KeyButton* help = AddButton(*row, {"btnGameTypeHelp", kRowHeight, "", "", "What the game types are"}, 0);
    help->setFixedWidth(kRowHeight);
  }
}

void AddPlayersAndGrid(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  AddGroup(column, "pnlPlayers", "PLAYERS AND GRID", group);
  group->setSpacing(0);
  QHBoxLayout* row = AddRow(*group, 10);
  AddOption(*row, "optPlayers_0", "Two players");
  AddOption(*row, "optPlayers_1", "Three players");
  row->addStretch(1);
  auto* grid = Add<QFrame>(*group, "fraGridControl");
  grid->setAccessibleName("Grid size");
  auto* sizes = new QHBoxLayout(grid);
  sizes->setContentsMargins(0, 0, 0, 0);
  AddOption(*sizes, "optGridControl_0", "Grid of 3 by 3");
  AddOption(*sizes, "optGridControl_1", "Grid of 4 by 4");
  AddOption(*sizes, "optGridControl_2", "Grid of 5 by 5");
  AddGroup(column, "pnlEnds", "GAME ENDS", group);
  row = AddRow(*group);
  AddOption(*row, "optGameEnds_0", "The game ends with a finished row");
  AddOption(*row, "optGameEnds_1", "The game ends with a full board");
}

QHBoxLayout* AddCheck(QBoxLayout& column, const QString& box, const QString& label, const char* spoken) {
  QHBoxLayout* row = AddRow(column, 7);
  auto* check = Add<QCheckBox>(*row, box);
  check->setAccessibleName(spoken);
  check->setMinimumSize(20, kRowHeight);
  check->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* text = Add<ModelLabel>(*row, label, 1);
  text->setProperty("clicks", box);
  text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return row;
}

void AddChoice(QBoxLayout& column, const QString& label, const QString& list, const char* spoken, int width) {
  QHBoxLayout* row = AddRow(column);
  auto* text = Add<ModelLabel>(*row, label, 1);
  text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* box = Add<ModelComboBox>(*row, list);
  box->setAccessibleName(spoken);
  box->setFixedWidth(width);
  box->setMinimumHeight(kRowHeight);
}

void AddOptions(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  AddGroup(column, "pnlOptions", "OPTIONS", group);
  group->setSpacing(0);
  AddCheck(*group, "chkAnimation", "lblShowAnimation", "Show animation");
  AddCheck(*group, "chkHideQuestion", "lblHidequestionOption", "Hide question");
  AddCheck(*group, "chkIncorrectPenalty", "lblLose100Points", "Lose 100 points on incorrect");
  QHBoxLayout* keys = AddCheck(*group, "chkExtKeyboardCtrl", "lblExtKeyboardCtrl", "External keyboard control");
  auto* text = static_cast<QLabel*>(keys->itemAt(1)->widget());
  text->setWordWrap(true);
  text->setMinimumHeight(30);
  // Two lines: where the second doesn't hold the rest, the letters shrink.
  text->setMaximumHeight(36);
  text->setToolTip("Control keys work the buttons, letters judge, a square can be typed");
  AddButton(*keys, {"btnEditKeyboardCtrl", kRowHeight, "Show the keys and choose the judging letters", "", "", "small"},
            0)
      ->setMinimumWidth(62);
  group->addSpacing(2);
  AddChoice(*group, "lblTimedResponse", "cboTimedResponse", "Timed response", 84);
  group->addSpacing(2);
  AddChoice(*group, "lblAutoContinuePrompt", "cboAutoContinue", "Auto continue", 100);
  AddGroup(column, "pnlPoints", "POINTS", group);
  AddChoice(*group, "lblScoring_0", "cbxScore_0", "Correct answer value", 66);
  AddChoice(*group, "lblScoring_1", "cbxScore_1", "Line bonus", 66);
}

void AddBanks(QBoxLayout& column) {
  auto* group = Add<QFrame>(column, "pnlMedia");
  group->setProperty("role", "group");
  auto* row = new QHBoxLayout(group);
  row->setContentsMargins(11, 3, 11, 3);
  auto* label = Add<ModelLabel>(*row, "lblMediaBank", 1);
  label->setProperty("role", "title");
  const char* const banks[] = {"Media bank 1", "Media bank 2", "Media bank 3"};
  for (int bank = 0; bank < 3; ++bank) AddOption(*row, Member("optSoundBank", bank), banks[bank]);
}

void AddVolumes(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  AddGroup(column, "pnlVolumes", "VOLUMES", group);
  const char* const names[] = {"Effects", "Letters", "Clips", "Music", "Verdicts"};
  for (int i = 0; i < 5; ++i) {
    QHBoxLayout* row = AddRow(*group);
    auto* name = Add<QLabel>(*row, "pnlVolumeName" + QString::number(i));
    name->setText(names[i]);
    name->setMinimumWidth(58);
    auto* fader = Add<QSlider>(*row, Member("fdrVolume", i), 1);
    fader->setOrientation(Qt::Horizontal);
    fader->setMinimumHeight(kRowHeight);
    fader->setAccessibleName(QString("Volume: ") + names[i]);
  }
}

// In the place of the set-up, on demand.
void AddCues(QBoxLayout& column) {
  auto* cues = Add<QFrame>(column, "fraCues");
  auto* groups = new QVBoxLayout(cues);
  groups->setContentsMargins(0, 0, 0, 0);
  groups->setSpacing(6);
  AddVolumes(*groups);
  QVBoxLayout* group = nullptr;
  AddGroup(*groups, "pnlCues", "LETTERS", group);
  groups->setStretch(1, 1);
  Add<CueView>(*group, "lstCues", 1)->setAccessibleName("Letters and what they play");
}

}  // namespace

QWidget* MakeSetUpColumn() {
  auto* left = new QWidget;
  left->setObjectName("pnlLeft");
  left->setFixedWidth(240);
  auto* column = new QVBoxLayout(left);
  column->setContentsMargins(10, 8, 10, 6);
  auto* setUp = Add<QWidget>(*column, "pnlSetUp");
  auto* groups = new QVBoxLayout(setUp);
  groups->setContentsMargins(0, 0, 0, 0);
  groups->setSpacing(6);
  AddGameTypes(*groups);
  AddPlayersAndGrid(*groups);
  AddOptions(*groups);
  AddBanks(*groups);
  groups->addStretch(1);
  AddCues(*column);
  return left;
}

}  // namespace pawnfield
