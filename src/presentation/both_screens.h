// Changes that the audience can see, written on the console; what both screens show alike follows by the rows of
// presentation/screen_pairs.h.
#pragma once

#include <string>

#include "platform/controls.h"

namespace pawnfield {

struct Show;

enum class Panel { Question, QuestionPicture, Sound, Bonus, Correct, Winner, Standby };

void ShowPanel(Show& show, Panel panel);
void HidePanel(Show& show, Panel panel);
// True when the console shows the panel.
bool PanelVisible(const Show& show, Panel panel);

// The score on every display of a player 1..3.
void SetScore(Show& show, int player, const std::string& text);
// The score as its label has it; 0 when it holds no number.
double ScoreOf(Show& show, int player);
void SetPlayerName(Show& show, int player, const std::string& name);
void ResetPlayerNames(Show& show);
void ResetScores(Show& show);

// Lights the score box of a player 1..3 and makes the others normal; 0 makes all normal.
void LightScoreBox(Show& show, int player);
// The square that is being typed, as far as it is known.
void SetTypedCommand(Show& show, const std::string& text);
void SetSquarePicture(Show& show, int row, int column, const std::string& picture);
// The cursor of a player 1..3, or the neutral one for 0.
void SetConsoleCursor(Show& show, int player);
void SetCursorOnBoth(Show& show, int player);

// The path of a picture of the program's folder, for a control to show; empty when the file can't be opened.
std::string PicturePath(Show& show, const std::string& tail);
// The same, and a file that can't be opened is reported through the shared error box the first time it is asked for.
std::string LoadPicture(Show& show, const std::string& tail, const std::string& procedure);

}  // namespace pawnfield
