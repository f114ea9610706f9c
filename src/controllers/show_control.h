// The control interface: what a button box or a show-control system asks for, run by the console's own controls.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Status is HTTP's: 200 done, 202 asked for at the console, 400 a request that says nothing, 404 none of ours, 409 not
// now; Text says why.
struct ControlAnswer {
  int Status = 200;
  std::string Text = "Done.";
};

// The request without a leading "/", as "claim?square=C2" or, by OSC, "claim C2". What is disabled at the console does
// nothing here.
ControlAnswer RunControl(Show& show, const std::string& request);
// Asks the operator for what a device wants of Reset or End Game.
void tmrControl_Timer(Show& show);

}  // namespace pawnfield
