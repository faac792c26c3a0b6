#pragma once

#include "ui/palette.h"

namespace store {

/// What a person has chosen for eyes and ears: size of type, theme, sounds. It is kept in the
/// settings for each user of the program. Who has chosen nothing yet, and the login, get what was
/// chosen last on this workstation.

/// Takes over what the user who is logged in has chosen; nothing where that is the case already.
void TakeUserChoices();

void ChooseTypeSize(int percent);
/// To the next larger or smaller size, as long as there is one.
void StepTypeSize(int steps);
void ChooseTheme(Theme theme);
bool SoundsOn();
void ChooseSounds(bool on);

}  // namespace store
