// Ring-in: the first press that finds the question open gets it and shuts the others out.
#pragma once

namespace pawnfield {

struct Show;

class TransceiverData;

// The console is there to judge a press: nothing modal stands before it.
bool ConsoleListens(const Show& show);
// A question of any kind is open to all, and the room sees it.
bool MayRingIn(const Show& show);
// True for a number that isn't among the game's players; the status line reports each once a game.
bool RefuseWhoDoesNotPlay(Show& show, int player);
// Gives the question to the player: score boxes, ring-in clip, verdict buttons, the cover on the audience screen. False
// for who doesn't play.
bool AcceptRingIn(Show& show, int player);
// The operator's own button for the player who rang in, by index 0..2.
void btnSelectPlayer_Click(Show& show, int index);

// A press of a wireless remote. Error 9 for a remote beyond the debounce memory, or one beyond the routing that finds
// the question open; each such remote is an error once and then ignored.
void dgTransceiver_OnButtonPressed(Show& show, const TransceiverData& data);

}  // namespace pawnfield
