// The operator of a long show: plays games of every type one after another, with sets, presses, music, sounds, pictures
// and films on demand, headers and forms in between. What hands he has decides whether the machine is real.
#pragma once

#include <string>

#include "platform/controls.h"
#include "show/show.h"

namespace pawnfield {

// What a user does. Each is false when it can't be done now.
class Hands {
 public:
  virtual ~Hands() = default;
  virtual bool Press(Control& control) = 0;
  virtual bool Choose(ComboBox& list, const std::string& item) = 0;
  // Presses what opens a form, and closes the form.
  virtual bool Visit(Control& opener) = 0;
  virtual void Type(char key) = 0;
  virtual void PressRemote(int remote) = 0;
  virtual void Wait(int ms) = 0;
};

// Paths of media for the letter keys, and of the music.
struct ShowMedia {
  std::string Sound, Picture, Film, Music;
};

// How long he looks before each step, and after how many steps he ends a game that goes on.
struct Pace {
  int LookMs = 600;
  int MostSteps = 150;
};

class Operator {
 public:
  Operator(Show& show, Hands& hands, const Pace& pace) : show_(show), form_(show.frmMain), hands_(hands), pace_(pace) {}

  // Once the console is up: headers, music and the media behind the letters Q, R and S; and every form once.
  void Prepare(const ShowMedia& media);
  void PlayGame();
  // Ends what still sounds and moves, so that a reading sees the program at rest.
  void Rest();

  int Games() const { return games_; }
  int Claims() const { return claims_; }
  int MediaPlayed() const { return media_; }
  // Films that were seen to run.
  int Films() const { return films_; }
  // Games that went to their winner.
  int Winners() const { return winners_; }

 private:
  void SetUp(int game);
  void Step(int step);
  void Judge(int step);
  void BringUpMedia();
  void VisitForm(int game);
  void WaitForIdle();
  Image* FreeSquare(int step);

  Show& show_;
  MainForm& form_;
  Hands& hands_;
  Pace pace_;
  int games_ = 0, claims_ = 0, media_ = 0, films_ = 0, winners_ = 0;
};

}  // namespace pawnfield
