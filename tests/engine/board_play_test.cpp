// A claim from the click to the resting piece, tick by tick, and the cycle that follows it.
#include "engine/board_play.h"

#include "forms/fs_main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kBoardPlay[] = {
    {"A piece turns on its middle on a 3x3 board", "Challenge B, 2 players",
     "click C2, wait 10 ms, C2 height is 900, C2 top is 3312.5, room C2 height is 1609, room C2 top is 5780.5, wait 30 "
     "ms, C2 height is 135, room C2 height is 406, wait 40 ms, C2 height is 1155, C2 top is 3185, tmrFlipPlayerPiece "
     "is off, wait 20 ms, room C2 height is 2010, room C2 top is 5580"},
    {"A piece turns on its middle on a 4x4 board", "Challenge B, 2 players, 4x4",
     "click C2, wait 10 ms, C2 height is 705, C2 top is 2810, room C2 height is 1287, room C2 top is 4936.5, wait 30 "
     "ms, C2 height is 75, room C2 height is 324, wait 40 ms, C2 height is 915, C2 top is 2705, tmrFlipPlayerPiece is "
     "off, wait 20 ms, room C2 height is 1608, room C2 top is 4776"},
    {"A piece turns on its middle on a 5x5 board", "Challenge B, 2 players, 5x5",
     "click C2, wait 10 ms, C2 height is 585, C2 top is 2457.5, room C2 height is 1072, room C2 top is 4374, wait 30 "
     "ms, C2 height is 90, room C2 height is 268, wait 40 ms, C2 height is 750, C2 top is 2375, tmrFlipPlayerPiece is "
     "off, wait 20 ms, room C2 height is 1340, room C2 top is 4240"},
    {"The flash shows both faces six times and rests on the first", "Challenge B",
     "click A1, wait 50 ms, A1 shows X-100b, wait 50 ms, A1 shows X-100a, wait 50 ms, A1 shows X-100b, wait 150 ms, A1 "
     "shows X-100a, wait 150 ms, A1 shows X-100b, wait 150 ms, A1 shows X-100a, wait 150 ms, A1 shows X-100b, wait 150 "
     "ms, tmrAnswer is off, A1 shows X-100a, wait 150 ms, A1 shows X-100a"},
    {"The piece of player 2 has no second face while it turns", "Challenge B",
     "next player, click A1, wait 50 ms, A1 shows O-100a, wait 50 ms, A1 shows O-100a, wait 50 ms, A1 shows O-100b, "
     "wait 150 ms, A1 shows O-100a"},
    {"The piece of player 3", "Challenge B",
     "next player, next player, click A1, wait 50 ms, A1 shows T-100b, wait 50 ms, A1 shows T-100a, wait 50 ms, A1 "
     "shows T-100b, wait 150 ms, A1 shows T-100a"},
    {"Only an open board takes a claim from either screen", "Challenge B, 2 players",
     "click room C3, board 000/000/001, click A1, wait 899 ms, click A1, board 000/000/001, wait 1 ms, click A1, board "
     "100/000/001, event sound is Pawn.Wav"},
    {"A bonus stands three seconds", "Challenge B, 2 players",
     "claim A1, claim C3, claim A3, claim C1, click B2, wait 899 ms, bonus is hidden, wait 1 ms, room bonus is shown, "
     "event sound is DDouble.wav, wait 2999 ms, room bonus is shown, wait 1 ms, room bonus is hidden"},
    {"Nobody claims under a bonus", "Challenge B, 2 players",
     "claim A1, claim C3, claim A3, claim C1, click B2, wait 900 ms, click B1, board 101/010/101"},
    {"After a bonus the game goes on", "Challenge B, 2 players",
     "claim A1, claim C3, claim A3, claim C1, claim B2, wait 3 s, Undo is on, scores 500/0/0, claim B1, board "
     "111/010/101"},
    {"The pause is three seconds", "Trivia B, 2 players",
     "correct, pause of 3 s, click A1, wait 3899 ms, question 1, wait 1 ms, question 2, Continue is off"},
    {"The pause is five seconds", "Trivia B, 2 players",
     "correct, pause of 5 s, click A1, wait 5899 ms, question 1, wait 1 ms, question 2, Continue is off"},
    {"The user advances", "Trivia B, 2 players",
     "correct, user advances, click A1, wait 60 s, question 1, Continue is on, continue, question 2"},
    {"A question in words has its panel until the verdict", "Trivia A, 2 players, user advances, picture second",
     "room question panel is shown, room picture panel is hidden, room sound panel is hidden, correct, room question "
     "panel is hidden"},
    {"A picture has its panel until the verdict", "Trivia A, 2 players, user advances, picture second",
     "correct, claim A1, continue, room question panel is hidden, room picture panel is shown, room sound panel is "
     "hidden, correct, room picture panel is hidden"},
    {"A sound has its panel until the verdict", "Trivia A, 2 players, user advances, picture second",
     "skip, continue, skip, continue, room question panel is hidden, room picture panel is hidden, room sound panel is "
     "shown, correct, room sound panel is hidden"},
    {"A sound question plays its clip and shows the answer to the operator",
     "Trivia A, 2 players, user advances, picture second",
     "skip, continue, skip, continue, clip is clip.WAV, answer text is The answer"},
    {"The notice of five questions comes once", "Trivia B, 2 players, 4x4, user advances, 7 questions",
     "correct, claim A1, tmr5QuestionTimer is off, continue, correct, claim B1, question text is 5 Questions Left!, "
     "wait 3 s, question panel is hidden, continue, correct, claim C1, tmr5QuestionTimer is off, question panel is "
     "hidden"},
    {"The notice of five questions locks Continue while it stands",
     "Trivia B, 2 players, 4x4, user advances, 7 questions",
     "correct, claim A1, continue, correct, claim B1, Continue is off, wait 3 s, Continue is on, Undo is "
     "on"},
    {"The squares of a line flash together on both screens", "Challenge B, 2 players, Finish Row",
     "claim A1, claim B1, click C1, wait 150 ms, A1 shows X-100b, room B1 shows X-100b, C1 shows X-100b, wait 150 ms, "
     "room A1 shows X-100a, B1 shows X-100a"},
    {"The winner waits for the flash", "Challenge B, 2 players, Finish Row",
     "claim A1, claim B1, click C1, wait 899 ms, C1 shows X-100b, winner is hidden, tmrWinner is off, wait 1 ms, C1 "
     "shows X-100a, winner is shown, room winner is shown"},
    {"While a line flashes its points are paid, and standby and undo offered", "Challenge B, 2 players, Finish Row",
     "claim A1, claim B1, click C1, scores 200/0/0, offers StandbyMode and Undo"},
    {"The winner stands five seconds before standby", "Challenge B, 2 players, Finish Row",
     "claim A1, claim B1, click C1, wait 900 ms, winner is shown, wait 4999 ms, winner is shown, wait 1 ms, winner is "
     "hidden, standby is shown"},
    {"A bonus comes between the flash and the winner", "Challenge B, 2 players, Finish Row",
     "squares worth 100, claim C1, claim B2, click A3, wait 900 ms, bonus is shown, room bonus is shown, winner is "
     "hidden, wait 2999 ms, winner is hidden, wait 1 ms, room bonus is hidden, room winner is shown, winner text is "
     "Game Over!/PLAYER 1/Wins!, Undo is on"},
    {"The winner waits also on a full board", "Challenge B, 2 players, worthless squares",
     "claim A1, claim B1, claim C1, claim A2, claim B2, claim C2, claim A3, claim B3, lines worth 0, click C3, wait "
     "899 ms, winner is hidden, wait 3 s, bonus is hidden, winner is shown"},
    {"An animated winner blinks on both screens and then stands", "Trivia B, 2 players, animated, user advances",
     "correct, wait 5 s, claim A1, end game, wait 200 ms, lblWinner is hidden, room lblWinner is hidden, wait 200 ms, "
     "tmrAnimate(1) is on, wait 1 s, tmrAnimate(1) is off, winner is shown"},
    {"A winner without the animation stands still", "Trivia B, 2 players, user advances",
     "correct, claim A1, end game, winner is shown, tmrAnimate(1) is off"},
    {"End game amid a flash leaves nothing to come", "Trivia B, 2 players",
     "correct, claim A1, wait 3 s, correct, click B1, wait 100 ms, end game, winner is shown, tmrAutoContinue is off, "
     "wait 3 s, question 2, question panel is hidden, winner is shown"},
    {"Undo within the flash leaves the square empty on both screens", "Challenge B, 2 players",
     "claim A1, click B1, wait 160 ms, undo, B1 is empty, room B1 is empty, wait 2 s, B1 is empty, room B1 is empty, "
     "board 100/000/000"},
    {"Undo within the flash takes the points back on every display", "Challenge B, 2 players",
     "claim A1, click B1, wait 160 ms, undo, scores 50/0/0, lblPlayer1Score is 50, room score 1 is 50"},
    {"Play goes on after an undo within the flash", "Challenge B, 2 players",
     "claim A1, click B1, wait 160 ms, undo, Reset is on, wait 2 s, claim C1, board 101/000/000"},
    {"Undo while the piece turns puts the square back in its place", "Challenge B, 2 players",
     "claim A1, click C2, wait 30 ms, undo, C2 height is 1155, C2 top is 3185, room C2 height is 2010, wait 2 s, C2 is "
     "empty, room C2 is empty"},
    {"Start says when a set is too short for the board", "Trivia B, 2 players, picture second",
     "says 3 questions for 9 squares: this set ends before the board is full."},
    {"Behind the last question the board stays", "Trivia B, 2 players, user advances, picture second",
     "correct, claim A1, continue, correct, claim B2, continue, correct, claim B1, continue, says No questions left, "
     "question panel is hidden, room question panel is hidden, room sound panel is hidden, standby is hidden, question "
     "3"},
    {"Behind the last question only undo is left", "Trivia B, 2 players, user advances, picture second",
     "correct, claim A1, continue, correct, claim B2, continue, correct, claim B1, continue, Correct is hidden, "
     "Continue is off, Undo is on"},
    {"The set ends also where the game goes on by itself", "Trivia B, 2 players, picture second",
     "correct, claim A1, wait 3 s, correct, claim B2, wait 3 s, correct, claim B1, wait 3 s, says No questions left, "
     "room question panel is hidden, Correct is hidden, question 3"},
};

using BoardPlayStory = WordStoryTest;
TEST_P(BoardPlayStory, GoesTickByTick) { Play(); }
INSTANTIATE_TEST_SUITE_P(BoardPlay, BoardPlayStory, testing::ValuesIn(kBoardPlay), WordStoryTest::Name);

// A busy machine serves one screen's turn and not the other's.
TEST(BoardPlay, ATurnThatIsLateOnTheRoomsScreenShowsItsPieceAndRestsWithTheNextClaim) {
  GamePlayer game("Challenge A, 2 players");
  FSMainForm& room = game.fixture().audience();
  const Image& square = *room.img.At(0, 0);
  for (const bool atEdge : {false, true}) {
    game.Do(atEdge ? "click B2" : "click A1");
    const Image& turning = *room.img.At(atEdge ? 1 : 0, atEdge ? 1 : 0);
    const std::string piece = atEdge ? "O-100" : "X-100";
    room.tmrFSFlipPlayerPiece.Interval = 60000;
    game.Do("wait 0.9");
    for (int tick = 0; tick < (atEdge ? 4 : 6); ++tick) {
      tmrFSFlipPlayerPiece_Timer(game.show());
      EXPECT_NE(turning.Picture->find(piece), std::string::npos) << tick << ": " << turning.Picture.Get();
    }
    EXPECT_TRUE(room.tmrFSFlipPlayerPiece.Enabled);
  }
  room.tmrFSFlipPlayerPiece.Interval = 1;
  game.Do("click C3, A1 shows X-100a, room A1 shows X-100a, B2 shows O-100a, room B2 shows O-100a, wait 0.9");
  EXPECT_NE(square.Picture->find("X-100a"), std::string::npos);
}

// The room's label had neither place nor size before the first question in words.
TEST(BoardPlay, AMachineThatSleptWhileAPieceTurnedShowsTheFlashAlikeOnBothScreens) {
  for (const char* turned : {"20 ms", "60 ms", "80 ms", "90 ms", "99 ms"}) {
    GamePlayer player("Challenge A, 2 players");
    player.Do(std::string("click A2, wait ") + turned);
    player.fixture().sim.clock.Sleep(4 * 3600 * 1000);
    player.Do("wait 1 ms, wait 40 ms, wait 40 ms, wait 40 ms, wait 2 s, A2 shows X-100a, room A2 shows X-100a");
  }
}

TEST(BoardPlay, FiveQuestionsLeftIsFittedAndCentredAlsoWhereOnlyPicturesCameBefore) {
  GamePlayer player("Trivia B, 2 players, user advances, not started");
  player.fixture().WriteSet("Pictures", std::vector<std::string>(7, "C:\\Shows\\photo.jpg"));
  player.fixture().ChooseSet("Pictures");
  player.Do(
      "start, correct, claim A1, continue, correct, claim B1, tmr5QuestionTimer is on, room question text is 5 "
      "Questions Left!, room question shadow is 5 Questions Left!");
  const Label& notice = player.fixture().audience().lblQuestion[0];
  const PictureBox& panel = player.fixture().audience().picQuestion;
  EXPECT_GT(notice.Width, panel.Width * 0.9);
  EXPECT_NEAR(notice.Top + notice.Height / 2, panel.Height / 2, 1);
}

TEST(BoardPlay, ThereIsNoSquareBeyondTheTable) {
  GamePlayer player("Trivia B, 2 players, 5x5, user advances");
  EXPECT_FALSE(TryClaimSquare(player.show(), 6, 0) || TryClaimSquare(player.show(), 0, -1));
}

}  // namespace
}  // namespace pawnfield
