// What the console's widgets of the players and verdicts wear beside their texts: the sign of each player's pieces, the
// light of the turn, a check and a cross. The models keep what they are told.
#pragma once

#include <QFrame>
#include <QPixmap>
#include <memory>
#include <vector>

#include "platform/observer.h"

namespace pawnfield {

class MainForm;

// Gives the widgets of that window their signs. Call before the widgets are bound. What it gives back follows the turn
// and the number of players, and lives as long as the window.
std::vector<std::unique_ptr<Observer>> DressPlayers(MainForm& form, QWidget& window);

// A player's sign in one colour, for buttons and boxes.
QPixmap PlayerSignPicture(int player, int side, const QColor& color);

}  // namespace pawnfield
