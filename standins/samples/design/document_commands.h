// Commands for tests of the shell: an object of a class that is derived from the host's, and
// whether other drawings may be activated.
#pragma once

void DrawSymbol();
void SwitchActivation();
