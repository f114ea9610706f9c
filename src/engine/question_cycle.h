// The question cycle: how the questions of a set reach the screens one after another, and the timers that move it on.
#pragma once

namespace pawnfield {

struct Show;

// Shows the question at the index 0..100 of GameSet: text, picture or sound, with its answer on the console.
// RuntimeError 9 for any other index.
void ShowQuestion(Show& show, int index);
// Puts the present question up as it stood: no sound plays, and no button changes.
void ShowQuestionAgain(Show& show);
// Reads the picture of the question of that number ahead, where it has one.
void HoldPicture(Show& show, int number);
// Hides the question that is up: its panels, the cover over it and the verdict buttons.
void CloseQuestion(Show& show);
// The question that is up is open to all again, in Trivia C.
void ReopenQuestion(Show& show);
// "5 Questions Left!", when exactly six records are left to come.
void CheckQuestionsLeft(Show& show);
// The bonus screen for 3000 ms.
void ShowBonus(Show& show);
// Starts the pause before the next question, or offers Continue where the user advances.
void StartAutoContinue(Show& show);
void ShowVerdictButtons(Show& show, bool correct, bool incorrect);

void btnContinue_Click(Show& show);
void tmrAutoContinue_Timer(Show& show);
void tmr5QuestionTimer_Timer(Show& show);
void tmrBonus_Timer(Show& show);
void tmrCorrectSWF_Timer(Show& show);
void tmrArrowsTimer_Timer(Show& show);
void tmrGridEnable_Timer(Show& show);
// The chase light on the lamps while idle or in standby.
void tmrRotate_Timer(Show& show);

}  // namespace pawnfield
