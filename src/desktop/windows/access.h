// What assistive devices are told of the program's own widgets beyond what the toolkit tells.
#pragma once

namespace pawnfield {

// Options and check boxes are what they are for, and every action on them is a click; a canvas has what it shows as its
// children. To be called once the application object stands.
void InstallAccess();

}  // namespace pawnfield
