// The operator's control of a game from first to last: options, choosing a set, start, standby, reset and end.
#pragma once

namespace pawnfield {

struct Show;

void optGameType_Click(Show& show, int index);
void optPlayers_Click(Show& show, int index);
void optGridControl_Click(Show& show, int index);
void cboAutoContinue_Click(Show& show);
void cboTimedResponse_Click(Show& show);
void cbxScore_Click(Show& show, int index);
void btnStart_Click(Show& show);
void btnPlayMode_Click(Show& show);
void btnStandbyMode_Click(Show& show);
void btnReset_Click(Show& show);
void btnEndGame_Click(Show& show);
void fileClearAllScores_Click(Show& show);

// Shows or hides what belongs to player 3.
void ApplyPlayerLayout(Show& show, int players);
// Where the audience screen goes: 0 when it is full screen on the one board, else the second monitor's left edge.
void PlaceAudienceScreen(Show& show);

}  // namespace pawnfield
